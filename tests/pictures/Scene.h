#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/Services.h"
#include "fonts/StrokeFonts.h"
#include "pictures/Sheet.h"

#include <functional>

namespace tests {

/// A state of a dialog that a picture is made of: `open` returns when the dialog is closed.
struct Scene {
    const char *name;
    std::function<void()> open;
};

/// A program that offers the host's vector fonts as long as it stands.
struct StrokeHost final : ZolWDoc::HostServices {
    refhost::StrokeFonts fonts;
    StrokeHost() { QV_DOC_CONTROLS::setHostServices(this); }
    ~StrokeHost() override { QV_DOC_CONTROLS::setHostServices(nullptr); }
    ZolWDoc::VectorFontProvider *vectorFonts(const ZolWDoc::ZOLW_Doc *) override { return &fonts; }
};

std::vector<Scene> valueScenes();               ///< the boxes behind prompts()
std::vector<Scene> viewToolScenes();            ///< the dialogs that order a grid
std::vector<Scene> fontScenes();                ///< the dialogs behind fontPicker()
void takeControls(ZolWDoc::ZOLW_Doc &doc, Sheet &sheet);  ///< the controls on a form as a host builds it
void takeEditors(ZolWDoc::ZOLW_Doc &doc, Sheet &sheet);   ///< the editors of records, and their managers
void takeSelection(ZolWDoc::ZOLW_Doc &doc, Sheet &sheet); ///< the selection dialog in its views, and on paper

} // namespace tests
