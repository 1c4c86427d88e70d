#include "kit/grid/Grid.h"

#include "kit/grid/FilterLine.h"
#include "kit/grid/GridCards.h"
#include "kit/grid/GridDelegate.h"
#include "kit/grid/GridHeader.h"
#include "kit/grid/GridInput.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/GridSelection.h"
#include "kit/grid/GridTable.h"
#include "kit/grid/GroupBox.h"
#include "facade/services/InterfaceLocale.h"

#include <QApplication>
#include <QDrag>
#include <QLineEdit>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>
#include <QTimerEvent>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

Grid::Grid(QWidget *parent)
    : QWidget(parent), m_model(new GridModel(this)), m_selection(new GridSelection(*m_model, this)),
      m_delegate(new GridDelegate(*m_model, this)), m_input(new GridInput(*m_model, *m_delegate, this)),
      m_filter(new FilterLine(this)), m_box(new GroupBox(this)),
      m_table(new GridTable(*m_model, *m_delegate, this)), m_header(m_table->header())
{
    buildLayout();
    attach(*m_table);
    m_input->watch(*m_header);
    connectViews();
    connectTools();
    m_box->showLevels({}, columns());
    m_filter->retranslate(interfaceLocale());
}

Grid::~Grid() = default;

void Grid::buildLayout()
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_filter);
    column->addWidget(m_box);
    column->addWidget(m_table, 1);
    setFocusProxy(m_table);
    setTabOrder(m_filter->edit(), m_table);
    auto *const filterKey =
        new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(filterKey, &QShortcut::activated, this, &Grid::focusFilter);
}

/// Both views share selection, current cell and delegate.
void Grid::attach(LineView &view)
{
    QItemSelectionModel *const own = view.selectionModel();
    view.setSelectionModel(m_selection);
    if (own != m_selection) delete own;
    view.setCalls({[this] { dragOut(); }, [this](const QString &letter) { seek(letter); }});
    m_input->watch(view, [&view](int line) { view.setDropLine(line); });
    connect(&view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex &i) {
        const bool edits = m_editStart == EditStart::DoubleClick && i.flags() & Qt::ItemIsEditable;
        const int row = m_model->sourceRow(i);
        if (!edits && !m_input->wasOnCheckMark() && row >= 0) emit rowActivated(row);
    });
}

void Grid::connectViews()
{
    connect(m_selection, &QItemSelectionModel::currentChanged, this, &Grid::currentChanged);
    connect(m_selection, &QItemSelectionModel::selectionChanged, this, [this] {
        if (m_quiet) return;
        updateCounts();
        emit selectionMoved();
    });
    connect(m_model, &GridModel::rowChanged, this, &Grid::place);
    connect(m_delegate, &QAbstractItemDelegate::closeEditor, this, &Grid::placePending);
    connect(m_input, &GridInput::bandToggled, this, &Grid::toggleBand);
    connect(m_input, &GridInput::contextMenuAsked, this, &Grid::contextMenuAsked);
    connect(m_input, &GridInput::escaped, this, [this](bool &taken) {
        taken = !m_filter->text().isEmpty();
        if (taken) m_filter->clear();
    });
    connect(m_input, &GridInput::deleteAsked, this, [this] {
        const std::vector<int> rows = selectedRows();
        if (m_allowEdit && m_source && !rows.empty())
            m_source->removeRows(rows); // may end the dialog: nothing after it
    });
}

void Grid::connectTools()
{
    connect(m_filter, &FilterLine::changed, this, &Grid::applyFilter);
    connect(m_filter, &FilterLine::focused, this, [this] { m_idle.start(0, this); });
    connect(m_filter, &FilterLine::gridAsked, this, [this] {
        if (currentRow() < 0 && m_model->engine().shownCount() > 0)
            makeCurrent(m_model->engine().shownRows().front());
        activeView()->setFocus(Qt::TabFocusReason);
    });
    connect(m_box, &GroupBox::levelsAsked, this, [this](const std::vector<SortKey> &levels) {
        const bool focused = m_box->isAncestorOf(QApplication::focusWidget());
        setGroupLevels(levels);
        if (focused && levels.empty()) activeView()->setFocus(Qt::OtherFocusReason); // its chip is gone
    });
    connect(m_header, &GridHeader::sortAsked, this, &Grid::sortBy);
    connect(m_header, &GridHeader::dragged, this, [this](int, QPoint at) { m_box->markPlace(at); });
    connect(m_header, &GridHeader::dragEnded, this, [this] { m_box->markPlace({-1, -1}); });
    connect(m_header, &GridHeader::dropped, this, [this](int column, QPoint at) {
        if (m_box->holds(at)) m_box->insert(column, at);
    });
    connect(m_header, &GridHeader::columnMoved, this, &Grid::columnsMoved);
    connect(m_header, &QHeaderView::sectionResized, this, [this] {
        if (!m_quiet) emit columnsChanged();
    });
    connect(m_header, &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int column) { m_header->resizeSection(column, contentWidth(column)); });
}

void Grid::setSource(GridSource *source)
{
    QScopedValueRollback quiet(m_quiet, true);
    m_source = source;
    m_current = -1;
    m_pending.clear();
    m_model->setWritable(m_allowEdit);
    m_model->setSource(source);
    m_selection->setRows({});
    const QSignalBlocker noFilter(m_filter);
    m_filter->clear();
    resetColumns();
    columnsMoved();
    m_header->setSortKeys({});
    m_box->showLevels({}, columns());
    updateCounts();
    if (source) m_idle.start(0, this);
}

/// Runs a change after which the model has other lines, and puts selection and current cell back.
void Grid::relist(const std::function<void()> &change)
{
    QScopedValueRollback quiet(m_quiet, true);
    const std::vector<int> selected = m_selection->allRows();
    const int column = m_selection->currentIndex().column();
    change();
    m_selection->setRows(selected);
    showCurrent(column);
    updateCounts();
}

/// The current record's cell becomes the views' current one; in a collapsed band the band does.
void Grid::showCurrent(int column)
{
    QModelIndex at = m_model->indexOf(m_current, std::max(column, 0));
    if (!at.isValid() && m_current >= 0 && m_model->engine().isShown(m_current))
        if (const auto closed = m_model->engine().closedBandsOver(m_current); !closed.empty())
            at = m_model->index(m_model->engine().lineOfBand(closed.front()), std::max(column, 0));
    m_selection->setCurrentIndex(at, QItemSelectionModel::NoUpdate);
    if (at.isValid()) activeView()->scrollTo(at);
}

void Grid::refill(const std::function<void()> &change, Gone gone)
{
    if (!m_source) return change();
    std::vector<qint64> selected;
    for (int r : m_selection->allRows()) selected.push_back(m_source->rowId(r));
    const auto &shown = m_model->engine().shownRows();
    const int place = int(std::ranges::find(shown, m_current) - shown.begin());
    const auto current = m_current < 0 ? std::nullopt : std::optional(m_source->rowId(m_current));
    const int scrolled = activeView()->verticalScrollBar()->value(),
              column = m_selection->currentIndex().column();

    QScopedValueRollback quiet(m_quiet, true);
    m_pending.clear();
    m_model->refill(change);
    restoreRows(selected, current, gone == Gone::NextRow ? place : -1);
    showCurrent(column);
    activeView()->verticalScrollBar()->setValue(scrolled);
    updateCounts();
    m_idle.start(0, this);
}

void Grid::restoreRows(std::span<const qint64> selected, std::optional<qint64> current, int heirPlace)
{
    QHash<qint64, int> rowOf;
    rowOf.reserve(m_source->rowCount());
    for (int r = 0, n = m_source->rowCount(); r < n; ++r) rowOf.insert(m_source->rowId(r), r);
    std::vector<int> rows;
    for (qint64 id : selected)
        if (const auto found = rowOf.constFind(id); found != rowOf.constEnd()) rows.push_back(*found);
    const auto &shown = m_model->engine().shownRows();
    const int heir =
        shown.empty() || heirPlace < 0 ? -1 : shown[std::min(size_t(heirPlace), shown.size() - 1)];
    m_current = current ? rowOf.value(*current, heir) : -1;
    if (rows.empty() && !selected.empty() && m_current >= 0) rows.push_back(m_current);
    m_selection->setRows(rows);
}

void Grid::currentChanged(const QModelIndex &now)
{
    const int row = m_model->sourceRow(now);
    if (m_quiet || row == m_current || (row < 0 && now.isValid()))
        return; // on a band the record stays current
    m_current = row;
    emit currentRowMoved(row);
}

void Grid::toggleBand(int band)
{
    QScopedValueRollback quiet(m_quiet, true);
    const int line = m_model->engine().lineOfBand(band);
    const auto inside = m_model->engine().toggled(band);
    const int current = m_selection->currentIndex().row(),
              column = std::max(0, m_selection->currentIndex().column());
    const bool goes = m_model->engine().band(band).expanded && current >= inside.first
                      && current < inside.first + inside.count;
    if (goes) m_selection->setCurrentIndex(m_model->index(line, column), QItemSelectionModel::NoUpdate);
    m_model->toggle(band);
}

void Grid::rowEdited(int row)
{
    m_model->rowEdited(row);
    place(row);
}

/// An edited row goes to its place, but not from under an open editor.
void Grid::place(int row)
{
    m_pending.push_back(row);
    if (!isEditing()) placePending();
}

bool Grid::isEditing() const { return std::ranges::any_of(views(), &LineView::isEditing); }

void Grid::placePending()
{
    if (m_pending.empty() || isEditing()) return;
    const std::vector<int> rows = std::exchange(m_pending, {});
    const bool placed = rows.size() == 1 && m_model->placeRow(rows.front());
    if (!placed) relist([this] { m_model->rebuild(); });
    else if (rows.front() == m_current) activeView()->scrollTo(m_selection->currentIndex());
    updateCounts();
}

void Grid::updateCounts()
{
    const int hidden = m_selection->hiddenCount(), all = m_source ? m_source->rowCount() : 0;
    m_filter->setCounts(m_model->engine().shownCount(), all, hidden);
    if (std::exchange(m_hidden, hidden) == hidden || !m_source) return;
    QScopedValueRollback loud(m_quiet, false);
    emit selectionMoved();
}

void Grid::captionsChanged()
{
    relist([this] { m_model->captionsChanged(); });
    m_filter->retranslate(interfaceLocale());
    m_box->showLevels(groupLevels(), columns());
    columnsMoved();
    if (!filterText().isEmpty()) applyFilter();
    m_idle.start(0, this);
}

int Grid::currentRow() const
{
    return m_current >= 0 && m_model->engine().isShown(m_current) ? m_current : -1;
}

void Grid::setCurrentRow(int row)
{
    if (!m_source || row < 0 || row >= m_source->rowCount()) return;
    if (!m_model->engine().isShown(row)) m_filter->clear();
    makeCurrent(row);
}

void Grid::makeCurrent(int row)
{
    for (int band : m_model->engine().closedBandsOver(row)) toggleBand(band);
    const int column = std::max(0, m_selection->currentIndex().column());
    const QModelIndex at = m_model->indexOf(row, column);
    m_selection->setCurrentIndex(at, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (isVisible()) activeView()->scrollTo(at);
    else activeView()->scrollTo(at, QAbstractItemView::PositionAtCenter);
}

std::vector<int> Grid::selectedRows() const { return m_selection->shownRows(); }
int Grid::selectedCount() const { return m_selection->shownCount(); }
bool Grid::hasSelection() const { return m_selection->isAnyShown(); }
void Grid::selectRows(std::span<const int> rows)
{
    m_selection->setRows(rows);
    updateCounts();
}
void Grid::selectAll()
{
    if (m_model->rowCount() > 0) activeView()->selectAll();
}

void Grid::setTitle(const QString &name)
{
    setAccessibleName(name);
    for (LineView *view : views()) view->setAccessibleName(name);
}

void Grid::setListOnly(bool on)
{
    m_filter->setVisible(!on);
    m_box->setVisible(!on);
    m_header->setStretchLastSection(on);
}

void Grid::setMultiSelection(bool on)
{
    m_multi = on;
    arm();
}

void Grid::setAllowEdit(bool on)
{
    m_allowEdit = on;
    m_model->setWritable(on);
    arm();
}

void Grid::setEditStart(EditStart how)
{
    m_editStart = how;
    arm();
}

void Grid::stylesChanged()
{
    m_model->forgetStyles();
    activeView()->viewport()->update();
}

void Grid::setDragOut(bool on)
{
    m_dragsOut = on;
    arm();
}

std::vector<LineView *> Grid::views() const
{
    std::vector<LineView *> all{m_table};
    if (m_cards) all.push_back(m_cards);
    return all;
}

/// What both views are told alike.
void Grid::arm()
{
    QAbstractItemView::EditTriggers starts = QAbstractItemView::EditKeyPressed;
    if (m_editStart == EditStart::DoubleClick) starts |= QAbstractItemView::DoubleClicked;
    if (m_editStart == EditStart::SecondClick) starts |= QAbstractItemView::SelectedClicked;
    for (LineView *view : views()) {
        view->setSelectionMode(m_multi ? QAbstractItemView::ExtendedSelection
                                       : QAbstractItemView::SingleSelection);
        view->setEditTriggers(m_allowEdit ? starts : QAbstractItemView::NoEditTriggers);
        view->setDragEnabled(m_dragsOut);
    }
}

void Grid::setTooltips(bool on) { m_model->tooltips = on; }
GridStyles &Grid::formatStyles() { return m_model->formatStyles(); }
int Grid::rowWithId(qint64 id) const { return m_model->rowWithId(id); }
QAbstractItemView *Grid::table() const { return m_table; }
int Grid::columnWidth(int column) const { return m_header->widthOf(column); }

void Grid::setCardCaption(const QString &caption, int numberColumn, int nameColumn)
{
    m_model->setCard(caption, numberColumn, nameColumn);
}

void Grid::setPictureSize(QSize size)
{
    m_delegate->setPictureSize(size);
    for (LineView *view : views()) view->doItemsLayout();
}

void Grid::dragOut()
{
    QMimeData *const rows = m_source ? m_source->dragData(selectedRows()) : nullptr;
    if (!rows) return;
    auto *const drag = new QDrag(activeView()); // Qt's after exec()
    drag->setMimeData(rows);
    drag->exec(Qt::CopyAction | Qt::MoveAction, m_source->dragAction());
}

void Grid::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_idle.timerId()) prepareNext();
    else QWidget::timerEvent(event);
}

/// One short step: ranks of the texts that the user can sort by, then the filter's texts once its line is in
/// use.
void Grid::prepareNext()
{
    constexpr int kRowsPerStep = 1024;
    for (int c : shownColumns()) {
        const CellKind kind = columns()[size_t(c)].kind;
        const bool texts = kind == CellKind::Text || kind == CellKind::List;
        if (texts && !m_model->engine().prepare(c)) return;
    }
    if (m_filter->edit()->hasFocus() && !m_model->prepareFilter(kRowsPerStep)) return;
    m_idle.stop();
}

} // namespace QV_DOC_CONTROLS
