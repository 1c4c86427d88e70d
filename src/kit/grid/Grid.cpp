#include "kit/grid/Grid.h"

#include "kit/grid/FilterLine.h"
#include "kit/grid/GridCards.h"
#include "kit/grid/GridHeader.h"
#include "kit/grid/GridInput.h"
#include "kit/grid/GridModel.h"
#include "kit/grid/GridSelection.h"
#include "kit/grid/GridTable.h"
#include "kit/grid/GroupBox.h"
#include "facade/services/InterfaceLocale.h"

#include <QAbstractItemDelegate>
#include <QApplication>
#include <QDrag>
#include <QLineEdit>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTimerEvent>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

Grid::Grid(QWidget *parent)
    : QWidget(parent), m_model(new GridModel(this)), m_selection(new GridSelection(*m_model, this)),
      m_input(new GridInput(*m_model, this)), m_filter(new FilterLine(this)), m_box(new GroupBox(this)),
      m_table(new GridTable(*m_model, this)), m_header(m_table->header())
{
    buildLayout();
    attach(*m_table);
    m_input->watch(*m_header);
    connectViews();
    connectTools();
    m_box->showLevels({}, columns());
    m_filter->retranslate(interfaceLocale());
}

/// An editor that is open closes with its view, when there is no grid any more that could be told.
Grid::~Grid()
{
    for (QAbstractItemView *const view : findChildren<QAbstractItemView *>())
        if (view->itemDelegate()) disconnect(view->itemDelegate(), nullptr, this, nullptr);
}

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

/// Both views share selection and current cell.
void Grid::attach(LineView &view)
{
    QItemSelectionModel *const own = view.selectionModel();
    view.setSelectionModel(m_selection);
    if (own != m_selection) delete own;
    view.setCalls({[this] { dragOut(); }, [this](const QString &letter) { seek(letter); }});
    m_input->watch(view);
    connect(view.itemDelegate(), &QAbstractItemDelegate::closeEditor, this, &Grid::placePending);
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
        goToFirst();
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
    for (LineView *view : views()) view->dropEditor();
    m_source = source;
    m_current = -1;
    m_pending.clear();
    m_model->setWritable(m_allowEdit);
    m_model->setSource(source);
    m_selection->setRows({});
    m_currentAway.reset();
    const QSignalBlocker noFilter(m_filter);
    m_filter->clear();
    resetColumns();
    columnsMoved();
    m_header->setSortKeys({});
    m_box->showLevels({}, columns());
    updateCounts();
    if (source) m_idle.start(0, this);
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

void Grid::picturesChanged()
{
    m_model->dropPictures();
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
QString Grid::shownText(int row, int column) const { return m_model->cellText(row, column); }
QAbstractItemView *Grid::table() const { return m_table; }
int Grid::columnWidth(int column) const { return m_header->widthOf(column); }

void Grid::setCardCaption(const QString &caption, int numberColumn, int nameColumn)
{
    m_model->setCard(caption, numberColumn, nameColumn);
}

void Grid::setBandCaption(const QString &caption)
{
    m_model->setBandCaption(caption);
    for (LineView *view : views()) view->viewport()->update();
}

void Grid::setPictureSize(QSize size)
{
    m_pictureSize = size;
    for (LineView *view : views()) view->setPictureSize(size);
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
