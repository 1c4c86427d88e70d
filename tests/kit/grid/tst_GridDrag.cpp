#include "kit/grid/SampleRows.h"
#include "support/Registry.h"

#include "kit/grid/Grid.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <QAbstractItemView>
#include <QWindow>

using namespace tests;

/// A real drag with the pointer of an X server, from one grid to another. Other platforms end a drag at once.
class tst_GridDrag : public QObject {
    Q_OBJECT
private slots:
    void rowsAreDraggedFromGridToGrid();
};

static QPoint onScreen(Grid &grid, int line)
{
    QAbstractItemView &table = *grid.table();
    const QPoint at = table.visualRect(table.model()->index(line, SampleRows::Name)).center();
    return table.viewport()->mapToGlobal(at) * grid.devicePixelRatioF();
}

void tst_GridDrag::rowsAreDraggedFromGridToGrid()
{
    if (QGuiApplication::platformName() != "xcb") QSKIP("needs an X server");
    const QString pointer = QStandardPaths::findExecutable("xdotool");
    if (pointer.isEmpty()) QSKIP("needs xdotool to move the pointer");

    SampleRows from({"alma", "körte"}), to({"barack", "szilva"});
    Grid left, right;
    left.setSource(&from), right.setSource(&to);
    left.setDragOut(true);
    left.setGeometry(50, 50, 500, 300), right.setGeometry(600, 50, 500, 300);
    left.show(), right.show();
    QVERIFY(QTest::qWaitForWindowExposed(&left) && QTest::qWaitForWindowExposed(&right));
    left.setCurrentRow(1);

    const QPoint start = onScreen(left, 1), end = onScreen(right, 0);
    QStringList moves;
    const auto moveTo = [&](QPoint at) {
        moves << "mousemove" << QString::number(at.x()) << QString::number(at.y()) << "sleep" << "0.1";
    };
    moveTo(start);
    moves << "mousedown" << "1" << "sleep" << "0.1";
    for (int i = 1; i <= 5; ++i) moveTo(start + (end - start) * i / 5);
    moveTo(end + QPoint(2, 0));
    moves << "mouseup" << "1";
    QProcess hand;
    hand.start(pointer, moves);
    QTRY_COMPARE_WITH_TIMEOUT(to.log, QStringList{"drop 1 rows row 0 band -1/-1"}, 15000);
    QVERIFY(hand.waitForFinished());
}

QVDC_TEST(tst_GridDrag)
#include "tst_GridDrag.moc"
