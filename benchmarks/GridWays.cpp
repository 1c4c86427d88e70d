#include "StepTools.h"

#include "kit/grid/Grid.h"

#include <QLineEdit>

#include <malloc.h>

using namespace QV_DOC_CONTROLS;

namespace benchmarks {
namespace {

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

} // namespace benchmarks
