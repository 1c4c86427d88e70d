#include "StepTools.h"

#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace benchmarks {
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
    steps["sort.edited"] = {steps["sort.two"].run, on<Widget>(way, [](Widget &w) {
                                w.table.sortItems(kColor), finish(w.table);
                                QTableWidgetItem &item = *w.table.item(7, kName);
                                item.setText(item.text() + u'x');
                            })};
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
    QWidget window;
    QTreeView view{&window};
    QListView list{&window};                    ///< what the toolkit has for cards: one text each
    explicit Stock(int count) : rows(count)
    {
        proxy.setSourceModel(&model);
        proxy.setFilterKeyColumn(-1);
        proxy.setRecursiveFilteringEnabled(true);
        proxy.setSortLocaleAware(true);
        view.setModel(&proxy);
        view.setUniformRowHeights(true);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        list.setModel(&proxy);
        list.setModelColumn(kName);
        list.setSelectionModel(view.selectionModel());
        list.setFlow(QListView::LeftToRight);
        list.setWrapping(true);
        list.setUniformItemSizes(true);
        list.hide();
        auto *const both = new QVBoxLayout(&window);
        both->addWidget(&view);
        both->addWidget(&list);
        window.resize(kDialog);
        window.show();
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
        model.setColumnCount(GridRows::kColumns); // of the rows below the groups, which show them all
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
    void showTable(bool on)
    {
        view.setVisible(on);
        list.setVisible(!on);
        finish(on ? static_cast<QAbstractItemView &>(view) : list);
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

void addLookingSteps(Steps &steps, const std::shared_ptr<Stock> &way, const std::function<void()> &flat)
{
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
    steps["sort.edited"] = {steps["sort.two"].run, [way, flat] {
                                flat();
                                QStandardItem &item = *way->model.item(7, kName);
                                item.setText(item.text() + u'x');
                            }};
    steps["view"] = {on<Stock>(way, [](Stock &s) { s.showTable(false); }), [way, flat] {
                         way->showTable(true);
                         flat();
                     }};
    steps["filter.first"] = {on<Stock>(way, [](Stock &s) { s.filter(u"7"_qs); }), flat};
    steps["filter.second"] = {on<Stock>(way, [](Stock &s) { s.filter(u"79"_qs); }),
                              on<Stock>(way, [](Stock &s) { s.filter(u"7"_qs); })};
    steps["filter.clear"] = {on<Stock>(way, [](Stock &s) { s.filter({}); }),
                             on<Stock>(way, [](Stock &s) { s.filter(u"79"_qs); })};
    addLookingSteps(steps, way, flat);
    addGroupSteps(steps, way);
    return steps;
}

} // namespace benchmarks
