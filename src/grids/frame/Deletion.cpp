#include "grids/frame/Deletion.h"

#include "facade/services/Prompts.h"
#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {
namespace {

/// Asks about one record after the other; remembers "Mind".
class Asking {
public:
    Asking(const DeleteTexts &texts, const ErrorRelay &relay, QObject *asker)
        : m_texts(texts), m_relay(relay), m_asker(asker)
    {}
    bool isSure(const Doomed &d)
    {
        const QString question = join(m_texts.sureBefore, d.number, m_texts.sureAfter);
        const bool yes = prompts().yesNo({Icon::Question, txt(m_texts.title), question}, m_asker);
        m_relay.checkpoint();
        return yes;
    }
    bool mayGo(const Doomed &d)
    {
        if (!d.isUsed || m_all) return true;
        const QString question = deleteQuestion(join(m_texts.usedBefore, d.name, m_texts.usedAfter));
        const AllYesNo answer = prompts().allYesNo({Icon::Question, txt(m_texts.title), question}, m_asker);
        m_relay.checkpoint();
        m_all = answer == AllYesNo::All;
        return answer != AllYesNo::No;
    }
    void tellLast()
    {
        prompts().tell({Icon::Information, txt(m_texts.title), txt(m_texts.last)}, m_asker);
        m_relay.checkpoint();
    }

private:
    const DeleteTexts &m_texts;
    const ErrorRelay &m_relay;
    QObject *m_asker;
    bool m_all = false;
};

} // namespace

QString deleteQuestion(const QString &before)
{
    const QString question = txt(Text{3208, u" TÖRLÖD? "});
    return before +
           (question.startsWith(u' ') ? question : u' ' + question); // not every language has the blank
}

std::vector<qint16> DeleteQuestions::ask(std::span<const Doomed> rows, const ErrorRelay &relay,
                                         QObject *asker) const
{
    Asking asking(texts, relay, asker);
    std::vector<qint16> going;
    for (const Doomed &d : rows) {
        if (asksForEach && !asking.isSure(d)) continue;
        if (inTable - int(going.size()) <= 1) {
            asking.tellLast();
            break;
        }
        if (asking.mayGo(d)) going.push_back(d.id);
    }
    return going;
}

} // namespace QV_DOC_CONTROLS
