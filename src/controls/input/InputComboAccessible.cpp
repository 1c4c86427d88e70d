#include "controls/input/InputComboAccessible.h"

#include "controls/input/InputCombo.h"

#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QLineEdit>

namespace QV_DOC_CONTROLS {
namespace {

/// Qt's own one for lists that can be typed into takes the text for the name. Cursor and selection are those
/// of the line.
class InputComboAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit InputComboAccessible(InputCombo &box) : QAccessibleWidget(&box), m_box(box) {}
    QAccessible::Role role() const override
    {
        if (m_box.count() > 0) return QAccessible::ComboBox;
        return isNumber() ? QAccessible::SpinBox : QAccessible::EditableText;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = m_box.isEnabled();
        state.hasPopup = state.expandable = m_box.count() > 0;
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_box.currentText() : QAccessibleWidget::text(kind);
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return isNumber() ? static_cast<QAccessibleValueInterface *>(this) : nullptr;
        if (type == QAccessible::TextInterface || type == QAccessible::EditableTextInterface)
            return QAccessible::queryAccessibleInterface(m_box.lineEdit())->interface_cast(type);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return m_box.number; }
    void setCurrentValue(const QVariant &value) override { emit m_box.chosen(value); }
    QVariant minimumValue() const override { return m_box.input().min; }
    QVariant maximumValue() const override { return m_box.input().max; }
    QVariant minimumStepSize() const override { return m_box.step; }
private:
    bool isNumber() const { return !m_box.input().isText(); }
    InputCombo &m_box;
};

} // namespace

QAccessibleInterface *makeInputComboAccessible(const QString &, QObject *object)
{
    auto *const box = qobject_cast<InputCombo *>(object);
    return box ? new InputComboAccessible(*box) : nullptr;
}

} // namespace QV_DOC_CONTROLS
