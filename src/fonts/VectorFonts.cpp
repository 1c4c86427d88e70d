#include "fonts/VectorFonts.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {

VectorFontList vectorFontList(const ZolWDoc::ZOLW_Doc *doc)
{
    const ZolWDoc::VectorFontProvider *const provider = vectorFonts(doc);
    if (!provider) return {{}, false};
    VectorFontList list;
    for (const QString &name : provider->names()) {
        if (provider->find(name)) list.names << name;
        else list.complete = false;
    }
    if (list.names.isEmpty()) list.complete = false;
    return list;
}

QStringList vectorFontsOrTold(const ZolWDoc::ZOLW_Doc *doc, QObject *asker)
{
    const VectorFontList list = vectorFontList(doc);
    if (!list.complete)
        prompts().tell({Icon::Information, appTitle(),
                        txt(Text{3049, u"Hiányoznak a vektor fontok tulajdonságai!"})},
                       asker);
    return list.names;
}

const ZolWDoc::VectorFont *vectorFont(const ZolWDoc::ZOLW_Doc *doc, const QString &name)
{
    const ZolWDoc::VectorFontProvider *const provider = vectorFonts(doc);
    return provider ? provider->find(name) : nullptr;
}

} // namespace QV_DOC_CONTROLS
