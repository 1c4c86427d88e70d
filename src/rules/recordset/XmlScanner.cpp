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

/// Some of the letters below 64, one bit each.
constexpr quint64 setOfLetters(std::u16string_view letters)
{
    quint64 bits = 0;
    for (const char16_t c : letters) bits |= quint64(1) << c;
    return bits;
}
constexpr bool isIn(quint64 letters, char16_t c) { return c < 64 && (letters >> c & 1); }

constexpr quint64 kBlanks = setOfLetters(u" \t\r\n");
constexpr quint64 kNameEnds = kBlanks | setOfLetters(u"/>=<?");

} // namespace

char16_t XmlScanner::cutShort() const { throw XmlFault{XmlFault::What::CutShort, m_text.size()}; }

QStringView XmlScanner::until(QStringView mark)
{
    const qsizetype end = m_text.indexOf(mark, m_at);
    if (end < 0) cutShort();
    const QStringView before = m_text.sliced(m_at, end - m_at);
    m_at = end + mark.size();
    return before;
}

void XmlScanner::skipBlanks()
{
    while (m_at < m_text.size() && isIn(kBlanks, m_text[m_at].unicode())) ++m_at;
}

XmlScanner::Name XmlScanner::name()
{
    const qsizetype from = m_at;
    qsizetype colon = -1;
    for (char16_t c; !isIn(kNameEnds, c = peek()); ++m_at)
        if (c == u':' && colon < 0) colon = m_at;
    if (m_at == from) throw XmlFault{XmlFault::What::Markup, from};
    const QStringView whole = m_text.sliced(from, m_at - from);
    return colon < 0 ? Name{whole, {}, whole}
                     : Name{whole, whole.first(colon - from), whole.sliced(colon - from + 1)};
}

std::pair<QStringView, bool> XmlScanner::value()
{
    const char16_t quote = peek();
    if (quote != u'\'' && quote != u'"') throw XmlFault{XmlFault::What::Markup, m_at};
    const qsizetype from = ++m_at;
    bool hasReferences = false;
    for (char16_t c; (c = peek()) != quote; ++m_at) hasReferences |= c == u'&';
    return {m_text.sliced(from, m_at++ - from), hasReferences};
}

/// A document type declaration; what stands in its brackets is never expanded.
void XmlScanner::skipDeclaration()
{
    for (int brackets = 0;; ++m_at) {
        const char16_t c = peek();
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
            if (!m_open.empty()) cutShort();
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
    const Name tag = name();
    m_attributes.clear();
    m_bindsPrefixes = false;
    for (skipBlanks(); peek() != u'>' && peek() != u'/'; skipBlanks()) attribute();
    const bool isEmpty = peek() == u'/';
    if (isEmpty && (++m_at, peek() != u'>')) throw XmlFault{XmlFault::What::Markup, m_at};
    ++m_at;
    m_open.push_back(tag.whole);
    if (m_bindsPrefixes) bindPrefixes();
    m_tag = {Kind::Start, isEmpty, spaceOf(tag.prefix, true), tag.local, at};
    for (Attribute &a : m_attributes)
        if (!a.prefix.isEmpty()) a.space = spaceOf(a.prefix, false);
    if (!isEmpty) return;
    while (!m_bindings.empty() && m_bindings.back().depth == m_open.size()) m_bindings.pop_back();
    m_open.pop_back();
}

void XmlScanner::endTag()
{
    const qsizetype at = m_at;
    m_at += 2;
    const QStringView qualified = name().whole;
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
    const Name named = name();
    skipBlanks();
    if (peek() != u'=') throw XmlFault{XmlFault::What::Markup, m_at};
    ++m_at;
    skipBlanks();
    const auto [raw, hasReferences] = value();
    m_attributes.push_back({Space::None, hasReferences, named.prefix, named.local, raw, at});
    m_bindsPrefixes |= (named.prefix.isEmpty() ? named.local : named.prefix) == u"xmlns";
}

void XmlScanner::bindPrefixes()
{
    for (const Attribute &a : m_attributes) {
        if (a.prefix == u"xmlns") m_bindings.push_back({a.name, spaceNamed(a.raw), m_open.size()});
        if (a.prefix.isEmpty() && a.name == u"xmlns")
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
