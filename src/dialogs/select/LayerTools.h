#pragma once

#include "dialogs/viewtools/ViewTools.h"
#include "facade/contract/Records.h"

namespace QV_DOC_CONTROLS {

/// The pop-ups of the layer table: "bndPopUp_LaysSelected" over selected rows, "bndPopUp_Table" over the
/// empty part of the grid, "bndGroups" over a group, "mnuLayGroups" with all that there is for groups and
/// "bndGroups2" with what selected layers have to do with them. Names are published, but for the menus'
/// "mnu...".
inline constexpr Tool kLayerTools[] = {
    {"bndPopUp_LaysSelected", "miAddNew", {21700, u"Új réteg"}, "new", "Ctrl+N"},
    {"bndPopUp_LaysSelected", "cmdLays_Copy", {21821, u"Másolás..."}, "copy", "Ctrl+D"},
    {"bndPopUp_LaysSelected", kToolLine},
    {"bndPopUp_LaysSelected", "cmdLays_Rename", {21822, u"Átnevezés..."}, "rename"},
    {"bndPopUp_LaysSelected", "cmdLays_Nr", {21823, u"Sorszám módosítása..."}, "number"},
    {"bndPopUp_LaysSelected", "cmdLays_TrimLeftName", {21825, u"Névelőtag levágása..."}, "trimName"},
    {"bndPopUp_LaysSelected", "cmdLays_Renumber", {21824, u"Átsorszámozás..."}, "renumber", "Ctrl+R"},
    {"bndPopUp_LaysSelected", kToolLine},
    {"bndPopUp_LaysSelected", "cmdLays_PenStyle", {21826, u"Vonaltípus..."}, "lineType"},
    {"bndPopUp_LaysSelected", "cmdLays_PenColorId", {21827, u"Toll..."}, "penColor"},
    {"bndPopUp_LaysSelected", "cmdLays_TxdId", {21828, u"Felirattípus..."}, "textType"},
    {"bndPopUp_LaysSelected", kToolLine},
    {"bndPopUp_LaysSelected", "cmdLays_SetVisibleOn", {21829, u"Bekapcsolás"}, "visibleOn", "Ctrl+Shift+H"},
    {"bndPopUp_LaysSelected", "cmdLays_SetVisibleOff", {21830, u"Kikapcsolás"}, "visibleOff", "Ctrl+H"},
    {"bndPopUp_LaysSelected", "mnuByLayer", {21857, u"Réteg szerint"}, "", "", Check::No, "mnuLayByLayer"},
    {"bndPopUp_LaysSelected", kToolLine},
    {"bndPopUp_LaysSelected", "miGroupMove", {21856, u"Csoporttagság"}, "", "", Check::No, "bndGroups2"},
    {"bndPopUp_LaysSelected", kToolLine},
    {"bndPopUp_LaysSelected", "cmdLays_DeleteObjs", {21835, u"Elemek törlése..."}, "deleteElements"},
    {"bndPopUp_LaysSelected", "cmdLays_Delete", {21836, u"Kijelölt rétegek törlése..."}, "delete"},
    {"bndPopUp_LaysSelected", kToolLine},
    {"bndPopUp_LaysSelected", "mnuView"},

    {"mnuLayByLayer", "cmdLays_ElByLayerOn", {21831, u"Vonalak réteg szerint: igen"}, "linesByLayer"},
    {"mnuLayByLayer", "cmdLays_ElByLayerOff", {21832, u"Vonalak réteg szerint: nem"}, "linesByOwn"},
    {"mnuLayByLayer",
     "cmdLays_TxByLayerOn",
     {21833, u"Felirat/jelkulcs réteg szerint: igen"},
     "textsByLayer"},
    {"mnuLayByLayer",
     "cmdLays_TxByLayerOff",
     {21834, u"Felirat/jelkulcs réteg szerint: nem"},
     "textsByOwn"},

    {"bndGroups2", "cmdLay_GroupMove", {21853, u"Áthelyezés csoportba..."}, "groupMove"},
    {"bndGroups2", "cmdLay_GroupCopy", {21854, u"Felvétel csoportba..."}, "groupCopy"},

    {"bndPopUp_Table", "miAddNew"},
    {"bndPopUp_Table", "miRemove", {21836, u"Kijelölt rétegek törlése..."}, "delete"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table", "miSelectAll"},
    {"bndPopUp_Table", "miUnselectAll"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table",
     "cmdLay_ShowVisible",
     {21838, u"Csak a látható rétegek"},
     "onlyVisible",
     "Ctrl+L",
     Check::Toggle},
    {"bndPopUp_Table", "cmdVisibleAllOn", {21839, u"Minden réteg be"}, "allVisible"},
    {"bndPopUp_Table", "cmdVisibleAllOff", {21840, u"Minden réteg ki"}, "allHidden"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table", "cmdLays_Save", {21841, u"Rétegek mentése..."}, "save"},
    {"bndPopUp_Table", "cmdLays_VisibleUseFile", {21843, u"Láthatóságok betöltése..."}, "loadVisible"},
    {"bndPopUp_Table", "cmdLays_FileAddNew", {21844, u"Új rétegek szövegfájlból..."}, "fileNew"},
    {"bndPopUp_Table", "cmdLays_FileRename", {21845, u"Átnevezés szövegfájlból..."}, "fileRename"},
    {"bndPopUp_Table", "cmdLays_FileRenum", {21846, u"Sorszámozás szövegfájlból..."}, "fileRenumber"},
    {"bndPopUp_Table", kToolLine},
    {"bndPopUp_Table", "mnuView", {21859, u"Megjelenítés"}, "", "", Check::No, "bndPopUp_View"},

    {"mnuLayGroups", "cmdLay_GroupAllLay", {21847, u"Összes réteg"}, "groupAll"},
    {"mnuLayGroups", kToolLine},
    {"mnuLayGroups", "miAddNewGroup", {3376, u"Új csoport"}, "groupNew"},
    {"mnuLayGroups", "cmdLay_GroupName", {21849, u"Csoport átnevezése..."}, "groupRename"},
    {"mnuLayGroups", "miGroupRemove", {21850, u"Csoport törlése..."}, "groupDelete"},
    {"mnuLayGroups", kToolLine},
    {"mnuLayGroups", "cmdLay_GroupVisibleOn", {21851, u"A csoport rétegei be"}, "groupVisible"},
    {"mnuLayGroups", "cmdLay_GroupVisibleOff", {21852, u"A csoport rétegei ki"}, "groupHidden"},
    {"mnuLayGroups", kToolLine},
    {"mnuLayGroups", "cmdLay_GroupMove"},
    {"mnuLayGroups", "cmdLay_GroupCopy"},
    {"mnuLayGroups", kToolLine},
    {"mnuLayGroups", "cmdLay_ShowGroups", {20166, u"Csoportok megjelenítése"}, "showGroups"},
    {"mnuLayGroups", "cmdLay_HideGroups", {20167, u"Csoportok elrejtése"}, "hideGroups"},

    {"bndGroups", "miAddNewGroup"},
    {"bndGroups", "miGroupRename", {21849, u"Csoport átnevezése..."}, "groupRename"},
    {"bndGroups", "miGroupRemove"},
    {"bndGroups", kToolLine},
    {"bndGroups", "cmdGroupVisibleOn", {21851, u"A csoport rétegei be"}, "groupVisible"},
    {"bndGroups", "cmdGroupVisibleOff", {21852, u"A csoport rétegei ki"}, "groupHidden"},
    {"bndGroups", kToolLine},
    {"bndGroups", "cmdLay_HideGroups"},

    {"bndPopUp_View", "miGroupCollapse", {21855, u"A sor csoportjának becsukása"}, "collapseOne"},
};

/// On the tool bar of the selection dialog.
inline constexpr Tool kLayerSelectTools[] = {
    {"mnuBar", kToolLine},
    {"mnuBar", "miLayer", {3219, u"Réteg"}, "layer", "", Check::No, "bndPopUp_LaysSelected"},
    {"mnuBar", "miShowGroups", {20166, u"Csoportok megjelenítése"}, "showGroups"},
    {"mnuBar", "miHideGroups", {20167, u"Csoportok elrejtése"}, "hideGroups"},
    {"mnuBar", "miSave2File", {21841, u"Rétegek mentése..."}, "save"},
};

/// On the menu bar and the tool bar of the setup dialog.
inline constexpr Tool kLayerSetupTools[] = {
    {"mnuMain", "mnuLay", {3219, u"Réteg"}, "", "", Check::No, "bndPopUp_LaysSelected"},
    {"mnuMain", "mnuLayGroup", {21858, u"Csoport"}, "", "", Check::No, "mnuLayGroups"},
    {"mnuMain", "mnuLayTable", {20160, u"Táblázat"}, "", "", Check::No, "bndPopUp_Table"},
    {"mnuMain", "mnuView"},

    {"bndPopUp_LaysSelected",
     "cmdLays_MakeCurrent",
     {21820, u"Legyen aktuális"},
     "makeCurrent",
     "Ctrl+Return; Ctrl+Enter"},
    {"bndPopUp_LaysSelected", kToolLine},

    {"mnuBar", "cmdLays_MakeCurrent"},
    {"mnuBar", kToolLine},
    {"mnuBar", "miAddNew"},
    {"mnuBar", "cmdLays_Copy"},
    {"mnuBar", "miRemove"},
    {"mnuBar", kToolLine},
    {"mnuBar", "cmdLays_SetVisibleOn"},
    {"mnuBar", "cmdLays_SetVisibleOff"},
    {"mnuBar", "cmdLay_ShowVisible"},
    {"mnuBar", "cmdLays_Renumber"},
    {"mnuBar", kToolLine},
    {"mnuBar", "miSave2File", {21841, u"Rétegek mentése..."}, "save"},
    {"mnuBar", "cmdLays_VisibleUseFile"},
    {"mnuBar", kToolLine},
};

/// What "OK in all documents" takes over, a check mark each.
struct AllDocumentsPart {
    const char *tool;
    bool ZolWDoc::tLay::*part;
};
inline constexpr AllDocumentsPart kAllDocumentsParts[] = {
    {"miAllDocMode_LayVisible", &ZolWDoc::tLay::Visible},
    {"miAllDocMode_ElByLayer", &ZolWDoc::tLay::ElByLayer},
    {"miAllDocMode_TxByLayer", &ZolWDoc::tLay::TxByLayer},
};
inline constexpr Tool kAllDocumentsTools[] = {
    {"bndPopup_AllDocMode", "miAllDocMode_LayVisible", {3306, u"Láthatóság"}, "", "", Check::Toggle},
    {"bndPopup_AllDocMode",
     "miAllDocMode_ElByLayer",
     {3304, u"Vonalak réteg szerint"},
     "",
     "",
     Check::Toggle},
    {"bndPopup_AllDocMode",
     "miAllDocMode_TxByLayer",
     {3302, u"Felirat/jelkulcs réteg szerint"},
     "",
     "",
     Check::Toggle},
};

} // namespace QV_DOC_CONTROLS
