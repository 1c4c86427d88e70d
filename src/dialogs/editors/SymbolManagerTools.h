#pragma once

#include "dialogs/editors/frmSupSid.h"
#include "kit/tools/Tool.h"

namespace QV_DOC_CONTROLS {

/// The tool bar of the symbol manager and what it pops up, over the lists too. Names are published.
inline constexpr Tool kSymbolManagerTools[] = {
    {"mnuBar", "mnuGroups", {20039, u"Csoportok"}, "groupList", "", Check::No, "bndPopup_Groups"},
    {"mnuBar", "mnuSids", {20040, u"Jelkulcsok"}, "symbol", "", Check::No, "bndPopup_Sids"},
    {"mnuBar", kToolLine},
    {"mnuBar", "cmdEditMode", {20041, u"Szerkesztés/választás"}, "editMode", "F4", Check::Toggle},
    {"mnuBar", "cmdByGroups", {20042, u"Elrendezés"}, "byGroups", "Ctrl+G", Check::Toggle},
    {"mnuBar", kToolLine},
    {"mnuBar", "miView_Report", {20043, u"Részletek"}, "viewTable", "Ctrl+1", Check::OneOf},
    {"mnuBar", "miView_Icons", {20044, u"Nagy ikonok"}, "viewIcons", "Ctrl+2", Check::OneOf},
    {"mnuBar", "miView_SmallIcon", {20045, u"Kis ikonok"}, "viewSmallIcons", "Ctrl+3", Check::OneOf},
    {"mnuBar", "miView_List", {20046, u"Lista"}, "viewList", "Ctrl+4", Check::OneOf},
    {"mnuBar", "miSort", {20164, u"Rendezés..."}, "sort", "Ctrl+Shift+S"},
    {"mnuBar", kToolLine},
    {"mnuBar", "cmdPlus", {20047, u"Jelek nagyítása"}, "zoomIn", "Ctrl++; Ctrl+="},
    {"mnuBar", "cmdMinus", {20048, u"Jelek kicsinyítése"}, "zoomOut", "Ctrl+-"},
    {"mnuBar", "miView_Size+", {20049, u"Ikon nagyítás"}, "cellsLarger", "Ctrl+Shift+Up"},
    {"mnuBar", "miView_Size-", {20050, u"Ikon kicsinyitése"}, "cellsSmaller", "Ctrl+Shift+Down"},

    {"bndPopup_Sids", "cmdSid_Add", {20052, u"Új jelkulcs"}, "new", "Ctrl+N"},
    {"bndPopup_Sids", "cmdSid_OpenFile", {20053, u"Új jelkulcsok fájlból"}, "open", "Ctrl+O"},
    {"bndPopup_Sids", "cmdSid_SaveFile", {20054, u"Kijelölt jelkulcsok mentése"}, "save", "Ctrl+S"},
    {"bndPopup_Sids", "cmdSid_OpenFont25", {20055, u"Jelkulcsok ZOL-2.5-készletből.."}, "fileNew"},
    {"bndPopup_Sids", kToolLine},
    {"bndPopup_Sids", "cmdSid_Edit", {20056, u"Szerkesztés"}, "edit", "Ctrl+E"},
    {"bndPopup_Sids", "cmdSid_Nr", {20057, u"Sorszám módosítás.."}, "number", "Ctrl+R"},
    {"bndPopup_Sids", "cmdSid_Name", {20059, u"Átnevezés"}, "rename"},
    {"bndPopup_Sids", "cmdSid_Size", {20030, u"Méret"}, "size"},
    {"bndPopup_Sids",
     "cmdSid_Facename",
     {20062, u"Karakterkészlet..."},
     "textType",
     "",
     Check::No,
     "bndPopup_Type"},
    {"bndPopup_Sids", "cmdSid_Layer", {20034, u"Cél réteg"}, "layer"},
    {"bndPopup_Sids", "cmdSid_Width", {20063, u"Vonalvastagság"}, "thickness"},
    {"bndPopup_Sids", kToolLine},
    {"bndPopup_Sids", "cmdSid_Remove", {20064, u"Törlés"}, "delete"},

    {"bndPopup_Type", "cmdSid_TrueType", {20004, u"TrueType"}, "trueType"},
    {"bndPopup_Type", "cmdSid_Vector", {20068, u"ZOL 2.5 készlet"}, "vectorFont"},

    {"bndPopup_Groups", "cmdGroup_Add", {20066, u"Új csoport"}, "groupNew"},
    {"bndPopup_Groups", "cmdGroup_Name", {20059, u"Átnevezés"}, "groupRename"},
    {"bndPopup_Groups", "cmdGroup_Remove", {20067, u"Törlés..."}, "groupDelete"},
};

/// The titles of the two pop-ups; that of the groups is kept as it is.
struct BandCaption {
    const char *band;
    Text caption;
};
inline constexpr BandCaption kSymbolManagerBands[] = {{"bndPopup_Sids", {20051, u"Jelkulcstípusok"}},
                                                      {"bndPopup_Groups", {20065, u"Felirat csoport"}}};

/// Keys of one of the lists, which mean the same thing for what that one shows.
struct ListKey {
    Qt::Key key;
    const char *forSymbols, *forGroups;
};
inline constexpr ListKey kSymbolManagerKeys[] = {{Qt::Key_Delete, "cmdSid_Remove", "cmdGroup_Remove"},
                                                 {Qt::Key_F2, "cmdSid_Name", "cmdGroup_Name"}};

using ListViewKind = ItemList::View;
inline constexpr ToolCommand<frmSupSid> kSymbolManagerCommands[] = {
    {"cmdEditMode", &frmSupSid::toggleMode, nullptr, &frmSupSid::isEditMode},
    {"cmdByGroups", &frmSupSid::toggleGroups, nullptr, &frmSupSid::isByGroups},
    {"miView_Report", &frmSupSid::showView<ListViewKind::Report>, nullptr,
     &frmSupSid::isView<ListViewKind::Report>},
    {"miView_Icons", &frmSupSid::showView<ListViewKind::Icons>, nullptr,
     &frmSupSid::isView<ListViewKind::Icons>},
    {"miView_SmallIcon", &frmSupSid::showView<ListViewKind::SmallIcons>, nullptr,
     &frmSupSid::isView<ListViewKind::SmallIcons>},
    {"miView_List", &frmSupSid::showView<ListViewKind::List>, nullptr,
     &frmSupSid::isView<ListViewKind::List>},
    {"miSort", &frmSupSid::sortItems},
    {"cmdPlus", &frmSupSid::zoomIn},
    {"cmdMinus", &frmSupSid::zoomOut},
    {"miView_Size+", &frmSupSid::resizeCells<1>, &frmSupSid::canResizeCells<1>},
    {"miView_Size-", &frmSupSid::resizeCells<-1>, &frmSupSid::canResizeCells<-1>},
    {"cmdSid_Add", &frmSupSid::addSymbol, &frmSupSid::isEditMode},
    {"cmdSid_OpenFile", &frmSupSid::loadSet, &frmSupSid::isEditMode},
    {"cmdSid_SaveFile", &frmSupSid::saveSet, &frmSupSid::hasSelected},
    {"cmdSid_OpenFont25", &frmSupSid::addFromFont, &frmSupSid::canPickFont},
    {"cmdSid_Edit", &frmSupSid::editSymbol, &frmSupSid::canEditSymbol},
    {"cmdSid_Nr", &frmSupSid::renumber, &frmSupSid::canRenumber},
    {"cmdSid_Name", &frmSupSid::renameSymbol, &frmSupSid::canEditCurrent},
    {"cmdSid_Size", &frmSupSid::setSize, &frmSupSid::canEditSelected},
    {"cmdSid_TrueType", &frmSupSid::setTrueType, &frmSupSid::canSetFont},
    {"cmdSid_Vector", &frmSupSid::setVectorFont, &frmSupSid::canSetFont},
    {"cmdSid_Layer", &frmSupSid::setLayer, &frmSupSid::canPickLayer},
    {"cmdSid_Width", &frmSupSid::setThickness, &frmSupSid::canEditSelected},
    {"cmdSid_Remove", &frmSupSid::removeSymbols, &frmSupSid::canEditSelected},
    {"cmdGroup_Add", &frmSupSid::addGroup, &frmSupSid::isEditMode},
    {"cmdGroup_Name", &frmSupSid::renameGroup, &frmSupSid::canEditGroup},
    {"cmdGroup_Remove", &frmSupSid::removeGroups, &frmSupSid::canEditGroup},
};

} // namespace QV_DOC_CONTROLS
