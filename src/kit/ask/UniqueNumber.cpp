#include "kit/ask/UniqueNumber.h"

#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {

std::optional<double> uniqueNumber(ErrorRelay &relay, NumberQuestion question,
                                   const std::function<std::optional<Message>(double)> &refusalFor,
                                   QObject *asker)
{
    for (;;) {
        const auto typed = prompts().numbers(question, asker);
        relay.checkpoint();
        if (!typed) return {};
        const auto refusal = refusalFor(typed->front());
        if (!refusal) return typed->front();
        prompts().tell(*refusal, asker);
        relay.checkpoint();
        question.fields.front().preset = typed->front();
    }
}

} // namespace QV_DOC_CONTROLS
