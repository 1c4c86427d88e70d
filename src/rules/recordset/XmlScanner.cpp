#include "rules/recordset/XmlScanner.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

using Space = XmlScanner::Space;
using Kind = XmlScanner::Tag::Kind;

constexpr size_t kMostBindings = 256; ///< at one time; every prefix is looked for among them

constexpr std::pair<QStringView, Space> kSpaces[] = {
    {u"uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882", Space::Schema},
    {u"uuid:C2F41010-65B3-11d1-A29F-00AA00C14882", Space::Types},
    {u"urn:schemas-microsoft-com:rowset", Space::Rowset},
};

Space spaceNamed(QStringView uri)
{
    for (const auto &[name, space] : kSpaces)
        if (uri.compare(name, Qt::CaseInsensitive) == 0) return space;
    return uri.isEmpty() ? Space::None : uri.startsWith(u'#') ? Space::Row : Space::Other;
}

bool isBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; }
bool endsName(QChar c) { return isBlank(c) || c == u'/' || c == u'>' || c == u'=' || c == u'<' || c == u'?'; }

std::pair<QStringView, QStringView> split(QStringView qualified)
{
    const qsizetype colon = qualified.indexOf(u':');
    if (colon < 0) return {{}, qualified};
    return {qualified.first(colon), qualified.sliced(colon + 1)};
}

} // namespace

QChar XmlScanner::peek() const
{
    if (m_at >= m_text.size()) throw XmlFault{XmlFault::What::CutShort, m_text.size()};
    return m_text[m_at];
}

QStringView XmlScanner::until(QStringView mark)
{
    const qsizetype end = m_text.indexOf(mark, m_at);
    if (end < 0) throw XmlFault{XmlFault::What::CutShort, m_text.size()};
    const QStringView before = m_text.sliced(m_at, end - m_at);
    m_at = end + mark.size();
    return before;
}

void XmlScanner::skipBlanks()
{
    while (m_at < m_text.size() && isBlank(m_text[m_at])) ++m_at;
}

QStringView XmlScanner::name()
{
    const qsizetype from = m_at;
    while (!endsName(peek())) ++m_at;
    if (m_at == from) throw XmlFault{XmlFault::What::Markup, from};
    return m_text.sliced(from, m_at - from);
}

/// A document type declaration; what stands in its brackets is never expanded.
void XmlScanner::skipDeclaration()
{
    for (int brackets = 0;; ++m_at) {
        const QChar c = peek();
        if (c == u'[') ++brackets;
        if (c == u']') --brackets;
        if (c == u'>' && brackets <= 0) break;
    }
    ++m_at;
}

const XmlScanner::Tag &XmlScanner::next()
{
    for (;;) {
        const qsizetype tag = m_text.indexOf(u'<', m_at);
        if (tag < 0) {
            if (!m_open.empty()) throw XmlFault{XmlFault::What::CutShort, m_text.size()};
            m_tag = {Kind::Finished, false, Space::None, {}, m_text.size()};
            return m_tag;
        }
        m_tag.at = m_at = tag;
        if (has(u"<!--")) {
            m_at += 4, until(u"-->");
            continue;
        }
        if (has(u"<![CDATA[")) {
            until(u"]]>");
            continue;
        }
        if (has(u"<?")) {
            until(u"?>");
            continue;
        }
        if (has(u"<!")) {
            skipDeclaration();
            continue;
        }
        has(u"</") ? endTag() : startTag();
        return m_tag;
    }
}

void XmlScanner::startTag()
{
    const qsizetype at = m_at++;
    const QStringView qualified = name();
    m_attributes.clear(), m_prefixes.clear();
    for (skipBlanks(); peek() != u'>' && peek() != u'/'; skipBlanks()) attribute();
    const bool isEmpty = peek() == u'/';
    if (isEmpty && (++m_at, peek() != u'>')) throw XmlFault{XmlFault::What::Markup, m_at};
    ++m_at;
    m_open.push_back(qualified);
    bindNamespaces();
    const auto [prefix, local] = split(qualified);
    m_tag = {Kind::Start, isEmpty, spaceOf(prefix, true), local, at};
    for (size_t i = 0; i < m_attributes.size(); ++i)
        if (!m_prefixes[i].isEmpty()) m_attributes[i].space = spaceOf(m_prefixes[i], false);
    if (!isEmpty) return;
    while (!m_bindings.empty() && m_bindings.back().depth == m_open.size()) m_bindings.pop_back();
    m_open.pop_back();
}

void XmlScanner::endTag()
{
    const qsizetype at = m_at;
    m_at += 2;
    const QStringView qualified = name();
    skipBlanks();
    if (peek() != u'>' || m_open.empty() || m_open.back() != qualified)
        throw XmlFault{XmlFault::What::Markup, at};
    ++m_at;
    while (!m_bindings.empty() && m_bindings.back().depth == m_open.size()) m_bindings.pop_back();
    m_open.pop_back();
    m_tag = {Kind::End, false, Space::None, {}, at};
}

void XmlScanner::attribute()
{
    const qsizetype at = m_at;
    const auto [prefix, local] = split(name());
    skipBlanks();
    if (peek() != u'=') throw XmlFault{XmlFault::What::Markup, m_at};
    ++m_at;
    skipBlanks();
    const QChar quote = peek();
    if (quote != u'\'' && quote != u'"') throw XmlFault{XmlFault::What::Markup, m_at};
    ++m_at;
    const QStringView raw = until(QStringView(&quote, 1));
    m_attributes.push_back({Space::None, local, raw, at});
    m_prefixes.push_back(prefix);
}

void XmlScanner::bindNamespaces()
{
    for (size_t i = 0; i < m_attributes.size(); ++i) {
        const Attribute &a = m_attributes[i];
        if (m_prefixes[i] == u"xmlns") m_bindings.push_back({a.name, spaceNamed(a.raw), m_open.size()});
        if (m_prefixes[i].isEmpty() && a.name == u"xmlns")
            m_bindings.push_back({{}, spaceNamed(a.raw), m_open.size()});
    }
    if (m_bindings.size() > kMostBindings) throw XmlFault{XmlFault::What::Markup, m_at};
}

Space XmlScanner::spaceOf(QStringView prefix, bool isElement) const
{
    if (prefix.isEmpty() && !isElement) return Space::None;
    const auto bound = std::ranges::find(m_bindings.rbegin(), m_bindings.rend(), prefix, &Binding::prefix);
    if (bound != m_bindings.rend()) return bound->space;
    return prefix.isEmpty() ? Space::None : Space::Other;
}

void XmlScanner::skip()
{
    if (m_tag.isEmpty) return;
    for (const size_t depth = m_open.size(); m_open.size() >= depth;) next();
}

} // namespace QV_DOC_CONTROLS
