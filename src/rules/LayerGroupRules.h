#pragma once

#include "rules/GroupNames.h"

#include <optional>

namespace QV_DOC_CONTROLS {

/// The group that the host made and owns, wherever the document was made: the first one with the system
/// group's name in any language. Empty = there is none.
std::optional<qint16> systemGroupIn(std::span<const ZolWDoc::tGroup> groups);

/// True when every layer of the group is in another group too, so that none is left without one.
bool canDeleteGroup(qint16 group, std::span<const ZolWDoc::tLayMember> members);

/// The memberships with `more` behind them, none of them twice.
std::vector<ZolWDoc::tLayMember> withMembers(std::vector<ZolWDoc::tLayMember> members,
                                             std::span<const ZolWDoc::tLayMember> more);
/// The layers are members of `group` too.
std::vector<ZolWDoc::tLayMember> joined(std::vector<ZolWDoc::tLayMember> members,
                                        std::span<const qint16> layers, qint16 group);
/// The layers are members of `group` and of no other.
std::vector<ZolWDoc::tLayMember> moved(std::vector<ZolWDoc::tLayMember> members,
                                       std::span<const qint16> layers, qint16 group);

} // namespace QV_DOC_CONTROLS
