#include "kit/paper/SheetLayout.h"

#include "paper/SamplePaper.h"
#include "support/Registry.h"

#include <QTest>

#include <set>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

constexpr int kTallMm = 400;

/// Paper on which exactly `rows` records of one line find room.
QPageLayout paperFor(int rows)
{
    SampleSheet probe({{QStringLiteral("A"), 100}});
    probe.outline(QStringLiteral("r"));
    const SheetLayout tall(probe, true, sheetOf(150, kTallMm));
    const double spare = tall.bodyBottom() - tall.bodyTop() - (rows + 0.2) * tall.rowHeight(0);
    return sheetOf(150, kTallMm - spare * kMmPerUnit);
}

QString dump(const SheetLayout &layout, const QString &outline)
{
    QStringList pages;
    for (int p = 0; p < layout.pageCount(); ++p)
        pages << outline.mid(layout.page(p).firstRow, layout.page(p).endRow - layout.page(p).firstRow);
    return pages.join(u'|');
}

/// `filled`: every cell but the first holds as much text as fits its column on the screen.
SampleSheet columns(int count, int width, bool filled)
{
    SampleSheet sheet;
    QStringList cells{QStringLiteral("1")};
    for (int c = 0; c < count; ++c) {
        sheet.columns.push_back({QStringLiteral("C%1").arg(c), c == 0 ? 40 : width});
        if (c > 0) cells << (filled ? QString(width / 8, u'n') : QStringLiteral("n"));
    }
    sheet.record(cells);
    return sheet;
}

} // namespace

class tst_SheetLayout : public QObject {
    Q_OBJECT
private slots:
    void pagesEndBetweenRowsAndNeverBelowABand_data()
    {
        QTest::addColumn<QString>("outline");       // four lines a page; w takes two
        QTest::addColumn<QString>("pages");
        for (const auto &[name, outline, pages] : std::initializer_list<std::array<const char *, 3>>{
                 {"nothing", "", ""},
                 {"one page", "rrrr", "rrrr"},
                 {"records", "rrrrrrrrr", "rrrr|rrrr|r"},
                 {"a long record is not cut", "rrrwr", "rrr|wr"},
                 {"a band goes with its record", "rrr0rr", "rrr|0rr"},
                 {"nested bands go together", "rr01rr", "rr|01rr"},
                 {"a band above a long record", "rr0wr", "rr|0wr"},
                 {"bands that are shut stay", "rrr000", "rrr0|00"},
                 {"the last band stays", "rrr0", "rrr0"},
                 {"a page of bands has no better end", "0123rr", "0123|rr"},
                 {"shut bands of another level", "rr1101r", "rr11|01r"}})
            QTest::newRow(name) << QString::fromLatin1(outline) << QString::fromLatin1(pages);
    }
    void pagesEndBetweenRowsAndNeverBelowABand()
    {
        QFETCH(QString, outline);
        SampleSheet sheet({{QStringLiteral("A"), 100}});
        sheet.outline(outline);
        const SheetLayout layout(sheet, true, paperFor(4));
        QTEST(dump(layout, outline), "pages");
    }
    void columnsShrinkAndThenGoOnAcross_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("filled");
        QTest::addColumn<bool>("shrinks");
        QTest::addColumn<int>("across");
        QTest::newRow("as on the screen") << 4 << 80 << true << false << 1;
        QTest::newRow("somewhat wide") << 6 << 150 << true << true << 1;
        QTest::newRow("wide but blank") << 12 << 150 << false << false << 1;
        QTest::newRow("far too wide") << 21 << 150 << true << true << 4;
        QTest::newRow("one column wider than the paper") << 2 << 4000 << true << true << 2;
        QTest::newRow("no column") << 0 << 0 << false << false << 1;
    }
    void columnsShrinkAndThenGoOnAcross()
    {
        QFETCH(int, count);
        QFETCH(int, width);
        QFETCH(bool, filled);
        QFETCH(bool, shrinks);
        const SampleSheet sheet = columns(count, width, filled);
        const SheetLayout layout(sheet, true, sheetOf(210, 297, 15));
        const int full = int(std::lround(SheetLayout::kPoints * kUnitsPerPoint));
        QCOMPARE(layout.font().font().pixelSize() < full, shrinks);
        QVERIFY(layout.font().font().pixelSize() >= int(SheetLayout::kSmallestPoints * kUnitsPerPoint));
        QTEST(layout.strips(), "across");
        QTEST(layout.pageCount(), "across");

        std::set<int> seen;
        for (int s = 0; s < layout.strips(); ++s) {
            const auto &strip = layout.strip(s);
            QVERIFY(strip.edges.back() <= layout.area().right() + 1);
            QVERIFY(std::ranges::is_sorted(strip.edges));
            seen.insert(strip.columns.begin(), strip.columns.end());
            if (layout.strips() > 2) QCOMPARE(strip.columns.front(), 0); // a row is known by its first column
        }
        QCOMPARE(int(seen.size()), count);
    }
    void captionsAreNeverCut_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::newRow("hu") << QStringLiteral("Felirat/jelkulcs réteg szerint");
        QTest::newRow("ro") << QStringLiteral("Inscripții/simboluri conform stratului");
        QTest::newRow("vi") << QStringLiteral("Chữ/ký hiệu theo thuộc tính của lớp");
        QTest::newRow("one long word") << QStringLiteral("Legmegszentségteleníthetetlenebb");
    }
    void captionsAreNeverCut()
    {
        QFETCH(QString, caption);
        SampleSheet sheet({{QStringLiteral("No"), 30}, {caption, 20}, {QStringLiteral("Name"), 200}});
        const SheetLayout layout(sheet, true, sheetOf(210, 297));
        const double room = layout.strip(0).edges[2] - layout.strip(0).edges[1] - 2 * layout.pad();
        const QStringList lines = layout.boldFont().lines(caption, room + 1, 99);
        QVERIFY(lines.size() <= SheetLayout::kMostCaptionLines);
        QVERIFY(lines.size() * layout.boldFont().lineHeight() <= layout.captionsHeight());
        for (const QString &line : lines)
            QVERIFY(QFontMetricsF(layout.boldFont().font()).horizontalAdvance(line) <= room + 1);
    }
    void longTextsTakeTwoLinesAndSayThatTheyGoOn()
    {
        const PaperFont font(QGuiApplication::font(), 9);
        const QString text = QStringLiteral("Đường đồng mức chính có nhãn độ cao và nét đứt rất dài");
        const double room = font.width(text) / 3;
        const QStringList lines = font.lines(text, room, 2);
        QCOMPARE(lines.size(), 2);
        QVERIFY(text.startsWith(lines[0]));
        QVERIFY(lines[1].endsWith(u'…'));
        for (const QString &line : lines) QVERIFY(QFontMetricsF(font.font()).horizontalAdvance(line) <= room);
        QCOMPARE(font.lines(QStringLiteral("a\nb"), room, 2),
                 QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }
    void manyRowsFillTheirPagesByCount()
    {
        SampleSheet sheet({{QStringLiteral("A"), 100}});
        sheet.outline(QString(32767, u'r'));
        QCOMPARE(SheetLayout(sheet, true, paperFor(40)).pageCount(), 820);
    }
};
QVDC_TEST(tst_SheetLayout)
#include "tst_SheetLayout.moc"
