#pragma once

#include "grids/clsJs_Layer.h"
#include "kit/tools/Tool.h"

namespace QV_DOC_CONTROLS {

/// What the layer tools do and when they can be used. Names are published.
inline constexpr ToolCommand<clsJs_Layer> kLayerCommands[] = {
    {"miAddNew", &clsJs_Layer::newLayer, &clsJs_Layer::canEditTable},
    {"miRemove", &clsJs_Layer::deleteLayers, &clsJs_Layer::canEditSelected},
    {"cmdLays_TxdId", &clsJs_Layer::pick<ZolWDoc::TableKind::TextTypes>,
     &clsJs_Layer::canPick<ZolWDoc::TableKind::TextTypes>},
    {"cmdLays_PenStyle", &clsJs_Layer::pick<ZolWDoc::TableKind::LineTypes>,
     &clsJs_Layer::canPick<ZolWDoc::TableKind::LineTypes>},
    {"cmdLays_PenColorId", &clsJs_Layer::pick<ZolWDoc::TableKind::PenColors>,
     &clsJs_Layer::canPick<ZolWDoc::TableKind::PenColors>},
    {"cmdLays_Copy", &clsJs_Layer::copyLayers, &clsJs_Layer::canEditSelected},
    {"cmdLays_SetVisibleOn", &clsJs_Layer::setFlag<&ZolWDoc::tLay::Visible, true>,
     &clsJs_Layer::canEditSelected},
    {"cmdLays_SetVisibleOff", &clsJs_Layer::setFlag<&ZolWDoc::tLay::Visible, false>,
     &clsJs_Layer::canEditSelected},
    {"cmdLays_ElByLayerOn", &clsJs_Layer::setFlag<&ZolWDoc::tLay::ElByLayer, true>,
     &clsJs_Layer::canEditSelected},
    {"cmdLays_ElByLayerOff", &clsJs_Layer::setFlag<&ZolWDoc::tLay::ElByLayer, false>,
     &clsJs_Layer::canEditSelected},
    {"cmdLays_TxByLayerOn", &clsJs_Layer::setFlag<&ZolWDoc::tLay::TxByLayer, true>,
     &clsJs_Layer::canEditSelected},
    {"cmdLays_TxByLayerOff", &clsJs_Layer::setFlag<&ZolWDoc::tLay::TxByLayer, false>,
     &clsJs_Layer::canEditSelected},
    {"cmdLays_Rename", &clsJs_Layer::renameLayer, &clsJs_Layer::canEditCurrent},
    {"cmdLays_TrimLeftName", &clsJs_Layer::modifyNames, &clsJs_Layer::canEditSelected},
    {"cmdLays_Nr", &clsJs_Layer::numberLayer, &clsJs_Layer::canEditCurrent},
    {"cmdLays_Renumber", &clsJs_Layer::renumberLayers, &clsJs_Layer::canEditSelected},
    {"cmdLays_Delete", &clsJs_Layer::deleteLayers, &clsJs_Layer::canEditSelected},
    {"cmdVisibleAllOn", &clsJs_Layer::setAllVisible<true>, &clsJs_Layer::canEditAll},
    {"cmdVisibleAllOff", &clsJs_Layer::setAllVisible<false>, &clsJs_Layer::canEditAll},
    {"cmdLays_Save", &clsJs_Layer::OpLay_Save, &clsJs_Layer::isOpen},
    {"miSave2File", &clsJs_Layer::OpLay_Save, &clsJs_Layer::isOpen},
    {"cmdLays_VisibleUseFile", &clsJs_Layer::OpLay_VisibleUseFile, &clsJs_Layer::canEditAll},
    {"cmdLays_FileAddNew", &clsJs_Layer::addFromFile, &clsJs_Layer::canAddFromFile},
    {"cmdLays_FileRename", &clsJs_Layer::renameFromFile, &clsJs_Layer::canEditAll},
    {"cmdLays_FileRenum", &clsJs_Layer::renumberFromFile, &clsJs_Layer::canEditAll},
    {"cmdLays_DeleteObjs", &clsJs_Layer::deleteElements, &clsJs_Layer::canDeleteElements},
    {"miAddNewGroup", &clsJs_Layer::newGroup, &clsJs_Layer::canEditGroups},
    {"miGroupRename", &clsJs_Layer::renameGroup, &clsJs_Layer::canEditGroup},
    {"miGroupRemove", &clsJs_Layer::deleteGroup, &clsJs_Layer::canEditGroup},
    {"miGroupCollapse", &clsJs_Layer::collapseGroup, &clsJs_Layer::canCollapseGroup},
    {"cmdLay_GroupName", &clsJs_Layer::renameGroup, &clsJs_Layer::canEditGroup},
    {"cmdLay_GroupAllLay", &clsJs_Layer::showAllGroups, &clsJs_Layer::canShowAllGroups},
    {"cmdLay_GroupMove", &clsJs_Layer::moveToGroup, &clsJs_Layer::canGroupSelected},
    {"cmdLay_GroupCopy", &clsJs_Layer::copyToGroup, &clsJs_Layer::canGroupSelected},
    {"cmdLay_GroupVisibleOn", &clsJs_Layer::setGroupVisible<true>, &clsJs_Layer::canEditLayersOfGroup},
    {"cmdLay_GroupVisibleOff", &clsJs_Layer::setGroupVisible<false>, &clsJs_Layer::canEditLayersOfGroup},
    {"cmdGroupVisibleOn", &clsJs_Layer::setGroupVisible<true>, &clsJs_Layer::canEditLayersOfGroup},
    {"cmdGroupVisibleOff", &clsJs_Layer::setGroupVisible<false>, &clsJs_Layer::canEditLayersOfGroup},
    {"cmdLay_ShowGroups", &clsJs_Layer::showGroups<true>, &clsJs_Layer::canShowGroups<true>},
    {"cmdLay_HideGroups", &clsJs_Layer::showGroups<false>, &clsJs_Layer::canShowGroups<false>},
    {"cmdLay_ShowVisible", &clsJs_Layer::toggleVisibleItems, &clsJs_Layer::isOpen,
     &clsJs_Layer::bShowVisibleItems},
};

} // namespace QV_DOC_CONTROLS
