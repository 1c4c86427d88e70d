#include "dialogs/editors/ItemList.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace QV_DOC_CONTROLS {

namespace {

constexpr int kIconLetters = 12, kListLetters = 24; // room for a name under or beside its picture

bool isEnter(const QKeyEvent &key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

/// Items that fill the cells of a flow.
class CellDelegate final : public QStyledItemDelegate {
public:
    explicit CellDelegate(QListView *view) : QStyledItemDelegate(view), m_view(*view) {}
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return m_view.gridSize();
    }
private:
    const QListView &m_view;
};

} // namespace

/// The views without columns. All of them are flows of cells of one size, which a long list is fast with.
class ItemList::IconView final : public QListView {
public:
    explicit IconView(QWidget *parent) : QListView(parent)
    {
        setViewMode(QListView::ListMode);
        setWrapping(true);
        setResizeMode(QListView::Adjust);
        setUniformItemSizes(true);
        setWordWrap(false);
        setItemDelegate(new CellDelegate(this));
    }
    bool isUnder = false; ///< the name stands under its picture
protected:
    void initViewItemOption(QStyleOptionViewItem *option) const override
    {
        QListView::initViewItemOption(option);
        if (!isUnder) return;
        option->decorationPosition = QStyleOptionViewItem::Top;
        option->displayAlignment = option->decorationAlignment = Qt::AlignCenter;
    }
};

/// The table. What becomes current moves it up and down only: the pictures stand in its first column.
class ItemList::ReportView final : public QTreeView {
public:
    using QTreeView::QTreeView;
    void scrollTo(const QModelIndex &index, ScrollHint hint) override
    {
        const int across = horizontalScrollBar()->value();
        QTreeView::scrollTo(index, hint);
        horizontalScrollBar()->setValue(across);
    }
};

ItemList::ItemList(ErrorRelay &relay, QWidget *parent)
    : QStackedWidget(parent), m_relay(relay), m_report(new ReportView(this)), m_icons(new IconView(this))
{
    m_report->setRootIsDecorated(false);
    m_report->setUniformRowHeights(true);
    m_report->setAllColumnsShowFocus(true);
    m_report->setObjectName(QStringLiteral("report"));
    m_icons->setObjectName(QStringLiteral("icons"));
    QHeaderView &header = *m_report->header();
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.viewport()->setMouseTracking(true);
    header.viewport()->installEventFilter(this);
    connect(&header, &QHeaderView::sectionClicked, this, &ItemList::sortBy);
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(m_report), static_cast<QAbstractItemView *>(m_icons)}) {
        addWidget(view);
        connectView(*view);
    }
    setFocusProxy(m_report);
}

void ItemList::connectView(QAbstractItemView &view)
{
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setDragDropMode(QAbstractItemView::DragOnly);
    view.setDragEnabled(false);
    view.viewport()->installEventFilter(this);
    view.installEventFilter(this);
    connect(&view, &QAbstractItemView::activated, this, &ItemList::chosen);
}

void ItemList::setModel(ItemModel &model, int nameColumn)
{
    m_model = &model;
    m_nameColumn = nameColumn;
    m_report->setModel(&model);
    m_icons->setModel(&model);
    m_icons->setModelColumn(nameColumn);
    delete m_icons->selectionModel();
    m_icons->setSelectionModel(m_report->selectionModel());
    connect(m_report->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ItemList::selectionMoved);
    connect(m_report->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ItemList::selectionMoved);
    connect(&model, &ItemModel::picturesDrawn, this, [this] { shown()->viewport()->update(); });
    setView(m_view);
}

QAbstractItemView *ItemList::shown() const { return static_cast<QAbstractItemView *>(currentWidget()); }

void ItemList::setView(View view)
{
    const bool hadFocus = shown()->hasFocus();
    m_view = view;
    m_icons->isUnder = view == View::Icons;
    m_icons->setFlow(view == View::List ? QListView::TopToBottom : QListView::LeftToRight);
    m_model->setPictureColumn(view == View::Report ? 0 : m_nameColumn);
    setCurrentWidget(view == View::Report ? static_cast<QWidget *>(m_report) : m_icons);
    setFocusProxy(shown());
    placeIcons();
    if (hadFocus) shown()->setFocus();
    shown()->scrollTo(m_report->currentIndex());
}

void ItemList::setCell(int side)
{
    m_cell = side;
    placeIcons();
    shown()->scrollTo(m_report->currentIndex());
}

void ItemList::placeIcons()
{
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(m_report), static_cast<QAbstractItemView *>(m_icons)})
        view->setIconSize({m_cell, m_cell});
    const QFontMetrics letters(font());
    const int gap = letters.height() / 2;
    const int letter = letters.averageCharWidth();
    m_icons->setGridSize(
        m_icons->isUnder
            ? QSize(std::max(m_cell, kIconLetters * letter) + 2 * gap, m_cell + letters.height() + 2 * gap)
            : QSize(m_cell + kListLetters * letter + gap, std::max(m_cell, letters.height()) + gap / 2));
    m_report->doItemsLayout();
}

void ItemList::makeRoomForCaptions()
{
    QHeaderView &header = *m_report->header();
    for (int i = 0; i < header.count(); ++i)
        header.resizeSection(i, std::max(header.sectionSize(i), header.sectionSizeHint(i)));
}

void ItemList::setDragOut(bool on)
{
    m_report->setDragEnabled(on);
    m_icons->setDragEnabled(on);
}

// --- selection: rows are taken from its ranges, for it may be long

bool ItemList::hasSelection() const { return m_report->selectionModel()->hasSelection(); }

std::vector<int> ItemList::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : m_report->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    std::ranges::sort(rows);
    rows.erase(std::ranges::unique(rows).begin(), rows.end());
    return rows;
}

int ItemList::currentRow() const
{
    const QModelIndex current = m_report->currentIndex();
    return m_report->selectionModel()->isSelected(current) ? current.row() : -1;
}

void ItemList::setCurrentRow(int row)
{
    if (row < 0) return m_report->selectionModel()->clear();
    const QModelIndex index = m_model->index(row, m_nameColumn);
    m_report->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                           QItemSelectionModel::Rows);
    shown()->scrollTo(index);
}

void ItemList::select(const std::vector<qint16> &ids, qint16 current)
{
    std::vector<int> rows;
    for (const qint16 id : ids)
        if (const int row = m_model->rowOf(id); row >= 0) rows.push_back(row);
    std::ranges::sort(rows);
    QItemSelection selection;
    const int last = m_model->columnCount() - 1;
    for (size_t i = 0; i < rows.size();) {
        size_t end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1) ++end;
        selection.append({m_model->index(rows[i], 0), m_model->index(rows[end - 1], last)});
        i = end;
    }
    QItemSelectionModel &picked = *m_report->selectionModel();
    picked.select(selection, QItemSelectionModel::ClearAndSelect);
    if (const int row = m_model->rowOf(current); row >= 0)
        picked.setCurrentIndex(m_model->index(row, m_nameColumn), QItemSelectionModel::NoUpdate);
}

void ItemList::rearrange(const std::function<void()> &arrange)
{
    std::vector<qint16> ids;
    for (const int row : selectedRows()) ids.push_back(m_model->idAt(row));
    const int before = currentRow();
    const qint16 current = before < 0 ? qint16(-1) : m_model->idAt(before);
    const int scrolled = shown()->verticalScrollBar()->value();
    arrange();
    select(ids, current);
    shown()->doItemsLayout();
    shown()->verticalScrollBar()->setValue(scrolled);
    emit selectionMoved();
}

/// A click on a header; another one turns the order round.
void ItemList::sortBy(int column)
{
    const SortKey upward{column}, downward{column, SortOrder::Descending};
    const auto now = sortKeys();
    const SortKey key = !now.empty() && now.front() == upward ? downward : upward;
    setSortKeys({&key, 1});
}

void ItemList::setSortKeys(std::span<const SortKey> keys)
{
    m_relay.guard([&] { rearrange([&] { m_model->setSortKeys({keys.begin(), keys.end()}); }); });
    shown()->scrollTo(m_report->currentIndex());
}

bool ItemList::eventFilter(QObject *watched, QEvent *event)
{
    QHeaderView &header = *m_report->header();
    if (watched == header.viewport()) {
        if (event->type() == QEvent::Leave) emit headerHovered(-1);
        if (event->type() == QEvent::MouseMove)
            emit headerHovered(
                header.logicalIndexAt(static_cast<QMouseEvent *>(event)->position().toPoint()));
    } else if (event->type() == QEvent::KeyPress && isEnter(*static_cast<QKeyEvent *>(event))) {
        emit chosen();
        return true; // or the form's default button would be pressed, too
    } else if (event->type() == QEvent::ContextMenu) {
        const auto &menu = static_cast<QContextMenuEvent &>(*event);
        const QRect current = shown()->visualRect(m_report->currentIndex());
        const bool byKey = menu.reason() == QContextMenuEvent::Keyboard && current.isValid();
        emit menuWanted(byKey ? shown()->viewport()->mapToGlobal(current.bottomLeft()) : menu.globalPos());
        return true;
    }
    return QStackedWidget::eventFilter(watched, event);
}

void ItemList::changeEvent(QEvent *event)
{
    QStackedWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) placeIcons();
}

} // namespace QV_DOC_CONTROLS
