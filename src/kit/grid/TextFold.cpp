#include "kit/grid/TextFold.h"

#include <QChar>
#include <QString>

#include <array>

namespace QV_DOC_CONTROLS {
namespace {

constexpr char32_t kTable = 0x2000;             ///< Latin with every Vietnamese letter, Greek, Cyrillic

bool isAccent(char32_t c) { return c >= 0x300 && c < 0x370; }

/// The letter without accents, in lower case; 0 = an accent of its own.
char32_t baseOf(char32_t c)
{
    if (isAccent(c)) return 0;
    if (c == 0x110 || c == 0x111) return U'd';  // Đ and ł have no decomposition
    if (c == 0x141 || c == 0x142) return U'l';
    const QString parts = QChar::decomposition(c);
    const bool canonical = QChar::decompositionTag(c) == QChar::Canonical;
    return canonical && !parts.isEmpty() ? baseOf(parts[0].unicode()) : QChar::toCaseFolded(c);
}

char32_t bareOf(char32_t c)
{
    static const auto table = [] {
        std::array<char16_t, kTable> all{};
        for (char32_t i = 0; i < kTable; ++i) all[i] = char16_t(baseOf(i));
        return all;
    }();
    return c < kTable ? table[c] : baseOf(c);
}

void appendUtf8(std::string &to, char32_t c)
{
    if (c < 0x80) return to.push_back(char(c));
    if (c < 0x800) return to.push_back(char(0xC0 | c >> 6)), to.push_back(char(0x80 | (c & 0x3F)));
    if (c < 0x10000) to.push_back(char(0xE0 | c >> 12));
    else to.push_back(char(0xF0 | c >> 18)), to.push_back(char(0x80 | (c >> 12 & 0x3F)));
    to.push_back(char(0x80 | (c >> 6 & 0x3F)));
    to.push_back(char(0x80 | (c & 0x3F)));
}

bool hasLooseAccent(QStringView text)
{
    return std::ranges::any_of(text, [](QChar c) { return isAccent(c.unicode()); });
}

} // namespace

bool appendFolded(std::string &to, QStringView text, Accents accents)
{
    if (hasLooseAccent(text)) {
        const QString composed = text.toString().normalized(QString::NormalizationForm_C);
        if (!hasLooseAccent(composed)) return appendFolded(to, composed, accents);
    }
    bool accented = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text[i].unicode();
        if (c >= U'A' && c <= U'Z') c += U'a' - U'A';
        if (c < 0x80) { to.push_back(c < 0x20 ? ' ' : char(c)); continue; }
        if (QChar::isHighSurrogate(c) && i + 1 < text.size())
            c = QChar::surrogateToUcs4(char16_t(c), text[++i].unicode());
        const char32_t bare = bareOf(c), kept = QChar::toCaseFolded(c);
        accented |= bare != kept;
        if (accents == Accents::Keep) appendUtf8(to, kept);
        else if (bare) appendUtf8(to, bare);
    }
    return accented;
}

std::string folded(QStringView text, Accents accents)
{
    std::string out;
    appendFolded(out, text, accents);
    return out;
}

} // namespace QV_DOC_CONTROLS
