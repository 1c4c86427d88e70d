#include "kit/grid/SampleRows.h"
#include "support/Registry.h"

#include "kit/grid/Grid.h"
#include "facade/services/InterfaceLocale.h"

#include <QAbstractItemModelTester>
#include <QCollator>

#include <random>
#include <set>

using namespace tests;

/// What a grid has to show, found by the plainest means: everything is sorted and listed anew for every look.
struct PlainGrid {
    const SampleRows &rows;
    std::vector<SortKey> groups, sorts;
    QString filter;
    bool expandedByDefault = true;
    std::set<QString> flipped;
    std::set<qint64> selected;
    qint64 current = -1;
    QCollator collator{interfaceLocale()};

    explicit PlainGrid(const SampleRows &of) : rows(of) { collator.setNumericMode(true); }

    QString shown(int row, int column) const
    {
        return column == SampleRows::Visible ? (rows.at(row).visible ? "igen" : "nem")
                                             : rows.text(row, column);
    }
    bool fits(int row) const
    {
        if (filter.isEmpty()) return true;
        for (int c = 0; c < int(rows.cols.size()); ++c)
            if (c != SampleRows::Visible && rows.text(row, c).contains(filter, Qt::CaseInsensitive))
                return true;
        return false;
    }
    int compare(int a, int b, int column) const
    {
        if (column == SampleRows::Name || column == SampleRows::Kind)
            return collator.compare(shown(a, column), shown(b, column));
        return rows.value(a, column).toInt() - rows.value(b, column).toInt();
    }
    std::vector<int> order() const
    {
        std::vector<int> all;
        for (int r = 0; r < rows.rowCount(); ++r)
            if (fits(r)) all.push_back(r);
        std::ranges::stable_sort(all, [this](int a, int b) {
            for (const auto *keys : {&groups, &sorts})
                for (const SortKey &key : *keys)
                    if (const int d = compare(a, b, key.column))
                        return (d < 0) == (key.order == SortOrder::Ascending);
            return false;
        });
        return all;
    }
    QString path(int row, size_t levels) const
    {
        QString text;
        for (size_t i = 0; i < levels; ++i)
            text += QString::number(groups[i].column) + u'=' + shown(row, groups[i].column) + u'\n';
        return text;
    }
    bool isExpanded(const QString &at) const { return flipped.contains(at) != expandedByDefault; }
    void flip(const QString &at)
    {
        if (!flipped.erase(at)) flipped.insert(at);
    }
    QString lines() const
    {
        const std::vector<int> all = order();
        QStringList out;
        QString open;
        for (int row : all) {
            bool visible = true;
            for (size_t level = 1; level <= groups.size(); ++level) {
                const QString at = path(row, level);
                if (visible && !open.startsWith(at)) {
                    const auto count =
                        std::ranges::count_if(all, [&](int r) { return path(r, level) == at; });
                    const QString value = shown(row, groups[level - 1].column);
                    out << QString("[%1: %2 (%3)]")
                               .arg(rows.cols[size_t(groups[level - 1].column)].caption,
                                    value.isEmpty() ? "(üres)" : value)
                               .arg(count);
                }
                visible = visible && isExpanded(at);
            }
            open = path(row, groups.size());
            if (visible) out << QString::number(rows.at(row).nr);
        }
        return out.join(u' ');
    }
    std::vector<int> selectedShown() const
    {
        std::vector<int> out = order();
        std::erase_if(out, [this](int r) { return !selected.contains(rows.rowId(r)); });
        return out;
    }
};

class tst_GridWalk : public QObject {
    Q_OBJECT
private:
    std::mt19937 m_random{20240607};
    qint64 m_nextId = 1;
    int below(int n) { return int(m_random() % unsigned(n)); }
    std::vector<SortKey> someKeys()
    {
        std::vector<SortKey> keys;
        for (int n = below(5); n > 0; --n)
            keys.push_back({below(5), below(2) ? SortOrder::Ascending : SortOrder::Descending});
        return keys;
    }
    SampleRows::Record record()
    {
        static const QStringList names{"Út", "út", "Réteg 2", "Réteg 10", "réteg", "", "cs", "cu", "79"};
        return {m_nextId++, below(20), names[below(int(names.size()))], below(2) == 1, below(3), below(4)};
    }
    void edit(Grid &grid, SampleRows &rows)
    {
        const int line = grid.table()->model()->rowCount() ? below(grid.table()->model()->rowCount()) : -1;
        const int column = below(4);
        const QModelIndex at = grid.table()->model()->index(line, column);
        const SampleRows::Record now = record();
        rows.refuses = below(5) == 0;
        if (column == SampleRows::Visible)
            grid.table()->model()->setData(at, below(2) ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
        else
            grid.table()->model()->setData(at, column == 0   ? QVariant(now.nr)
                                               : column == 1 ? QVariant(now.name) : QVariant(now.kind));
        rows.refuses = false;
    }
    void refill(Grid &grid, SampleRows &rows, PlainGrid &plain)
    {
        const std::vector<int> before = plain.order();
        const size_t place =
            size_t(std::ranges::find_if(before, [&](int r) { return rows.rowId(r) == plain.current; }) -
                   before.begin());
        const bool hadSelection = !plain.selected.empty();
        grid.refill([&] {
            for (int n = below(4); n > 0 && !rows.all.empty(); --n)
                rows.all.erase(rows.all.begin() + below(int(rows.all.size())));
            for (int n = below(4); n > 0 && rows.all.size() < 40; --n)
                rows.all.insert(rows.all.begin() + below(int(rows.all.size()) + 1), record());
            if (below(4) == 0) std::ranges::shuffle(rows.all, m_random);
        });
        std::set<qint64> ids;
        for (const auto &r : rows.all) ids.insert(r.id);
        std::erase_if(plain.selected, [&](qint64 id) { return !ids.contains(id); });
        const std::vector<int> after = plain.order();
        if (plain.current >= 0 && !ids.contains(plain.current))
            plain.current = after.empty() ? -1 : rows.rowId(after[std::min(place, after.size() - 1)]);
        if (hadSelection && plain.selected.empty() && plain.current >= 0)
            plain.selected.insert(plain.current);
    }
    void select(Grid &grid, SampleRows &rows, PlainGrid &plain)
    {
        std::vector<int> wanted;
        if (below(5) == 0) {
            grid.selectAll();
            wanted = plain.order();
            if (wanted.empty()) return;
        } else {
            for (int r = 0; r < rows.rowCount(); ++r)
                if (below(3) == 0) wanted.push_back(r);
            grid.selectRows(wanted);
        }
        plain.selected.clear();
        for (int r : wanted) plain.selected.insert(rows.rowId(r));
    }
    /// What is scrolled to can be seen, painted, and hit by the mouse where it says it is.
    void look(Grid &grid)
    {
        QAbstractItemView &view = *grid.activeView();
        const int lines = view.model()->rowCount();
        if (lines == 0) return;
        const QModelIndex at = view.model()->index(below(lines), below(5));
        view.scrollTo(at);
        QCOMPARE(view.indexAt(view.visualRect(at).center()).row(), at.row());
        QVERIFY(view.viewport()->rect().contains(view.visualRect(at).topLeft()));
        if (below(20) == 0) view.grab();
    }
    void makeCurrent(Grid &grid, SampleRows &rows, PlainGrid &plain)
    {
        const std::vector<int> shown = plain.order();
        if (shown.empty()) return;
        const int row = shown[size_t(below(int(shown.size())))];
        for (size_t level = 1; level <= plain.groups.size(); ++level)
            if (const QString at = plain.path(row, level); !plain.isExpanded(at)) plain.flip(at);
        grid.setCurrentRow(row);
        plain.current = rows.rowId(row);
        plain.selected = {plain.current};
    }
    void step(Grid &grid, SampleRows &rows, PlainGrid &plain)
    {
        switch (below(12)) {
        case 0: grid.setSortKeys(plain.sorts = someKeys()); break;
        case 1: grid.setGroupLevels(plain.groups = someKeys()); break;
        case 2: {
            static const QStringList filters{"", "", "ú", "7", "79", "folyt", "t 1", "nincs ilyen"};
            plain.filter = filters[below(int(filters.size()))];
            grid.setFilterText(u'"' + plain.filter + u'"');
            break;
        }
        case 3: case 4: edit(grid, rows); break;
        case 5: case 6:
            if (const auto shown = plain.order(); !shown.empty()) {
                const int row = shown[size_t(below(int(shown.size())))];
                grid.toggleBandOf(row);
                size_t level = 1;
                while (level < plain.groups.size() && plain.isExpanded(plain.path(row, level))) ++level;
                if (!plain.groups.empty()) plain.flip(plain.path(row, level));
            }
            break;
        case 7: refill(grid, rows, plain); break;
        case 8:
            if (below(3)) break;
            plain.expandedByDefault = below(2);
            plain.flipped.clear();
            grid.setAllExpanded(plain.expandedByDefault);
            break;
        case 9: makeCurrent(grid, rows, plain); break;
        case 10: grid.setView(GridView(below(3))); break;
        default: select(grid, rows, plain);
        }
    }

private slots:
    void tenThousandStepsAgreeWithThePlainestMeans()
    {
        SampleRows rows;
        for (int i = 0; i < 25; ++i) rows.all.push_back(record());
        Grid grid;
        grid.setSource(&rows);
        grid.setMultiSelection(true);
        grid.setAllowEdit(true);
        grid.resize(600, 400);
        grid.show();
        const QAbstractItemModelTester tester(grid.table()->model(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        PlainGrid plain(rows);
        for (int i = 0; i < 10000; ++i) {
            step(grid, rows, plain);
            QCOMPARE(linesOf(*grid.table()->model(), SampleRows::Nr), plain.lines());
            QCOMPARE(grid.selectedRows(), plain.selectedShown());
            QCOMPARE(grid.selectedCount(), int(plain.selectedShown().size()));
            const int row = plain.current < 0 ? -1 : grid.rowWithId(plain.current);
            QCOMPARE(grid.currentRow(), row >= 0 && plain.fits(row) ? row : -1);
            look(grid);
            if (QTest::currentTestFailed()) return;
        }
    }
};

QVDC_TEST(tst_GridWalk)
#include "tst_GridWalk.moc"
