#include "dialogs/viewtools/frmShowfields.h"

#include "dialogs/viewtools/ColumnEntries.h"
#include "facade/services/Text.h"
#include "kit/forms/AccessKeys.h"
#include "kit/tools/Icons.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

namespace QV_DOC_CONTROLS {
namespace {

QListWidgetItem *newEntry(const AbstractGrid &grid, int column)
{
    auto *const entry = new QListWidgetItem(columnEntry(grid, column));
    entry->setData(Qt::UserRole, entryData(column));
    return entry;
}

int columnAt(const QListWidget &list, int row) { return columnOf(list.item(row)->data(Qt::UserRole)); }

} // namespace

frmShowfields::frmShowfields(QWidget *owner)
    : ModalForm("frmShowfields", owner), lstAvail(makeList("lstAvail")),
      lstVisible(makeList("lstVisible")), cmdAdd(makeButton("cmdAdd", "moveRight")),
      cmdRemove(makeButton("cmdRemove", "moveLeft")), cmdUp(makeButton("cmdUp", "moveUp")),
      cmdDown(makeButton("cmdDown", "moveDown")), lblCaption(new QLabel(this)),
      m_availTitle(new QLabel(this)), m_visibleTitle(new QLabel(this))
{
    lblCaption->setObjectName(QStringLiteral("lblCaption"));
    lblCaption->setWordWrap(true);
    m_availTitle->setBuddy(lstAvail);
    m_visibleTitle->setBuddy(lstVisible);
    lstVisible->setDragDropMode(QAbstractItemView::InternalMove);
    arrange();
    connectControls();
}

QListWidget *frmShowfields::makeList(const char *name)
{
    auto *const list = new QListWidget(this);
    list->setObjectName(QLatin1String(name));
    return list;
}

QPushButton *frmShowfields::makeButton(const char *name, const char *icon)
{
    auto *const button = new QPushButton(toolIcon(icon), {}, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false); // Enter is OK's
    return button;
}

void frmShowfields::arrange()
{
    const auto columnOfTwo = [](QWidget *above, QWidget *below) {
        auto *const column = new QVBoxLayout;
        column->addStretch(1);
        column->addWidget(above);
        column->addWidget(below);
        column->addStretch(1);
        return column;
    };
    auto *const cells = new QGridLayout;
    cells->addWidget(m_availTitle, 0, 0);
    cells->addWidget(lstAvail, 1, 0);
    cells->addLayout(columnOfTwo(cmdAdd, cmdRemove), 1, 1);
    cells->addWidget(m_visibleTitle, 0, 2);
    cells->addWidget(lstVisible, 1, 2);
    cells->addLayout(columnOfTwo(cmdUp, cmdDown), 1, 3);
    cells->setColumnStretch(0, 1);
    cells->setColumnStretch(2, 1);
    auto *const column = new QVBoxLayout(this);
    column->addWidget(lblCaption);
    column->addLayout(cells, 1);
    column->addWidget(buttons());
    const std::initializer_list<QWidget *> order = {lstAvail, cmdAdd,  cmdRemove, lstVisible,
                                                    cmdUp,    cmdDown, buttons()};
    for (auto w = order.begin() + 1; w != order.end(); ++w) setTabOrder(*(w - 1), *w);
}

void frmShowfields::connectControls()
{
    connect(cmdAdd, &QPushButton::clicked, this, [this] { move(*lstAvail, *lstVisible); });
    connect(cmdRemove, &QPushButton::clicked, this, [this] { move(*lstVisible, *lstAvail); });
    connect(lstAvail, &QListWidget::itemDoubleClicked, cmdAdd, &QPushButton::click);
    connect(lstVisible, &QListWidget::itemDoubleClicked, cmdRemove, &QPushButton::click);
    connect(cmdUp, &QPushButton::clicked, this, [this] { step(-1); });
    connect(cmdDown, &QPushButton::clicked, this, [this] { step(1); });
    connectKey(Qt::ALT | Qt::Key_Up, *cmdUp, -1);
    connectKey(Qt::ALT | Qt::Key_Down, *cmdDown, 1);
    for (QListWidget *list : {lstAvail, lstVisible}) {
        connect(list, &QListWidget::currentRowChanged, this, &frmShowfields::followLists);
        connect(list->model(), &QAbstractItemModel::rowsInserted, this, &frmShowfields::followLists);
        connect(list->model(), &QAbstractItemModel::rowsRemoved, this, &frmShowfields::followLists);
        connect(list->model(), &QAbstractItemModel::rowsMoved, this, &frmShowfields::followLists);
    }
}

/// A shortcut of its own: a button's would take its time to look pressed, and keys repeat faster.
void frmShowfields::connectKey(const QKeySequence &keys, QPushButton &button, int by)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, by] { step(by); });
    button.setToolTip(keys.toString(QKeySequence::NativeText));
}

void frmShowfields::ShowFields(AbstractGrid &grid, bool &confirmed)
{
    const Trace trace("frmShowfields", "ShowFields");
    m_grid = &grid;
    fill();
    confirmed = run();
    if (confirmed) {
        std::vector<int> shown;
        for (int row = 0; row < lstVisible->count(); ++row) shown.push_back(columnAt(*lstVisible, row));
        grid.showColumns(shown);
    }
    TearDown();
}

void frmShowfields::fill()
{
    lstAvail->clear();
    lstVisible->clear();
    const std::vector<int> shown = m_grid->shownColumns();
    for (const int column : shown) lstVisible->addItem(newEntry(*m_grid, column));
    for (int column = 0; column < int(m_grid->columns().size()); ++column)
        if (std::ranges::find(shown, column) == shown.end()) lstAvail->addItem(newEntry(*m_grid, column));
    lstAvail->setCurrentRow(0);
    lstVisible->setCurrentRow(0);
    (lstAvail->count() ? lstAvail : lstVisible)->setFocus();
    followLists();
}

void frmShowfields::move(QListWidget &from, QListWidget &to)
{
    if (!from.currentItem()) return;
    to.addItem(from.takeItem(from.currentRow())); // the entry after it becomes current: the next one to move
    to.setCurrentRow(to.count() - 1);
}

void frmShowfields::step(int by)
{
    const int from = lstVisible->currentRow(), to = from + by;
    if (from < 0 || to < 0 || to >= lstVisible->count()) return;
    lstVisible->insertItem(to, lstVisible->takeItem(from));
    lstVisible->setCurrentRow(to);
}

void frmShowfields::followLists()
{
    const int row = lstVisible->currentRow();
    cmdAdd->setEnabled(lstAvail->currentRow() >= 0);
    cmdRemove->setEnabled(row >= 0);
    cmdUp->setEnabled(row > 0);
    cmdDown->setEnabled(row >= 0 && row + 1 < lstVisible->count());
}

void frmShowfields::readCaptions()
{
    const QString avail = txt(Text{2813, u"Nem látható oszlopok :"});
    const QString visible = txt(Text{2812, u"Megjelenítés ebben a sorrendben :"});
    const QStringList keyed =
        withAccessKeys({avail, visible, txt(Text{21201, u"Hozzáadás"}), txt(Text{21202, u"Eltávolítás"})});
    setWindowTitle(txt(Text{2811, u"Oszlopok megjelenítése"}));
    lblCaption->setText(txt(Text{21205, u"A táblázat látható oszlopai és sorrendjük:"}));
    m_availTitle->setText(keyed[0]);
    m_visibleTitle->setText(keyed[1]);
    cmdAdd->setText(keyed[2]);
    cmdRemove->setText(keyed[3]);
    cmdUp->setText(txt(Text{21203, u"Fel"}));
    cmdDown->setText(txt(Text{21204, u"Le"}));
    lstAvail->setAccessibleName(avail);
    lstVisible->setAccessibleName(visible);
    for (QListWidget *list : {lstAvail, lstVisible})
        for (int row = 0; m_grid && row < list->count(); ++row)
            list->item(row)->setText(columnEntry(*m_grid, columnAt(*list, row)));
}

} // namespace QV_DOC_CONTROLS
