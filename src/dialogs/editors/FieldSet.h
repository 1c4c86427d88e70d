#pragma once

#include "dialogs/editors/FieldControls.h"

#include <QObject>

#include <vector>

class QLabel;

namespace QV_DOC_CONTROLS {

/// The fields of an editor's form: makes the controls of the rows, shows a record in them and takes over what
/// the user changes, and nothing else. Typed by its record in RecordFields.
///
/// Belongs to the form. What the host throws while the user works goes to the relay.
class FieldSet {
public:
    using Changed = std::function<void(const char *control)>;
    FieldSet(const FieldSet &) = delete;
    FieldSet &operator=(const FieldSet &) = delete;

    template <class Control> Control *control(const char *name) const ///< the row must be there
    {
        return static_cast<Control *>(m_fields[indexOf(name)].control);
    }
    QLabel *label(const char *name); ///< for the caption of a control that shows none itself
    /// After the record was changed by one: what its field depends on is the form's.
    void onChange(Changed changed) { m_changed = std::move(changed); }
    /// Takes what is typed and not taken yet. False = a field refused it, said why and has the focus.
    bool settle();
    void retranslate(const QStringList &captions); ///< of the rows, in order; "&" marks an access key
    QStringList captions() const;                  ///< of the rows, in the current language

protected:
    FieldSet(QWidget &form, ErrorRelay &relay) : m_form(form), m_relay(relay) {}
    ~FieldSet() = default;
    void add(const FieldSpec &spec);
    void showRow(size_t row, const QVariant &value);
    size_t indexOf(const char *name) const;
    virtual void put(size_t row, const QVariant &value) = 0; ///< into the record

private:
    struct Field {
        const FieldSpec *spec;
        QWidget *control;
        QVariant shown; ///< as the control said it when it was last looked at
        QLabel *label = nullptr;
    };
    void take(size_t row);
    QWidget &m_form;
    ErrorRelay &m_relay;
    Changed m_changed;
    std::vector<Field> m_fields;
    bool m_showing = false;
};

} // namespace QV_DOC_CONTROLS
