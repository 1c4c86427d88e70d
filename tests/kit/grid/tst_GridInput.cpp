#include "kit/grid/ShownGrid.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/Typing.h"

#include <QScrollBar>

using namespace tests;

class tst_GridInput : public QObject {
    Q_OBJECT
private slots:
    void headerClicksSort()
    {
        Shown s;
        s.clickHeader(SampleRows::Name);
        QCOMPARE(s.lines(), "alma alma 9 alma 10 barack körte szilva");
        s.clickHeader(SampleRows::Name);
        QCOMPARE(s.lines(), "szilva körte barack alma 10 alma 9 alma");
        s.clickHeader(SampleRows::Visible);
        s.clickHeader(SampleRows::Name, Qt::ShiftModifier);
        QCOMPARE(s.grid.sortKeys().size(), 2u);
        QCOMPARE(s.lines(), "alma alma 10 barack alma 9 körte szilva");
    }

    void headerDragGroupsAndReorders()
    {
        Shown s;
        QSignalSpy grouped(&s.grid, &Grid::groupingChanged), moved(&s.grid, &Grid::columnsChanged);
        QWidget &header = *s.table.header()->viewport();
        s.drag(header, s.header(SampleRows::Kind), s.box(), s.box().rect().center());
        QCOMPARE(s.lines(),
                 "[Vonaltípus: folytonos (2)] alma szilva [Vonaltípus: pontozott (2)] barack alma 9 "
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

    void chipsTurnMoveAndGoByKeyboard()
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
        QVERIFY(s.grid.groupLevels().empty() && s.grid.isAncestorOf(QApplication::focusWidget()));
    }

    void bandsOpenAndCloseByKeysAndMouse()
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
        const QString closed = "[Vonaltípus: folytonos (2)] [Vonaltípus: pontozott";
        QVERIFY(s.lines().startsWith(closed));
        s.key(Qt::Key_Right);
        QTest::mouseClick(s.table.viewport(), Qt::LeftButton, {},
                          s.table.visualRect(s.cell(0, 0)).topLeft() + QPoint(4, 4));
        QVERIFY(s.lines().startsWith(closed));
        QTest::mouseDClick(s.table.viewport(), Qt::LeftButton, {}, s.table.visualRect(s.cell(0, 0)).center());
        QVERIFY(!s.lines().startsWith(closed));
        QVERIFY(current.isEmpty());                         // no record became current
        s.goTo(0, 0);
        s.key(Qt::Key_Return);
        QVERIFY(s.dialog.isVisible());                      // Enter on a band is the band's
    }

    /// What is selected is held against a model in the test that walks the grid; here what is told and
    /// clicked.
    void selectionIsToldAndClicked()
    {
        Shown s;
        s.grid.setCurrentRow(3);
        s.grid.selectRows(std::vector{0, 1, 3});
        QSignalSpy selected(&s.grid, &Grid::selectionMoved), current(&s.grid, &Grid::currentRowMoved);
        s.group({{SampleRows::Kind}});
        s.grid.setAllExpanded(false);
        QVERIFY(selected.isEmpty());
        s.grid.setFilterText("alma");
        QCOMPARE(selected.size(), 1);
        s.grid.setFilterText({});
        QVERIFY(current.isEmpty());
        s.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(s.grid.selectedCount(), 6);
        s.grid.setAllExpanded(true);
        s.click(s.cell(1, 1));
        s.click(s.cell(2, 1), Qt::ControlModifier);
        QCOMPARE(s.grid.selectedRows(), (std::vector{0, 3}));
        s.click(s.cell(2, 1));                              // nothing else stays selected, in whatever band
        QCOMPARE(s.grid.selectedRows(), std::vector{3});
    }

    void spaceAndMouseToggleOneCheckBox()
    {
        Shown s;
        s.grid.selectAll();
        s.table.selectionModel()->setCurrentIndex(s.cell(2, SampleRows::Visible),
                                                  QItemSelectionModel::NoUpdate);
        s.key(Qt::Key_Space);
        QCOMPARE(s.rows.log, QStringList{"edit 102.Vis=true"});
        QCOMPARE(s.grid.selectedCount(), 6);
        s.click(s.cell(3, SampleRows::Visible));
        QCOMPARE(s.rows.log.last(), "edit 103.Vis=false");
        QTest::mouseClick(s.table.viewport(), Qt::LeftButton, {},
                          s.table.visualRect(s.cell(4, SampleRows::Visible)).topLeft() + QPoint(2, 2));
        QCOMPARE(s.rows.log.size(), 2);                     // beside the box
    }

    void listsOpenByKeyAndIgnoreTheWheel()
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
        s.dialog.activateWindow();
        list->setFocus();
        s.key(Qt::Key_Down);                                // walks, and can go on
        s.key(Qt::Key_Down);
        s.key(Qt::Key_Escape);
        QVERIFY(s.dialog.isVisible() && s.rows.log.isEmpty());
        s.key(Qt::Key_F2);
        s.key(Qt::Key_Down);
        s.key(Qt::Key_Return);
        QTRY_COMPARE(s.rows.log, QStringList{"edit 100.Kind=1"});
        s.key(Qt::Key_Down, Qt::AltModifier);
        auto *const open = s.table.findChildren<QComboBox *>().last()->view();
        QTest::keyClick(open, Qt::Key_Down);
        QTest::keyClick(open, Qt::Key_Return);
        QTRY_COMPARE(s.rows.log.last(), "edit 100.Kind=2");
    }

    void whatIsRefusedStaysInItsOpenCell()
    {
        Shown s;
        s.goTo(0, SampleRows::Nr);
        s.key(Qt::Key_F2);
        QLineEdit *const cell = s.table.findChild<QLineEdit *>();
        for (const Qt::Key leave : {Qt::Key_Return, Qt::Key_Tab}) {
            ScriptedPrompts user({{"tell", "Sorszám", "4x", {}, Icon::Exclamation}});
            tests::type(s.dialog, "4x");                // over what is selected
            s.key(leave);
            QVERIFY(cell->hasFocus() && s.rows.log.isEmpty());
        }
        QDialog other;
        other.show();
        QApplication::setActiveWindow(&other);          // just to look at something
        QApplication::setActiveWindow(&s.dialog);
        QCOMPARE(s.table.findChild<QLineEdit *>(), cell);
        QCOMPARE(cell->text(), "4x");
        tests::type(s.dialog, "4\r");
        QTRY_COMPARE(s.rows.log, QStringList{"edit 100.Nr=4"});
    }

    void whatIsAskedForIsChosenInABox()
    {
        Shown s;
        s.rows.cols[SampleRows::Color].editable = s.rows.cols[SampleRows::Color].asks = true;
        s.grid.setAllowEdit(true);
        s.goTo(2, SampleRows::Color);
        QVERIFY(s.cell(2, SampleRows::Color).data(Qt::AccessibleDescriptionRole).toString().contains("Alt+"));
        s.key(Qt::Key_Down, Qt::AltModifier);           // cancelled
        s.rows.chosen = 7;
        s.key(Qt::Key_F2);
        s.key(Qt::Key_Down, Qt::AltModifier);           // from the open cell
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        s.key(Qt::Key_F2);
        s.table.findChild<QLineEdit *>()->actions().front()->trigger();
        QCOMPARE(s.rows.log, (QStringList{"choose 102.Col", "choose 102.Col", "edit 102.Col=7",
                                          "choose 102.Col", "edit 102.Col=7"}));
        QVERIFY(s.table.hasFocus());
    }

    void deleteKeyAsksForShownSelectedRows()
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

    void escapeClearsTheFilterBeforeItClosesTheDialog()
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
        for (int n = 0; n < 2; ++n) s.key(Qt::Key_Escape);
        QCOMPARE(s.lines(), "alma körte barack szilva alma 10 alma 9");
        QVERIFY(s.table.hasFocus() && s.dialog.isVisible());
        s.key(Qt::Key_Escape);
        QVERIFY(!s.dialog.isVisible());
    }

    void lettersSeekAndFindGoesRound()
    {
        Shown s;
        s.goTo(0, 0);
        s.key(Qt::Key_S);
        QCOMPARE(s.grid.currentRow(), 3);
        for (const auto &[text, row] : {std::pair("ALMA", 0), // the exact value before a beginning nearer by
                                        {"alma 1", 4}, {"rac", 2}}) {
            QVERIFY2(s.grid.find(SampleRows::Name, text), text);
            QCOMPARE(s.grid.currentRow(), row);
        }
        s.group({{SampleRows::Kind}});
        s.grid.setAllExpanded(false);
        QVERIFY(s.grid.find(SampleRows::Kind, "szagg"));    // opens its band
        QCOMPARE(s.table.currentIndex().siblingAtColumn(1).data().toString(), "körte");
        QVERIFY(!s.grid.find(SampleRows::Name, "nincs"));
        s.grid.setFilterText("alma");
        QVERIFY(!s.grid.find(SampleRows::Name, "barack"));
    }

    void dropsHitRowsAndBands()
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
            s.rows.refuses = false;
            s.rows.log.clear();
            QVERIFY(drop(0) && drop(2));
            s.rows.refuses = true;
            QVERIFY(!drop(2));
            QCOMPARE(s.rows.log, (QStringList{"drop egy row -1 band 3/0", "drop egy row 3 band -1/-1"}));
        }
    }
    void linesScrollUnderWhatIsDragged()
    {
        Shown s;
        s.grid.refill([&] { s.rows = SampleRows(QStringList(200, "alma")); });
        QAbstractItemView &view = *s.grid.activeView();
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

    void cardsAreWalkedAndEdited()
    {
        Shown s;
        s.grid.setCardCaption("Réteg:|/", SampleRows::Nr, SampleRows::Name);
        s.grid.setView(GridView::Card);
        QAbstractItemView &cards = *s.grid.activeView();
        cards.setFocus();
        s.goTo(0, SampleRows::Nr);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Space, Qt::Key_Right}) s.key(key);
        QCOMPARE(s.grid.currentRow(), 1);
        QCOMPARE(cards.currentIndex().column(), int(SampleRows::Visible));
        const QRect field = cards.visualRect(s.cell(4, SampleRows::Visible)); // the box begins it
        QTest::mouseClick(cards.viewport(), Qt::LeftButton, {},
                          field.topLeft() + QPoint(field.height(), field.height()) / 2);
        QCOMPARE(s.rows.log, (QStringList{"edit 100.Vis=true", "edit 104.Vis=true"}));
        s.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(s.grid.selectedCount(), 6);
        s.key(Qt::Key_Home);
        s.grid.setView(GridView::CardMin);
        for (int n = 0; n < 12; ++n)
            s.key(Qt::Key_Down); // ends at the last line of cards, on no dead end before
        s.key(Qt::Key_End);
        QCOMPARE(s.grid.currentRow(), 5);
    }

    void picturesAreAskedForWhenPainted()
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
};

QVDC_TEST(tst_GridInput)
#include "tst_GridInput.moc"
