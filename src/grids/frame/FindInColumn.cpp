#include "grids/frame/FindInColumn.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

void findInColumn(const QString &proposed, const std::function<bool(const QString &)> &find, const ErrorRelay &relay,
                  QObject *asker)
{
    const auto value =
        prompts().text({txt(Text{3030, u"Keresés"}), txt(Text{3031, u"A keresett érték:"}), proposed}, asker);
    relay.checkpoint();
    if (!value || value->isEmpty() || find(*value)) return;
    prompts().tell({Icon::Information, productName(), join(Text{3029, u"Nincs "}, *value, Text{3028, u" érték!"})}, asker);
}

} // namespace QV_DOC_CONTROLS
