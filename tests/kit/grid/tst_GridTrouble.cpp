#include "kit/grid/ShownGrid.h"
#include "support/Registry.h"

#include "kit/grid/FilterLine.h"
#include "kit/paper/copySheet.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

using namespace tests;

using Act = std::function<void(Shown &)>;
Q_DECLARE_METATYPE(Act)

/// What comes at the wrong moment, and tables that are hardly any.
class tst_GridTrouble : public QObject {
    Q_OBJECT
private:
    /// Keys, mouse, views and paper: nothing of it may fail on whatever is there.
    static void useAll(Shown &s)
    {
        for (const GridView view : {GridView::Table, GridView::Card, GridView::CardMin}) {
            s.grid.setView(view);
            s.grid.activeView()->setFocus();
            for (const Qt::Key k :
                 {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_Home, Qt::Key_Left,
                  Qt::Key_Right, Qt::Key_Space, Qt::Key_F2, Qt::Key_A, Qt::Key_L})
                QTest::keyClick(s.grid.activeView(), k);
            QTest::keyClick(s.grid.activeView(), Qt::Key_A, Qt::ControlModifier);
            QTest::mouseClick(s.grid.activeView()->viewport(), Qt::LeftButton, Qt::ShiftModifier, {20, 30});
            QTest::mouseDClick(s.grid.activeView()->viewport(), Qt::LeftButton, {}, {20, 30});
            s.grid.find(SampleRows::Name, "alma");
            s.grid.grab();
            copySheet(*s.grid.sheet());
        }
    }
    static Act sized(QSize size)
    {
        return [size](Shown &s) { s.dialog.layout()->setEnabled(false), s.grid.resize(size); };
    }
    static QLineEdit *openEditor(Shown &s)
    {
        s.goTo(1, SampleRows::Name);
        s.key(Qt::Key_F2);
        auto *const line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        if (line) line->setText("zab");
        return line;
    }

private slots:
    void hardlyAnythingIsStillATable_data();
    void hardlyAnythingIsStillATable();
    void whatIsTypedOutlivesAnotherOrder_data();
    void whatIsTypedOutlivesAnotherOrder();
    void aRefillEndsWhatIsGoingOn_data();
    void aRefillEndsWhatIsGoingOn();
    void aRefillMayBringOtherColumns();
    void editorsOfBothViewsAreOneViewsOwn();
    void theOpenEditorMovesWithItsRow();
    void theCurrentCellIsNeverInAHiddenColumn();
    void manyBandsAreNoBurden();
};

void tst_GridTrouble::hardlyAnythingIsStillATable_data()
{
    QTest::addColumn<Act>("make");
    const auto keep = [](int rows) {
        return Act([rows](Shown &s) { s.grid.refill([&] { s.rows.all.resize(size_t(rows)); }); });
    };
    QTest::newRow("no rows") << keep(0);
    QTest::newRow("one row") << keep(1);
    QTest::newRow("all columns hidden") << Act([](Shown &s) { s.grid.showColumns({}); });
    QTest::newRow("all columns hidden, grouped") << Act([](Shown &s) {
        s.group({{SampleRows::Kind}, {SampleRows::Visible}}), s.grid.showColumns({});
    });
    QTest::newRow("all rows filtered") << Act([](Shown &s) { s.grid.setFilterText("nincs ilyen"); });
    QTest::newRow("all rows filtered, grouped")
        << Act([](Shown &s) { s.group({{SampleRows::Kind}}), s.grid.setFilterText("nincs ilyen"); });
    QTest::newRow("all bands closed")
        << Act([](Shown &s) { s.group({{SampleRows::Kind}}), s.grid.setAllExpanded(false); });
    QTest::newRow("no source") << Act([](Shown &s) { s.grid.setSource(nullptr); });
    QTest::newRow("no room") << sized({0, 0});
    QTest::newRow("room for nothing") << sized({1, 1});
    QTest::newRow("room for half a line") << sized({300, 70});
}

void tst_GridTrouble::hardlyAnythingIsStillATable()
{
    QFETCH(Act, make);
    Shown s;
    make(s);
    useAll(s);
    s.grid.setSortKeys(std::vector<SortKey>{{SampleRows::Name}});
    useAll(s);
    s.grid.setFilterText({});
    s.grid.setGroupLevels({});
    if (s.grid.columns().empty()) return;
    s.grid.showColumns(std::vector{0, 1, 2, 3, 4, 5});
    QCOMPARE(s.table.model()->rowCount(), s.rows.rowCount());
}

void tst_GridTrouble::whatIsTypedOutlivesAnotherOrder_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("a click on a header") << Act([](Shown &s) {
        QTest::mouseClick(s.table.header()->viewport(), Qt::LeftButton, {}, s.header(SampleRows::Name));
    });
    QTest::newRow("a group") << Act([](Shown &s) { s.group({{SampleRows::Kind}}); });
    QTest::newRow("bands closed") << Act([](Shown &s) { s.grid.setAllExpanded(false); });
    QTest::newRow("a filter") << Act([](Shown &s) { s.grid.setFilterText("zab"); });
    QTest::newRow("cards") << Act([](Shown &s) { s.grid.setView(GridView::Card); });
    QTest::newRow("other columns") << Act([](Shown &s) { s.grid.showColumns(std::vector{1}); });
    QTest::newRow("other captions") << Act([](Shown &s) { s.grid.captionsChanged(); });
}

void tst_GridTrouble::whatIsTypedOutlivesAnotherOrder()
{
    QFETCH(Act, act);
    Shown s;
    QVERIFY(openEditor(s));
    act(s);
    QCOMPARE(s.rows.log, QStringList{"edit 101.Name=zab"});
    QCOMPARE(s.rows.all[1].name, "zab");
    QTRY_VERIFY(s.grid.activeView()->viewport()->findChildren<QLineEdit *>().isEmpty());
    QCOMPARE(s.grid.currentRow(), 1);
}

void tst_GridTrouble::aRefillEndsWhatIsGoingOn_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("an editor is open") << Act([](Shown &s) { QVERIFY(openEditor(s)); });
    QTest::newRow("a list is open") << Act([](Shown &s) {
        s.goTo(0, SampleRows::Kind);
        s.key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(s.table.findChild<QComboBox *>());
    });
    QTest::newRow("a header is dragged") << Act([](Shown &s) {
        QWidget &header = *s.table.header()->viewport();
        QTest::mousePress(&header, Qt::LeftButton, {}, s.header(SampleRows::Kind));
        for (const int by : {10, 30}) {
            const QPoint at = s.header(SampleRows::Kind) + QPoint(by, by);
            QMouseEvent move(QEvent::MouseMove, at, header.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&header, &move);
        }
    });
    QTest::newRow("a level is dragged") << Act([](Shown &s) {
        s.group({{SampleRows::Kind}});
        QTest::mousePress(s.chips().at(0), Qt::LeftButton, {}, {5, 5});
    });
}

void tst_GridTrouble::aRefillEndsWhatIsGoingOn()
{
    QFETCH(Act, act);
    for (const bool everything : {false, true}) {
        Shown s;
        act(s);
        s.grid.refill([&] { s.rows.all.erase(s.rows.all.begin(), s.rows.all.end() - (everything ? 0 : 3)); });
        if (everything) s.grid.setSource(nullptr);
        QTest::mouseRelease(s.table.header()->viewport(), Qt::LeftButton, {}, {50, -20});
        QVERIFY(s.rows.log.isEmpty());
        QTRY_VERIFY(s.table.findChildren<QLineEdit *>().isEmpty() &&
                    s.table.findChildren<QComboBox *>().isEmpty());
        QVERIFY(s.grid.isAncestorOf(QApplication::focusWidget()));
        useAll(s);
    }
}

/// Line types have a column for each symbol they carry.
void tst_GridTrouble::aRefillMayBringOtherColumns()
{
    Shown s;
    const std::vector<GridColumn> all = s.rows.cols;
    s.group({{SampleRows::Visible}, {SampleRows::Kind}});
    s.grid.setSortKeys(std::vector<SortKey>{{SampleRows::Kind}, {SampleRows::Name}});
    s.grid.setFilterText("alma");
    s.grid.refill([&] { s.rows.cols.resize(SampleRows::Kind); });
    QCOMPARE(s.grid.groupLevels(), (std::vector<SortKey>{{SampleRows::Visible}}));
    QCOMPARE(s.grid.sortKeys(), (std::vector<SortKey>{{SampleRows::Name}}));
    QCOMPARE(s.chips().size(), 1);
    QCOMPARE(s.lines(), "[Látható: nem (2)] alma alma 10 [Látható: igen (1)] alma 9");
    useAll(s);
    s.grid.refill([&] { s.rows.cols = all; });
    QCOMPARE(s.grid.shownColumns(), (std::vector{0, 1, 2, 3, 4, 5}));
    useAll(s);
}

/// Two views share what edits: an editor belongs to the one it is in, without a word on the console.
void tst_GridTrouble::editorsOfBothViewsAreOneViewsOwn()
{
    Shown s;
    for (const GridView view : {GridView::Card, GridView::Table, GridView::Card}) {
        s.grid.setView(view);
        s.grid.activeView()->setFocus();
        QLineEdit *const line = openEditor(s);
        QVERIFY(line);
        const QString name = QString("név %1").arg(s.rows.log.size());
        line->setText(name);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(s.rows.all[1].name, name);
    }
    QCOMPARE(s.rows.log.size(), 3);
}

void tst_GridTrouble::theOpenEditorMovesWithItsRow()
{
    for (const GridView view : {GridView::Table, GridView::Card}) {
        Shown s;
        s.dialog.resize(400, 220);
        s.grid.setView(view);
        s.grid.activeView()->setFocus();
        QLineEdit *const line = openEditor(s);
        QVERIFY(line);
        QScrollBar &bar = *s.grid.activeView()->verticalScrollBar();
        bar.setValue(bar.value() + 1);
        QCOMPARE(line->geometry().topLeft(),
                 s.grid.activeView()->visualRect(s.cell(1, SampleRows::Name)).topLeft());
    }
}

void tst_GridTrouble::theCurrentCellIsNeverInAHiddenColumn()
{
    Shown s;
    s.goTo(4, SampleRows::Name);
    s.grid.showColumns(std::vector{3, 0});
    QCOMPARE(s.table.currentIndex().column(), int(SampleRows::Kind));
    s.key(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(s.grid.selectedRows(), (std::vector{3, 4}));
}

/// A group for every row, in both views.
void tst_GridTrouble::manyBandsAreNoBurden()
{
    constexpr int kRows = 32767;
    Shown s;
    s.grid.refill([&] {
        s.rows.all.resize(kRows);
        for (int i = 0; i < kRows; ++i) s.rows.all[size_t(i)] = {i, i, QString::number(i * 7919 % kRows)};
    });
    s.group({{SampleRows::Name}, {SampleRows::Nr}});
    QCOMPARE(s.table.model()->rowCount(), 3 * kRows);
    s.grid.toggleBandOf(0);
    s.grid.setCurrentRow(kRows - 1);
    s.grid.selectAll();
    QCOMPARE(s.grid.selectedCount(), kRows);
    s.grid.setAllExpanded(false);
    QCOMPARE(s.table.model()->rowCount(), kRows);
    QCOMPARE(s.grid.selectedCount(), kRows);
    s.grid.setView(GridView::Card);
    s.grid.grab();
    s.grid.setFilterText("12345");
    QCOMPARE(s.grid.selectedCount(), 2);                // one by its number, one by its name
}

QVDC_TEST(tst_GridTrouble)
#include "tst_GridTrouble.moc"
