#include "controls/ZOL3_SiInfo.h"

#include "facade/services/Language.h"

#include <QEvent>

namespace QV_DOC_CONTROLS {

ZOL3_SiInfo::ZOL3_SiInfo(QWidget *parent) : SymbolPreview("ZOL3_SiInfo", parent)
{
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &ZOL3_SiInfo::ml_RuntimeSupport_LanguageChanged);
}

void ZOL3_SiInfo::mFont_FontChanged()
{
    arrange();
    updateGeometry();
    redraw();
}

void ZOL3_SiInfo::ml_RuntimeSupport_LanguageChanged() { reloadCaptions(); }

void ZOL3_SiInfo::changeEvent(QEvent *event)
{
    SymbolPreview::changeEvent(event);
    if (event->type() == QEvent::FontChange) mFont_FontChanged();
}

} // namespace QV_DOC_CONTROLS
