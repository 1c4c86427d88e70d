#pragma once

#include "grids/frame/FileChoice.h"
#include "grids/symbol/SymbolEdits.h"

namespace QV_DOC_CONTROLS {

/// The commands on symbol set files ("*.rst").
class SymbolFiles {
public:
    SymbolFiles(SymbolDesk &desk, SymbolGroups &groups) : m_desk(desk), m_groups(groups) {}
    void save();                        ///< the selected symbols, perhaps none; asks where
    void load();                        ///< to the current group, under new numbers; asks which file

private:
    bool saveTo(const QString &path);
    std::optional<std::vector<ZolWDoc::tSid>> read(const QString &path, QString &fault);
    void add(const std::vector<ZolWDoc::tSid> &read);
    SymbolDesk &m_desk;
    SymbolGroups &m_groups;
    FileChoice m_choice{m_desk, "SymbolFileFolder"};
};

} // namespace QV_DOC_CONTROLS
