#include "pictures/Scene.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/ZOL3_SiInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"
#include "controls/usSiInfo.h"
#include "controls/usTxAlign.h"
#include "support/StrokeFont.h"
#include "facade/services/InterfaceLocale.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
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

usInputBox &number(QDialog &form, const char *caption)
{
    auto &box = on<usInputBox>(form);
    box.setLocale(interfaceLocale());
    box.setInputType(3);
    box.setFormatString(QStringLiteral("#,##0.00"));
    box.LetValue(0.35, 0, 100);
    box.setBeforeString(QLatin1String(caption));
    box.setUpDownVisible(true);
    return box;
}

void addNumbers(QDialog &form)
{
    number(form, "Value =");
    number(form, "Disabled").setEnabled(false);
    number(form, "Refused").txtCombo->lineEdit()->setText(QStringLiteral("101"));
    auto &listed = number(form, "Listed, framed");
    listed.ComboValue(0.5);
    listed.setBorderStyle(1);
    auto &narrow = number(form, "A caption that is longer than its room");
    narrow.setFixedWidth(narrow.fontMetrics().averageCharWidth() * 40);
    auto &shown = number(form, "Shown only");
    shown.LetValue(12345.6, 0, 20000);
    shown.setInfoMode(true);
}

struct Preview {
    SymbolPreview *control;
    ZolWDoc::tSid symbol;
};

void addPreviews(QGridLayout &grid, ZolWDoc::ZOLW_Doc &doc)
{
    const ZolWDoc::tSid letter{.Code = 0xd5, .FullName = QStringLiteral("Ő"), .Align = 30, .Size_mm = 6,
                               .YwFact = 1, .Facename = QStringLiteral("DejaVu Sans"), .CharSet = 238,
                               .ProtXmm = 4, .ProtYmm = 0.5, .ProtType = 1};
    ZolWDoc::tSid strokes = letter, box = letter;
    strokes.Type = 1, strokes.Code = 'N', strokes.Facename = QStringLiteral("Strokes"), strokes.Weight = 60;
    strokes.ProtType = 3;
    box.ProtType = 2, box.Align = 0;
    auto *const dimmed = new usSiInfo;
    dimmed->setShowEnabled(false);
    auto *const desktop = new ZOL3_SiInfo;
    desktop->setBackColor(propertyColor(kWindowBackground));
    desktop->setSiColor(propertyColor(kWindowText));
    desktop->setVisibleFrame(true);
    const Preview all[] = {
        {new usSiInfo, letter}, {new ZOL3_SiInfo, strokes}, {desktop, box}, {dimmed, letter}};
    int place = 0;
    for (const auto &[control, symbol] : all) {
        control->setBorderStyle(1);
        control->setAppearance(place % 2);
        control->setVisibleGrid(place < 2);
        control->setVisibleProt(true);
        control->SetDoc(&doc);
        control->LetSidRec(symbol);
        grid.addWidget(control, place / 2, place % 2);
        ++place;
    }
}

void takePreviews(ZolWDoc::ZOLW_Doc &doc, tests::Sheet &sheet)
{
    const tests::StrokeFontHost fonts;
    QDialog form;
    auto *const grid = new QGridLayout(&form);
    addPreviews(*grid, doc);
    form.resize(sheet.pictures.front().deviceIndependentSize().toSize());
    form.show();
    sheet.take(form);
}

void takeAlignments(tests::Sheet &sheet)
{
    QDialog form;
    auto *const grid = new QGridLayout(&form);
    constexpr int numbers[] = {24, 2, 14, 255}; // the last is none
    for (int i = 0; i < 4; ++i) {
        auto *const picker = new usTxAlign(&form);
        picker->setAlign(numbers[i]);
        picker->setEnabled(i != 1);
        grid->addWidget(picker, i / 2, i % 2);
        if (i == 0) picker->setFocus();
    }
    form.resize(sheet.pictures.front().deviceIndependentSize().toSize());
    form.show();
    QApplication::setActiveWindow(&form);
    sheet.take(form);
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
    takePreviews(doc, sheet);
    takeAlignments(sheet);
}
