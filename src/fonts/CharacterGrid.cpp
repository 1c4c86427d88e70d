#include "fonts/CharacterGrid.h"

#include "facade/services/Text.h"
#include "fonts/CharacterModel.h"
#include "kit/ask/ErrorRelay.h"

#include <QBuffer>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kPerLine = CharacterModel::kPerLine;
constexpr int kLeastZoom = -2, kMostZoom = 6;
constexpr double kZoomStep = 1.25;
constexpr int kUsualLines = 10;
constexpr int kTipLetters = 8;                  // height of the large character, in lines of text

QColor between(const QColor &a, const QColor &b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

/// A character on the view's ground with thin lines between; a code without one says itself, dimmed.
struct CharacterDelegate final : QStyledItemDelegate {
    CharacterDelegate(const CharacterModel &model, QObject *parent)
        : QStyledItemDelegate(parent), m_model(model)
    {}
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const CharacterSource *const source = m_model.source();
        const int code = m_model.codeAt(index.row() * kPerLine + index.column());
        if (code < 0) return;
        const bool isThere = source && source->has(code), chosen = option.state & QStyle::State_Selected;
        const QPalette &look = option.palette;
        const QPalette::ColorGroup group =
            option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
        const QRect cell = option.rect.adjusted(0, 0, -1, -1);
        painter->fillRect(option.rect, between(look.color(QPalette::Base), look.color(QPalette::Mid)));
        painter->fillRect(cell, chosen    ? look.color(group, QPalette::Highlight)
                                : isThere ? look.color(QPalette::Base)
                                          : look.color(QPalette::Window));
        const QColor ink =
            chosen ? look.color(group, QPalette::HighlightedText) : look.color(QPalette::Text);
        if (isThere) source->draw(*painter, code, QRectF(cell).adjusted(1, 1, -1, -1), ink);
        else
            sayCode(*painter, code, cell,
                    chosen ? ink : between(look.color(QPalette::Text), look.color(QPalette::Window)));
    }

private:
    static void sayCode(QPainter &painter, int code, const QRect &cell, const QColor &ink)
    {
        painter.save();
        QFont font = painter.font();
        font.setPixelSize(std::max(1, std::min(cell.height() * 2 / 5, cell.width() / 3)));
        painter.setFont(font);
        painter.setPen(ink);
        painter.drawText(cell, Qt::AlignCenter, codeText(code).mid(2));
        painter.restore();
    }
    const CharacterModel &m_model;
};

/// The character large on the tool tip's ground, with its codes below.
QString tipOf(const CharacterSource &source, int code, const QWidget &beside)
{
    const int side = beside.fontMetrics().height() * kTipLetters;
    QPixmap picture(QSize(side, side) * beside.devicePixelRatioF());
    picture.setDevicePixelRatio(beside.devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    source.draw(painter, code, QRectF(0, 0, side, side).adjusted(4, 4, -4, -4),
                QToolTip::palette().color(QPalette::ToolTipText));
    painter.end();
    QBuffer png;
    picture.save(&png, "PNG");
    return QStringLiteral(
               "<p align='center'><img width='%1' height='%1' src='data:image/png;base64,%2'><br>%3 "
               "= %4</p>")
        .arg(QString::number(side), QString::fromLatin1(png.data().toBase64()), codeText(code),
             QString::number(code));
}

} // namespace

CharacterGrid::CharacterGrid(ErrorRelay &host, QWidget *parent)
    : CellGrid(kPerLine, parent), m_host(host), m_model(*new CharacterModel(this))
{
    setModel(&m_model);
    setItemDelegate(new CharacterDelegate(m_model, this));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    fitCells();
    connect(this, &CellGrid::currentMoved, this, [this](int cell) {
        const int code = m_model.codeAt(cell);
        if (code < 0 || code == m_code) return;
        m_code = code;
        emit codeMoved(code);
    });
}

int CharacterGrid::cellCount() const { return m_model.count(); }
bool CharacterGrid::onlyPresent() const { return m_model.onlyPresent(); }

void CharacterGrid::setSource(std::shared_ptr<CharacterSource> source)
{
    m_model.setSource(std::move(source));
    refill();
}

void CharacterGrid::setOnlyPresent(bool on)
{
    if (on == onlyPresent()) return;
    m_model.setOnlyPresent(on);
    horizontalHeader()->setVisible(!on);        // the last digit of a code says nothing then
    refill();
}

void CharacterGrid::refill()
{
    fitCells();
    goToCode();
    prepareSeen();
}

bool CharacterGrid::setCode(int code)
{
    m_code = code;
    goToCode();
    return current() >= 0;
}

void CharacterGrid::goToCode()
{
    setCurrent(m_model.cellOf(m_code));
    if (current() >= 0) scrollTo(currentIndex());
}

void CharacterGrid::zoom(int steps)
{
    m_zoom = std::clamp(m_zoom + steps, kLeastZoom, kMostZoom);
    fitCells();
    goToCode();
    prepareSeen();
}

int CharacterGrid::sideOf(int zoom) const
{
    return int(fontMetrics().height() * 2 * std::pow(kZoomStep, zoom));
}

QSize CharacterGrid::sizeHint() const
{
    const int side = sideOf(0);
    const QSize around(verticalHeader()->width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent),
                       horizontalHeader()->sizeHint().height());
    return QSize(kPerLine * side, kUsualLines * side) + around + QSize(2, 2) * (frameWidth() + 1);
}

/// As high as the zoom says; across they share the room, but are never narrower than they are high.
void CharacterGrid::fitCells()
{
    const int side = sideOf(m_zoom);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(side);
    horizontalHeader()->setMinimumSectionSize(side);
    QFontMetrics letters(verticalHeader()->font());
    verticalHeader()->setFixedWidth(letters.horizontalAdvance(codeText(0xDDDD)) + letters.height());
}

void CharacterGrid::retranslate()
{
    setAccessibleName(txt(Text{22460, u"Karakterek"}));
    m_model.retranslate();
}

void CharacterGrid::keyboardSearch(const QString &typed)
{
    if (typed.size() != 1) return;
    if (typed[0] >= u'0' && typed[0] <= u'9') return emit digitsTyped(typed);
    const int code = m_model.source() ? m_model.source()->codeOf(typed[0]) : -1;
    if (const int cell = code < 0 ? -1 : m_model.cellOf(code); cell >= 0) setCurrent(cell);
}

void CharacterGrid::prepareSeen()
{
    CharacterSource *const source = m_model.source();
    if (!source) return;
    const int top = rowAt(0), bottom = rowAt(viewport()->height() - 1);
    const int first = std::max(0, top) * kPerLine,
              end = bottom < 0 ? cellCount() : std::min(cellCount(), (bottom + 1) * kPerLine);
    std::vector<quint16> codes;
    for (int cell = first; cell < end; ++cell) codes.push_back(quint16(m_model.codeAt(cell)));
    m_host.guard([&] { source->prepare(codes); });
}

void CharacterGrid::resizeEvent(QResizeEvent *event)
{
    CellGrid::resizeEvent(event);
    prepareSeen();
}

void CharacterGrid::scrollContentsBy(int dx, int dy)
{
    CellGrid::scrollContentsBy(dx, dy);
    prepareSeen();
}

void CharacterGrid::changeEvent(QEvent *event)
{
    CellGrid::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitCells();
}

bool CharacterGrid::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip) return CellGrid::viewportEvent(event);
    const auto &help = static_cast<const QHelpEvent &>(*event);
    const QModelIndex at = indexAt(help.pos());
    const int code = m_model.codeAt(cellAt(at));
    const CharacterSource *const source = m_model.source();
    const bool isThere = source && code >= 0 && source->has(code);
    QToolTip::showText(help.globalPos(), isThere ? tipOf(*source, code, *this) : QString(), viewport(),
                       visualRect(at));
    return true;
}

void CharacterGrid::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) return CellGrid::wheelEvent(event);
    if (const int turned = event->angleDelta().y(); turned != 0) zoom(turned > 0 ? 1 : -1);
    event->accept();
}

} // namespace QV_DOC_CONTROLS
