#include "dialogs/viewtools/LevelDialog.h"

#include "dialogs/viewtools/ColumnEntries.h"
#include "facade/services/Text.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace QV_DOC_CONTROLS {
namespace {

constexpr Text kNone{20021, u"(Nincs)"};

/// A frame whose access key leads to its list.
struct LevelFrame : QGroupBox {
    using QGroupBox::QGroupBox;
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::Shortcut) return QGroupBox::event(event);
        if (auto *const list = findChild<QComboBox *>()) list->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
};

} // namespace

LevelDialog::LevelDialog(const char *form, QWidget *owner)
    : ModalForm(form, owner), cmdClearAll(new QPushButton(this)), m_body(new QVBoxLayout)
{
    auto *const column = new QVBoxLayout(this);
    QWidget *before = nullptr;
    for (int level = 0; level < kMaxLevels; ++level) {
        column->addWidget(makeLevel(level));
        for (QWidget *w :
             {static_cast<QWidget *>(cboGroups[level]), static_cast<QWidget *>(optOrder[2 * level]),
              static_cast<QWidget *>(optOrder[2 * level + 1])}) {
            if (before) setTabOrder(before, w);
            before = w;
        }
    }
    cmdClearAll->setObjectName(QStringLiteral("cmdClearAll"));
    connect(cmdClearAll, &QPushButton::clicked, this, &LevelDialog::clearAll);
    buttons()->addButton(cmdClearAll, QDialogButtonBox::ResetRole);
    column->addLayout(m_body);
    column->addStretch(1);
    column->addWidget(buttons());
    setTabOrder(before, buttons());
    cboGroups[0]->setFocus();
}

QGroupBox *LevelDialog::makeLevel(int level)
{
    auto *const frame = m_frames[level] = new LevelFrame(this);
    auto *const list = cboGroups[level] = new QComboBox(frame);
    list->setObjectName(QStringLiteral("cboGroups%1").arg(level));
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    list->installEventFilter(this);
    connect(list, &QComboBox::currentIndexChanged, this, &LevelDialog::followLists);
    auto *const row = new QHBoxLayout(frame);
    row->addWidget(list, 1);
    for (const int n : {2 * level, 2 * level + 1}) {
        optOrder[n] = new QRadioButton(frame);
        optOrder[n]->setObjectName(QStringLiteral("optOrder%1").arg(n));
        row->addWidget(optOrder[n]);
    }
    optOrder[2 * level]->setChecked(true);
    return frame;
}

void LevelDialog::fill(const SortableRows &grid, std::span<const SortKey> keys)
{
    m_grid = &grid;
    for (QComboBox *list : cboGroups) {
        const QSignalBlocker quiet(list);
        list->clear();
        list->addItem(txt(kNone), 0);
        for (int c = 0; c < int(grid.columns().size()); ++c)
            list->addItem(columnEntry(grid, c), entryData(c));
    }
    const auto used = keys.first(std::min<size_t>(keys.size(), kMaxLevels));
    for (size_t level = 0; level < used.size(); ++level) {
        cboGroups[level]->setCurrentIndex(used[level].column + 1);
        optOrder[2 * level + (used[level].order == SortOrder::Descending)]->setChecked(true);
    }
    followLists();
}

std::vector<SortKey> LevelDialog::keys() const
{
    std::vector<SortKey> out;
    for (int level = 0; level < kMaxLevels; ++level) {
        const int column = columnOf(cboGroups[level]->currentData());
        if (column < 0) continue;
        out.push_back(
            {column, optOrder[2 * level]->isChecked() ? SortOrder::Ascending : SortOrder::Descending});
    }
    return out;
}

void LevelDialog::clearAll() { cboGroups[0]->setCurrentIndex(0); } // the levels below follow

/// Levels below one without a column are closed and lose theirs; a level without a column has no order to
/// choose.
void LevelDialog::followLists()
{
    bool open = true;
    for (int level = 0; level < kMaxLevels; ++level) {
        QComboBox &list = *cboGroups[level];
        const QSignalBlocker quiet(&list);
        if (!open) list.setCurrentIndex(0);
        list.setEnabled(open);
        open = open && columnOf(list.currentData()) >= 0;
        if (!open) optOrder[2 * level]->setChecked(true);
        for (const int n : {2 * level, 2 * level + 1}) optOrder[n]->setEnabled(open);
    }
    offerFreeColumns();
}

void LevelDialog::offerFreeColumns()
{
    const QString used = txt(Text{21200, u"Ez az oszlop már egy másik szinten szerepel."});
    for (QComboBox *list : cboGroups) {
        auto *const entries = qobject_cast<QStandardItemModel *>(list->model());
        for (int i = 1; entries && i < entries->rowCount(); ++i) {
            const bool elsewhere = std::ranges::any_of(cboGroups, [&](const QComboBox *other) {
                return other != list && other->currentIndex() == i;
            });
            entries->item(i)->setEnabled(!elsewhere);
            entries->item(i)->setToolTip(elsewhere ? used : QString());
        }
    }
}

/// The wheel scrolls what lies below and changes no level on its way.
bool LevelDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel) return ModalForm::eventFilter(watched, event);
    event->ignore();
    return true;
}

void LevelDialog::readColumns()
{
    for (QComboBox *list : cboGroups) {
        list->setItemText(0, txt(kNone));
        for (int i = 1; m_grid && i < list->count(); ++i) list->setItemText(i, columnEntry(*m_grid, i - 1));
    }
    offerFreeColumns();
}

void LevelDialog::readLevelCaptions(std::span<const QString> frames)
{
    const QString orders[] = {txt(Text{2805, u"növekvő"}), txt(Text{2804, u"csökkenő"})};
    for (int level = 0; level < kMaxLevels; ++level) {
        m_frames[level]->setTitle(frames[size_t(level)]);
        const QString spoken = QString(frames[size_t(level)]).remove(u'&');
        cboGroups[level]->setAccessibleName(spoken);
        for (const int n : {0, 1}) {
            optOrder[2 * level + n]->setText(orders[n]);
            optOrder[2 * level + n]->setAccessibleName(spoken + QStringLiteral(": ") + orders[n]);
        }
    }
    readColumns();
}

} // namespace QV_DOC_CONTROLS
