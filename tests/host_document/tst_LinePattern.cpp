#include "document/LateBound.h"
#include "document/LinePattern.h"

#include "support/Registry.h"

using namespace ZolWDoc;
using namespace refhost;

namespace {

QString shown(PointMm p) { return QString::number(p.x, 'g', 6) + u' ' + QString::number(p.y, 'g', 6); }
QString shown(const std::vector<Polyline> &lines)
{
    QStringList all;
    for (const Polyline &line : lines) {
        QStringList points;
        for (const PointMm &p : line) points << shown(p);
        all << points.join(", ");
    }
    return all.join(" | ");
}
const Polyline kStraight{{0, 0}, {10, 0}};
const Polyline kCorner{{0, 0}, {4, 0}, {4, 4}};
const Polyline kSquare{{0, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}};
constexpr char kWhole[] = "0 0, 10 0";

struct DashRow {
    const char *name;
    Polyline line;
    QList<double> pattern;
    const char *dashes;
};
const DashRow kDashes[] = {
    {"continuous", kStraight, {}, kWhole},
    {"last dash is cut", kStraight, {3, 2}, "0 0, 3 0 | 5 0, 8 0"},
    {"ends in a dash", kStraight, {4, 2}, "0 0, 4 0 | 6 0, 10 0"},
    {"dots", kStraight, {0, 5}, "0 0, 0 0 | 5 0, 5 0"},
    {"around a corner", kCorner, {6, 1}, "0 0, 4 0, 4 2 | 4 3, 4 4"},
    {"odd", kStraight, {3, 1, 2}, "0 0, 3 0 | 4 0, 6 0 | 9 0, 10 0"},
    {"negative", kStraight, {3, -1}, kWhole},
    {"no length", kStraight, {0, 0}, kWhole},
    {"too fine", kStraight, {1e-9, 1e-9}, kWhole},
    {"doubled points", {{0, 0}, {0, 0}, {10, 0}}, {6, 2}, "0 0, 6 0 | 8 0, 10 0"},
    {"a point", {{1, 1}, {1, 1}}, {1, 1}, "1 1, 1 1"},
};

struct PlaceRow {
    const char *name;
    Polyline line;
    tPenStyleSi rule;
    const char *places;
};
const PlaceRow kPlaces[] = {
    {"by length", kStraight, {.Align = 0, .DistrLength = 4}, "4 0@0 8 0@0"},
    {"by length, even", kStraight, {.Align = 0, .DistrLength = 5}, "5 0@0"},
    {"by length, short line", kStraight, {.Align = 0, .DistrLength = 40}, ""},
    {"by length 0", kStraight, {.Align = 0}, ""},
    {"by number", kStraight, {.Align = 1, .DistrNr = 4}, "2.5 0@0 5 0@0 7.5 0@0"},
    {"by number, closed", kSquare, {.Align = 1, .DistrNr = 4}, "0 0@0 2 0@90 2 2@180 0 2@-90"},
    {"middle", kCorner, {.Align = 2}, "4 0@90"},
    {"ends", kCorner, {.Align = 3}, "0 0@0 4 4@90"},
    {"start", kCorner, {.Align = 4, .Rotation = 30}, "0 0@30"},
    {"end", kCorner, {.Align = 5, .OffsetY = 1, .OffsetX = 2}, "3 6@90"},
    {"copies in the middle", kStraight, {.Align = 2, .MultiDist = 2, .Multi = 3}, "3 0@0 5 0@0 7 0@0"},
    {"copies inwards", kStraight, {.Align = 3, .MultiDist = 1, .Multi = 2}, "0 0@0 1 0@0 10 0@0 9 0@0"},
    {"copies beyond the end", {{0, 0}, {1, 0}}, {.Align = 4, .MultiDist = 3, .Multi = 2}, "0 0@0 3 0@0"},
    {"unknown", kStraight, {.Align = 7}, ""},
};

} // namespace

class tst_LinePattern : public QObject {
    Q_OBJECT
private slots:
    void dashesFollowThePattern()
    {
        for (const auto &[name, line, pattern, dashes] : kDashes)
            tests::same(name, shown(dashesOf(line, pattern)), dashes);
    }
    void placesFollowTheRule()
    {
        for (const auto &[name, line, rule, places] : kPlaces) {
            QStringList all;
            for (const Place &p : placesOf(line, rule)) {
                const auto round = [](double v) { return std::abs(v) < 1e-9 ? 0.0 : v; };
                all << shown(PointMm{round(p.at.x), round(p.at.y)}) + u'@' + QString::number(p.angle);
            }
            tests::same(name, all.join(u' '), places);
        }
    }
    void symbolsStandOnTheirPlace()
    {
        tSid symbol;
        symbol.Type = 1, symbol.Size_mm = 2, symbol.Weight = 16, symbol.Align = 6 | 24, symbol.MoveYmm = 1;
        const Glyph glyph{{{{0, 0}, {1, 1}}}, 1};
        DrawingObjects objects;
        appendSymbol(objects, symbol, &glyph, {{10, 10}, 90});
        QCOMPARE(objects.strokes.size(), size_t(1));
        QCOMPARE(shown({objects.strokes[0].points}), "9 9, 7 11");
        QCOMPARE(objects.strokes[0].width, 0.16);
        symbol.Type = 0, symbol.Code = 0x151, symbol.Align = 24;
        appendSymbol(objects, symbol, nullptr, {{10, 10}, 0});
        QCOMPARE(objects.texts.front().text, "ő");
        QCOMPARE(shown(objects.texts.front().position), "10 11");
    }
};

QVDC_TEST(tst_LinePattern)
#include "tst_LinePattern.moc"
