#pragma once

#include "facade/services/Prompts.h"

#include <QVariant>

#include <functional>
#include <vector>

namespace tests {

/// What a test expects the user to be asked, in order, and what the user answers. An unexpected box fails the
/// test and is answered as if it was closed, and so is an answer that the real box would not take; a box that
/// never came fails it at the end.
class ScriptedPrompts final : public QV_DOC_CONTROLS::Prompts {
public:
    struct Step {
        const char *kind;                       ///< the member of Prompts: "tell", "yesNo", "numbers" ...
        QString title, text;                    ///< to the letter; of a file question the text is the filter
        QVariant answer{};                      ///< none = the box is closed
        QV_DOC_CONTROLS::Icon icon = QV_DOC_CONTROLS::Icon::None;
        std::function<void()> meanwhile{};      ///< happens while the box is open
    };
    ScriptedPrompts(std::vector<Step> steps = {});
    ~ScriptedPrompts() override;
    int asked() const { return m_next; }
    int alerts() const { return m_alerts; }     ///< how often the sound was heard

    void alert() override { ++m_alerts; }
    void tell(const QV_DOC_CONTROLS::Message &, QObject *) override;
    void show(const QV_DOC_CONTROLS::Report &,
              QObject *) override; ///< expects text and lines, joined by '\n'
    bool yesNo(const QV_DOC_CONTROLS::Message &, QObject *) override;
    QV_DOC_CONTROLS::AllYesNo allYesNo(const QV_DOC_CONTROLS::Message &, QObject *) override;
    std::optional<bool> yesNoCancel(const QV_DOC_CONTROLS::Message &, QObject *) override;
    std::optional<int> choose(const QV_DOC_CONTROLS::Choice &, QObject *) override;
    std::optional<QString> text(const QV_DOC_CONTROLS::TextQuestion &,
                                QObject *) override; ///< expects text + '|' + preset
    /// Expects text + '|' + label + '|' + preset of each field, e.g. "Milyen ...?|növekmény|100"; the answer
    /// is a QVariantList.
    std::optional<std::vector<double>> numbers(const QV_DOC_CONTROLS::NumberQuestion &, QObject *) override;
    std::optional<int> colorIndex(const QV_DOC_CONTROLS::ColorIndexQuestion &,
                                  QObject *) override; ///< expects text + '|' + preset
    QString openFile(const QV_DOC_CONTROLS::FileQuestion &, QObject *) override;
    QString saveFile(const QV_DOC_CONTROLS::FileQuestion &, QObject *) override;

private:
    QVariant next(const char *kind, const QString &title, const QString &text, QV_DOC_CONTROLS::Icon icon);
    std::vector<Step> m_steps;
    int m_next = 0, m_alerts = 0;
    QV_DOC_CONTROLS::Prompts *m_before;
};

/// A message with one button.
inline ScriptedPrompts::Step told(const QString &title, const QString &text,
                                  QV_DOC_CONTROLS::Icon icon = QV_DOC_CONTROLS::Icon::Information)
{
    return {"tell", title, text, {}, icon};
}
inline ScriptedPrompts::Step warned(const QString &title, const QString &text)
{
    return told(title, text, QV_DOC_CONTROLS::Icon::Exclamation);
}

} // namespace tests
