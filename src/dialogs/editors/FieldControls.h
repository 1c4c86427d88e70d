#pragma once

#include "facade/services/Text.h"

#include <QVariant>

#include <functional>
#include <span>

class QWidget;

namespace QV_DOC_CONTROLS {

class ErrorRelay;
struct FieldControl;

/// What a number box takes and how it shows it, in its own unit.
struct NumberBounds {
    double min = 0, max = 0;       ///< both included
    const char16_t *format = u"0"; ///< see NumberFormat; with decimals the box takes decimals
    double step = 1;               ///< of the arrows
    bool millimetres = false;      ///< the unit behind it; else none
};

/// One field on an editor's form: a row of data.
struct FieldSpec {
    const char *control; ///< published
    const FieldControl *kind;
    Text caption;
    NumberBounds bounds{};
    std::span<const Text> choices{}; ///< of a list or a row of options, by number
};

/// How a kind of control takes part in an editor: what the rows' widgets have to know, once for each class.
struct FieldControl {
    QWidget *(*make)(QWidget *form, const FieldSpec &spec, ErrorRelay &relay);
    /// What a record has, also when the control could not be brought to say it: that stays until the user
    /// changes it. Raises nothing that the form hears of.
    void (*show)(QWidget &control, const QVariant &value, const FieldSpec &spec);
    QVariant (*value)(const QWidget &control);
    void (*follow)(QWidget &control, const std::function<void()> &changed); ///< by the user
    /// Takes what is typed and not taken yet; false = it is refused, and the user knows.
    bool (*settle)(QWidget &control);
    /// In the current language; a caption that stands beside the control is the form's.
    void (*retranslate)(QWidget &control, const FieldSpec &spec, const QString &caption);
    bool ownCaption = false; ///< the control shows its caption itself
};

extern const FieldControl kLineField;   ///< QLineEdit: text
extern const FieldControl kNumberField; ///< usInputBox: a number
extern const FieldControl kOptionField; ///< OptionBox: the number of a choice
extern const FieldControl kListField;   ///< QComboBox: the number of a choice
extern const FieldControl kFaceField;   ///< QComboBox: a face among those that its form has listed
extern const FieldControl kAlignField;  ///< usTxAlign: a text-align number
extern const FieldControl kLayerField;  ///< ZOL3_LayInfo: a layer's identifier

} // namespace QV_DOC_CONTROLS
