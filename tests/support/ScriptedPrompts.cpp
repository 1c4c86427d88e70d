#include "support/ScriptedPrompts.h"

#include <QTest>

#include <cmath>
#include <cstring>

namespace tests {

using namespace QV_DOC_CONTROLS;

namespace {

bool canBeAnswer(const NumberField &field, double value)
{
    const double scaled = value * std::pow(10, field.decimals);
    return value >= field.min && value <= field.max && std::abs(scaled - std::round(scaled)) < 1e-6;
}

bool canBeAnswer(const NumberQuestion &q, const std::vector<double> &values)
{
    if (values.size() != q.fields.size()) return false;
    for (size_t i = 0; i < values.size(); ++i)
        if (!canBeAnswer(q.fields[i], values[i])) return false;
    return true;
}

/// The answer, unless the real box would not take it: then the test fails.
template <class Answer> std::optional<Answer> checked(const Answer &answer, bool canBe, const QString &title)
{
    if (canBe) return answer;
    QTest::qFail(qPrintable("no possible answer to " + title), __FILE__, __LINE__);
    return {};
}

} // namespace

ScriptedPrompts::ScriptedPrompts(std::vector<Step> steps)
    : m_steps(std::move(steps)), m_before(setPrompts(this))
{}

ScriptedPrompts::~ScriptedPrompts()
{
    setPrompts(m_before);
    for (size_t i = size_t(m_next); i < m_steps.size(); ++i)
        QTest::qFail(qPrintable("never asked: " + m_steps[i].title + " / " + m_steps[i].text),
                     __FILE__, __LINE__);
}

QVariant ScriptedPrompts::next(const char *kind, const QString &title, const QString &text, Icon icon)
{
    const bool left = size_t(m_next) < m_steps.size();
    const Step step = left ? m_steps[size_t(m_next)] : Step{};
    if (!left || std::strcmp(step.kind, kind) != 0 || step.title != title || step.text != text ||
        step.icon != icon) {
        const QString seen = QString("unexpected %1 (icon %2): '%3' / '%4', expected '%5' / '%6'")
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

AllYesNo ScriptedPrompts::allYesNo(const Message &m, QObject *)
{
    const QVariant answer = next("allYesNo", m.title, m.text, m.icon);
    return answer.isValid() ? answer.value<AllYesNo>() : AllYesNo::No;
}

std::optional<bool> ScriptedPrompts::yesNoCancel(const Message &m, QObject *)
{
    const QVariant answer = next("yesNoCancel", m.title, m.text, m.icon);
    return answer.isValid() ? std::optional(answer.toBool()) : std::nullopt;
}

std::optional<int> ScriptedPrompts::choose(const Choice &c, QObject *)
{
    const QVariant answer = next("choose", c.title, c.text, Icon::None);
    if (!answer.isValid()) return {};
    const int item = answer.toInt();
    return checked(item, item >= 0 && item < c.items.size(), c.title);
}

std::optional<QString> ScriptedPrompts::text(const TextQuestion &q, QObject *)
{
    const QVariant answer = next("text", q.title, q.text + u'|' + q.preset, Icon::None);
    return answer.isValid() ? std::optional(answer.toString()) : std::nullopt;
}

std::optional<std::vector<double>> ScriptedPrompts::numbers(const NumberQuestion &q, QObject *)
{
    QString asked = q.text;
    for (const NumberField &field : q.fields)
        asked += u'|' + field.label + u'|' + QString::number(field.preset, 'g', 15);
    const QVariant answer = next("numbers", q.title, asked, Icon::None);
    if (!answer.isValid()) return {};
    std::vector<double> values;
    for (const QVariant &value : answer.toList()) values.push_back(value.toDouble());
    return checked(values, canBeAnswer(q, values), q.title);
}

std::optional<int> ScriptedPrompts::colorIndex(const ColorIndexQuestion &q, QObject *)
{
    const QString asked = q.text + u'|' + QString::number(q.preset);
    const QVariant answer = next("colorIndex", q.title, asked, Icon::None);
    if (!answer.isValid()) return {};
    const int index = answer.toInt();
    return checked(index, index >= 0 && index < int(q.palette.size()), q.title);
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
