#include "kit/grid/GridDelegate.h"

#include "kit/grid/GridModel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPainter>

namespace QV_DOC_CONTROLS {
namespace {

const GridModel &modelOf(const QModelIndex &index) { return *static_cast<const GridModel *>(index.model()); }

} // namespace

void GridDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const GridStyle style = modelOf(index).styleOf(index);
    if (style.grayed) {
        const QColor gray = option->palette.color(QPalette::Disabled, QPalette::Text);
        option->palette.setColor(QPalette::Text, gray);
    }
    if (style.text.isValid()) option->palette.setColor(QPalette::Text, style.text);
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QColor color = modelOf(index).styleOf(index).background;
    if (!color.isValid()) return QStyledItemDelegate::paint(painter, option, index);

    QStyleOptionViewItem cell = option;
    const bool selected = cell.state & QStyle::State_Selected;
    cell.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    if (selected) painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    const int frame = selected ? 2 : 1;
    painter->fillRect(option.rect.adjusted(frame, frame, -frame, -frame), color);
    const bool dark = qGray(color.rgb()) < 128;
    if (!modelOf(index).styleOf(index).text.isValid()) // digits stay legible on every colour
        cell.palette.setColor(QPalette::Text, dark ? Qt::white : Qt::black);
    initStyleOption(&cell, index);
    painter->setPen(cell.palette.color(QPalette::Text));
    const int gap = cell.fontMetrics.horizontalAdvance(u' ');
    painter->setFont(cell.font);
    painter->drawText(option.rect.adjusted(gap, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter, cell.text);
}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    Q_UNUSED(option)
    const GridColumn *column = modelOf(index).column(index.column());
    if (column->kind != CellKind::List) {
        auto *const line = new QLineEdit(parent);
        line->setFrame(false);
        line->setAccessibleName(column->caption);
        return line;
    }
    auto *const list = new QComboBox(parent);
    list->setAccessibleName(column->caption);
    for (const GridChoice &c : modelOf(index).choices(index.column())) list->addItem(c.text, c.value);
    return list;
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QVariant value = index.data(Qt::EditRole);
    if (auto *const list = qobject_cast<QComboBox *>(editor)) list->setCurrentIndex(list->findData(value));
    else if (auto *const line = qobject_cast<QLineEdit *>(editor)) line->setText(value.toString());
}

void GridDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *const list = qobject_cast<QComboBox *>(editor)) model->setData(index, list->currentData());
    else if (auto *const line = qobject_cast<QLineEdit *>(editor)) model->setData(index, line->text());
}

} // namespace QV_DOC_CONTROLS
