#include "dialogs/select/GridPage.h"

#include "dialogs/viewtools/ViewTools.h"
#include "dialogs/viewtools/frmPreview.h"
#include "grids/frame/FindInColumn.h"
#include "kit/forms/Twips.h"
#include "kit/paper/copySheet.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QResizeEvent>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kPaneTwips = 2400;        ///< first width of the group list
constexpr int kEdgeTwips = 500;         ///< the splitter stays this far from both edges

constexpr std::pair<GridView, const char *> kViewTool[] = {{GridView::Table, "miView_Table"},
                                                           {GridView::Card, "miView_Card"},
                                                           {GridView::CardMin, "miView_CardMin"}};

/// A grid on paper: what it shows, under the captions that its table has for paper.
class PaperSheet final : public SheetSource {
public:
    PaperSheet(const Grid &grid, const GridManager &manager)
        : m_grid(grid), m_manager(manager), m_sheet(grid.sheet())
    {}
    std::vector<Column> sheetColumns() const override
    {
        std::vector<Column> columns = m_sheet->sheetColumns();
        const QStringList captions = m_manager.paper().captions; // asked again: the language may have changed
        const std::vector<int> shown = m_grid.shownColumns();
        for (size_t i = 0; !captions.isEmpty() && i < columns.size(); ++i)
            columns[i].caption = captions[shown[i]];
        return columns;
    }
    int sheetRows() const override { return m_sheet->sheetRows(); }
    Row sheetRow(int row) const override { return m_sheet->sheetRow(row); }

private:
    const Grid &m_grid;
    const GridManager &m_manager;
    std::unique_ptr<SheetSource> m_sheet;
};

ToolSet::Tables tablesOf(const KindTools &kind, GridPage::In dialog)
{
    if (dialog == GridPage::In::Setup) return {kind.setup, kind.common, kViewTools};
    return {kViewTools, kind.select, kind.common};
}

} // namespace

GridPage::GridPage(const ResourceKind &kind, In dialog, ErrorRelay &relay, QWidget *parent)
    : QWidget(parent), imgSplitter(new QSplitter(Qt::Horizontal, this)), gridGroups(new Grid(imgSplitter)),
      gridItems(new Grid(imgSplitter)), ab1(new ToolSet(tablesOf(kind.tools, dialog), relay, this)),
      m_kind(kind), m_relay(relay), m_view(*gridItems, this), m_row(new QHBoxLayout)
{
    imgSplitter->setObjectName(QStringLiteral("imgSplitter"));
    gridGroups->setObjectName(QStringLiteral("gridGroups"));
    gridGroups->setListOnly(true);
    gridItems->setObjectName(QStringLiteral("gridItems"));
    ab1->setObjectName(QStringLiteral("ab1"));
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    if (dialog == In::Setup) {
        QMenuBar *const bar = ab1->menuBar("mnuMain", {21802, u"Menüsor"});
        connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, bar,
                [bar] { bar->setActiveAction(bar->actions().value(0)); });
        column->addWidget(bar);
    }
    column->addWidget(ab1->toolBar("mnuBar", {21801, u"Eszköztár"}));
    column->addLayout(m_row, 1);
    m_row->addWidget(imgSplitter, 1);
    setFocusProxy(gridItems);
    arrange(dialog);
    connectTools();
    connectGrids();
    retranslate();
}

GridPage::~GridPage() { TearDown(); }

void GridPage::TearDown()
{
    if (!manager()) return;
    m_manager->TearDown();
    ab1->release(*m_manager);
}

GridManager *GridPage::manager() const
{
    return m_manager && m_manager->isOpen() ? m_manager.get() : nullptr;
}

void GridPage::addBeside(QWidget *side)
{
    m_row->addWidget(side);
    if (testAttribute(Qt::WA_Resized)) setPaneWidth(m_paneTwips);
}

void GridPage::connectTools()
{
    ab1->connectTools(m_view, kViewCommands);
    for (const auto &[view, tool] : kViewTool) ab1->on(tool, {[this, v = view] { gridItems->setView(v); }});
    ab1->on("miFind", {[this] { find(); }});
    ab1->on("miPrintPreview", {[this] { print(); }});
    ab1->on("miSelectAll",
            {[this] { gridItems->selectAll(); }, [this] { return gridItems->canSelectAll(); }});
    ab1->on("miUnselectAll",
            {[this] { gridItems->selectRows({}); }, [this] { return gridItems->hasSelection(); }});
    if (!ab1->tool("miShowGroups")) return;
    const auto isShown = [this] { return manager() && m_manager->bShowGroups(); };
    const auto isHidden = [this] { return manager() && !m_manager->bShowGroups(); };
    ab1->on("miShowGroups", {[this] { m_manager->setbShowGroups(true); }, isHidden});
    ab1->on("miHideGroups", {[this] { m_manager->setbShowGroups(false); }, isShown});
}

void GridPage::connectGrids()
{
    connect(gridItems, &Grid::contextMenuAsked, this, [this](int row, int column, QPoint where) {
        const char *const menu = row >= 0     ? m_kind.tools.rowMenu
                                 : column < 0 ? m_kind.tools.tableMenu
                                              : nullptr;
        popUp(menu ? menu : "bndPopUp_View", column, where);
    });
    connect(gridGroups, &Grid::contextMenuAsked, this, [this](int, int, QPoint where) {
        if (m_kind.tools.groupMenu) popUp(m_kind.tools.groupMenu, -1, where);
    });
    const auto *const copies = new QShortcut(QKeySequence::Copy, gridItems, nullptr, nullptr,
                                             Qt::WidgetWithChildrenShortcut);
    connect(copies, &QShortcut::activated, this, &GridPage::copy);
    showView(qint16(gridItems->view()));
}

/// Connected behind the manager, whose answers change with the grids.
void GridPage::follow()
{
    for (const Grid *grid : {gridItems, gridGroups}) {
        connect(grid, &Grid::selectionMoved, ab1, &ToolSet::refresh, Qt::UniqueConnection);
        connect(grid, &Grid::currentRowMoved, ab1, &ToolSet::refresh, Qt::UniqueConnection);
        connect(grid, &Grid::groupingChanged, ab1, &ToolSet::refresh, Qt::UniqueConnection);
    }
    ab1->refresh();
}

void GridPage::popUp(const char *band, int column, QPoint where)
{
    m_column = column;
    QMenu *const menu = ab1->popUp(band);
    menu->popup(where);
    connect(
        menu, &QMenu::aboutToHide, this,
        [this] {
            QMetaObject::invokeMethod(
                this, [this] { m_column = -1; }, Qt::QueuedConnection);
        },
        Qt::SingleShotConnection);
}

/// In the column under the mouse, or in the current cell's.
void GridPage::find()
{
    const QModelIndex current = gridItems->activeView()->currentIndex();
    const std::vector<int> shown = gridItems->shownColumns();
    const int column = m_column >= 0       ? m_column
                       : current.isValid() ? current.column()
                       : shown.empty()     ? -1
                                           : shown[0];
    if (manager()) findInColumn(*gridItems, column, m_relay);
}

void GridPage::print()
{
    if (!manager()) return;
    const PaperSheet sheet(*gridItems, *m_manager);
    frmPreview().showPages(sheet, [this] { return m_manager->paper().titles; }, this);
}

void GridPage::copy()
{
    QApplication::clipboard()->setMimeData(copySheet(*gridItems->sheet()).release());
}

void GridPage::showView(qint16 view)
{
    for (const auto &[style, tool] : kViewTool)
        if (qint16(style) == view) ab1->setChecked(tool, true);
}

void GridPage::retranslate()
{
    gridGroups->setTitle(txt(m_kind.groups));
    gridItems->setTitle(txt(m_kind.pageCaption).trimmed());
    ab1->retranslate();
}

/// In the setup dialog the border between group list and grid stays where it is.
void GridPage::arrange(In dialog)
{
    imgSplitter->setOpaqueResize(false);        // laid out when the drag ends
    imgSplitter->setChildrenCollapsible(false);
    imgSplitter->setStretchFactor(0, 0);        // the pane keeps its width, the grid fills the rest
    imgSplitter->setStretchFactor(1, 1);
    for (Grid *g : {gridGroups, gridItems}) g->setMinimumWidth(pixelsOf(kEdgeTwips, *this));
    if (dialog == In::Setup) {
        imgSplitter->setHandleWidth(0);
        imgSplitter->handle(1)->setEnabled(false);
    }
    setPaneWidth(0);
    gridGroups->setVisible(m_kind.hasGroups());
    if (m_kind.hasGroups()) setPaneWidth(kPaneTwips);
}

void GridPage::setPaneWidth(int twips)
{
    m_paneTwips = twips;
    const int pane = pixelsOf(twips, *this);
    int rest = width() - pane;
    for (int i = 1; i < m_row->count(); ++i) rest -= m_row->itemAt(i)->sizeHint().width() + m_row->spacing();
    imgSplitter->setSizes({pane, std::max(rest, 1)});
}

void GridPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().isValid()) return;
    setPaneWidth(m_paneTwips);                  // the first real size
}

} // namespace QV_DOC_CONTROLS
