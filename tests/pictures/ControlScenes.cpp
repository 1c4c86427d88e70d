#include "pictures/Scene.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"

#include <QComboBox>
#include <QDialog>
#include <QVBoxLayout>

using namespace QV_DOC_CONTROLS;

namespace {

template <class Control> Control &on(QDialog &form)
{
    auto *const control = new Control(&form);
    form.layout()->addWidget(control);
    return *control;
}

void addLayerSets(QDialog &form, ZolWDoc::ZOLW_Doc &doc)
{
    auto &group = on<ZOL3_LayGroup>(form);
    group.setZOLW_Doc(&doc);
    group.setsLays(QStringLiteral("101-105,110,120-139"));
    auto &line = on<ZOL3_LayGroup>(form);
    line.setSingleLine(true);
    line.setWidthDiferent(600);
    line.setZOLW_Doc(&doc);
    line.setsLayGroup(line.cboLays->itemText(2)); // the visible ones
    auto &array = on<usLays>(form);
    array.setSingleLine(true);
    array.setBackcolor(QColor(255, 250, 205));
    array.SetLayArr(doc.layers().readAll());
}

void addLayerPickers(QDialog &form, ZolWDoc::ZOLW_Doc &doc)
{
    for (const bool icon : {false, true}) {
        auto &layer = on<ZOL3_LayInfo>(form);
        layer.setVisibleIcon(icon);
        layer.setoDoc(&doc);
        layer.LetLayNr(icon ? 105 : 101, 0);
    }
    auto &shown = on<ZOL3_LayInfo>(form);
    shown.setInfoMode(true);
    shown.setoDoc(&doc);
    shown.LetLayNr(107, 0);
    auto &disabled = on<ZOL3_LayInfo>(form);
    disabled.setEnabled(false);
    disabled.setoDoc(&doc);
    disabled.LetLayNr(102, 0);
}

void addNumbers(QDialog &form)
{
    for (const bool enabled : {true, false}) {
        auto &width = on<usInputBox>(form);
        width.setInputType(3);
        width.setFormatString(QStringLiteral("0.00"));
        width.setValue(0.35);
        width.setUpDownVisible(true);
        width.setEnabled(enabled);
    }
    auto &shown = on<usInputBox>(form);
    shown.setInfoMode(true);
    shown.setValue(12);
}

} // namespace

void tests::takeControls(ZolWDoc::ZOLW_Doc &doc, Sheet &sheet)
{
    QDialog form;
    new QVBoxLayout(&form);
    addLayerSets(form, doc);
    addLayerPickers(form, doc);
    addNumbers(form);
    form.resize(460, form.sizeHint().height());
    form.show();
    sheet.take(form);
}
