#include "kit/grid/Grid.h"

#include "kit/forms/Twips.h"
#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridModel.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kRowsMeasured = 200; ///< rows that a column's first width is taken from

/// Ranges of neighbouring rows, so that a large selection stays few ranges.
QItemSelection rangesOf(std::span<const int> rows, const QAbstractItemModel &model)
{
    QItemSelection all;
    const int last = model.columnCount() - 1;
    for (size_t i = 0; i < rows.size();) {
        size_t j = i;
        while (j + 1 < rows.size() && rows[j + 1] == rows[j] + 1) ++j;
        all.append(QItemSelectionRange(model.index(rows[i], 0), model.index(rows[j], last)));
        i = j + 1;
    }
    return all;
}

} // namespace

Grid::Grid(QWidget *parent) : QWidget(parent), m_model(new GridModel(this)), m_table(new QTreeView(this))
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_table);
    setFocusProxy(m_table);

    m_table->setModel(m_model);
    m_table->setItemDelegate(new GridDelegate(m_table));
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->header()->setStretchLastSection(false);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex &now) {
        if (!m_refilling) emit currentRowMoved(m_model->sourceRow(now));
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_refilling) emit selectionMoved();
    });
    connect(m_table, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &i) { emit rowActivated(m_model->sourceRow(i)); });
}

void Grid::setSource(GridSource *source)
{
    m_source = source;
    m_refilling = true;
    m_model->setWritable(m_allowEdit ? source : nullptr);
    m_model->setSource(source);
    m_refilling = false;
    if (source) fitColumns();
}

/// First widths: the column's own, or as wide as its caption and its first rows.
void Grid::fitColumns()
{
    const QFontMetrics letters(m_table->font());
    const int room = letters.horizontalAdvance(QStringLiteral("mm"));
    for (int c = 0; c < m_model->columnCount(); ++c) {
        const GridColumn &column = *m_model->column(c);
        int width = pixelsOf(column.width, *this);
        if (column.width == 0) {
            width = m_table->header()->sectionSizeHint(c);
            for (int r = 0; r < std::min(m_source->rowCount(), kRowsMeasured); ++r)
                width = std::max(width, letters.horizontalAdvance(m_source->text(r, c)) + room);
        }
        m_table->header()->resizeSection(c, width);
    }
}

void Grid::refill(const std::function<void()> &change)
{
    const int place = currentRow();
    const auto current = place < 0 ? std::nullopt : std::optional(m_source->rowId(place));
    std::vector<qint64> selected;
    for (int r : selectedRows()) selected.push_back(m_source->rowId(r));
    const int scrolled = m_table->verticalScrollBar()->value();

    m_refilling = true;
    change();
    m_model->refill();
    restoreRows(selected, current, place);
    m_table->verticalScrollBar()->setValue(scrolled);
    m_refilling = false;
}

void Grid::restoreRows(std::span<const qint64> selected, std::optional<qint64> current, int place)
{
    QHash<qint64, int> rowOf;
    for (int r = 0, n = m_source->rowCount(); r < n; ++r) rowOf.insert(m_source->rowId(r), r);
    std::vector<int> rows;
    for (qint64 id : selected)
        if (const auto found = rowOf.constFind(id); found != rowOf.constEnd()) rows.push_back(*found);
    std::ranges::sort(rows);
    int now = current ? rowOf.value(*current, std::min(place, m_source->rowCount() - 1)) : -1;
    if (rows.empty() && !selected.empty() && now >= 0) rows.push_back(now);

    QItemSelectionModel &selection = *m_table->selectionModel();
    if (now >= 0) selection.setCurrentIndex(m_model->indexOf(now), QItemSelectionModel::NoUpdate);
    selection.select(rangesOf(rows, *m_model), QItemSelectionModel::ClearAndSelect);
}

void Grid::rowEdited(int row) { m_model->rowEdited(row); }
void Grid::captionsChanged() { m_model->captionsChanged(); }
int Grid::currentRow() const { return m_model->sourceRow(m_table->currentIndex()); }

void Grid::setCurrentRow(int row)
{
    const QModelIndex index = m_model->indexOf(row);
    if (!index.isValid()) return;
    m_table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_table->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

std::vector<int> Grid::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : m_table->selectionModel()->selection()) // selectedRows() of Qt is slow
        for (int r = range.top(); r <= range.bottom(); ++r) rows.push_back(r);
    std::ranges::sort(rows);
    rows.erase(std::ranges::unique(rows).begin(), rows.end());
    return rows;
}

int Grid::selectedCount() const { return int(selectedRows().size()); }

void Grid::selectRows(std::span<const int> rows)
{
    m_table->selectionModel()->select(rangesOf(rows, *m_model), QItemSelectionModel::ClearAndSelect);
}

void Grid::setMultiSelection(bool on)
{
    m_table->setSelectionMode(on ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
}

void Grid::setAllowEdit(bool on)
{
    m_allowEdit = on;
    m_model->setWritable(on ? m_source : nullptr);
    m_table->setEditTriggers(on ? QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                                : QAbstractItemView::NoEditTriggers);
}

void Grid::setTooltips(bool on) { m_model->tooltips = on; }
GridStyles &Grid::formatStyles() { return m_model->formatStyles(); }
int Grid::rowWithId(qint64 id) const { return m_model->rowWithId(id); }

} // namespace QV_DOC_CONTROLS
