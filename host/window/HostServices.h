#pragma once

#include "window/Language.h"
#include "window/QtTexts.h"

#include <memory>

namespace refhost {

/// What the program offers the library beside its documents. Lives as long as the program's windows.
class HostServices : public ZolWDoc::HostServices {
public:
    HostServices();                                 ///< hands itself to the library
    ~HostServices() override;
    HostServices(const HostServices &) = delete;
    HostServices &operator=(const HostServices &) = delete;

    Language *language() override { return &m_language; }
    ZolWDoc::VectorFontProvider *vectorFonts(
        const ZolWDoc::ZOLW_Doc *) override; ///< the drawing's own characters
private:
    Language m_language;
    std::unique_ptr<QtTexts> m_qtTexts;             ///< made when the language is known
};

/// Under which the program's settings are kept.
inline QString settingsName() { return QStringLiteral("qvdraw"); }

} // namespace refhost
