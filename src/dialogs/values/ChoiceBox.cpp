#include "dialogs/values/ChoiceBox.h"

#include "kit/forms/AccessKeys.h"
#include "kit/forms/WindowSize.h"

#include <QButtonGroup>
#include <QListWidget>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kMostOptions = 3;
constexpr int kLongestOption = 70;              // letters; a radio button does not wrap
constexpr int kMostRows = 12;                   // of a list; more are scrolled

bool areOptions(const QStringList &items)
{
    return items.size() <= kMostOptions &&
           std::ranges::all_of(items, [](const QString &i) { return i.size() <= kLongestOption; });
}

} // namespace

ChoiceBox::ChoiceBox(const Choice &c, QWidget *owner) : ValueBox(c.title, c.text, owner)
{
    if (areOptions(c.items)) showOptions(c);
    else showList(c);
    allowOk(chosen() >= 0);
}

void ChoiceBox::showOptions(const Choice &c)
{
    auto *const group = new QButtonGroup(this);
    m_chosen = [group] { return group->checkedId(); };
    QStringList captions = c.items;
    captions = withAccessKeys(captions.replaceInStrings(QStringLiteral("&"), QStringLiteral("&&")));
    const int preset = std::clamp(c.preset, 0, std::max(0, int(captions.size()) - 1));
    for (int i = 0; i < captions.size(); ++i) {
        auto *const option = new QRadioButton(captions[i], this);
        option->setObjectName(QStringLiteral("optItem%1").arg(i));
        option->setAccessibleName(c.items[i]);
        group->addButton(option, i);
        fields().addWidget(option);
        if (i != preset) continue;
        option->setChecked(true);
        option->setFocus();
    }
    fields().addStretch(1);
}

void ChoiceBox::showList(const Choice &c)
{
    auto *const list = new QListWidget(this);
    m_chosen = [list] { return list->currentRow(); };
    list->setObjectName(QStringLiteral("lstItems"));
    list->setAccessibleName(c.text);
    list->addItems(c.items);
    list->setCurrentRow(std::clamp(c.preset, 0, int(c.items.size()) - 1));
    const int rows = std::min(list->count(), kMostRows);
    list->setMinimumHeight(rows * list->sizeHintForRow(0) + 2 * list->frameWidth());
    connect(list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    fields().addWidget(list, 1);
    list->setFocus();
}

} // namespace QV_DOC_CONTROLS
