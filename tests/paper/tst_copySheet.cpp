#include "kit/paper/copySheet.h"

#include "facade/services/Language.h"
#include "paper/SampleSheet.h"
#include "support/Registry.h"

#include <QTextDocument>

using namespace QV_DOC_CONTROLS;

class tst_copySheet : public QObject {
    Q_OBJECT
private:
    tests::SampleSheet m_table{{{"No", 60, Qt::AlignRight}, {"Layer\tname", 90}, {"On", 40}}};
private slots:
    void initTestCase()
    {
        setLanguage(English, {});
        m_table.band(1, "Visible (2)");
        auto &road = m_table.record({"1", "Road <a&b>", {}});
        road.cells[2].check = 1;
        road.cells[0].background = Qt::black;
        m_table.record({"2", "\"W\"\nall", {}}).cells[2].check = 0;
    }
    void cleanupTestCase() { setLanguage(Hungarian, {}); }
    void textHasCaptionsTabsAndQuotations()
    {
        QCOMPARE(copySheet(m_table)->text(), "No\t\"Layer\tname\"\tOn\nVisible (2)\t\t\n1\tRoad <a&b>\tYes\n"
                                             "2\t\"\"\"W\"\"\nall\"\tNo\n");
        const int rows[] = {2, 1};              // only these, in this order
        QCOMPARE(copySheet(m_table, rows)->text().section(u'\n', 1),
                 "2\t\"\"\"W\"\"\nall\"\tNo\n1\tRoad <a&b>\tYes\n");
    }
    void htmlIsATableThatKeepsNamesAndColours()
    {
        const QString html = copySheet(m_table)->html();
        QTextDocument read;
        read.setHtml(html);
        QVERIFY(read.toPlainText().contains("Road <a&b>"));
        QCOMPARE(html.count("<tr>"), 4);
        QVERIFY(html.contains("background:#000000;color:#ffffff\">1</td>") && html.contains("colspan=\"3\""));
    }
};
QVDC_TEST(tst_copySheet)
#include "tst_copySheet.moc"
