#include "dialogs/editors/FieldControls.h"

#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usTxAlign.h"
#include "dialogs/editors/OptionBox.h"
#include "fonts/FontCatalogue.h"
#include "facade/services/InterfaceLocale.h"
#include "kit/forms/QuietWheel.h"

#include <QComboBox>
#include <QLineEdit>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

using Changed = std::function<void()>;
constexpr int kDecimal = 3;          // usInputBox::InputType
constexpr char kWanted[] = "wanted"; // what a list was to show and does not have

template <class Control> Control &as(QWidget &w) { return static_cast<Control &>(w); }
template <class Control> const Control &as(const QWidget &w) { return static_cast<const Control &>(w); }
template <class Control> QWidget *made(QWidget *form, const FieldSpec &, ErrorRelay &)
{
    return new Control(form);
}
bool nothingTyped(QWidget &) { return true; }
void nameIt(QWidget &w, const FieldSpec &, const QString &caption) { w.setAccessibleName(caption); }

QStringList captionsOf(const FieldSpec &spec)
{
    QStringList all;
    for (const Text &choice : spec.choices) all << txt(choice);
    return all;
}

// --- a line of text

void showLine(QWidget &w, const QVariant &v, const FieldSpec &) { as<QLineEdit>(w).setText(v.toString()); }
QVariant lineOf(const QWidget &w) { return as<QLineEdit>(w).text(); }
void followLine(QWidget &w, const Changed &changed)
{
    QObject::connect(&as<QLineEdit>(w), &QLineEdit::textEdited, &w, changed);
}

// --- a number

QWidget *makeNumber(QWidget *form, const FieldSpec &, ErrorRelay &)
{
    auto *const box = new usInputBox(form);
    box->setReadsLocale(true);
    box->setUpDownVisible(true);
    return box;
}

/// A value outside the bounds is the record's and stays allowed.
void showNumber(QWidget &w, const QVariant &v, const FieldSpec &spec)
{
    auto &box = as<usInputBox>(w);
    const double number = std::isfinite(v.toDouble()) ? v.toDouble() : 0;
    const QString format = QString::fromUtf16(spec.bounds.format);
    if (box.FormatString() != format) box.setFormatString(format);
    box.setInputType(format.contains(u'.') ? kDecimal : 0);
    box.setUpDownInc(spec.bounds.step);
    box.LetValue(number, std::min(spec.bounds.min, number), std::max(spec.bounds.max, number));
}
QVariant numberOf(const QWidget &w) { return as<usInputBox>(w).Value(); }
/// A bound that the arrows reach is told by no event: keys and buttons that come up are looked at, too.
void followNumber(QWidget &w, const Changed &changed)
{
    auto &box = as<usInputBox>(w);
    QObject::connect(&box, &usInputBox::Change, &w, [changed] { changed(); });
    QObject::connect(&box, &usInputBox::MouseUp, &w, [changed] { changed(); });
    QObject::connect(&box, &usInputBox::KeyUp, &w, [changed] { changed(); });
}
bool settleNumber(QWidget &w)
{
    auto &box = as<usInputBox>(w);
    if (const auto number = box.acceptableNumber()) return box.LetValue(*number);
    return box.LetValue(box.txtCombo->currentText()); // which says what is wrong with it
}
void captionNumber(QWidget &w, const FieldSpec &spec, const QString &caption)
{
    auto &box = as<usInputBox>(w);
    box.setLocale(interfaceLocale());
    box.setBeforeString(caption);
    if (!spec.bounds.millimetres) box.setAfterString({});
}

// --- one of several choices

/// With its options at once: they come here in the order of tabs.
QWidget *makeOption(QWidget *form, const FieldSpec &spec, ErrorRelay &)
{
    auto *const box = new OptionBox(form);
    box->setChoices(captionsOf(spec));
    return box;
}
void showOption(QWidget &w, const QVariant &v, const FieldSpec &) { as<OptionBox>(w).setValue(v.toInt()); }
QVariant optionOf(const QWidget &w) { return as<OptionBox>(w).value(); }
void followOption(QWidget &w, const Changed &changed)
{
    QObject::connect(&as<OptionBox>(w), &OptionBox::chosen, &w, changed);
}
void captionOption(QWidget &w, const FieldSpec &spec, const QString &caption)
{
    as<OptionBox>(w).setTitle(caption);
    as<OptionBox>(w).setChoices(captionsOf(spec));
}

QWidget *makeList(QWidget *form, const FieldSpec &, ErrorRelay &)
{
    auto *const list = new QComboBox(form);
    quietWheel(*list);
    return list;
}
void fillList(QWidget &w, const FieldSpec &spec)
{
    auto &list = as<QComboBox>(w);
    const QStringList captions = captionsOf(spec);
    for (int i = 0; i < captions.size(); ++i)
        if (i < list.count())
            list.setItemText(i, captions[i]);
        else
            list.addItem(captions[i]);
}
void showChoice(QWidget &w, const QVariant &v, const FieldSpec &spec)
{
    fillList(w, spec);
    as<QComboBox>(w).setCurrentIndex(v.toInt() < as<QComboBox>(w).count() ? v.toInt() : -1);
}
QVariant choiceOf(const QWidget &w) { return as<QComboBox>(w).currentIndex(); }
void followList(QWidget &w, const Changed &changed)
{
    QObject::connect(&as<QComboBox>(w), &QComboBox::currentIndexChanged, &w, changed);
}
void captionList(QWidget &w, const FieldSpec &spec, const QString &caption)
{
    fillList(w, spec);
    nameIt(w, spec, caption);
}

// --- a face: one that is not listed is named and stays

void showFace(QWidget &w, const QVariant &v, const FieldSpec &)
{
    auto &list = as<QComboBox>(w);
    QStringList faces;
    for (int i = 0; i < list.count(); ++i) faces << list.itemText(i);
    const QString face = v.toString();
    list.setProperty(kWanted, face);
    list.setCurrentIndex(indexOfFace(faces, face));
    const bool unknown = list.currentIndex() < 0 && !face.isEmpty();
    list.setPlaceholderText(unknown ? unknownFaceText(face) : QString());
    list.setAccessibleDescription(list.placeholderText());
}
QVariant faceOf(const QWidget &w)
{
    const auto &list = as<QComboBox>(w);
    return list.currentIndex() < 0 ? list.property(kWanted) : list.currentText();
}
void captionFace(QWidget &w, const FieldSpec &spec, const QString &caption)
{
    showFace(w, faceOf(w), spec);
    nameIt(w, spec, caption);
}

// --- alignment and layer

void showAlign(QWidget &w, const QVariant &v, const FieldSpec &) { as<usTxAlign>(w).setAlign(v.toInt()); }
QVariant alignOf(const QWidget &w) { return as<usTxAlign>(w).Align(); }
void followAlign(QWidget &w, const Changed &changed)
{
    QObject::connect(&as<usTxAlign>(w), &usTxAlign::ChangeAlign, &w, [changed] { changed(); });
}

/// The layer that is typed here is a value of the record and no current layer.
QWidget *makeLayer(QWidget *form, const FieldSpec &, ErrorRelay &relay)
{
    auto *const layer = new ZOL3_LayInfo(form);
    layer->setNotSetCurrentLayer(true);
    layer->setVisibleIcon(true);
    layer->setRelay(relay);
    return layer;
}
void showLayer(QWidget &w, const QVariant &v, const FieldSpec &)
{
    auto &layer = as<ZOL3_LayInfo>(w);
    const auto id = qint16(v.toInt());
    if (layer.oDoc() && layer.oDoc()->layers().find(id)) layer.setLayId(id);
}
QVariant layerOf(const QWidget &w) { return as<ZOL3_LayInfo>(w).LayId(); }
void followLayer(QWidget &w, const Changed &changed)
{
    QObject::connect(&as<ZOL3_LayInfo>(w), &ZOL3_LayInfo::ChangeLay, &w, [changed] { changed(); });
}
bool settleLayer(QWidget &w)
{
    auto &layer = as<ZOL3_LayInfo>(w);
    const QString typed = layer.txtLayNr->text();
    if (!layer.txtLayNr->isModified()) return true;
    layer.LetLayNr(typed, 0);
    return typed.toInt() == layer.layNr();
}

} // namespace

const FieldControl kLineField{made<QLineEdit>, showLine, lineOf, followLine, nothingTyped, nameIt};
const FieldControl kNumberField{makeNumber,   showNumber,    numberOf, followNumber,
                                settleNumber, captionNumber, true};
const FieldControl kOptionField{makeOption,   showOption,    optionOf, followOption,
                                nothingTyped, captionOption, true};
const FieldControl kListField{makeList, showChoice, choiceOf, followList, nothingTyped, captionList};
const FieldControl kFaceField{makeList, showFace, faceOf, followList, nothingTyped, captionFace};
const FieldControl kAlignField{made<usTxAlign>, showAlign, alignOf, followAlign, nothingTyped, nameIt};
const FieldControl kLayerField{makeLayer,   showLayer,   layerOf,
                               followLayer, settleLayer, [](QWidget &, const FieldSpec &, const QString &) {},
                               true};

} // namespace QV_DOC_CONTROLS
