#include "window/HostServices.h"

#include "document/HostTexts.h"
#include "document/SqliteDoc.h"

#include "facade/services/Language.h"
#include "facade/services/Services.h"

namespace refhost {

HostServices::HostServices()
{
    loadHostTexts();
    QV_DOC_CONTROLS::setHostServices(this);
    QV_DOC_CONTROLS::LanguageHub::instance().connectToRuntime();
    QV_DOC_CONTROLS::LanguageHub::instance().takeOver();
    m_qtTexts = std::make_unique<QtTexts>();
}

HostServices::~HostServices() { QV_DOC_CONTROLS::setHostServices(nullptr); }

ZolWDoc::VectorFontProvider *HostServices::vectorFonts(const ZolWDoc::ZOLW_Doc *doc)
{
    auto *const own =
        dynamic_cast<SqliteDoc *>(const_cast<ZolWDoc::ZOLW_Doc *>(doc)); // the contract hands it out const
    auto &fonts = m_fonts[own];
    if (!fonts) fonts = std::make_unique<DrawingFonts>(own, m_strokeFonts);
    return fonts.get();
}

} // namespace refhost
