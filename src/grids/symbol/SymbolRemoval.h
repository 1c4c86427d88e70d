#pragma once

#include "grids/SymbolTable.h"
#include "grids/frame/Desk.h"

namespace QV_DOC_CONTROLS {

/// The roads on which symbols are removed; they differ in words and questions.
class SymbolRemoval {
public:
    explicit SymbolRemoval(TableDesk<SymbolTable> &desk) : m_desk(desk) {}
    void removeSelected();              ///< the command: says of each why it stays
    void askOnly();                     ///< the grid's delete key: asks, and removes nothing
    /// One symbol. `needConfirm`: whether one in use is asked for; "Mind" clears it. `useMsgBox`: asks with
    /// Yes and No only. True = it is gone.
    bool removeOne(const ZolWDoc::tSid &symbol, bool &needConfirm, bool useMsgBox);

private:
    bool mayGo(const ZolWDoc::tSid &symbol, bool &needConfirm, bool useMsgBox);
    std::vector<qint16> removeAll(const std::vector<qint16> &ids);
    void tellLast(const Text &title, const Text &text);
    void tellRefused(const QString &name);
    TableDesk<SymbolTable> &m_desk;
};

} // namespace QV_DOC_CONTROLS
