#pragma once

#include "document/SqliteDoc.h"

#include <QObject>

namespace tests {

/// What goes wrong; one at a time.
enum class Fault {
    None,
    AddGivesUsedId,
    AddForgetsLast,
    FindGivesAnother,
    FindInventsOne,
    CountIsOff,
    UpdateForgetsMember,
    UpdateHitsAll,
    UpdateSwallowsUnknown,
    RemoveIgnoresUses,
    RemoveAnswersFalse,
    UsesAlwaysFree,
    AddAllForgetsIds,
    UpdateAllSaysAll,
    RemoveAllStopsEarly,
    CurrentForgotten,
    OrphansAlwaysGo,
    MembersForgotten,
    GroupsUnnumbered,
    WriteAllForgets,
    RenumberLeavesReferences,
    GroupRenameForgotten,
    GroupRemoveForced,
    TakeOverKeepsNumber,
    PensShifted,
    PaletteIgnored,
    RevisionStays,
    RestoreNewId,
    DiscardKeeps,
    CommitDiscards,
    ScopeRollsBackOnError,
    LateBoundMissing,
    PenUsersForgotten,
    PenUsersCountedTwice,
    ListFilesIgnored,
    ElementsOfAllLayersGo,
    ElementsMiscounted,
};

/// The reference host's document with a single fault between it and its caller.
std::unique_ptr<ZolWDoc::ZOLW_Doc> faulty(Fault);

} // namespace tests
