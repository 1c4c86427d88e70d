#include "facade/services/Prompts.h"

#include <utility>

namespace QV_DOC_CONTROLS {
namespace {

Prompts *s_set = nullptr;
Prompts &(*s_default)() = nullptr;

} // namespace

Prompts &prompts()
{
    Q_ASSERT_X(s_set || s_default, "prompts",
               "no message boxes: link the widgets library or call setPrompts()");
    return s_set ? *s_set : s_default();
}

Prompts *setPrompts(Prompts *p) { return std::exchange(s_set, p); }
void setDefaultPrompts(Prompts &(*make)()) { s_default = make; }

} // namespace QV_DOC_CONTROLS
