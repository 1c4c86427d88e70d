#pragma once

#include "fonts/StrokeFonts.h"
#include "window/DrawingFonts.h"
#include "window/Language.h"
#include "window/QtTexts.h"
#include "window/UserSettings.h"

#include <map>
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
    UserSettings *settings() override { return &m_settings; }
    ZolWDoc::VectorFontProvider *vectorFonts(
        const ZolWDoc::ZOLW_Doc *) override; ///< its own characters, and stroke fonts for any drawing
private:
    Language m_language;
    UserSettings m_settings;
    StrokeFonts m_strokeFonts;
    std::map<const SqliteDoc *, std::unique_ptr<DrawingFonts>> m_fonts; ///< stay as long as the program
    std::unique_ptr<QtTexts> m_qtTexts;             ///< made when the language is known
};

/// Under which the program's settings are kept.
inline QString settingsName() { return QStringLiteral("qvdraw"); }

} // namespace refhost
