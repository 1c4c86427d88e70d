#include "grids/layer/LayerEdits.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "rules/LayerRules.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

void LayerEdits::addNew()
{
    const tLayArr all = m_desk.doc().layers().readAll();
    if (all.empty()) {
        prompts().tell({Icon::Information, productName(), txt(Text{3298, u"Ez az első réteg!"})},
                       m_desk.asker());
        m_desk.relay().checkpoint();
    }
    const auto lay = newLayer(all, m_desk.current().value_or(tLay{}));
    if (!lay) return;
    qint16 id = -1;
    m_desk.write(txt(Text{21700, u"Új réteg"}), [&] { id = m_desk.doc().layers().add(*lay); });
    m_desk.selectLayer(id);
}

} // namespace QV_DOC_CONTROLS
