#include "dialogs/select/AllDocuments.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/ask/StepRun.h"
#include "rules/LayerTransfer.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

using Parts = std::span<bool tLay::*const>;
constexpr Text kCommand{21810, u"Rétegtulajdonságok átvitele a többi rajzba"};

void takeOver(ZOLW_Doc &to, const tLayArr &from, Parts parts)
{
    const tLayArr changed = takingOver(from, to.layers().readAll(), parts);
    if (!changed.empty())
        inCommand(to, txt(kCommand), [&] {
            int written = 0;
            to.layers().updateAll(changed, written);
        });
    to.redrawAll();
}

void tellOfFailure(const QString &document, QWidget *asker)
{
    prompts().tell(
        {Icon::Exclamation, appTitle(),
         join(Text{21811, u"Nem sikerült átvinni a rétegek tulajdonságait ebbe a rajzba: "}, document,
              QStringLiteral("\n"), messageOf(std::current_exception()), QStringLiteral("\n"),
              Text{21812, u"A sorrendben utána következő rajzok nem változtak."})},
        asker);
}

} // namespace

void copyToAllDocuments(ZOLW_Doc &from, DocumentList &list, Parts parts, QWidget *asker)
{
    const tLayArr layers = from.layers().readAll();
    QString working;                            // the document that is being changed
    StepRun::Steps steps;
    for (int i = 0, n = list.count(); i < n; ++i) {
        ZOLW_Doc *const to = list.item(i);
        if (!to || to == &from) continue;
        steps.push_back([&, to, name = list.name(i)] {
            working = name;
            takeOver(*to, layers, parts);
        });
    }
    bool through = false;
    try {
        through = StepRun(txt(kCommand)).run(steps, asker);
    } catch (...) {
        tellOfFailure(working, asker);
        throw;
    }
    if (!through) ErrorRelay::stop();
}

} // namespace QV_DOC_CONTROLS
