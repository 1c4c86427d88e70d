#include "dialogs/select/GridPage.h"

#include "kit/forms/Twips.h"

#include <QHBoxLayout>
#include <QResizeEvent>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kPaneTwips = 2400;        ///< first width of the group list
constexpr int kEdgeTwips = 500;         ///< the splitter stays this far from both edges

} // namespace

GridPage::GridPage(ErrorRelay &relay, QWidget *parent)
    : QWidget(parent), imgSplitter(new QSplitter(Qt::Horizontal, this)), gridGroups(new Grid(imgSplitter)),
      gridItems(new Grid(imgSplitter)), m_relay(relay)
{
    imgSplitter->setObjectName(QStringLiteral("imgSplitter"));
    gridGroups->setObjectName(QStringLiteral("gridGroups"));
    gridItems->setObjectName(QStringLiteral("gridItems"));
    imgSplitter->setOpaqueResize(false);        // laid out when the drag ends
    imgSplitter->setChildrenCollapsible(false);
    imgSplitter->setStretchFactor(0, 0);        // the pane keeps its width, the grid fills the rest
    imgSplitter->setStretchFactor(1, 1);
    for (Grid *g : {gridGroups, gridItems}) g->setMinimumWidth(pixelsOf(kEdgeTwips, *this));
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(imgSplitter);
    setFocusProxy(gridItems);
    retranslate();
}

GridPage::~GridPage() { TearDown(); }

void GridPage::TearDown()
{
    if (!m_manager) return;
    m_manager->TearDown();
    m_manager.reset();
}

void GridPage::retranslate()
{
    gridGroups->setAccessibleName(txt(Text{20155, u"Rétegcsoportok"}));
    gridItems->setAccessibleName(txt(Text{3283, u"Rétegek"}));
}

void GridPage::arrange(const ResourceKind &kind)
{
    setPaneWidth(0);
    gridGroups->setVisible(kind.groupPane);
    if (kind.groupPane) setPaneWidth(kPaneTwips);
}

void GridPage::setPaneWidth(int twips)
{
    m_paneTwips = twips;
    const int pane = pixelsOf(twips, *this);
    imgSplitter->setSizes({pane, std::max(width() - pane, 1)});
}

void GridPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().isValid()) return;
    setPaneWidth(m_paneTwips);                  // the first real size
}

} // namespace QV_DOC_CONTROLS
