#include "kit/grid/ShownGrid.h"
#include "support/Registry.h"

#include "kit/paper/copySheet.h"

#include <QScrollBar>

using namespace tests;

namespace {

struct Deed {
    const char *name;
    std::function<void(Shown &)> act;
};

/// Keys, mouse, views and paper: nothing of it may fail on whatever is there.
void useAll(Shown &s)
{
    for (const GridView kind : {GridView::Table, GridView::Card, GridView::CardMin}) {
        s.grid.setView(kind);
        QAbstractItemView &view = *s.grid.activeView();
        view.setFocus();
        for (const Qt::Key k : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_Home,
                                Qt::Key_Left, Qt::Key_Right, Qt::Key_Space, Qt::Key_F2, Qt::Key_A, Qt::Key_L})
            QTest::keyClick(&view, k);
        QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, {20, 30});
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, {20, 30});
        s.grid.find(SampleRows::Name, "alma");
        s.grid.grab();
        copySheet(*s.grid.sheet());
    }
}
std::function<void(Shown &)> sized(QSize size)
{
    return [size](Shown &s) { s.dialog.layout()->setEnabled(false), s.grid.resize(size); };
}
std::function<void(Shown &)> keeping(size_t rows)
{
    return [rows](Shown &s) { s.grid.refill([&] { s.rows.all.resize(rows); }); };
}
QLineEdit *openEditor(Shown &s)
{
    s.goTo(1, SampleRows::Name);
    s.key(Qt::Key_F2);
    auto *const line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    if (line) line->setText("zab");
    return line;
}
void dragHeader(Shown &s)
{
    QWidget &header = *s.table.header()->viewport();
    QTest::mousePress(&header, Qt::LeftButton, {}, s.header(SampleRows::Kind));
    for (const int by : {10, 30}) {
        const QPoint at = s.header(SampleRows::Kind) + QPoint(by, by);
        QMouseEvent move(QEvent::MouseMove, at, header.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&header, &move);
    }
}

} // namespace

/// What comes at the wrong moment, and tables that are hardly any.
class tst_GridTrouble : public QObject {
    Q_OBJECT
private slots:
    void hardlyAnythingIsStillATable()
    {
        const Deed deeds[] = {
            {"no rows", keeping(0)},
            {"one row", keeping(1)},
            {"all columns hidden", [](Shown &s) { s.grid.showColumns({}); }},
            {"all rows filtered", [](Shown &s) { s.grid.setFilterText("nincs ilyen"); }},
            {"bands closed", [](auto &s) { s.group({{SampleRows::Kind}}), s.grid.setAllExpanded(false); }},
            {"no source", [](Shown &s) { s.grid.setSource(nullptr); }},
            {"no room", sized({0, 0})},
            {"room for half a line", sized({300, 70})}};
        for (const auto &[name, make] : deeds) {
            Shown s;
            make(s);
            useAll(s);
            s.group({{SampleRows::Kind}, {SampleRows::Visible}});
            s.grid.setSortKeys(std::vector<SortKey>{{SampleRows::Name}});
            useAll(s);
            s.grid.setFilterText({});
            s.grid.setGroupLevels({});
            if (s.grid.columns().empty()) continue;
            s.grid.showColumns(std::vector{0, 1, 2, 3, 4, 5});
            same(name, s.table.model()->rowCount(), s.rows.rowCount());
        }
    }
    void whatIsTypedOutlivesAnotherOrder()
    {
        const Deed deeds[] = {
            {"a click on a header", [](Shown &s) { s.clickHeader(SampleRows::Name); }},
            {"a group", [](Shown &s) { s.group({{SampleRows::Kind}}); }},
            {"bands closed", [](Shown &s) { s.grid.setAllExpanded(false); }},
            {"a filter", [](Shown &s) { s.grid.setFilterText("zab"); }},
            {"cards", [](Shown &s) { s.grid.setView(GridView::Card); }},
            {"other columns", [](Shown &s) { s.grid.showColumns(std::vector{1}); }},
            {"other captions", [](Shown &s) { s.grid.captionsChanged(); }}};
        for (const auto &[name, act] : deeds) {
            Shown s;
            QVERIFY(openEditor(s));
            act(s);
            same(name, s.rows.log, {"edit 101.Name=zab"});
            QTRY_VERIFY2(!s.grid.activeView()->viewport()->findChild<QLineEdit *>(), name);
            same(name, s.grid.currentRow(), 1);
        }
    }
    void aRefillEndsWhatIsGoingOn()
    {
        const Deed deeds[] = {
            {"an editor is open", [](Shown &s) { QVERIFY(openEditor(s)); }},
            {"a list is open", [](Shown &s) {
                 s.goTo(0, SampleRows::Kind);
                 s.key(Qt::Key_Down, Qt::AltModifier);
                 QVERIFY(s.table.findChild<QComboBox *>());
             }},
            {"a header is dragged", dragHeader},
            {"a level is dragged", [](Shown &s) {
                 s.group({{SampleRows::Kind}});
                 QTest::mousePress(s.chips().at(0), Qt::LeftButton, {}, {5, 5});
             }}};
        for (const bool everything : {false, true})
            for (const auto &[name, act] : deeds) {
                Shown s;
                act(s);
                s.grid.refill(
                    [&] { s.rows.all.erase(s.rows.all.begin(), s.rows.all.end() - (everything ? 0 : 3)); });
                if (everything) s.grid.setSource(nullptr);
                QTest::mouseRelease(s.table.header()->viewport(), Qt::LeftButton, {}, {50, -20});
                same(name, s.rows.log, QStringList());
                QTRY_VERIFY2(s.table.findChildren<QLineEdit *>().isEmpty() &&
                                 s.table.findChildren<QComboBox *>().isEmpty(), name);
                QVERIFY2(s.grid.isAncestorOf(QApplication::focusWidget()), name);
                useAll(s);
            }
    }
    /// Line types have a column for each symbol they carry.
    void aRefillMayBringOtherColumns()
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
    }
    /// Two views share what edits: an editor belongs to the one it is in, moves with its row, and says no
    /// word on the console.
    void editorsOfBothViewsAreOneViewsOwn()
    {
        Shown s;
        s.dialog.resize(400, 220);
        for (const GridView view : {GridView::Card, GridView::Table, GridView::Card}) {
            s.grid.setView(view);
            s.grid.activeView()->setFocus();
            QLineEdit *const line = openEditor(s);
            QVERIFY(line);
            QScrollBar &bar = *s.grid.activeView()->verticalScrollBar();
            bar.setValue(bar.value() + 1);
            QCOMPARE(line->geometry().topLeft(),
                     s.grid.activeView()->visualRect(s.cell(1, SampleRows::Name)).topLeft());
            const QString name = QString("név %1").arg(s.rows.log.size());
            line->setText(name);
            QTest::keyClick(line, Qt::Key_Return);
            QTRY_COMPARE(s.rows.all[1].name, name);
        }
        QCOMPARE(s.rows.log.size(), 3);
    }
    void theCurrentCellIsNeverInAHiddenColumn()
    {
        Shown s;
        s.goTo(4, SampleRows::Name);
        s.grid.showColumns(std::vector{3, 0});
        QCOMPARE(s.table.currentIndex().column(), int(SampleRows::Kind));
        s.key(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(s.grid.selectedRows(), (std::vector{3, 4}));
    }
    /// As many rows as a table can have, a group for each of them.
    void manyBandsAreNoBurden()
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
        s.grid.setAllExpanded(false);
        QCOMPARE(s.table.model()->rowCount(), kRows);
        QCOMPARE(s.grid.selectedCount(), kRows);
        s.grid.setView(GridView::Card);
        s.grid.grab();
        s.grid.setFilterText("12345");
        QCOMPARE(s.grid.selectedCount(), 2);                // one by its number, one by its name
    }
};

QVDC_TEST(tst_GridTrouble)
#include "tst_GridTrouble.moc"
