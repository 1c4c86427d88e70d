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
    group.setsLays("101-105,110,120-139");
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
    const std::pair<qint16, void (*)(ZOL3_LayInfo &)> all[] = {
        {101, [](auto &) {}}, {105, [](auto &layer) { layer.setVisibleIcon(true); }},
        {107, [](auto &layer) { layer.setInfoMode(true); }},
        {102, [](auto &layer) { layer.setEnabled(false); }}};
    for (const auto &[number, make] : all) {
        auto &layer = on<ZOL3_LayInfo>(form);
        make(layer);
        layer.setoDoc(&doc);
        layer.LetLayNr(number, 0);
    }
}

usInputBox &number(QDialog &form, const char *caption)
{
    auto &box = on<usInputBox>(form);
    box.setLocale(interfaceLocale());
    box.setInputType(3);
    box.setFormatString("#,##0.00");
    box.LetValue(0.35, 0, 100);
    box.setBeforeString(QLatin1String(caption));
    box.setUpDownVisible(true);
    return box;
}

void addNumbers(QDialog &form)
{
    number(form, "Value =");
    number(form, "Disabled").setEnabled(false);
    number(form, "Refused").txtCombo->lineEdit()->setText("101");
    auto &listed = number(form, "Listed, framed");
    listed.ComboValue(0.5);
    listed.setBorderStyle(1);
    auto &narrow = number(form, "A caption that is longer than its room");
    narrow.setFixedWidth(narrow.fontMetrics().averageCharWidth() * 40);
    auto &shown = number(form, "Shown only");
    shown.LetValue(12345.6, 0, 20000);
    shown.setInfoMode(true);
}

void addPreviews(QDialog &form, QGridLayout &grid, ZolWDoc::ZOLW_Doc &doc)
{
    const ZolWDoc::tSid letter{.Code = 0xd5, .FullName = "Ő", .Align = 30, .Size_mm = 6, .YwFact = 1,
                               .Facename = "DejaVu Sans", .CharSet = 238, .ProtXmm = 4, .ProtYmm = 0.5,
                               .ProtType = 1};
    ZolWDoc::tSid strokes = letter, box = letter;
    strokes.Type = 1, strokes.Code = 'N', strokes.Facename = "Strokes", strokes.Weight = 60;
    strokes.ProtType = 3;
    box.ProtType = 2, box.Align = 0;
    auto *const dimmed = new usSiInfo(&form);
    dimmed->setShowEnabled(false);
    auto *const desktop = new ZOL3_SiInfo(&form);
    desktop->setBackColor(propertyColor(kWindowBackground));
    desktop->setSiColor(propertyColor(kWindowText));
    desktop->setVisibleFrame(true);
    const std::pair<SymbolPreview *, ZolWDoc::tSid> all[] = {
        {new usSiInfo(&form), letter}, {new ZOL3_SiInfo(&form), strokes}, {desktop, box}, {dimmed, letter}};
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

void addAlignments(QDialog &form, QGridLayout &grid)
{
    int place = 0;
    for (const int number : {24, 2, 14, 255}) { // the last is none
        auto *const picker = new usTxAlign(&form);
        picker->setAlign(number);
        picker->setEnabled(place != 1);
        grid.addWidget(picker, place / 2, place % 2);
        if (++place == 1) picker->setFocus();
    }
}

/// Four controls, on a form as large as the first picture.
void takeFour(tests::Sheet &sheet, const std::function<void(QDialog &, QGridLayout &)> &add)
{
    QDialog form;
    add(form, *new QGridLayout(&form));
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
    const StrokeFontHost fonts;
    takeFour(sheet, [&](QDialog &four, QGridLayout &grid) { addPreviews(four, grid, doc); });
    takeFour(sheet, addAlignments);
}
