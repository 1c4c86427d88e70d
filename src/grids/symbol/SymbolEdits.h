#pragma once

#include "grids/SymbolTable.h"
#include "grids/frame/Desk.h"
#include "grids/grouped/OwnGroups.h"

namespace QV_DOC_CONTROLS {

using SymbolDesk = TableDesk<SymbolTable>;
using SymbolGroups = OwnGroups<SymbolTable>;

/// The commands that make symbols and change their values.
class SymbolEdits {
public:
    SymbolEdits(SymbolDesk &desk, SymbolGroups &groups) : m_desk(desk), m_groups(groups) {}
    void addNew();                      ///< asks for its name; goes to the current group, becomes current
    void addFromVectorFont();           ///< one for every character of a font that the user picks
    void rename();                      ///< the current symbol
    void edit();                        ///< the current symbol, in its editor

    // Of the selected symbols:
    void setSize();
    void setThickness();
    void setLayer();
    void setTrueType();
    void setVectorFont();

    static bool canEdit();              ///< there is an editor

private:
    void addAll(const QString &command, std::vector<ZolWDoc::tSid> symbols);
    std::optional<double> askForNumber(const QString &title, const QString &text, const NumberField &field);
    SymbolDesk &m_desk;
    SymbolGroups &m_groups;
};

} // namespace QV_DOC_CONTROLS
