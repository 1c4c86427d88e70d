#include "kit/paper/SheetLayout.h"

#include "paper/SamplePaper.h"
#include "support/Registry.h"

#include <set>

using namespace tests;

namespace {

constexpr int kTallMm = 400;

/// Paper on which exactly `rows` records of one line find room.
QPageLayout paperFor(int rows)
{
    SampleSheet probe({{"A", 100}});
    probe.outline("r");
    const SheetLayout tall(probe, true, sheetOf(150, kTallMm));
    const double spare = tall.bodyBottom() - tall.bodyTop() - (rows + 0.2) * tall.rowHeight(0);
    return sheetOf(150, kTallMm - spare * kMmPerUnit);
}

/// `filled`: every cell but the first holds as much text as fits its column on the screen.
SampleSheet columns(int count, int width, bool filled)
{
    SampleSheet sheet;
    QStringList cells{"1"};
    for (int c = 0; c < count; ++c) {
        sheet.columns.push_back({QString("C%1").arg(c), c == 0 ? 40 : width});
        if (c > 0) cells << QString(filled ? width / 8 : 1, u'n');
    }
    sheet.record(cells);
    return sheet;
}

/// Whether the lines of a text are no wider than that.
bool fit(const QStringList &lines, const PaperFont &font, double room)
{
    return std::ranges::all_of(
        lines, [&](const QString &l) { return QFontMetricsF(font.font()).horizontalAdvance(l) <= room; });
}

} // namespace

class tst_SheetLayout : public QObject {
    Q_OBJECT
private slots:
    void pagesEndBetweenRowsAndNeverBelowABand()
    {
        const std::pair<const char *, const char *> rows[] = { // four lines a page; w takes two
            {"", ""},
            {"rrrr", "rrrr"},
            {"rrrrrrrrr", "rrrr|rrrr|r"},
            {"rrrwr", "rrr|wr"},      // a long record is not cut
            {"rrr0rr", "rrr|0rr"},    // a band goes with its record
            {"rr01rr", "rr|01rr"},    // and so do bands within bands
            {"rr0wr", "rr|0wr"},
            {"rrr000", "rrr0|00"},    // bands that are shut stay
            {"rrr0", "rrr0"},
            {"0123rr", "0123|rr"},    // a page of bands has no better end
            {"rr1101r", "rr11|01r"}};
        for (const auto &[outline, wanted] : rows) {
            SampleSheet sheet({{"A", 100}});
            sheet.outline(outline);
            const SheetLayout layout(sheet, true, paperFor(4));
            QStringList pages;
            for (int p = 0; p < layout.pageCount(); ++p)
                pages << QString(outline).mid(layout.page(p).firstRow,
                                              layout.page(p).endRow - layout.page(p).firstRow);
            same(outline, pages.join(u'|'), wanted);
        }
    }
    void columnsShrinkAndThenGoOnAcross()
    {
        const std::tuple<const char *, SampleSheet, bool, int> rows[] = {
            {"as on the screen", columns(4, 80, true), false, 1},
            {"somewhat wide", columns(6, 150, true), true, 1},
            {"wide but blank", columns(12, 150, false), false, 1},
            {"far too wide", columns(21, 150, true), true, 4},
            {"one column wider than the paper", columns(2, 4000, true), true, 2},
            {"no column", columns(0, 0, false), false, 1}};
        for (const auto &[name, sheet, shrinks, across] : rows) {
            const SheetLayout layout(sheet, true, sheetOf(210, 297, 15));
            const int full = int(std::lround(SheetLayout::kPoints * kUnitsPerPoint));
            same(name, layout.font().font().pixelSize() < full, shrinks);
            QVERIFY(layout.font().font().pixelSize() >= int(SheetLayout::kSmallestPoints * kUnitsPerPoint));
            same(name, layout.strips(), across);
            same(name, layout.pageCount(), across);
            std::set<int> seen;
            for (int s = 0; s < layout.strips(); ++s) {
                const auto &strip = layout.strip(s);
                QVERIFY2(strip.edges.back() <= layout.area().right() + 1, name);
                QVERIFY2(std::ranges::is_sorted(strip.edges), name);
                seen.insert(strip.columns.begin(), strip.columns.end());
                if (layout.strips() > 2) same(name, strip.columns.front(), 0); // it tells the rows apart
            }
            same(name, seen.size(), sheet.columns.size());
        }
    }
    void captionsAreNeverCut()
    {
        for (const char *caption :
             {"Felirat/jelkulcs réteg szerint", "Inscripții/simboluri conform stratului",
              "Chữ/ký hiệu theo thuộc tính của lớp", "Legmegszentségteleníthetetlenebb"}) {
            const SampleSheet sheet({{"No", 30}, {caption, 20}, {"Name", 200}});
            const SheetLayout layout(sheet, true, sheetOf(210, 297));
            const PaperFont &font = layout.boldFont();
            const double room = layout.strip(0).edges[2] - layout.strip(0).edges[1] - 2 * layout.pad() + 1;
            const QStringList lines = font.lines(caption, room, 99);
            QVERIFY2(lines.size() <= SheetLayout::kMostCaptionLines, caption);
            QVERIFY2(lines.size() * font.lineHeight() <= layout.captionsHeight(), caption);
            QVERIFY2(fit(lines, font, room), caption);
        }
    }
    void longTextsTakeTwoLinesAndSayThatTheyGoOn()
    {
        const PaperFont font(QGuiApplication::font(), 9);
        const QString text = "Đường đồng mức chính có nhãn độ cao và nét đứt rất dài";
        const double room = font.width(text) / 3;
        const QStringList lines = font.lines(text, room, 2);
        QCOMPARE(lines.size(), 2);
        QVERIFY(text.startsWith(lines[0]) && lines[1].endsWith(u'…') && fit(lines, font, room));
        QCOMPARE(font.lines("a\nb", room, 2), QStringList({"a", "b"}));
    }
};
QVDC_TEST(tst_SheetLayout)
#include "tst_SheetLayout.moc"
