#include "kit/grid/FilterRule.h"

#include "kit/grid/TextFold.h"

namespace QV_DOC_CONTROLS {
namespace {

// Control characters that no cell shows: after each cell, before a quiet one, and before the cells with their
// accents.
constexpr char kEnd = '\x1f', kQuiet = '\x1d', kExact = '\x1e';

bool startsLetter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

/// Whole-cell match with * and ?; a ? stands for one letter, whatever its length in UTF-8.
bool matches(std::string_view pattern, std::string_view text)
{
    size_t p = 0, t = 0, star = std::string_view::npos, retry = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++, retry = t;
        } else if (p < pattern.size() && pattern[p] == '?') {
            ++p, ++t;
            while (t < text.size() && !startsLetter(text[t])) ++t;
        } else if (p < pattern.size() && pattern[p] == text[t]) {
            ++p, ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1, t = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

/// Columns whose caption is the word, or else begins with it; -1 = none or several.
int columnNamed(QStringView word, std::span<const QString> captions)
{
    for (const Accents accents : {Accents::Keep, Accents::Drop}) {
        const std::string wanted = folded(word, accents);
        int found = -1, count = 0;
        for (int c = 0; c < int(captions.size()); ++c) {
            const std::string caption = folded(captions[size_t(c)], accents);
            if (caption == wanted) return c;
            if (caption.starts_with(wanted)) found = c, ++count;
        }
        if (count == 1) return found;
    }
    return -1;
}

QString unquoted(QStringView text) { return text.toString().remove(u'"'); }

qsizetype colonOf(QStringView token)
{
    bool quoted = false;
    for (qsizetype i = 0; i < token.size(); ++i) {
        if (token[i] == u'"') quoted = !quoted;
        else if (token[i] == u':' && !quoted) return i;
    }
    return -1;
}

} // namespace

FilterRule::FilterRule(QStringView typed, std::span<const QString> captions)
{
    bool quoted = false;
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= typed.size(); ++i) {
        if (i < typed.size() && typed[i] == u'"') quoted = !quoted;
        if (i < typed.size() && (quoted || !typed[i].isSpace())) continue;
        if (i > begin) add(typed.sliced(begin, i - begin), captions);
        begin = i + 1;
    }
}

void FilterRule::add(QStringView token, std::span<const QString> captions)
{
    Term term;
    term.excluded = token.startsWith(u'-');
    if (term.excluded) token = token.sliced(1);
    if (const qsizetype colon = colonOf(token); colon > 0) {
        term.column = columnNamed(unquoted(token.first(colon)), captions);
        if (term.column >= 0) token = token.sliced(colon + 1);
    }
    const QString word = unquoted(token);
    if (word.isEmpty()) return;                         // still being typed
    term.wild = !token.contains(u'"') && (word.contains(u'*') || word.contains(u'?'));
    term.exact = appendFolded(term.text, word, Accents::Keep);
    m_terms.push_back(std::move(term));
}

bool FilterRule::fits(const Term &term, std::string_view cells)
{
    if (term.column < 0 && !term.wild) { // nearly always settled by one search in the whole row
        const size_t at = cells.find(term.text);
        if (at == std::string_view::npos) return false;
        const size_t before = cells.rfind(kEnd, at);
        if (cells[before == std::string_view::npos ? 0 : before + 1] != kQuiet) return true;
    }
    for (int c = 0; !cells.empty(); ++c) {
        const size_t end = cells.find(kEnd);
        std::string_view cell = cells.substr(0, end);
        cells.remove_prefix(end == std::string_view::npos ? cells.size() : end + 1);
        const bool quiet = cell.starts_with(kQuiet);
        if (term.column < 0 ? quiet : term.column != c) continue;
        if (quiet) cell.remove_prefix(1);
        if (term.wild ? matches(term.text, cell) : cell.find(term.text) != std::string_view::npos)
            return true;
    }
    return false;
}

bool FilterRule::fits(std::string_view row) const
{
    const size_t split = row.find(kExact);
    const std::string_view bare = row.substr(0, split);
    const std::string_view exact = split == std::string_view::npos ? bare : row.substr(split + 1);
    for (const Term &term : m_terms)
        if (fits(term, term.exact ? exact : bare) == term.excluded) return false;
    return true;
}

void FilterRule::RowFolder::add(QStringView cell, bool quiet)
{
    if (quiet) m_bare += kQuiet, m_exact += kQuiet;
    const size_t bare = m_bare.size();
    const bool accented = appendFolded(m_bare, cell, Accents::Drop);
    if (accented) appendFolded(m_exact, cell, Accents::Keep);
    else m_exact.append(m_bare, bare);
    m_accented |= accented;
    m_bare += kEnd, m_exact += kEnd;
}

std::string_view FilterRule::RowFolder::row()
{
    if (m_accented) m_bare += kExact, m_bare += m_exact;
    m_accented = false;
    return m_bare;
}

void FilterRule::RowFolder::clear()
{
    m_bare.clear(), m_exact.clear();
    m_accented = false;
}

} // namespace QV_DOC_CONTROLS
