#pragma once

#include "dialogs/viewtools/ViewTools.h"

namespace QV_DOC_CONTROLS {

/// The pop-ups of the symbol table: "bndPopUp_SidsSelected" over selected rows, "bndPopUp_Table" over the
/// empty part of the grid, "bndGroups" over a group, "mnuSidGroups" with all that there is for groups and
/// "bndGroups2" with the groups that selected symbols can move to; "bndSid" is the menu of the preview. Names
/// are published, but for the menus' "mnu...".
inline constexpr Tool kSymbolTools[] = {
    {"bndPopUp_SidsSelected", "miAddNew", {22327, u"Új jelkulcs..."}, "new", "Ctrl+N"},
    {"bndPopUp_SidsSelected", "cmdSid_Edit", {22316, u"Szerkesztés..."}, "edit", "Ctrl+E"},
    {"bndPopUp_SidsSelected", kToolLine},
    {"bndPopUp_SidsSelected", "cmdSid_Name", {22311, u"Átnevezés..."}, "rename"},
    {"bndPopUp_SidsSelected", "cmdSid_Size", {22310, u"Méret..."}, "size"},
    {"bndPopUp_SidsSelected", "cmdSid_Width", {22312, u"Vonalvastagság..."}, "thickness"},
    {"bndPopUp_SidsSelected", "cmdSid_TrueType", {22314, u"TrueType betű..."}, "trueType"},
    {"bndPopUp_SidsSelected", "cmdSid_Vector", {22315, u"Vektoros készlet..."}, "vectorFont"},
    {"bndPopUp_SidsSelected", "cmdSid_Layer", {22313, u"Cél réteg..."}, "layer"},
    {"bndPopUp_SidsSelected", kToolLine},
    {"bndPopUp_SidsSelected",
     "cmdSid_GroupMove",
     {22305, u"Áthelyezés csoportba"},
     "",
     "",
     Check::No,
     "bndGroups2"},
    {"bndPopUp_SidsSelected", kToolLine},
    {"bndPopUp_SidsSelected", "miSave2XML", {22318, u"Kijelölt jelkulcsok mentése..."}, "save", "Ctrl+S"},
    {"bndPopUp_SidsSelected", "miRemove", {22317, u"Kijelölt jelkulcsok törlése"}, "delete"},
    {"bndPopUp_SidsSelected", kToolLine},
    {"bndPopUp_SidsSelected", "mnuSiZoom", {22350, u"Nagyítás az előnézetben"}, "", "", Check::No, "bndSid"},
    {"bndPopUp_SidsSelected", "mnuView"},

    {"bndPopUp_Table", "miAddNew"},
    {"bndPopUp_Table", "miRemove"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table", "miSelectAll"},
    {"bndPopUp_Table", "miUnselectAll"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table", "moLoadXML", {22319, u"Jelkulcsok betöltése..."}, "open", "Ctrl+O"},
    {"bndPopUp_Table", "miSaveXML", {22318, u"Kijelölt jelkulcsok mentése..."}, "save"},
    {"bndPopUp_Table", "miLoadFont25", {22320, u"Jelkulcsok vektoros készletből..."}, "vectorFont"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table", "miSiInfo", {22325, u"Előnézet"}, "preview", "F6", Check::Toggle},
    {"bndPopUp_Table", "mnuSiZoom"},
    {"bndPopUp_Table", "mnuView", {21859, u"Megjelenítés"}, "", "", Check::No, "bndPopUp_View"},

    {"mnuSidGroups", "miAddNewGroup", {22328, u"Új csoport..."}, "groupNew"},
    {"mnuSidGroups", "miGroupRename", {21849, u"Csoport átnevezése..."}, "groupRename"},
    {"mnuSidGroups", "miGroupRemove", {21850, u"Csoport törlése..."}, "groupDelete"},
    {"mnuSidGroups", kToolLine},
    {"mnuSidGroups", "cmdSid_GroupMove"},
    {"mnuSidGroups", kToolLine},
    {"mnuSidGroups", "cmdSid_ShowGroups", {20166, u"Csoportok megjelenítése"}, "showGroups"},
    {"mnuSidGroups", "cmdSid_HideGroups", {20167, u"Csoportok elrejtése"}, "hideGroups"},

    {"bndGroups", "miAddNewGroup"},
    {"bndGroups", "miGroupRename"},
    {"bndGroups", "miGroupRemove"},
    {"bndGroups", kToolLine},
    {"bndGroups", "cmdSid_HideGroups"},

    {"bndPopUp_View", "miGroupCollapse", {21855, u"A sor csoportjának becsukása"}, "collapseOne"},

    {"bndSid", "cmdSid_ZoomIn", {22323, u"Előnézet kicsinyítése"}, "zoomOut"}, // the other way, as published
    {"bndSid", "cmdSid_ZoomOut", {22324, u"Előnézet nagyítása"}, "zoomIn"},
};

/// On the tool bar of the selection dialog.
inline constexpr Tool kSymbolSelectTools[] = {
    {"mnuBar", kToolLine},
    {"mnuBar", "miSid", {22326, u"Jelkulcs"}, "symbol", "", Check::No, "bndPopUp_SidsSelected"},
    {"mnuBar", "miShowGroups", {20166, u"Csoportok megjelenítése"}, "showGroups"},
    {"mnuBar", "miHideGroups", {20167, u"Csoportok elrejtése"}, "hideGroups"},
    {"mnuBar", "miLoadXML", {22319, u"Jelkulcsok betöltése..."}, "open"},
    {"mnuBar", "miSiInfo"},
    {"mnuBar", kToolLine},
    {"mnuBar", "cmdSid_ViewZoomIn", {22321, u"Minták nagyítása"}, "samplesLarger"},
    {"mnuBar", "cmdSid_ViewZoomOut", {22322, u"Minták kicsinyítése"}, "samplesSmaller"},
};

/// On the menu bar and the tool bar of the setup dialog.
inline constexpr Tool kSymbolSetupTools[] = {
    {"mnuMain", "mnuSid", {22326, u"Jelkulcs"}, "", "", Check::No, "bndPopUp_SidsSelected"},
    {"mnuMain", "mnuSidGroup", {22330, u"Csoport"}, "", "", Check::No, "mnuSidGroups"},
    {"mnuMain", "mnuSidTable", {20160, u"Táblázat"}, "", "", Check::No, "bndPopUp_Table"},
    {"mnuMain", "mnuView"},

    {"mnuBar", "miAddNew"},
    {"mnuBar", "cmdSid_Edit"},
    {"mnuBar", "miRemove"},
    {"mnuBar", kToolLine},
    {"mnuBar", "cmdSid_Size"},
    {"mnuBar", "cmdSid_Width"},
    {"mnuBar", "cmdSid_Layer"},
    {"mnuBar", kToolLine},
    {"mnuBar", "miLoadXML", {22319, u"Jelkulcsok betöltése..."}, "open"},
    {"mnuBar", "miSave2XML"},
    {"mnuBar", kToolLine},
    {"mnuBar", "miSiInfo"},
    {"mnuBar", "cmdSid_ViewIn", {22321, u"Minták nagyítása"}, "samplesLarger"},
    {"mnuBar", "cmdSid_ViewOut", {22322, u"Minták kicsinyítése"}, "samplesSmaller"},
    {"mnuBar", kToolLine},
};

} // namespace QV_DOC_CONTROLS
