#pragma once

#include "rules/NumberInput.h"

#include <QValidator>

#include <utility>

namespace QV_DOC_CONTROLS {

/// Sees every change of a line of text and lets in what could have been typed.
class TypingFilter final : public QValidator {
    Q_OBJECT
public:
    TypingFilter(const NumberInput &input, QObject *parent) : QValidator(parent), m_input(input) {}
    State validate(QString &text, int &cursor) const override;
    template <class Change> void passing(Change change)   ///< runs a change that is not filtered
    {
        m_passing = true;
        change();
        m_passing = false;
    }
    const QString &shown() const { return m_shown; }
    void setShown(const QString &text) { m_shown = text; } ///< let in as it stands: undoing leads back to it
    bool takeDropped() { return std::exchange(m_dropped, false); } ///< whether something was not let in
private:
    const NumberInput &m_input;
    QString m_shown;
    mutable QString m_before;                   ///< the text that was let in last
    mutable bool m_dropped = false;
    bool m_passing = false;
};

} // namespace QV_DOC_CONTROLS
