// What the symbol manager looks like and how it is worked with; what it does is in frmSupSid.cpp.
#include "controls/usSiInfo.h"
#include "dialogs/editors/GroupListModel.h"
#include "dialogs/editors/SymbolListModel.h"
#include "dialogs/editors/SymbolManagerTools.h"
#include "dialogs/editors/SymbolPictures.h"
#include "kit/forms/Buttons.h"
#include "kit/forms/HeaderColumns.h"
#include "kit/forms/SystemColor.h"
#include "kit/tools/ToolSet.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

const QString kApplication = QStringLiteral("ZolWOp");
constexpr char kGroupsWidth[] = "-Groups", kSymbolsWidth[] = "-Sids";
constexpr int kCells[] = {32, 48, 64, 96}; // pixels, room for a picture
constexpr int kGroupLetters = 28, kSymbolLetters = 128, kLines = 30;

} // namespace

void frmSupSid::build()
{
    lvGroups->setObjectName(QStringLiteral("lvGroups"));
    lvSids->setObjectName(QStringLiteral("lvSids"));
    usSiItem->setObjectName(QStringLiteral("usSiItem"));
    m_tools->setObjectName(QStringLiteral("tools"));
    m_hint->setObjectName(QStringLiteral("lblHint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    usSiItem->hide();
    usSiItem->setVisibleZoom(false);
    usSiItem->setBackColor(propertyColor(kWindowBackground));
    usSiItem->setSiColor(propertyColor(kWindowText));
    usSiItem->setZoom(1);
    buildLists();
    auto *const column = new QVBoxLayout(this);
    QToolBar *const bar = m_tools->toolBar("mnuBar", {22583, u"Eszközök"});
    for (const char *const menu : {"mnuGroups", "mnuSids"})
        static_cast<QToolButton *>(bar->widgetForAction(m_tools->tool(menu)))
            ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    column->addWidget(bar);
    column->addWidget(m_splitter, 1);
    column->addWidget(m_hint);
    column->addWidget(m_buttons);
}

void frmSupSid::buildLists()
{
    lvGroups->setModel(m_groups);
    lvGroups->setRootIsDecorated(false);
    lvGroups->setUniformRowHeights(true);
    lvGroups->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lvGroups->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lvGroups->setDragDropMode(QAbstractItemView::DropOnly);
    lvGroups->setDropIndicatorShown(true);
    lvSids->setModel(*m_symbols, SymbolListModel::kNameColumn);
    QHeaderView &header = *lvSids->report()->header();
    const int letter = fontMetrics().averageCharWidth();
    for (const auto &[column, letters] : {std::pair(0, 14), {1, 26}, {2, 10}, {3, 9}, {4, 22}, {5, 22}})
        header.resizeSection(column, letters * letter);
    m_splitter->addWidget(lvGroups);
    m_splitter->addWidget(lvSids);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setStretchFactor(1, 1);
}

void frmSupSid::connectParts()
{
    m_tools->connectTools<frmSupSid>(*this, kSymbolManagerCommands);
    connect(lvGroups->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &now) { m_relay.guard([&] { chooseGroup(now.row()); }); });
    connect(lvGroups->selectionModel(), &QItemSelectionModel::selectionChanged, m_tools, &ToolSet::refresh);
    connect(lvSids, &ItemList::selectionMoved, this, [this] {
        m_tools->refresh();
        showHint();
    });
    connect(lvSids, &ItemList::chosen, this, [this] {
        if (!m_edit)
            accept();
        else
            m_tools->tool("cmdSid_Edit")->trigger();
    });
    connect(lvSids, &ItemList::headerHovered, this, &frmSupSid::showHint);
    connect(lvSids, &ItemList::menuWanted, this, [this](QPoint where) { popUp("bndPopup_Sids", where); });
    for (QObject *list : std::initializer_list<QObject *>{lvGroups, lvGroups->viewport(), lvSids->widget(0),
                                                          lvSids->widget(1)})
        list->installEventFilter(this);
    m_symbols->setDragged([this](const std::vector<qint16> &ids) { return m_drag.data(ids); });
    m_groups->setDrops({[this](const QMimeData &mime) { return m_edit && m_drag.idsIn(mime); },
                        [this](const QMimeData &mime, qint16 group) {
                            m_relay.guard([&] { m_groupWork.moveRecords(*m_drag.idsIn(mime), group); });
                        }});
}

/// The menu key and the keys that work on what one of the lists shows.
bool frmSupSid::eventFilter(QObject *watched, QEvent *event)
{
    const bool isGroups = watched == lvGroups || watched == lvGroups->viewport();
    if (isGroups && event->type() == QEvent::ContextMenu) {
        popUp("bndPopup_Groups", static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    if (event->type() == QEvent::KeyPress)
        for (const ListKey &row : kSymbolManagerKeys)
            if (static_cast<QKeyEvent *>(event)->key() == row.key) {
                m_tools->refresh();
                m_tools->tool(isGroups ? row.forGroups : row.forSymbols)->trigger();
                return true;
            }
    return QDialog::eventFilter(watched, event);
}

void frmSupSid::popUp(const char *band, QPoint where)
{
    m_tools->refresh();
    m_tools->popUp(band)->popup(where);
}

void frmSupSid::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) m_pictures->outdate();
}

// --- views and sizes

void frmSupSid::changeView(ItemList::View view)
{
    lvSids->setView(view);
    showCell();
}

bool frmSupSid::hasCell(int step) const
{
    const int wanted = m_cells[size_t(lvSids->view())] + step;
    return wanted >= 0 && wanted < int(std::size(kCells));
}

void frmSupSid::changeCell(int step)
{
    if (hasCell(step)) m_cells[size_t(lvSids->view())] += step;
    showCell();
}

void frmSupSid::showCell()
{
    const int side = kCells[m_cells[size_t(lvSids->view())]];
    m_pictures->setSide(side);
    lvSids->setCell(side);
}

SizeKeys frmSupSid::sizeKeys() const { return {m_edit ? "-Width4Edit" : "-Width4Select", "-Height"}; }

/// Columns are kept for each mode, as the width of the form is.
QString frmSupSid::columnsKey() const
{
    return QStringLiteral("lvSids") + (m_edit ? QStringLiteral("EditMode") : QStringLiteral("SelectMode"));
}

void frmSupSid::restoreView()
{
    const QSize usual = sizeOfLetters(*this, kGroupLetters + kSymbolLetters, kLines);
    restoreSize(*this, objectName(), usual, sizeKeys());
    const int letter = fontMetrics().averageCharWidth();
    const int groups = storedWidth(*lvGroups, objectName(), kGroupsWidth, kGroupLetters * letter);
    const int symbols = storedWidth(*lvSids, objectName(), kSymbolsWidth, kSymbolLetters * letter);
    m_splitter->setSizes({groups, symbols});
    lvSids->makeRoomForCaptions();
    loadListViewColumns(*lvSids->report()->header(), columnsKey(), kApplication);
    showCell();
}

void frmSupSid::keepView()
{
    keepSizeOf(*this, objectName(), sizeKeys());
    if (m_byGroups) {
        keepWidthOf(*lvGroups, objectName(), kGroupsWidth);
        keepWidthOf(*lvSids, objectName(), kSymbolsWidth);
    }
    saveListViewColumns(*lvSids->report()->header(), columnsKey(), kApplication, int(lvSids->view()));
}

// --- words

void frmSupSid::showHint(int column)
{
    const auto current = currentRecord();
    QString hint = SymbolListModel::hintOf(column);
    if (hint.isEmpty() && current)
        hint = QStringLiteral(" %1 %2 ")
                   .arg(current->SidId)
                   .arg(current->FullName.isEmpty() ? current->ShortName : current->FullName);
    if (hint.isEmpty() && !m_edit) hint = txt(Text{20089, u" Válassz jelkulcsot! "});
    m_hint->setText(hint);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_edit || current);
}

void frmSupSid::ml_RuntimeSupport_LanguageChanged()
{
    setWindowTitle(m_edit ? txt(Text{22580, u"Jelkulcs szervező"}) : txt(Text{22581, u"Jelkulcs választó"}));
    retranslate(*m_buttons);
    m_tools->retranslate();
    m_tools->tool("cmdSid_Nr")->setToolTip(txt(Text{20058, u"Jelkulcs sorszámának módosítása"}));
    for (const BandCaption &row : kSymbolManagerBands)
        m_tools->popUp(row.band)->setAccessibleName(txt(row.caption));
    m_groups->retranslate();
    m_symbols->retranslate();
    lvGroups->setAccessibleName(txt(Text{20028, u"Jelkulcs csoportok"}));
    for (int i = 0; i < lvSids->count(); ++i)
        lvSids->widget(i)->setAccessibleName(txt(Text{20040, u"Jelkulcsok"}));
    showHint();
}

} // namespace QV_DOC_CONTROLS
