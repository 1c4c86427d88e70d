#include "kit/grid/GroupBox.h"

#include "facade/services/Text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace QV_DOC_CONTROLS {

GroupChip::GroupChip(const QString &caption, SortOrder order, QWidget *parent)
    : QAbstractButton(parent), m_order(order)
{
    setText(caption);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(join(Text{21020, u"csoportosítás: "}, caption, QStringLiteral(", "),
                           order == SortOrder::Ascending ? Text{2805, u"növekvő"} : Text{2804, u"csökkenő"}));
    setToolTip(txt(Text{21021, u"Kattintás: sorrend megfordítása; Delete vagy kihúzás: eltávolítás"}));
    setAccessibleDescription(toolTip());
}

QSize GroupChip::sizeHint() const
{
    const int height = fontMetrics().height();
    return {fontMetrics().horizontalAdvance(text()) + 7 * height / 2, height * 3 / 2};
}

QRect GroupChip::crossRect() const { return {width() - height(), 0, height(), height()}; }

void GroupChip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
    const int side = fontMetrics().height() / 2, gap = side / 2;
    QStyleOption arrow = option;
    arrow.rect = {2 * gap, (height() - side) / 2, side, side};
    style()->drawPrimitive(m_order == SortOrder::Ascending ? QStyle::PE_IndicatorArrowUp
                                                           : QStyle::PE_IndicatorArrowDown,
                           &arrow, &painter, this);
    painter.setPen(palette().color(QPalette::ButtonText));
    const QRect room(arrow.rect.right() + gap, 0, crossRect().left() - arrow.rect.right() - gap, height());
    painter.drawText(room, Qt::AlignVCenter, fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
    painter.drawText(crossRect(), Qt::AlignCenter, QStringLiteral("×"));
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void GroupChip::keyPressEvent(QKeyEvent *event)
{
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) emit removeAsked();
    else if (ctrl && event->key() == Qt::Key_Left) emit moveAsked(-1);
    else if (ctrl && event->key() == Qt::Key_Right) emit moveAsked(1);
    else QAbstractButton::keyPressEvent(event);
}

void GroupChip::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->position().toPoint();
    QAbstractButton::mousePressEvent(event);
}

void GroupChip::mouseMoveEvent(QMouseEvent *event)
{
    const int way = (event->position().toPoint() - m_pressed).manhattanLength();
    if (event->buttons() & Qt::LeftButton && way >= QApplication::startDragDistance()) m_dragging = true;
    if (m_dragging) emit dragged(event->globalPosition().toPoint());
}

void GroupChip::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint at = event->position().toPoint();
    if (m_dragging || (crossRect().contains(at) && crossRect().contains(m_pressed))) {
        setDown(false);
        if (std::exchange(m_dragging, false)) emit droppedAt(event->globalPosition().toPoint());
        else emit removeAsked();
        return;
    }
    QAbstractButton::mouseReleaseEvent(event);
}

GroupBox::GroupBox(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize GroupBox::sizeHint() const { return {0, fontMetrics().height() * 3 / 2 + 2 * gap()}; }
int GroupBox::gap() const { return fontMetrics().height() / 4; }

void GroupBox::showLevels(const std::vector<SortKey> &levels, const std::vector<GridColumn> &columns)
{
    for (GroupChip *chip : std::exchange(m_chips, {}))
        chip->hide(), chip->deleteLater(); // one may be the sender
    m_levels = levels;
    for (int i = 0; i < int(levels.size()); ++i)
        addChip(i, columns[size_t(levels[size_t(i)].column)].caption);
    const QString hint =
        txt(Text{3223, u"Oszlopértékek szerinti csoportosításhoz húzza ide az oszlop fejlécét"});
    setToolTip(levels.empty() ? hint : QString());
    setAccessibleName(hint);
    layOut();
    const int focus = std::min(std::exchange(m_focus, -1), int(m_chips.size()) - 1);
    if (focus >= 0) m_chips[size_t(focus)]->setFocus(Qt::OtherFocusReason);
    update();
}

void GroupBox::addChip(int level, const QString &caption)
{
    auto *const chip = new GroupChip(caption, m_levels[size_t(level)].order, this);
    m_chips.push_back(chip);
    connect(chip, &GroupChip::clicked, this, [this, level] { turnRound(level); });
    connect(chip, &GroupChip::removeAsked, this, [this, level] { remove(level); });
    connect(chip, &GroupChip::moveAsked, this, [this, level](int steps) { move(level, level + steps); });
    connect(chip, &GroupChip::dragged, this, &GroupBox::markPlace);
    connect(chip, &GroupChip::droppedAt, this, [this, level](QPoint at) {
        const int place = placeAt(at);
        markPlace({-1, -1});
        if (!holds(at)) remove(level);
        else move(level, place > level ? place - 1 : place);
    });
    chip->show();
}

void GroupBox::layOut()
{
    const int room = m_chips.empty() ? 0 : (width() - gap()) / int(m_chips.size()) - gap();
    int left = gap();
    for (GroupChip *chip : m_chips) {
        const QSize size = chip->sizeHint();
        chip->setGeometry(left, gap(), std::min(size.width(), room), size.height());
        left = chip->geometry().right() + 1 + gap();
    }
}

bool GroupBox::holds(QPoint global) const { return isVisible() && rect().contains(mapFromGlobal(global)); }

int GroupBox::placeAt(QPoint global) const
{
    const int x = mapFromGlobal(global).x();
    return int(std::ranges::count_if(
        m_chips, [x](const GroupChip *chip) { return chip->geometry().center().x() < x; }));
}

void GroupBox::markPlace(QPoint global)
{
    m_mark = holds(global) ? placeAt(global) : -1;
    update();
}

void GroupBox::insert(int column, QPoint global)
{
    int place = placeAt(global);
    std::vector<SortKey> levels = m_levels;
    SortKey level{column, SortOrder::Ascending};
    const auto present = std::ranges::find(levels, column, &SortKey::column);
    if (present != levels.end()) {
        level = *present;
        place -= present - levels.begin() < place;
        levels.erase(present);
    }
    if (levels.size() >= size_t(kMaxLevels)) return;
    levels.insert(levels.begin() + place, level);
    ask(std::move(levels), -1);
}

void GroupBox::turnRound(int level)
{
    std::vector<SortKey> levels = m_levels;
    SortOrder &order = levels[size_t(level)].order;
    order = order == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
    ask(std::move(levels), level);
}

void GroupBox::remove(int level)
{
    std::vector<SortKey> levels = m_levels;
    levels.erase(levels.begin() + level);
    ask(std::move(levels), level);
}

void GroupBox::move(int level, int to)
{
    if (to < 0 || to >= int(m_levels.size()) || to == level) return;
    std::vector<SortKey> levels = m_levels;
    const SortKey moved = levels[size_t(level)];
    levels.erase(levels.begin() + level);
    levels.insert(levels.begin() + to, moved);
    ask(std::move(levels), to);
}

void GroupBox::ask(std::vector<SortKey> levels, int focus)
{
    m_focus = focus;
    emit levelsAsked(levels);
}

void GroupBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().brush(QPalette::Mid));
    painter.fillRect(rect().adjusted(1, 1, -1, 0), palette().brush(QPalette::Window));
    const QString hint = toolTip();
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room = rect().adjusted(2 * gap(), 0, -gap(), 0);
    if (m_chips.empty())
        painter.drawText(room, Qt::AlignVCenter,
                         fontMetrics().elidedText(hint, Qt::ElideRight, room.width()));
    if (m_mark < 0) return;
    const int x = m_mark == 0 ? gap() / 2 : m_chips[size_t(m_mark) - 1]->geometry().right() + 1 + gap() / 2;
    painter.fillRect(QRect(x - 1, 1, 3, height() - 1), palette().brush(QPalette::Highlight));
}

} // namespace QV_DOC_CONTROLS
