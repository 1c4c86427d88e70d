#include "kit/ask/UniqueText.h"

#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {

std::optional<QString> uniqueText(ErrorRelay &relay, TextQuestion question,
                                  const std::function<std::optional<Message>(const QString &)> &refusalFor,
                                  QObject *asker)
{
    for (;;) {
        const auto typed = prompts().text(question, asker);
        relay.checkpoint();
        const QString name = typed.value_or(QString()).trimmed();
        if (name.isEmpty()) return {};
        const auto refusal = refusalFor(name);
        if (!refusal) return name;
        prompts().tell(*refusal, asker);
        relay.checkpoint();
        question.preset = *typed;
    }
}

} // namespace QV_DOC_CONTROLS
