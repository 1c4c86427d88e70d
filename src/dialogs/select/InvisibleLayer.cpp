#include "dialogs/select/InvisibleLayer.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

bool isInvisibleMeant(const QString &before, QObject *asker)
{
    const QString question = join(before, Text{20019, u"Kikapcsolt réteget választott!"},
                                  QStringLiteral("\n"), Text{20020, u"Megerősíti?"});
    return prompts().yesNo({Icon::Question, appTitle(), question}, asker);
}

} // namespace QV_DOC_CONTROLS
