#include "fonts/Accents.h"

#include <algorithm>
#include <optional>

namespace refhost {
namespace {

using ZolWDoc::Glyph;
using ZolWDoc::PointMm;
using Stroke = std::vector<PointMm>;

constexpr double kUnit = 1.0 / 21;              // letter heights; what the plain letters are drawn in
constexpr double kGap = 2 * kUnit, kGapBetween = 2 * kUnit;

enum class Where { Above, Below, Shoulder };

/// Marks in units about the point where they are put: above it from 0 up, below it from 0 down.
struct Mark {
    char16_t mark;
    Where where;
    std::vector<Stroke> strokes;
};
const std::vector<Mark> &marks()
{
    static const Stroke dot{{0, 0}, {1, 1}, {0, 2}, {-1, 1}, {0, 0}};
    static const std::vector<Mark> all{
        {u'\u0300', Where::Above, {{{-3, 4}, {1, 0}}}},
        {u'\u0301', Where::Above, {{{-1, 0}, {3, 4}}}},
        {u'\u0302', Where::Above, {{{-4, 0}, {0, 4}, {4, 0}}}},
        {u'\u0303', Where::Above, {{{-5, 0}, {-4, 2}, {-2, 3}, {2, 0}, {4, 1}, {5, 3}}}},
        {u'\u0304', Where::Above, {{{-4, 1}, {4, 1}}}},
        {u'\u0306', Where::Above, {{{-4, 4}, {-3, 1}, {-1, 0}, {1, 0}, {3, 1}, {4, 4}}}},
        {u'\u0307', Where::Above, {dot}},
        {u'\u0308',
         Where::Above,
         {{{-4, 0}, {-3, 1}, {-4, 2}, {-5, 1}, {-4, 0}}, {{4, 0}, {5, 1}, {4, 2}, {3, 1}, {4, 0}}}},
        {u'\u0309', Where::Above, {{{-2, 4}, {-1, 5}, {1, 5}, {2, 4}, {2, 3}, {0, 1}, {0, 0}}}},
        {u'\u030a',
         Where::Above,
         {{{-1, 0}, {1, 0}, {2, 1}, {2, 3}, {1, 4}, {-1, 4}, {-2, 3}, {-2, 1}, {-1, 0}}}},
        {u'\u030b', Where::Above, {{{-4, 0}, {-1, 4}}, {{1, 0}, {4, 4}}}},
        {u'\u030c', Where::Above, {{{-4, 4}, {0, 0}, {4, 4}}}},
        {u'\u031b', Where::Shoulder, {{{-2, -2}, {0, -2}, {2, -1}, {3, 1}, {3, 3}}}},
        {u'\u0323', Where::Below, {{{0, 0}, {1, -1}, {0, -2}, {-1, -1}, {0, 0}}}},
        {u'\u0326', Where::Below, {{{0, 0}, {1, -1}, {1, -2}, {-1, -4}}}},
        {u'\u0327', Where::Below, {{{0, 2}, {0, 0}, {2, -1}, {2, -3}, {0, -4}, {-2, -3}}}},
        {u'\u0328', Where::Below, {{{2, 2}, {0, 0}, {0, -2}, {1, -3}, {3, -3}}}},
    };
    return all;
}

struct Box {
    double left = 1e9, right = -1e9, top = -1e9, bottom = 1e9;
    explicit Box(const std::vector<Stroke> &strokes)
    {
        for (const Stroke &s : strokes)
            for (const PointMm &p : s) {
                left = std::min(left, p.x), right = std::max(right, p.x);
                bottom = std::min(bottom, p.y), top = std::max(top, p.y);
            }
    }
    double centre() const { return (left + right) / 2; }
};

/// The strokes at a point; a cedilla and its like touch the letter.
void put(Glyph &on, const Mark &mark, PointMm at)
{
    for (const Stroke &s : mark.strokes) {
        Stroke &placed = on.strokes.emplace_back();
        for (const PointMm &p : s) placed.push_back({at.x + p.x * kUnit, at.y + p.y * kUnit});
    }
}

/// A letter while its marks are put on.
struct Draft {
    Glyph glyph;
    Box letter;
    double top, bottom;                         ///< where the next mark goes on
    explicit Draft(Glyph g)
        : glyph(std::move(g)), letter(glyph.strokes), top(letter.top + kGap), bottom(letter.bottom)
    {}
    void add(const Mark &mark)
    {
        const Box size(mark.strokes);
        switch (mark.where) {
        case Where::Above:
            put(glyph, mark, {letter.centre(), top});
            top += size.top * kUnit + kGapBetween;
            break;
        case Where::Below: {
            const bool touches = size.top > 0;
            const double at = touches ? bottom - (size.top - 1) * kUnit : bottom - kGap;
            put(glyph, mark, {letter.centre(), at});
            bottom = at + size.bottom * kUnit;
            break;
        }
        case Where::Shoulder: put(glyph, mark, {letter.right, letter.top}); break;
        }
    }
};

/// Strokes wholly above the small letters are the dot of an i or j.
Glyph withoutDot(Glyph glyph, double smallLetter)
{
    std::erase_if(glyph.strokes, [&](const Stroke &s) {
        return std::ranges::all_of(s, [&](const PointMm &p) { return p.y > smallLetter + kUnit; });
    });
    return glyph;
}

std::optional<Glyph> composed(char16_t letter, const std::map<qint32, Glyph> &plain)
{
    const QString parts = QString(QChar(letter)).normalized(QString::NormalizationForm_D);
    const auto base = plain.find(parts[0].unicode()), small = plain.find('x');
    if (parts.size() < 2 || parts[0].unicode() > 127 || base == plain.end() || small == plain.end())
        return std::nullopt;
    std::vector<const Mark *> added;
    for (const QChar c : parts.mid(1)) {
        const auto mark = std::ranges::find(marks(), c.unicode(), &Mark::mark);
        if (mark == marks().end()) return std::nullopt;
        added.push_back(&*mark);
    }
    const bool givesWay = (parts[0] == u'i' || parts[0] == u'j')
                          && std::ranges::any_of(added, [](auto *m) { return m->where == Where::Above; });
    Draft draft(givesWay ? withoutDot(base->second, Box(small->second.strokes).top) : base->second);
    for (const Mark *mark : added) draft.add(*mark);
    return draft.glyph;
}

/// đ and Đ, which are no letter with an accent: a bar across the stem.
void addBarred(std::map<qint32, Glyph> &letters, qint32 code, qint32 base, double height)
{
    const auto plain = letters.find(base);
    if (plain == letters.end()) return;
    Glyph glyph = plain->second;
    const Box box(glyph.strokes);
    const double stem = base == 'd' ? box.right : box.left;
    glyph.strokes.push_back({{stem - 4 * kUnit, height}, {stem + 4 * kUnit, height}});
    letters.try_emplace(code, std::move(glyph));
}

} // namespace

void addAccented(std::map<qint32, Glyph> &letters)
{
    const std::map<qint32, Glyph> plain = letters;
    for (const auto &[first, last] : {std::pair(0xc0, 0x24f), {0x1e00, 0x1eff}})
        for (int code = first; code <= last; ++code)
            if (const auto glyph = composed(char16_t(code), plain)) letters.try_emplace(code, *glyph);
    addBarred(letters, 0x111, 'd', 17 * kUnit);
    addBarred(letters, 0x110, 'D', 10 * kUnit);
}

} // namespace refhost
