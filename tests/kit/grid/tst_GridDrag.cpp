#include "kit/grid/SampleRows.h"
#include "support/RealDrag.h"
#include "support/Registry.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

using namespace tests;

class tst_GridDrag : public QObject {
    Q_OBJECT
private slots:
    void rowsAreDraggedFromGridToGrid();
    void linesScrollUnderWhatIsDragged();
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

void tst_GridDrag::linesScrollUnderWhatIsDragged()
{
    SampleRows rows(QStringList(200, "alma"));
    Grid grid;
    grid.setSource(&rows);
    grid.resize(500, 300);
    grid.show();
    QAbstractItemView &view = *grid.activeView();
    QMimeData mime;
    mime.setText("egy");
    const QPoint edge = view.viewport()->rect().bottomLeft() + QPoint(20, -5);
    QCursor::setPos(view.viewport()->mapToGlobal(edge));
    QDragEnterEvent enter(edge, Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &enter);
    QTRY_VERIFY(view.verticalScrollBar()->value() > 0);
    QDragLeaveEvent leave;
    QApplication::sendEvent(view.viewport(), &leave);
}

QVDC_TEST(tst_GridDrag)
#include "tst_GridDrag.moc"
