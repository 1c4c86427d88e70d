#include "grids/symbol/SymbolRemoval.h"

#include "facade/services/Services.h"
#include "grids/frame/Deletion.h"
#include "grids/frame/RecordWork.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr Text kOne{3231, u"Jelkulcstípus törlés"};

} // namespace

void SymbolRemoval::tellLast(const Text &title, const Text &text)
{
    m_desk.tell({Icon::Information, txt(title), txt(text)});
}

void SymbolRemoval::tellRefused(const QString &name)
{
    m_desk.tell({Icon::Exclamation, txt(m_texts.title),
                 join(m_texts.refusedBefore, name, m_texts.refusedAfter)});
}

/// The identifiers that the document refused.
std::vector<qint16> SymbolRemoval::removeAll(const std::vector<qint16> &ids)
{
    std::vector<qint16> refused;
    m_desk.write(txt(m_texts.title), [&] {
        int done = 0;
        m_desk.doc().symbols().removeAll(ids, refused, done);
    });
    return refused;
}

/// One bulk call, though the last symbol of a document stays: only when all are selected and none was refused
/// is there one that must not be tried.
void SymbolRemoval::removeSelected()
{
    const auto all = m_desk.doc().symbols().readAll();
    const auto chosen = asNow(m_desk.selected(), all, &tSid::SidId);
    std::vector<qint16> ids;
    for (const tSid &s : chosen) ids.push_back(s.SidId);
    if (ids.empty()) return;
    const bool isWhole = ids.size() == all.size();
    if (isWhole) ids.pop_back();
    std::vector<qint16> refused = ids.empty() ? ids : removeAll(ids);
    const bool isLast = isWhole && refused.empty();
    if (isWhole && !isLast)
        for (const qint16 id : removeAll({chosen.back().SidId})) refused.push_back(id);
    for (const tSid &s : chosen)
        if (std::ranges::count(refused, s.SidId) > 0) tellRefused(s.ShortName);
    if (isLast) tellLast(m_texts.title, m_texts.last);
}

void SymbolRemoval::askOnly()
{
    const auto chosen = m_desk.selected();
    if (chosen.empty()) return;
    const QString question =
        chosen.size() > 1 ? txt(Text{3444, u"Biztosan szeretnéd törölni a kiválasztott típusokat?"})
                          : join(Text{3218, u"Biztosan szeretnéd törölni a "}, chosen.front().SidId,
                                 Text{3236, u". jelkulcsot?"});
    if (!m_desk.yesNo({Icon::Question, txt(kOne), question}) || selectedNow(m_desk).empty()) return;
    // Nothing is removed, on purpose, and the text is the same in every language.
    m_desk.tell({Icon::None, appTitle(),
                 QStringLiteral("FOLYTKOV Call OpSid_Delete(tSid, needConfirm:=True, useMsgBox:=True)")});
}

bool SymbolRemoval::mayGo(const tSid &symbol, bool &needConfirm, bool useMsgBox)
{
    if (m_desk.doc().symbols().uses(symbol.SidId) == 0 || !needConfirm) return true;
    const Message question{Icon::Question, txt(kOne),
                           deleteQuestion(join(Text{3447, u"A(z) '"}, symbol.ShortName,
                                               Text{3232, u"' jelkulcstípus használva van!"}))};
    if (useMsgBox) return m_desk.yesNo(question);
    const AllYesNo answer = prompts().allYesNo(question, m_desk.asker());
    m_desk.relay().checkpoint();
    if (answer == AllYesNo::All) needConfirm = false;
    return answer != AllYesNo::No;
}

bool SymbolRemoval::removeOne(const tSid &symbol, bool &needConfirm, bool useMsgBox)
{
    if (m_desk.doc().symbols().count() <= 1) {
        tellLast(kOne, {3445, u"Az utolsó típust nem lehet törölni!"});
        return false;
    }
    if (!mayGo(symbol, needConfirm, useMsgBox)) return false;
    bool isGone = false;
    m_desk.write(txt(kOne), [&] { isGone = m_desk.doc().symbols().remove(symbol.SidId); });
    if (!isGone) tellRefused(symbol.ShortName);         // a document may keep what is used
    return isGone;
}

} // namespace QV_DOC_CONTROLS
