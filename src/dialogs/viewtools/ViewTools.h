#pragma once

#include "kit/tools/Tool.h"

namespace QV_DOC_CONTROLS {

/// The tools of every grid: its tool bar "mnuBar" and its pop-up "bndPopUp_View" with the view styles in
/// "bndPopUp_ViewStyle". Names are published.
inline constexpr Tool kViewTools[] = {
    {"mnuBar", "miFind", {20157, u"Keresés..."}, "find", "Ctrl+Shift+F"},
    {"mnuBar", "miShowFields", {20163, u"Oszlopok..."}, "columns", "Ctrl+Shift+O"},
    {"mnuBar", "miSort", {20164, u"Rendezés..."}, "sort", "Ctrl+Shift+S"},
    {"mnuBar", "miGroupBy", {20165, u"Csoportosítás..."}, "groupBy", "Ctrl+Shift+G"},
    {"mnuBar", "miCollapseAll", {20158, u"Összes csoport becsukása"}, "collapseAll", "Ctrl+-"},
    {"mnuBar", "miExpandAll", {20159, u"Összes csoport kinyitása"}, "expandAll", "Ctrl++"},
    {"mnuBar", kToolLine},
    {"mnuBar", "miView_Table"},
    {"mnuBar", "miView_Card"},
    {"mnuBar", "miView_CardMin"},
    {"mnuBar", kToolLine},
    {"mnuBar", "miPrintPreview", {20168, u"Nyomtatási kép"}, "printPreview", "Ctrl+P"},

    {"bndPopUp_View", "miFind"},
    {"bndPopUp_View", kToolLine},
    {"bndPopUp_View", "miSelectAll", {20169, u"Összes kijelölése"}, "selectAll", "Ctrl+A"},
    {"bndPopUp_View", "miUnselectAll", {20170, u"Kijelölés megszüntetése"}, "unselectAll", "Ctrl+Shift+A"},
    {"bndPopUp_View", kToolLine},
    {"bndPopUp_View", "miViewStyle", {21208, u"Nézet"}, "", "", Check::No, "bndPopUp_ViewStyle"},
    {"bndPopUp_View", "miShowFields"},
    {"bndPopUp_View", "miSort"},
    {"bndPopUp_View", "miGroupBy"},
    {"bndPopUp_View", "miCollapseAll"},
    {"bndPopUp_View", "miExpandAll"},
    {"bndPopUp_View", kToolLine},
    {"bndPopUp_View", "miPrintPreview"},

    {"bndPopUp_ViewStyle", "miView_Table", {20160, u"Táblázat"}, "viewTable", "", Check::OneOf},
    {"bndPopUp_ViewStyle", "miView_Card", {20161, u"Kártyák"}, "viewCard", "", Check::OneOf},
    {"bndPopUp_ViewStyle", "miView_CardMin", {20162, u"Kis kártyák"}, "viewCardMin", "", Check::OneOf},
};

} // namespace QV_DOC_CONTROLS
