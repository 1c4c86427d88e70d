#pragma once

#include "grids/clsJS_Sid.h"
#include "kit/tools/Tool.h"

namespace QV_DOC_CONTROLS {

/// What the symbol tools do and when they can be used. Names are published.
inline constexpr ToolCommand<clsJS_Sid> kSymbolCommands[] = {
    {"miAddNew", &clsJS_Sid::newSymbol, &clsJS_Sid::canEditTable},
    {"miRemove", &clsJS_Sid::deleteSymbols, &clsJS_Sid::canEditSelected},
    {"cmdSid_Edit", &clsJS_Sid::editSymbol, &clsJS_Sid::canEditSymbol},
    {"cmdSid_Name", &clsJS_Sid::renameSymbol, &clsJS_Sid::canEditCurrent},
    {"cmdSid_Size", &clsJS_Sid::setSize, &clsJS_Sid::canEditSelected},
    {"cmdSid_Width", &clsJS_Sid::setThickness, &clsJS_Sid::canEditSelected},
    {"cmdSid_TrueType", &clsJS_Sid::setTrueType, &clsJS_Sid::canPickFont},
    {"cmdSid_Vector", &clsJS_Sid::setVectorFont, &clsJS_Sid::canPickFont},
    {"cmdSid_Layer", &clsJS_Sid::setLayer, &clsJS_Sid::canPickLayer},
    {"miSave2XML", &clsJS_Sid::saveSet, &clsJS_Sid::isOpen},
    {"miSaveXML", &clsJS_Sid::saveSet, &clsJS_Sid::isOpen},
    {"moLoadXML", &clsJS_Sid::loadSet, &clsJS_Sid::canEditTable}, // published spelling
    {"miLoadXML", &clsJS_Sid::loadSet, &clsJS_Sid::canEditTable},
    {"miLoadFont25", &clsJS_Sid::newFromVectorFont, &clsJS_Sid::canLoadFont},
    {"miAddNewGroup", &clsJS_Sid::newGroup, &clsJS_Sid::canEditGroups},
    {"miGroupRename", &clsJS_Sid::renameGroup, &clsJS_Sid::canEditGroup},
    {"miGroupRemove", &clsJS_Sid::deleteGroup, &clsJS_Sid::canEditGroup},
    {"miGroupCollapse", &clsJS_Sid::collapseGroup, &clsJS_Sid::canCollapseGroup},
    {"cmdSid_ShowGroups", &clsJS_Sid::showGroups<true>, &clsJS_Sid::canShowGroups<true>},
    {"cmdSid_HideGroups", &clsJS_Sid::showGroups<false>, &clsJS_Sid::canShowGroups<false>},
};

} // namespace QV_DOC_CONTROLS
