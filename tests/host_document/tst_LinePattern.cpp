#include "document/LateBound.h"
#include "document/LinePattern.h"

#include "support/Registry.h"

#include <QtTest/QTest>

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
        all << points.join(QStringLiteral(", "));
    }
    return all.join(QStringLiteral(" | "));
}
const Polyline kStraight{{0, 0}, {10, 0}};
const Polyline kCorner{{0, 0}, {4, 0}, {4, 4}};
const Polyline kSquare{{0, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}};
} // namespace
Q_DECLARE_METATYPE(Polyline)

class tst_LinePattern : public QObject {
    Q_OBJECT
private slots:
    void dashesFollowThePattern_data()
    {
        QTest::addColumn<Polyline>("line");
        QTest::addColumn<QList<double>>("pattern");
        QTest::addColumn<QString>("dashes");
        const QString whole = QStringLiteral("0 0, 10 0");
        QTest::newRow("continuous") << kStraight << QList<double>{} << whole;
        QTest::newRow("last dash is cut")
            << kStraight << QList<double>{3, 2} << QStringLiteral("0 0, 3 0 | 5 0, 8 0");
        QTest::newRow("ends in a dash")
            << kStraight << QList<double>{4, 2} << QStringLiteral("0 0, 4 0 | 6 0, 10 0");
        QTest::newRow("dots") << kStraight << QList<double>{0, 5} << QStringLiteral("0 0, 0 0 | 5 0, 5 0");
        QTest::newRow("around a corner")
            << kCorner << QList<double>{6, 1} << QStringLiteral("0 0, 4 0, 4 2 | 4 3, 4 4");
        QTest::newRow("odd") << kStraight << QList<double>{3, 1, 2}
                             << QStringLiteral("0 0, 3 0 | 4 0, 6 0 | 9 0, 10 0");
        QTest::newRow("negative") << kStraight << QList<double>{3, -1} << whole;
        QTest::newRow("no length") << kStraight << QList<double>{0, 0} << whole;
        QTest::newRow("too fine") << kStraight << QList<double>{1e-9, 1e-9} << whole;
        QTest::newRow("longer than the line") << kStraight << QList<double>{50, 1} << whole;
        QTest::newRow("doubled points") << Polyline{{0, 0}, {0, 0}, {10, 0}} << QList<double>{6, 2}
                                        << QStringLiteral("0 0, 6 0 | 8 0, 10 0");
        QTest::newRow("a point") << Polyline{{1, 1}, {1, 1}} << QList<double>{1, 1}
                                 << QStringLiteral("1 1, 1 1");
    }
    void dashesFollowThePattern()
    {
        QFETCH(Polyline, line);
        QFETCH(QList<double>, pattern);
        QFETCH(QString, dashes);
        QCOMPARE(shown(dashesOf(line, pattern)), dashes);
    }

    void placesFollowTheRule_data()
    {
        QTest::addColumn<Polyline>("line");
        QTest::addColumn<tPenStyleSi>("rule");
        QTest::addColumn<QString>("places");
        const auto row = [](const char *name, const Polyline &line, const tPenStyleSi &rule,
                            const char *places) {
            QTest::newRow(name) << line << rule << QString::fromLatin1(places);
        };
        row("by length", kStraight, {.Align = 0, .DistrLength = 4}, "4 0@0 8 0@0");
        row("by length, even", kStraight, {.Align = 0, .DistrLength = 5}, "5 0@0");
        row("by length, short line", kStraight, {.Align = 0, .DistrLength = 40}, "");
        row("by length 0", kStraight, {.Align = 0}, "");
        row("by number", kStraight, {.Align = 1, .DistrNr = 4}, "2.5 0@0 5 0@0 7.5 0@0");
        row("by number, closed", kSquare, {.Align = 1, .DistrNr = 4}, "0 0@0 2 0@90 2 2@180 0 2@-90");
        row("middle", kCorner, {.Align = 2}, "4 0@90");
        row("ends", kCorner, {.Align = 3}, "0 0@0 4 4@90");
        row("start", kCorner, {.Align = 4, .Rotation = 30}, "0 0@30");
        row("end", kCorner, {.Align = 5, .OffsetY = 1, .OffsetX = 2}, "3 6@90");
        row("copies in the middle", kStraight, {.Align = 2, .MultiDist = 2, .Multi = 3}, "3 0@0 5 0@0 7 0@0");
        row("copies inwards", kStraight, {.Align = 3, .MultiDist = 1, .Multi = 2},
            "0 0@0 1 0@0 10 0@0 9 0@0");
        row("copies beyond the end", Polyline{{0, 0}, {1, 0}}, {.Align = 4, .MultiDist = 3, .Multi = 2},
            "0 0@0 3 0@0");
        row("unknown", kStraight, {.Align = 7}, "");
    }
    void placesFollowTheRule()
    {
        QFETCH(Polyline, line);
        QFETCH(tPenStyleSi, rule);
        QFETCH(QString, places);
        QStringList all;
        for (const Place &p : placesOf(line, rule)) {
            const auto round = [](double v) { return std::abs(v) < 1e-9 ? 0.0 : v; };
            all << shown(PointMm{round(p.at.x), round(p.at.y)}) + u'@' + QString::number(p.angle);
        }
        QCOMPARE(all.join(u' '), places);
    }

    void symbolsStandOnTheirPlace()
    {
        tSid symbol;
        symbol.Type = 1, symbol.Size_mm = 2, symbol.Weight = 16, symbol.Align = 6 | 24, symbol.MoveYmm = 1;
        const Glyph glyph{{{{0, 0}, {1, 1}}}, 1};
        DrawingObjects objects;
        appendSymbol(objects, symbol, &glyph, {{10, 10}, 90});
        QCOMPARE(objects.strokes.size(), size_t(1));
        QCOMPARE(shown({objects.strokes[0].points}), QStringLiteral("9 9, 7 11"));
        QCOMPARE(objects.strokes[0].width, 0.16);
        symbol.Type = 0, symbol.Code = 0x151, symbol.Align = 24;
        appendSymbol(objects, symbol, nullptr, {{10, 10}, 0});
        QCOMPARE(objects.texts.front().text, QStringLiteral("ő"));
        QCOMPARE(shown(objects.texts.front().position), QStringLiteral("10 11"));
    }
};

QVDC_TEST(tst_LinePattern)
#include "tst_LinePattern.moc"
