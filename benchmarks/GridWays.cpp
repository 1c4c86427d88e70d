#include "GridWays.h"

#include "Figures.h"
#include "GridRows.h"

#include "kit/grid/Grid.h"

#include <QApplication>
#include <QEventLoop>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QTimer>
#include <QTreeView>

#include <malloc.h>

#include <memory>

using namespace QV_DOC_CONTROLS;

namespace benchmarks {
namespace {

constexpr int kName = 1, kVisible = 2, kLineType = 3, kColor = 4, kPrint = 5, kGroups = 7;
constexpr QSize kDialog(900, 600);
constexpr int kExposed = 50;                    ///< milliseconds in which a window gets on the screen

/// What waits, layout and picture, as the event loop would bring it next.
void finish(QAbstractItemView &shown) { shown.viewport()->repaint(); }

/// The user looks at the table before going on: what gets ready in the meantime does.
void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

struct OwnGrid {
    GridRows rows;
    Grid grid;
    explicit OwnGrid(int count) : rows(count)
    {
        grid.resize(kDialog);
        grid.setMultiSelection(true);
        grid.setAllowEdit(true);
        grid.show();
        pause(kExposed);
    }
    void show()
    {
        grid.setSource(&rows);
        finish(*grid.activeView());
    }
    void plain()
    {
        grid.setView(GridView::Table);
        grid.setFilterText({});
        grid.setAllExpanded(true);
        grid.setGroupLevels({});
        grid.setSortKeys({});
        grid.selectRows({});
        pause(1);
        finish(*grid.activeView());
    }
    void group(std::initializer_list<int> columns)
    {
        std::vector<SortKey> levels;
        for (int c : columns) levels.push_back({c});
        grid.setGroupLevels(levels);
        finish(*grid.activeView());
    }
    void sort(std::initializer_list<SortKey> keys)
    {
        grid.setSortKeys(std::vector<SortKey>(keys));
        finish(*grid.activeView());
    }
    void type(const QString &text)
    {
        grid.setFilterText(text);
        finish(*grid.activeView());
    }
};

template <class T> std::function<void()> on(const std::shared_ptr<T> &state, void (*act)(T &))
{
    return [state, act] { act(*state); };
}

void addSortSteps(Steps &steps, const std::shared_ptr<OwnGrid> &own)
{
    const auto plain = on<OwnGrid>(own, [](OwnGrid &o) { o.plain(); });
    steps["sort.two"] = {on<OwnGrid>(own,
                                     [](OwnGrid &o) {
                                         o.sort({{kVisible}, {kName, SortOrder::Descending}});
                                     }),
                         plain};
    steps["sort.edited"] = {steps["sort.two"].run,
                            on<OwnGrid>(own, [](OwnGrid &o) {
                                o.plain();
                                QAbstractItemModel &model = *o.grid.table()->model();
                                model.setData(model.index(7, kName),
                                              QString(model.index(7, kName).data().toString() + u'x'));
                            })};
    steps["group.one"] = {on<OwnGrid>(own, [](OwnGrid &o) { o.group({kLineType}); }), plain};
    steps["group.four"] = {on<OwnGrid>(own,
                                       [](OwnGrid &o) {
                                           o.group({kVisible, kLineType, kPrint, kGroups});
                                       }),
                           plain};
    const auto grouped = on<OwnGrid>(own, [](OwnGrid &o) { o.plain(), o.group({kLineType}); });
    const auto closed =
        on<OwnGrid>(own, [](OwnGrid &o) { o.plain(), o.group({kLineType}), o.grid.setAllExpanded(false); });
    steps["collapse.band"] = {
        on<OwnGrid>(own, [](OwnGrid &o) { o.grid.toggleBandOf(0), finish(*o.grid.activeView()); }), grouped};
    steps["collapse.all"] = {
        on<OwnGrid>(own, [](OwnGrid &o) { o.grid.setAllExpanded(false), finish(*o.grid.activeView()); }),
        grouped};
    steps["expand.all"] = {
        on<OwnGrid>(own, [](OwnGrid &o) { o.grid.setAllExpanded(true), finish(*o.grid.activeView()); }),
        closed};
}

void addOtherSteps(Steps &steps, const std::shared_ptr<OwnGrid> &own)
{
    const auto plain = on<OwnGrid>(own, [](OwnGrid &o) { o.plain(); });
    steps["filter.first"] = {on<OwnGrid>(own, [](OwnGrid &o) { o.type(u"7"_qs); }), plain};
    steps["filter.second"] = {on<OwnGrid>(own, [](OwnGrid &o) { o.type(u"79"_qs); }),
                              on<OwnGrid>(own, [](OwnGrid &o) { o.plain(), o.type(u"7"_qs); })};
    steps["filter.clear"] = {on<OwnGrid>(own, [](OwnGrid &o) { o.type({}); }),
                             on<OwnGrid>(own, [](OwnGrid &o) { o.plain(), o.type(u"79"_qs); })};
    steps["find.miss"] = {on<OwnGrid>(own, [](OwnGrid &o) { keep(o.grid.find(kName, u"nincs ilyen"_qs)); }),
                          plain};
    steps["select.all"] = {
        on<OwnGrid>(own, [](OwnGrid &o) { o.grid.selectAll(), finish(*o.grid.activeView()); }), plain};
    steps["toggle"] = {on<OwnGrid>(own, [](OwnGrid &o) {
                           QAbstractItemModel &model = *o.grid.table()->model();
                           const QModelIndex at = model.index(3, kVisible);
                           model.setData(at,
                                         at.data(Qt::CheckStateRole).toInt() ? Qt::Unchecked : Qt::Checked,
                                         Qt::CheckStateRole);
                           finish(*o.grid.activeView());
                       }), plain};
    steps["page"] = {on<OwnGrid>(own, [](OwnGrid &o) {
                         QScrollBar &bar = *o.grid.table()->verticalScrollBar();
                         bar.setValue(bar.value() + bar.pageStep());
                         finish(*o.grid.activeView());
                     })};
    steps["view"] = {
        on<OwnGrid>(own, [](OwnGrid &o) { o.grid.setView(GridView::Card), finish(*o.grid.activeView()); }),
        plain};
}

} // namespace

Steps ownGrid(int rows)
{
    const auto own = std::make_shared<OwnGrid>(rows);
    own->show();
    own->grid.focusFilter();
    pause(200);
    for (int i = 0; i < 20; ++i) pause(50);             // the machine may be busy
    Steps steps;
    steps["open"] = {on<OwnGrid>(own, [](OwnGrid &o) { o.show(); }), on<OwnGrid>(own, [](OwnGrid &o) {
                         o.grid.setSource(nullptr), finish(*o.grid.activeView());
                     })};
    addSortSteps(steps, own);
    addOtherSteps(steps, own);
    return steps;
}

double openFirst(int rows)
{
    const GridRows data(rows);
    OwnGrid own(rows);
    const auto start = Clock::now();
    own.show();
    return nanosecondsSince(start) / 1e6;
}

double megabytesOf(int rows)
{
    const auto held = [] {
        const struct mallinfo2 info = mallinfo2();
        return double(info.uordblks + info.hblkhd) / 1e6;
    };
    OwnGrid own(0);
    finish(*own.grid.activeView());
    const double empty = held();
    own.rows.all = GridRows(rows).all;
    own.show();
    own.sort({{kVisible}, {kName, SortOrder::Descending}});
    own.group({kLineType});
    own.type(u"7"_qs);
    own.type({});
    return held() - empty;
}

namespace {

struct Widget {
    GridRows rows;
    QTableWidget table;
    explicit Widget(int count) : rows(count)
    {
        table.resize(kDialog);
        table.show();
        pause(kExposed);
    }
    void show()
    {
        table.setSortingEnabled(false);
        table.setColumnCount(GridRows::kColumns);
        table.setRowCount(rows.rowCount());
        for (int r = 0; r < rows.rowCount(); ++r)
            for (int c = 0; c < GridRows::kColumns; ++c) {
                auto *const item = new QTableWidgetItem(rows.text(r, c));
                if (c == kVisible)
                    item->setCheckState(rows.all[size_t(r)].visible ? Qt::Checked : Qt::Unchecked);
                table.setItem(r, c, item);
            }
        finish(table);
    }
    void filter(const QString &text)
    {
        for (int r = 0; r < table.rowCount(); ++r) {
            bool fits = text.isEmpty();
            for (int c = 0; c < GridRows::kColumns && !fits; ++c)
                fits = table.item(r, c)->text().contains(text, Qt::CaseInsensitive);
            table.setRowHidden(r, !fits);
        }
        finish(table);
    }
    void sortTwo()
    {
        table.sortItems(kName, Qt::DescendingOrder);
        table.sortItems(kVisible);
        finish(table);
    }
};

} // namespace

Steps tableWidget(int rows)
{
    const auto way = std::make_shared<Widget>(rows);
    way->show();
    Steps steps;
    steps["open"] = {on<Widget>(way, [](Widget &w) { w.show(); }),
                     on<Widget>(way, [](Widget &w) { w.table.setRowCount(0); })};
    steps["sort.two"] = {on<Widget>(way, [](Widget &w) { w.sortTwo(); }),
                         on<Widget>(way, [](Widget &w) { w.table.sortItems(kColor), finish(w.table); })};
    steps["filter.first"] = {on<Widget>(way, [](Widget &w) { w.filter(u"7"_qs); }),
                             on<Widget>(way, [](Widget &w) { w.filter({}); })};
    steps["filter.second"] = {on<Widget>(way, [](Widget &w) { w.filter(u"79"_qs); }),
                              on<Widget>(way, [](Widget &w) { w.filter(u"7"_qs); })};
    steps["filter.clear"] = {on<Widget>(way, [](Widget &w) { w.filter({}); }),
                             on<Widget>(way, [](Widget &w) { w.filter(u"79"_qs); })};
    steps["find.miss"] = {
        on<Widget>(way, [](Widget &w) { keep(w.table.findItems(u"nincs ilyen"_qs, Qt::MatchContains)); })};
    steps["select.all"] = {on<Widget>(way, [](Widget &w) { w.table.selectAll(), finish(w.table); }),
                           on<Widget>(way, [](Widget &w) { w.filter({}), w.table.clearSelection(); })};
    steps["toggle"] = {on<Widget>(way, [](Widget &w) {
        QTableWidgetItem &item = *w.table.item(3, kVisible);
        item.setCheckState(item.checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        finish(w.table);
    })};
    steps["page"] = {on<Widget>(way, [](Widget &w) {
        QScrollBar &bar = *w.table.verticalScrollBar();
        bar.setValue(bar.value() + bar.pageStep());
        finish(w.table);
    })};
    return steps;
}

namespace {

struct Stock {
    GridRows rows;
    QStandardItemModel model;
    QSortFilterProxyModel proxy;
    QTreeView view;
    explicit Stock(int count) : rows(count)
    {
        proxy.setSourceModel(&model);
        proxy.setFilterKeyColumn(-1);
        proxy.setRecursiveFilteringEnabled(true);
        proxy.setSortLocaleAware(true);
        view.setModel(&proxy);
        view.setUniformRowHeights(true);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.resize(kDialog);
        view.show();
        pause(kExposed);
    }
    QList<QStandardItem *> items(int row) const
    {
        QList<QStandardItem *> items;
        for (int c = 0; c < GridRows::kColumns; ++c) {
            items << new QStandardItem(rows.text(row, c));
            if (c == kVisible)
                items.back()->setCheckState(rows.all[size_t(row)].visible ? Qt::Checked : Qt::Unchecked);
        }
        return items;
    }
    void show()
    {
        model.clear();
        for (int r = 0; r < rows.rowCount(); ++r) model.appendRow(items(r));
        finish(view);
    }
    /// Below an item for each value, as far as there are levels.
    void group(std::initializer_list<int> columns)
    {
        model.clear();
        QHash<QString, QStandardItem *> groups;
        for (int r = 0; r < rows.rowCount(); ++r) {
            QStandardItem *parent = model.invisibleRootItem();
            QString path;
            for (int c : columns) {
                path += u'\n' + rows.text(r, c);
                QStandardItem *&group = groups[path];
                if (!group) parent->appendRow(group = new QStandardItem(rows.text(r, c)));
                parent = group;
            }
            parent->appendRow(items(r));
        }
        view.expandAll();
        finish(view);
    }
    void sortTwo()
    {
        proxy.sort(kName, Qt::DescendingOrder);
        proxy.sort(kVisible, Qt::AscendingOrder);
        finish(view);
    }
    void filter(const QString &text)
    {
        proxy.setFilterFixedString(text);
        finish(view);
    }
};

void addGroupSteps(Steps &steps, const std::shared_ptr<Stock> &way)
{
    const auto grouped = on<Stock>(way, [](Stock &s) { s.filter({}), s.group({kLineType}); });
    steps["group.one"] = {on<Stock>(way, [](Stock &s) { s.group({kLineType}); })};
    steps["group.four"] = {on<Stock>(way, [](Stock &s) { s.group({kVisible, kLineType, kPrint, kGroups}); })};
    steps["collapse.band"] = {
        on<Stock>(way, [](Stock &s) { s.view.collapse(s.proxy.index(0, 0)), finish(s.view); }), grouped};
    steps["collapse.all"] = {on<Stock>(way, [](Stock &s) { s.view.collapseAll(), finish(s.view); }), grouped};
    steps["expand.all"] = {on<Stock>(way, [](Stock &s) { s.view.expandAll(), finish(s.view); }),
                           on<Stock>(way, [](Stock &s) { s.view.collapseAll(), finish(s.view); })};
}

} // namespace

Steps itemModelAndProxy(int rows)
{
    const auto way = std::make_shared<Stock>(rows);
    way->show();
    Steps steps;
    const auto flat = on<Stock>(way, [](Stock &s) {
        s.filter({});
        s.view.clearSelection();
        s.proxy.sort(kColor);
        if (s.model.rowCount() != s.rows.rowCount()) s.show();
        finish(s.view);
    });
    steps["open"] = {on<Stock>(way, [](Stock &s) { s.show(); }),
                     on<Stock>(way, [](Stock &s) { s.proxy.sort(-1), s.model.clear(); })};
    steps["sort.two"] = {on<Stock>(way, [](Stock &s) { s.sortTwo(); }), flat};
    steps["filter.first"] = {on<Stock>(way, [](Stock &s) { s.filter(u"7"_qs); }), flat};
    steps["filter.second"] = {on<Stock>(way, [](Stock &s) { s.filter(u"79"_qs); }),
                              on<Stock>(way, [](Stock &s) { s.filter(u"7"_qs); })};
    steps["filter.clear"] = {on<Stock>(way, [](Stock &s) { s.filter({}); }),
                             on<Stock>(way, [](Stock &s) { s.filter(u"79"_qs); })};
    steps["find.miss"] = {
        on<Stock>(way,
                  [](Stock &s) { keep(s.model.findItems(u"nincs ilyen"_qs, Qt::MatchContains, kName)); }),
        flat};
    steps["select.all"] = {on<Stock>(way, [](Stock &s) { s.view.selectAll(), finish(s.view); }), flat};
    steps["toggle"] = {on<Stock>(way, [](Stock &s) {
                           QStandardItem &item = *s.model.item(3, kVisible);
                           item.setCheckState(item.checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
                           finish(s.view);
                       }), flat};
    steps["page"] = {on<Stock>(way, [](Stock &s) {
                         QScrollBar &bar = *s.view.verticalScrollBar();
                         bar.setValue(bar.value() + bar.pageStep());
                         finish(s.view);
                     }), flat};
    addGroupSteps(steps, way);
    return steps;
}

} // namespace benchmarks
