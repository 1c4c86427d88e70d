#include "dialogs/editors/FieldSet.h"

#include "kit/ask/ErrorRelay.h"

#include <QLabel>
#include <QScopedValueRollback>

#include <cstring>

namespace QV_DOC_CONTROLS {

void FieldSet::add(const FieldSpec &spec)
{
    QWidget *const control = spec.kind->make(&m_form, spec, m_relay);
    control->setObjectName(QLatin1String(spec.control));
    const size_t row = m_fields.size();
    m_fields.push_back({&spec, control, {}});
    spec.kind->follow(*control, [this, row] { m_relay.guard([&] { take(row); }); });
}

size_t FieldSet::indexOf(const char *name) const
{
    const auto found = std::ranges::find_if(m_fields, [name](const Field &f) {
        return std::strcmp(f.spec->control, name) == 0;
    });
    Q_ASSERT_X(found != m_fields.end(), "FieldSet", name);
    return size_t(found - m_fields.begin());
}

QLabel *FieldSet::label(const char *name)
{
    Field &field = m_fields[indexOf(name)];
    field.label = new QLabel(&m_form);
    field.label->setBuddy(field.control);
    return field.label;
}

void FieldSet::showRow(size_t row, const QVariant &value)
{
    const QScopedValueRollback showing(m_showing, true);
    Field &field = m_fields[row];
    field.spec->kind->show(*field.control, value, *field.spec);
    field.shown = field.spec->kind->value(*field.control);
}

/// A value is taken when it is another one than the control showed: what is only shown rounded, or cannot be
/// shown at all, stays as it is.
void FieldSet::take(size_t row)
{
    Field &field = m_fields[row];
    const QVariant now = field.spec->kind->value(*field.control);
    if (m_showing || now == field.shown) return;
    field.shown = now;
    put(row, now);
    if (m_changed) m_changed(field.spec->control);
}

bool FieldSet::settle()
{
    for (size_t row = 0; row < m_fields.size(); ++row) {
        QWidget &control = *m_fields[row].control;
        if (!control.isEnabled()) continue;
        const bool settled = m_fields[row].spec->kind->settle(control);
        m_relay.checkpoint();
        take(row);
        if (settled) continue;
        control.setFocus();
        return false;
    }
    return true;
}

QStringList FieldSet::captions() const
{
    QStringList all;
    for (const Field &field : m_fields) all << txt(field.spec->caption);
    return all;
}

void FieldSet::retranslate(const QStringList &captions)
{
    const QScopedValueRollback showing(m_showing, true);
    for (size_t row = 0; row < m_fields.size(); ++row) {
        const Field &field = m_fields[row];
        const FieldControl &kind = *field.spec->kind;
        const QString keyed = captions[qsizetype(row)];
        if (field.label) field.label->setText(keyed);
        kind.retranslate(*field.control, *field.spec, kind.ownCaption ? keyed : txt(field.spec->caption));
    }
}

} // namespace QV_DOC_CONTROLS
