#include "kit/grid/SampleRows.h"
#include "support/RealDrag.h"
#include "support/Registry.h"

#include <QTest>

using namespace tests;

class tst_GridDrag : public QObject {
    Q_OBJECT
private slots:
    void rowsAreDraggedFromGridToGrid();
};

void tst_GridDrag::rowsAreDraggedFromGridToGrid()
{
    if (const char *const why = RealDrag::hindrance()) QSKIP(why);
    SampleRows from({"alma", "körte"}), to({"barack", "szilva"});
    Grid left, right;
    left.setSource(&from), right.setSource(&to);
    left.setDragOut(true);
    left.setGeometry(50, 50, 500, 300), right.setGeometry(600, 50, 500, 300);
    left.show(), right.show();
    QVERIFY(QTest::qWaitForWindowExposed(&left) && QTest::qWaitForWindowExposed(&right));
    left.setCurrentRow(1);
    RealDrag drag(left, 1, right, 0);
    QTRY_COMPARE_WITH_TIMEOUT(to.log, QStringList{"drop 1 rows row 0 band -1/-1"}, 15000);
    QVERIFY(drag.ended());
}

QVDC_TEST(tst_GridDrag)
#include "tst_GridDrag.moc"
