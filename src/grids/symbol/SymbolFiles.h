#pragma once

#include "grids/frame/FileChoice.h"
#include "grids/symbol/SymbolEdits.h"

namespace QV_DOC_CONTROLS {

/// The commands on symbol set files ("*.rst").
class SymbolFiles {
public:
    /// `ownGroup`: the name of the group that loaded symbols go to, made when it is missing; none = that of
    /// new symbols.
    SymbolFiles(SymbolDesk &desk, SymbolGroups &groups, std::optional<Text> ownGroup = {})
        : m_desk(desk), m_groups(groups), m_ownGroup(ownGroup)
    {}
    void save();                        ///< the selected symbols, perhaps none; asks where
    void load();                        ///< under new numbers; asks which file

private:
    bool saveTo(const QString &path);
    std::optional<std::vector<ZolWDoc::tSid>> read(const QString &path, QString &fault);
    void add(const std::vector<ZolWDoc::tSid> &read);
    ZolWDoc::tGroup target();
    void store(std::vector<ZolWDoc::tSid> symbols, const ZolWDoc::tGroup &group);
    SymbolDesk &m_desk;
    SymbolGroups &m_groups;
    std::optional<Text> m_ownGroup;
    FileChoice m_choice{m_desk, "SymbolFileFolder"};
};

} // namespace QV_DOC_CONTROLS
