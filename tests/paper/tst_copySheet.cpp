#include "kit/paper/copySheet.h"

#include "facade/services/Language.h"
#include "paper/SampleSheet.h"
#include "support/Registry.h"

#include <QTest>
#include <QTextDocument>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

SampleSheet table()
{
    SampleSheet sheet({{QStringLiteral("No"), 60, Qt::AlignRight},
                       {QStringLiteral("Layer\tname"), 90},
                       {QStringLiteral("On"), 40}});
    sheet.band(1, QStringLiteral("Visible (2)"));
    auto &road = sheet.record({QStringLiteral("1"), QStringLiteral("Road <a&b>"), {}});
    road.cells[2].check = 1;
    road.cells[0].background = Qt::black;
    auto &wall = sheet.record({QStringLiteral("2"), QStringLiteral("\"W\"\nall"), {}});
    wall.cells[2].check = 0;
    return sheet;
}

} // namespace

class tst_copySheet : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { setLanguage(English, {}); }
    void cleanupTestCase() { setLanguage(Hungarian, {}); }
    void textHasCaptionsTabsAndQuotations()
    {
        QCOMPARE(copySheet(table())->text(), QStringLiteral("No\t\"Layer\tname\"\tOn\n"
                                                            "Visible (2)\t\t\n"
                                                            "1\tRoad <a&b>\tYes\n"
                                                            "2\t\"\"\"W\"\"\nall\"\tNo\n"));
    }
    void onlyTheRowsAskedForAreCopied()
    {
        const int rows[] = {2, 1};
        QCOMPARE(copySheet(table(), rows)->text().section(u'\n', 1),
                 QStringLiteral("2\t\"\"\"W\"\"\nall\"\tNo\n1\tRoad <a&b>\tYes\n"));
    }
    void htmlIsATableThatKeepsNamesAndColours()
    {
        const QString html = copySheet(table())->html();
        QTextDocument read;
        read.setHtml(html);
        QVERIFY(read.toPlainText().contains(QStringLiteral("Road <a&b>")));
        QCOMPARE(html.count(QStringLiteral("<tr>")), 4);
        QVERIFY(html.contains(QStringLiteral("background:#000000;color:#ffffff\">1</td>")));
        QVERIFY(html.contains(QStringLiteral("colspan=\"3\"")));
    }
};
QVDC_TEST(tst_copySheet)
#include "tst_copySheet.moc"
