#pragma once

#include "dialogs/select/LayerTools.h"
#include "dialogs/select/SymbolTools.h"

#include <span>
#include <stdexcept>

namespace QV_DOC_CONTROLS {

/// What a kind offers beside the tools of every grid.
struct KindTools {
    std::span<const Tool> common;               ///< its pop-ups, the same in both dialogs
    std::span<const Tool> select, setup; ///< what stands on the bars of the one and of the other dialog
    const char *rowMenu = nullptr;              ///< over selected rows; null = the view menu
    const char *tableMenu = nullptr;            ///< over the empty part of the grid; null = the view menu
    const char *groupMenu = nullptr;            ///< over the group list; null = none
};

/// One kind of resource: a mode of the selection dialog and, with the same number, a page of the setup
/// dialog.
struct ResourceKind {
    Text selectCaption;
    Text pageCaption;                           ///< begins with a blank, on purpose
    const char *menuTool;                       ///< selects the page
    const char *icon;
    Text groups;                                ///< title of the list left of the grid; none = no groups
    KindTools tools{};
    constexpr bool hasGroups() const { return groups.id != 0; }
};
inline constexpr ResourceKind kResourceKinds[] = { // index = mode = page
    {{3165, u"Rétegválasztó"},
     {20022, u" Rétegek"},
     "miLayer",
     "layer",
     {20155, u"Rétegcsoportok"},
     {kLayerTools, kLayerSelectTools, kLayerSetupTools, "bndPopUp_LaysSelected", "bndPopUp_Table",
      "bndGroups"}},
    {{3154, u"Felirattípus-választó"},
     {20023, u" Felirattípusok"},
     "miTxd",
     "textType",
     {20039, u"Csoportok"}},
    {{3150, u"Vonaltípus-választó"}, {20024, u" Vonaltípusok"}, "miPenStyle", "lineType", {}},
    {{3147, u"Jelkulcstípus-választó"},
     {20025, u" Jelkulcstípusok"},
     "miSid",
     "symbol",
     {20028, u"Jelkulcs csoportok"},
     {kSymbolTools, kSymbolSelectTools, kSymbolSetupTools, "bndPopUp_SidsSelected", "bndPopUp_Table",
      "bndGroups"}},
    {{3148, u"Színtollválasztó"}, {20026, u" Tollszínek"}, "miPenColor", "penColor", {}},
    {{3149, u"Vonaltípus jelkulcsozások"},
     {20027, u" Vonaltípusok jelkulcsozása"},
     "miPenStyleSi",
     "lineSymbols",
     {}},
};
inline constexpr int kKinds = int(std::size(kResourceKinds));

/// Throws std::out_of_range for a mode outside 0..5.
inline const ResourceKind &resourceKind(int mode)
{
    if (mode < 0 || mode >= kKinds)
        throw std::out_of_range("QV_DOC_CONTROLS: no resource kind " + std::to_string(mode));
    return kResourceKinds[mode];
}

} // namespace QV_DOC_CONTROLS
