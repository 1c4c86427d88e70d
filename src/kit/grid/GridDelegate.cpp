#include "kit/grid/GridDelegate.h"

#include "kit/forms/Contrast.h"
#include "kit/grid/GridModel.h"
#include "kit/tools/Icons.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolButton>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

const QStyle &styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled)) return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

/// Of a column, numbers stand on its right and check boxes in its middle; of a form, all begins on the left.
bool isInColumn(const QStyleOptionViewItem &option) { return option.displayAlignment & Qt::AlignRight; }

QColor between(QColor a, QColor b, double share)
{
    const auto mixed = [share](int x, int y) { return int(std::lround(x + (y - x) * share)); };
    return {mixed(a.red(), b.red()), mixed(a.green(), b.green()), mixed(a.blue(), b.blue())};
}

constexpr int kWriting[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab}; ///< the open cell

/// What an editor begins with: numbers as they are shown, in the user's writing.
QString textToEdit(const QModelIndex &cell)
{
    const auto &model = static_cast<const GridModel &>(*cell.model());
    const bool isNumber = model.column(cell.column())->kind == CellKind::Number;
    return cell.data(isNumber ? Qt::DisplayRole : Qt::EditRole).toString();
}

void paintFocus(QPainter *painter, const QStyleOptionViewItem &option, QPalette::ColorRole on)
{
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    focus.backgroundColor = option.palette.color(groupOf(option), on);
    styleOf(option).drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    const QColor line = option.palette.color(
        groupOf(option), on == QPalette::Highlight ? QPalette::HighlightedText : QPalette::WindowText);
    painter->setPen(QPen(line, 1, Qt::DotLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
}

} // namespace

GridDelegate::GridDelegate(const GridModel &model, QObject *parent)
    : QStyledItemDelegate(parent), m_model(model)
{
}

QRect GridDelegate::checkMark(const QStyleOptionViewItem &option)
{
    const QStyle &style = styleOf(option);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    const int gap = isInColumn(option) ? 0 : padding(option.fontMetrics);
    return QStyle::alignedRect(option.direction, isInColumn(option) ? Qt::AlignCenter : Qt::AlignVCenter,
                               size, option.rect.adjusted(gap, 0, 0, 0));
}

QColor GridDelegate::textColor(const QStyleOptionViewItem &option, const GridStyle &style)
{
    if (style.background.isValid()) // digits stay legible on every colour
        return style.text.isValid() ? style.text : blackOrWhiteOn(style.background);
    const bool selected = option.state & QStyle::State_Selected;
    const auto color = [&](QPalette::ColorRole role) { return option.palette.color(groupOf(option), role); };
    const QColor ink = color(selected ? QPalette::HighlightedText : QPalette::Text);
    if (style.text.isValid() && !selected) return style.text;
    if (!style.grayed) return ink;
    return selected ? between(ink, color(QPalette::Highlight), 0.35)
                    : between(ink, color(QPalette::Base), 0.5);
}

void GridDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const int row = m_model.sourceRow(index), c = index.column();
    if (row < 0) return paintBand(painter, option, m_model.bandOf(index));
    const GridStyle style = m_model.styleOf(row, c);
    const bool selected = option.state & QStyle::State_Selected;
    if (selected) painter->fillRect(option.rect, option.palette.brush(groupOf(option), QPalette::Highlight));
    if (style.background.isValid()) {
        const int frame = selected ? 2 : 1;
        painter->fillRect(option.rect.adjusted(frame, frame, -frame, -frame), style.background);
    }
    const CellKind kind = m_model.column(c)->kind;
    if (kind == CellKind::Check) {
        paintCheck(painter, option, index.data(Qt::CheckStateRole).toInt() == Qt::Checked);
    } else if (kind == CellKind::Picture) {
        paintPicture(painter, option.rect.adjusted(1, 1, -1, -1), m_model.picture(row, c));
    } else {
        painter->setPen(textColor(option, style));
        const bool right = isInColumn(option) && (kind == CellKind::Number || kind == CellKind::Color);
        const QString text = m_model.source()->text(row, c);
        if (style.bold) paintBold(painter, option, text, right);
        else paintText(painter, option, text, right);
    }
    if (option.state & QStyle::State_HasFocus)
        paintFocus(painter, option, selected ? QPalette::Highlight : QPalette::Base);
}

/// A line of text in the middle of the cell. Finding the glyphs of a text is what painting a page takes
/// longest for, so they are kept.
void GridDelegate::paintText(QPainter *painter, const QStyleOptionViewItem &option, const QString &text,
                             bool right) const
{
    if (m_gap == 0 || m_font != option.font) {
        m_texts.clear();
        m_font = option.font, m_gap = padding(option.fontMetrics);
    }
    QStaticText *glyphs = m_texts.object(text);
    if (!glyphs) {
        glyphs = new QStaticText(text);
        glyphs->setTextFormat(Qt::PlainText);
        glyphs->prepare(painter->transform(), option.font);
        m_texts.insert(text, glyphs);
    }
    const int gap = m_gap, room = option.rect.width() - 2 * gap;
    const int top = option.rect.top() + (option.rect.height() - option.fontMetrics.height()) / 2;
    const int width = int(std::ceil(glyphs->size().width()));
    const QPoint at(option.rect.left() + gap + (right ? std::max(0, room - width) : 0), top);
    if (width <= room) painter->drawStaticText(at, *glyphs);
    else painter->drawText(at + QPoint(0, option.fontMetrics.ascent()),
                           option.fontMetrics.elidedText(text, Qt::ElideRight, room));
}

/// One row of a table at most: nothing is kept.
void GridDelegate::paintBold(QPainter *painter, const QStyleOptionViewItem &option, const QString &text,
                             bool right) const
{
    QFont bold = option.font;
    bold.setBold(true);
    const int gap = padding(option.fontMetrics);
    const QRect room = option.rect.adjusted(gap, 0, -gap, 0);
    painter->setFont(bold);
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine | (right ? Qt::AlignRight : Qt::AlignLeft),
                      QFontMetrics(bold).elidedText(text, Qt::ElideRight, room.width()));
    painter->setFont(option.font);
}

void GridDelegate::paintCheck(QPainter *painter, const QStyleOptionViewItem &option, bool on) const
{
    QStyleOptionViewItem box = option;
    box.rect = checkMark(option);
    box.features |= QStyleOptionViewItem::HasCheckIndicator;
    box.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
    box.state |= on ? QStyle::State_On : QStyle::State_Off;
    styleOf(option).drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, painter, option.widget);
    QColor outline =
        option.palette.color(QPalette::Text); // some styles' own outline is lost on a dark ground
    outline.setAlphaF(0.4f);
    painter->setPen(outline);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(box.rect.adjusted(0, 0, -1, -1));
}

void GridDelegate::paintPicture(QPainter *painter, const QRect &rect, const QPixmap &picture) const
{
    if (picture.isNull()) return;
    QSize size = picture.deviceIndependentSize().toSize();
    if (size.width() > rect.width() || size.height() > rect.height())
        size.scale(rect.size(), Qt::KeepAspectRatio);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect), picture);
}

QRect GridDelegate::bandMark(const QStyleOptionViewItem &option, int band) const
{
    const int side = option.fontMetrics.height();
    return {option.rect.left() + m_model.engine().band(band).level * side, option.rect.top(), side,
            option.rect.height()};
}

void GridDelegate::paintBand(QPainter *painter, const QStyleOptionViewItem &option, int band) const
{
    painter->fillRect(option.rect, option.palette.brush(groupOf(option), QPalette::Button));
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    QStyleOptionViewItem mark = option;
    const QRect side = bandMark(option, band);
    const int arrow = side.width() * 2 / 3;
    mark.rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {arrow, arrow}, side);
    mark.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
    mark.palette.setColor(QPalette::WindowText, option.palette.color(groupOf(option), QPalette::ButtonText));
    const bool expanded = m_model.engine().band(band).expanded;
    styleOf(option).drawPrimitive(expanded ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight,
                                  &mark, painter, option.widget);
    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(option.palette.color(groupOf(option), QPalette::ButtonText));
    const QRect room =
        option.rect.adjusted(side.right() + 1 - option.rect.left(), 0, -padding(option.fontMetrics), 0);
    painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      QFontMetrics(bold).elidedText(m_model.bandText(band), Qt::ElideRight, room.width()));
    painter->setFont(option.font);
    if (option.state & QStyle::State_HasFocus) paintFocus(painter, option, QPalette::Button);
}

int GridDelegate::lineHeight(const QStyleOptionViewItem &option) const
{
    const int box = styleOf(option).pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget);
    const int gap = padding(option.fontMetrics);
    return std::max(option.fontMetrics.height(), box) + gap;
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    int height = lineHeight(option);
    bool pictures = false;
    for (int c = 0; const GridColumn *column = m_model.column(c); ++c)
        pictures |= column->kind == CellKind::Picture;
    if (pictures) height = std::max(height, pictureRoom());
    return {height, height};
}

QWidget *GridDelegate::listEditor(QWidget *parent, int column) const
{
    auto *const list = new QComboBox(parent);
    for (const GridChoice &c : m_model.choices(column)) list->addItem(c.text, c.value);
    auto *const self = const_cast<GridDelegate *>(this);
    connect(list, &QComboBox::activated, self, [self, list] {
        emit self->commitData(list);
        emit self->closeEditor(list);
    });
    return list;
}

/// Where a value can be chosen as well, a button at its end says so.
QLineEdit *GridDelegate::lineEditor(QWidget *parent, int column) const
{
    auto *const line = new QLineEdit(parent);
    line->setFrame(false);
    if (!m_model.column(column)->asks) return line;
    QAction *const more = line->addAction(toolIcon("penColor"), QLineEdit::TrailingPosition);
    more->setToolTip(GridModel::chooseHint());
    if (auto *const button = line->findChild<QToolButton *>()) button->setAccessibleName(more->toolTip());
    auto *const self = const_cast<GridDelegate *>(this);
    connect(more, &QAction::triggered, self, [self, line] { self->askInstead(*line); });
    return line;
}

void GridDelegate::askInstead(QLineEdit &editor)
{
    const QPersistentModelIndex cell = m_edited;
    emit closeEditor(&editor, RevertModelCache);
    emit choiceAsked(cell);
}

QWidget *GridDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    const GridColumn *column = m_model.column(index.column());
    m_edited = index;
    QWidget *editor = nullptr;
    if (column->kind == CellKind::List) {
        editor = listEditor(parent, index.column());
    } else {
        QLineEdit *const line = lineEditor(parent, index.column());
        if (column->kind != CellKind::Text && isInColumn(option)) line->setAlignment(Qt::AlignRight);
        editor = line;
    }
    editor->setAccessibleName(m_model.headerData(index.column(), Qt::Horizontal, Qt::AccessibleTextRole)
                                  .toString());
    editor->setAutoFillBackground(true);
    return editor;
}

void GridDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QVariant value = index.data(Qt::EditRole);
    if (auto *const list = qobject_cast<QComboBox *>(editor)) list->setCurrentIndex(list->findData(value));
    else if (auto *const line = qobject_cast<QLineEdit *>(editor)) line->setText(textToEdit(index));
}

void GridDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *const list = qobject_cast<QComboBox *>(editor);
    const auto *const line = qobject_cast<QLineEdit *>(editor);
    if (list && list->currentData().toString() != index.data(Qt::EditRole).toString())
        model->setData(index, list->currentData());
    if (line && line->text() != textToEdit(index)) model->setData(index, line->text());
}

/// Why what is typed cannot be taken; empty also while nothing was typed.
std::optional<Message> GridDelegate::refusalOf(const QLineEdit &editor) const
{
    const int row = m_model.sourceRow(m_edited);
    if (row < 0 || editor.text() == textToEdit(m_edited)) return {};
    return m_model.source()->refusal(row, m_edited.column(), editor.text());
}

/// What cannot be taken stays in its open cell, to be mended or given up by Esc.
bool GridDelegate::isKeyTaken(QLineEdit &editor, const QKeyEvent &event)
{
    const int key = event.key();
    const bool chooses = key == Qt::Key_Down && event.modifiers() & Qt::AltModifier;
    if (chooses && m_edited.isValid() && m_model.column(m_edited.column())->asks)
        return askInstead(editor), true;
    const auto why = std::ranges::count(kWriting, key) > 0 ? refusalOf(editor) : std::nullopt;
    if (!why) return false;
    const QPointer alive(&editor);
    prompts().tell(*why, &editor);
    if (!alive) return true;
    editor.setFocus();
    editor.selectAll();
    return true;
}

/// Keys walk in a closed list, as far as one likes; Enter, Tab or a pick from the open list writes.
bool GridDelegate::isKeyTaken(QComboBox &closedList, QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape || std::ranges::count(kWriting, event.key()) > 0) return false;
    const QSignalBlocker quiet(closedList);
    closedList.event(&event);
    return true;
}

/// The wheel edits nothing: over a closed list it goes on to the view. Who looks at another window, the one
/// with the refusal for one, finds the cell as it was.
bool GridDelegate::eventFilter(QObject *editor, QEvent *event)
{
    auto *const line = qobject_cast<QLineEdit *>(editor);
    auto *const list = qobject_cast<QComboBox *>(editor);
    switch (event->type()) {
    case QEvent::Wheel: return event->ignore(), true;
    case QEvent::KeyPress:
        if (line && isKeyTaken(*line, static_cast<const QKeyEvent &>(*event))) return true;
        if (list && isKeyTaken(*list, static_cast<QKeyEvent &>(*event))) return true;
        break;
    case QEvent::FocusOut:
        if (line && static_cast<const QFocusEvent &>(*event).reason() == Qt::ActiveWindowFocusReason &&
            refusalOf(*line))
            return false;
        break;
    default: break;
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

bool GridDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    if (!(index.flags() & Qt::ItemIsUserCheckable)) return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: {
        const auto &mouse = static_cast<const QMouseEvent &>(*event);
        if (mouse.button() != Qt::LeftButton || !checkMark(option).contains(mouse.position().toPoint()))
            return false;
        if (event->type() == QEvent::MouseButtonPress) return false;    // the view selects the row
        if (event->type() == QEvent::MouseButtonDblClick) return true;  // its release toggles again
        break;
    }
    case QEvent::KeyPress:
        if (static_cast<const QKeyEvent &>(*event).key() != Qt::Key_Space) return false;
        break;
    default: return false;
    }
    const bool on = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model->setData(index, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    return true;
}

} // namespace QV_DOC_CONTROLS
