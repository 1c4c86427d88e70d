#include "support/ScriptedPrompts.h"

#include <QTest>

#include <cstring>

namespace tests {

using namespace QV_DOC_CONTROLS;

ScriptedPrompts::ScriptedPrompts(std::vector<Step> steps)
    : m_steps(std::move(steps)), m_before(setPrompts(this))
{}

ScriptedPrompts::~ScriptedPrompts()
{
    setPrompts(m_before);
    for (size_t i = size_t(m_next); i < m_steps.size(); ++i)
        QTest::qFail(qPrintable(QStringLiteral("never asked: ") + m_steps[i].title + QStringLiteral(" / ") +
                                m_steps[i].text),
                     __FILE__, __LINE__);
}

QVariant ScriptedPrompts::next(const char *kind, const QString &title, const QString &text, Icon icon)
{
    const bool left = size_t(m_next) < m_steps.size();
    const Step step = left ? m_steps[size_t(m_next)] : Step{};
    if (!left || std::strcmp(step.kind, kind) != 0 || step.title != title || step.text != text ||
        step.icon != icon) {
        const QString seen = QStringLiteral("unexpected %1 (icon %2): '%3' / '%4', expected '%5' / '%6'")
                                 .arg(QLatin1String(kind))
                                 .arg(int(icon))
                                 .arg(title, text, step.title, step.text);
        QTest::qFail(qPrintable(seen), __FILE__, __LINE__);
        return {};
    }
    ++m_next;
    if (step.meanwhile) step.meanwhile();
    return step.answer;
}

void ScriptedPrompts::tell(const Message &m, QObject *) { next("tell", m.title, m.text, m.icon); }
void ScriptedPrompts::show(const Report &r, QObject *)
{
    next("show", r.title, (QStringList(r.text) + r.lines).join(u'\n'), Icon::None);
}
bool ScriptedPrompts::yesNo(const Message &m, QObject *)
{
    return next("yesNo", m.title, m.text, m.icon).toBool();
}

std::optional<int> ScriptedPrompts::choose(const Choice &c, QObject *)
{
    const QVariant answer = next("choose", c.title, c.text, Icon::None);
    return answer.isValid() ? std::optional(answer.toInt()) : std::nullopt;
}

std::optional<QString> ScriptedPrompts::text(const TextQuestion &q, QObject *)
{
    const QVariant answer = next("text", q.title, q.text + u'|' + q.preset, Icon::None);
    return answer.isValid() ? std::optional(answer.toString()) : std::nullopt;
}

QString ScriptedPrompts::openFile(const FileQuestion &q, QObject *)
{
    return next("openFile", q.title, q.filter, Icon::None).toString();
}

QString ScriptedPrompts::saveFile(const FileQuestion &q, QObject *)
{
    return next("saveFile", q.title, q.filter, Icon::None).toString();
}

} // namespace tests
