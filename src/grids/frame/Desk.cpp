#include "grids/frame/Desk.h"

#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {

ZolWDoc::ZOLW_Doc &Desk::doc()
{
    if (!document()) ErrorRelay::stop();
    return *document();
}

void Desk::tell(const Message &message)
{
    prompts().tell(message, asker());
    relay().checkpoint();
}

bool Desk::yesNo(const Message &question)
{
    const bool yes = prompts().yesNo(question, asker());
    relay().checkpoint();
    return yes;
}

} // namespace QV_DOC_CONTROLS
