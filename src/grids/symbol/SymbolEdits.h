#pragma once

#include "facade/contract/HostServices.h"
#include "grids/SymbolTable.h"
#include "grids/frame/Desk.h"
#include "grids/grouped/OwnGroups.h"

namespace QV_DOC_CONTROLS {

using SymbolDesk = TableDesk<SymbolTable>;
using SymbolGroups = OwnGroups<SymbolTable>;

/// Which characters of a vector font are to become symbols; none = cancelled. Empty function: all of them,
/// once the user has been asked.
using CharacterChoice =
    std::function<std::vector<ZolWDoc::VectorFont::Entry>(const ZolWDoc::VectorFont &font)>;

/// The commands that make symbols and change their values.
class SymbolEdits {
public:
    SymbolEdits(SymbolDesk &desk, SymbolGroups &groups) : m_desk(desk), m_groups(groups) {}
    void addNew();                      ///< asks for its name; goes to the current group, becomes current
    /// One for every chosen character of a font that the user picks.
    void addFromVectorFont(const CharacterChoice &choose = {});
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
    std::vector<ZolWDoc::VectorFont::Entry> allOf(const ZolWDoc::VectorFont &font);
    void addAll(const QString &command, std::vector<ZolWDoc::tSid> symbols);
    std::optional<double> askForNumber(const QString &title, const QString &text, const NumberField &field);
    SymbolDesk &m_desk;
    SymbolGroups &m_groups;
};

} // namespace QV_DOC_CONTROLS
