#include "kit/grid/ShownGrid.h"
#include "support/Registry.h"


#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QWheelEvent>

using namespace tests;

class tst_GridInput : public QObject {
    Q_OBJECT
private slots:
    void headerClicksSort();
    void headerDragGroupsAndReorders();
    void chipsTurnMoveAndGoByKeyboard();
    void bandsOpenAndCloseByKeysAndMouse();
    void selectionOutlivesBandsAndFilter();
    void editorsWriteOrAreRefused();
    void spaceAndMouseToggleOneCheckBox();
    void listsOpenByKeyAndIgnoreTheWheel();
    void deleteKeyAsksForShownSelectedRows();
    void escapeClearsTheFilterBeforeItClosesTheDialog();
    void lettersSeekAndFindGoesRound();
    void dropsHitRowsAndBands();
    void contextMenuSaysWhere();
    void cardsAreWalkedAndEdited();
    void picturesAreAskedForWhenPainted();
    void stateComesBack();
};

void tst_GridInput::headerClicksSort()
{
    Shown s;
    QWidget &header = *s.table.header()->viewport();
    QTest::mouseClick(&header, Qt::LeftButton, {}, s.header(SampleRows::Name));
    QCOMPARE(s.lines(), "alma alma 9 alma 10 barack körte szilva");
    QTest::mouseClick(&header, Qt::LeftButton, {}, s.header(SampleRows::Name));
    QCOMPARE(s.lines(), "szilva körte barack alma 10 alma 9 alma");
    QTest::mouseClick(&header, Qt::LeftButton, {}, s.header(SampleRows::Visible));
    QTest::mouseClick(&header, Qt::LeftButton, Qt::ShiftModifier, s.header(SampleRows::Name));
    QCOMPARE(s.grid.sortKeys().size(), 2u);
    QCOMPARE(s.lines(), "alma alma 10 barack alma 9 körte szilva");
}

void tst_GridInput::headerDragGroupsAndReorders()
{
    Shown s;
    QSignalSpy grouped(&s.grid, &Grid::groupingChanged), moved(&s.grid, &Grid::columnsChanged);
    QWidget &header = *s.table.header()->viewport();
    s.drag(header, s.header(SampleRows::Kind), s.box(), s.box().rect().center());
    QCOMPARE(s.lines(), "[Vonaltípus: folytonos (2)] alma szilva [Vonaltípus: pontozott (2)] barack alma 9 "
                        "[Vonaltípus: szaggatott (2)] körte alma 10");
    QCOMPARE(grouped.takeLast().first().toBool(), true);
    s.drag(header, s.header(SampleRows::Visible), s.box(), QPoint(1, 3));   // before the first chip
    QCOMPARE(s.grid.groupLevels().front().column, int(SampleRows::Visible));
    QVERIFY(s.grid.sortKeys().empty());                                    // a drag is no click
    s.drag(header, s.header(SampleRows::Nr), header, s.header(SampleRows::Name) + QPoint(5, 0));
    QCOMPARE(s.grid.shownColumns(), (std::vector{1, 0, 2, 3, 4, 5}));
    QCOMPARE(moved.size(), 1);
    s.drag(*s.chips().at(0), {5, 5}, s.table, QPoint(100, 200));           // away
    QCOMPARE(s.grid.groupLevels(), (std::vector<SortKey>{{SampleRows::Kind}}));
}

void tst_GridInput::chipsTurnMoveAndGoByKeyboard()
{
    Shown s;
    s.group({{SampleRows::Kind}, {SampleRows::Visible}});
    s.chips().at(0)->setFocus();
    s.key(Qt::Key_Space);
    QCOMPARE(s.grid.groupLevels().front(), (SortKey{SampleRows::Kind, SortOrder::Descending}));
    s.key(Qt::Key_Right, Qt::ControlModifier);          // the focus stays on the level
    QCOMPARE(s.grid.groupLevels().back(), (SortKey{SampleRows::Kind, SortOrder::Descending}));
    s.key(Qt::Key_Delete);
    QCOMPARE(s.grid.groupLevels(), (std::vector<SortKey>{{SampleRows::Visible}}));
    s.key(Qt::Key_Delete);
    QVERIFY(s.grid.groupLevels().empty());
    QVERIFY(s.grid.isAncestorOf(QApplication::focusWidget()));
}

void tst_GridInput::bandsOpenAndCloseByKeysAndMouse()
{
    Shown s;
    s.group({{SampleRows::Kind}, {SampleRows::Visible}});
    s.goTo(1, 1);
    QSignalSpy current(&s.grid, &Grid::currentRowMoved);
    s.key(Qt::Key_Left);
    QCOMPARE(s.table.model()->rowCount(), 6 + 3 + 6 - 1);
    s.key(Qt::Key_Left);                                // to the band over it
    QCOMPARE(s.table.currentIndex().row(), 0);
    s.key(Qt::Key_Left);
    QVERIFY(s.lines().startsWith("[Vonaltípus: folytonos (2)] [Vonaltípus: pontozott"));
    s.key(Qt::Key_Right);
    QTest::mouseClick(s.table.viewport(), Qt::LeftButton, {},
                      s.table.visualRect(s.cell(0, 0)).topLeft() + QPoint(4, 4));
    QVERIFY(s.lines().startsWith("[Vonaltípus: folytonos (2)] [Vonaltípus: pontozott"));
    QTest::mouseDClick(s.table.viewport(), Qt::LeftButton, {}, s.table.visualRect(s.cell(0, 0)).center());
    QVERIFY(!s.lines().startsWith("[Vonaltípus: folytonos (2)] [Vonaltípus: pontozott"));
    QVERIFY(current.isEmpty());                         // no record became current
    s.goTo(0, 0);
    s.key(Qt::Key_Return);
    QVERIFY(s.dialog.isVisible());                      // Enter on a band is the band's
}

void tst_GridInput::selectionOutlivesBandsAndFilter()
{
    Shown s;
    s.grid.selectRows(std::vector{0, 1, 3});
    s.grid.setCurrentRow(3);
    s.grid.selectRows(std::vector{0, 1, 3});
    QSignalSpy selected(&s.grid, &Grid::selectionMoved), current(&s.grid, &Grid::currentRowMoved);
    s.group({{SampleRows::Kind}});
    s.grid.setAllExpanded(false);
    QCOMPARE(s.grid.selectedRows(), (std::vector{0, 3, 1}));    // in a collapsed band counts as shown
    QCOMPARE(s.grid.currentRow(), 3);
    QVERIFY(selected.isEmpty());
    s.grid.setFilterText("alma");
    QCOMPARE(s.grid.selectedRows(), std::vector{0});
    QCOMPARE(s.grid.currentRow(), -1);
    QCOMPARE(selected.size(), 1);
    s.grid.setFilterText({});
    s.grid.setAllExpanded(true);
    QCOMPARE(s.grid.selectedRows(), (std::vector{0, 3, 1}));
    QCOMPARE(s.table.currentIndex().siblingAtColumn(1).data().toString(), "szilva");
    QVERIFY(current.isEmpty());
    s.grid.setAllExpanded(false);
    s.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(s.grid.selectedCount(), 6);
    s.grid.setAllExpanded(true);
    s.click(s.cell(1, 1));
    s.click(s.cell(2, 1), Qt::ControlModifier);
    QCOMPARE(s.grid.selectedRows(), (std::vector{0, 3}));
    s.click(s.cell(2, 1));                              // nothing else stays selected, in whatever band
    QCOMPARE(s.grid.selectedRows(), std::vector{3});
}

void tst_GridInput::editorsWriteOrAreRefused()
{
    Shown s;
    s.grid.setSortKeys(std::vector<SortKey>{{SampleRows::Name}});
    s.goTo(0, SampleRows::Name);
    for (const bool refuses : {true, false}) {
        s.rows.refuses = refuses;
        s.key(Qt::Key_F2);
        auto *const line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(line);
        line->setText("zab");
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(s.rows.log.size(), refuses ? 1 : 2);
        QTRY_COMPARE(QApplication::focusWidget(), &s.table);
        QCOMPARE(s.lines(), refuses ? "alma alma 9 alma 10 barack körte szilva"
                                    : "alma 9 alma 10 barack körte szilva zab");
    }
    QCOMPARE(s.grid.currentRow(), 0);                   // it moved, and is still the current one
    s.grid.setAllowEdit(false);
    s.key(Qt::Key_F2);
    QCOMPARE(QApplication::focusWidget(), &s.table);
}

void tst_GridInput::spaceAndMouseToggleOneCheckBox()
{
    Shown s;
    s.grid.selectAll();
    s.table.selectionModel()->setCurrentIndex(s.cell(2, SampleRows::Visible), QItemSelectionModel::NoUpdate);
    s.key(Qt::Key_Space);
    QCOMPARE(s.rows.log, QStringList{"edit 102.Vis=true"});
    QCOMPARE(s.grid.selectedCount(), 6);
    s.click(s.cell(3, SampleRows::Visible));
    QCOMPARE(s.rows.log.last(), "edit 103.Vis=false");
    QTest::mouseClick(s.table.viewport(), Qt::LeftButton, {},
                      s.table.visualRect(s.cell(4, SampleRows::Visible)).topLeft() + QPoint(2, 2));
    QCOMPARE(s.rows.log.size(), 2);                     // beside the box
}

void tst_GridInput::listsOpenByKeyAndIgnoreTheWheel()
{
    Shown s;
    s.goTo(0, SampleRows::Kind);
    s.key(Qt::Key_Down, Qt::AltModifier);
    auto *const list = s.table.findChild<QComboBox *>();
    QVERIFY(list && list->view()->isVisible());
    list->hidePopup();
    QWheelEvent wheel({5, 5}, list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
    QCOMPARE(list->currentIndex(), 0);
    list->setCurrentIndex(2);
    emit list->activated(2);
    QCOMPARE(s.rows.log, QStringList{"edit 100.Kind=2"});
}

void tst_GridInput::deleteKeyAsksForShownSelectedRows()
{
    Shown s;
    s.grid.selectRows(std::vector{0, 1, 4});
    s.grid.setFilterText("alma");
    s.key(Qt::Key_Delete);
    QCOMPARE(s.rows.log, QStringList{"remove 100,104"});
    s.grid.setAllowEdit(false);
    s.key(Qt::Key_Delete);
    QCOMPARE(s.rows.log.size(), 1);
}

void tst_GridInput::escapeClearsTheFilterBeforeItClosesTheDialog()
{
    Shown s;
    s.key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "alma -9");
    QCOMPARE(s.lines(), "alma alma 10");
    s.key(Qt::Key_Return);                              // to the grid, to the first shown row
    QCOMPARE(QApplication::focusWidget(), &s.table);
    QCOMPARE(s.grid.currentRow(), 0);
    s.key(Qt::Key_Escape);
    QCOMPARE(s.grid.filterText(), QString());
    s.key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "x");
    s.key(Qt::Key_Escape);
    QCOMPARE(s.lines(), "alma körte barack szilva alma 10 alma 9");
    s.key(Qt::Key_Escape);
    QCOMPARE(QApplication::focusWidget(), &s.table);
    QVERIFY(s.dialog.isVisible());
    s.key(Qt::Key_Escape);
    QVERIFY(!s.dialog.isVisible());
}

void tst_GridInput::lettersSeekAndFindGoesRound()
{
    Shown s;
    s.goTo(0, 0);
    s.key(Qt::Key_S);
    QCOMPARE(s.grid.currentRow(), 3);
    QVERIFY(s.grid.find(SampleRows::Name, "ALMA"));     // the exact value before a beginning nearer by
    QCOMPARE(s.grid.currentRow(), 0);
    QVERIFY(s.grid.find(SampleRows::Name, "alma 1"));
    QCOMPARE(s.grid.currentRow(), 4);
    QVERIFY(s.grid.find(SampleRows::Name, "rac"));
    QCOMPARE(s.grid.currentRow(), 2);
    s.group({{SampleRows::Kind}});
    s.grid.setAllExpanded(false);
    QVERIFY(s.grid.find(SampleRows::Kind, "szagg"));    // opens its band
    QCOMPARE(s.table.currentIndex().siblingAtColumn(1).data().toString(), "körte");
    QVERIFY(!s.grid.find(SampleRows::Name, "nincs"));
    s.grid.setFilterText("alma");
    QVERIFY(!s.grid.find(SampleRows::Name, "barack"));
}

void tst_GridInput::dropsHitRowsAndBands()
{
    Shown s;
    s.group({{SampleRows::Kind}});
    QMimeData mime;
    mime.setText("egy");
    const auto drop = [&](int line) {
        QAbstractItemView &view = *s.grid.activeView();
        const QPoint at = view.visualRect(s.cell(line, 0)).center();
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &enter);
        QDropEvent event(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &event);
        return enter.isAccepted();
    };
    for (const GridView view : {GridView::Table, GridView::Card}) {
        s.grid.setView(view);
        s.rows.log.clear();
        QVERIFY(drop(0));
        QVERIFY(drop(2));
        QCOMPARE(s.rows.log, (QStringList{"drop egy row -1 band 3/0", "drop egy row 3 band -1/-1"}));
        s.rows.refuses = true;
        QVERIFY(!drop(2));
        QCOMPARE(s.rows.log.size(), 2);
        s.rows.refuses = false;
    }
}

void tst_GridInput::contextMenuSaysWhere()
{
    Shown s;
    s.group({{SampleRows::Kind}});
    QSignalSpy asked(&s.grid, &Grid::contextMenuAsked);
    const auto ask = [&](QWidget &on, QPoint at, QContextMenuEvent::Reason reason) {
        QContextMenuEvent event(reason, at, on.mapToGlobal(at));
        QApplication::sendEvent(&on, &event);
        return QString("%1/%2").arg(asked.last()[0].toInt()).arg(asked.last()[1].toInt());
    };
    QCOMPARE(ask(*s.table.viewport(), s.table.visualRect(s.cell(1, 1)).center(), QContextMenuEvent::Mouse),
             "0/1");
    QCOMPARE(ask(*s.table.viewport(), s.table.visualRect(s.cell(0, 1)).center(), QContextMenuEvent::Mouse),
             "-1/3");
    QCOMPARE(ask(*s.table.header()->viewport(), s.header(2), QContextMenuEvent::Mouse), "-1/2");
    s.goTo(2, 1);
    QCOMPARE(ask(s.table, {}, QContextMenuEvent::Keyboard), "3/1");
}

void tst_GridInput::cardsAreWalkedAndEdited()
{
    Shown s;
    s.grid.setCardCaption("Réteg:|/", SampleRows::Nr, SampleRows::Name);
    QSignalSpy changed(&s.grid, &Grid::viewChanged);
    s.grid.setView(GridView::Card);
    QCOMPARE(changed.size(), 1);
    QAbstractItemView &cards = *s.grid.activeView();
    cards.setFocus();
    s.goTo(0, SampleRows::Nr);
    s.key(Qt::Key_Down);
    s.key(Qt::Key_Down);
    s.key(Qt::Key_Space);
    QCOMPARE(s.rows.log, QStringList{"edit 100.Vis=true"});
    s.key(Qt::Key_Right);
    QCOMPARE(s.grid.currentRow(), 1);
    QCOMPARE(cards.currentIndex().column(), int(SampleRows::Visible));
    const QRect field =
        cards.visualRect(s.cell(4, SampleRows::Visible)); // its box stands where the value begins
    QTest::mouseClick(cards.viewport(), Qt::LeftButton, {},
                      field.topLeft() + QPoint(field.height(), field.height()) / 2);
    QCOMPARE(s.rows.log.last(), "edit 104.Vis=true");
    for (int line = 0; line < 6; ++line)
        for (const int column : {SampleRows::Nr, SampleRows::Kind, SampleRows::Sample})
            QCOMPARE(cards.indexAt(cards.visualRect(s.cell(line, column)).center()), s.cell(line, column));
    s.key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(s.grid.selectedCount(), 6);
    s.key(Qt::Key_Home);
    s.grid.setView(GridView::CardMin);
    for (int n = 0; n < 12; ++n) s.key(Qt::Key_Down); // ends at the last line of cards, on no dead end before
    s.key(Qt::Key_End);
    QCOMPARE(s.grid.currentRow(), 5);
}

void tst_GridInput::picturesAreAskedForWhenPainted()
{
    Shown s;
    s.dialog.grab();
    QVERIFY(s.rows.painted > 0 && s.rows.painted <= 6);
    const int once = s.rows.painted;
    s.dialog.grab();
    QCOMPARE(s.rows.painted, once);
    s.goTo(0, SampleRows::Visible);
    s.key(Qt::Key_Space);
    s.dialog.grab();
    QCOMPARE(s.rows.painted, once + 1);                 // only the edited row's
}

void tst_GridInput::stateComesBack()
{
    Shown s;
    s.grid.showColumns(std::vector{3, 1, 0});
    s.table.header()->resizeSection(1, 123);
    s.grid.setSortKeys(std::vector<SortKey>{{0, SortOrder::Descending}});
    s.group({{3}});
    s.grid.setView(GridView::CardMin);
    const GridState state = s.grid.state();
    Shown other;
    QSignalSpy changed(&other.grid, &Grid::viewChanged);
    QVERIFY(other.grid.setState(state));
    QCOMPARE(changed.size(), 1);
    QVERIFY(other.grid.state() == state);
    QCOMPARE(other.grid.shownColumns(), (std::vector{3, 1, 0}));
    QCOMPARE(other.table.header()->sectionSize(1), 123);
    QVERIFY(!other.grid.setState({{{"foreign"}}, {}, {}, 0}));
    QVERIFY(other.grid.state() == state);
}

QVDC_TEST(tst_GridInput)
#include "tst_GridInput.moc"
