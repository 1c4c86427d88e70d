#pragma once

#include "grids/SymbolTable.h"
#include "grids/frame/Desk.h"

namespace QV_DOC_CONTROLS {

/// What the command says of symbols that stay.
struct SymbolRemovalTexts {
    Text title, last, refusedBefore, refusedAfter;
};
inline constexpr SymbolRemovalTexts kTableRemoval{{3229, u"Jelkulcs törlése"},
                                                  {3081, u"Az utolsó jelkulcs nem törölhető!"},
                                                  {3451, u"A(z) '"},
                                                  {3230, u"' nevű jelkulcs nem törölhető!"}};

/// The roads on which symbols are removed; they differ in words and questions.
class SymbolRemoval {
public:
    explicit SymbolRemoval(TableDesk<SymbolTable> &desk, const SymbolRemovalTexts &texts = kTableRemoval)
        : m_desk(desk), m_texts(texts)
    {}
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
    SymbolRemovalTexts m_texts;
};

} // namespace QV_DOC_CONTROLS
