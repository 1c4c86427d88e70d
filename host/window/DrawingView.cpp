#include "window/DrawingView.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QStyleHints>
#include <QGuiApplication>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace refhost {
namespace {

constexpr double kStep = 1.25;                 // of one key press
constexpr double kPerWheelUnit = 0.0018;       // natural logarithm; a notch of 120 units is about a quarter
constexpr double kPanShare = 0.1;              // of the window, for one arrow key
constexpr int kReach = 5;                      // pixels within which a click meets an element
const QColor kDarkPaper(0x1E, 0x1E, 0x22);

} // namespace

DrawingView::DrawingView(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    grabGesture(Qt::PinchGesture);
    showCursor();
}

QSize DrawingView::sizeHint() const { return QSize(170, 105) * fontMetrics().averageCharWidth(); }

PaintStyle DrawingView::style() const { return {m_dark ? kDarkPaper : QColor(Qt::white), m_colors}; }

QColor DrawingView::highlight() const { return palette().color(QPalette::Active, QPalette::Highlight); }

void DrawingView::setScene(Scene scene)
{
    const bool first = !std::exchange(m_hasScene, true);
    const QPointF world = m_scene.toWorld(m_view.centre);
    QSet<qint64> chosen;
    for (int i : m_selection) chosen.insert(m_scene.elements()[size_t(i)].id);
    m_scene = std::move(scene);
    m_view.centre = world - m_scene.origin();
    std::vector<int> still;
    for (size_t i = 0; i < m_scene.elements().size() && !chosen.isEmpty(); ++i)
        if (chosen.contains(m_scene.elements()[i].id)) still.push_back(int(i));
    select(std::move(still));
    if (first) return fit();
    redraw();
}

void DrawingView::setDark(bool dark)
{
    m_dark = dark;
    redraw();
}

void DrawingView::setColors(Colors colors)
{
    m_colors = colors;
    redraw();
}

void DrawingView::setTool(Tool tool)
{
    m_line.clear();
    m_rubberFrom.reset();
    const bool changed = m_tool != tool;
    m_tool = tool;
    showCursor();
    update();
    if (changed) emit toolChanged();
}

void DrawingView::select(std::vector<int> elements)
{
    m_selection = std::move(elements);
    m_outline = {};
    for (int i : m_selection) m_outline.addPath(m_scene.outlineOf(i));
    update();
    emit selectionChanged();
}

void DrawingView::redraw()
{
    m_buffer.invalidate();
    update();
    emit viewChanged();
}

void DrawingView::fit()
{
    m_fit = Fit::All;
    refit();
}

void DrawingView::fitMain()
{
    m_fit = Fit::Main;
    refit();
}

void DrawingView::refit()
{
    if (m_fit != Fit::No) fitTo(m_fit == Fit::All ? m_scene.bounds() : m_scene.mainBounds());
}

void DrawingView::fitTo(const QRectF &local)
{
    m_view.size = size();
    m_view.dpi = logicalDpiX();
    m_view.fit(local.isNull() ? QRectF(-50, -50, 100, 100)
                              : local); // an empty drawing starts with a hundred metres
    redraw();
}

void DrawingView::zoomBy(double factor) { zoomAt(rect().center(), factor); }

void DrawingView::zoomAt(QPointF screen, double factor)
{
    m_view.zoomAt(screen, factor);
    m_fit = Fit::No;
    redraw();
}

void DrawingView::panBy(QPoint delta)
{
    m_view.pan(delta);
    m_buffer.moveBy(delta);
    m_fit = Fit::No;
    update();
    emit viewChanged();
}

void DrawingView::showCursor()
{
    if (m_panFrom) setCursor(Qt::ClosedHandCursor);
    else if (m_space) setCursor(Qt::OpenHandCursor);
    else setCursor(m_tool == Tool::Select ? Qt::ArrowCursor : Qt::CrossCursor);
}

void DrawingView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    m_buffer.paint(p, m_scene, m_view, style(), devicePixelRatioF());
    p.setRenderHint(QPainter::Antialiasing);
    paintSelection(p);
    paintSketch(p);
}

void DrawingView::paintSelection(QPainter &p) const
{
    if (m_selection.empty()) return;
    QColor glow = highlight();
    glow.setAlphaF(0.55f);
    QPen pen(glow, fontMetrics().lineWidth() * 4.0);
    pen.setCosmetic(true);
    p.save();
    p.setTransform(m_view.transform(), true);
    p.strokePath(m_outline, pen);
    p.restore();
}

/// What the running tool has begun: the rubber band or the line to the cursor.
void DrawingView::paintSketch(QPainter &p) const
{
    p.setPen(QPen(highlight(), 0));
    if (m_rubberFrom) {
        const QRect band = QRect(*m_rubberFrom, m_cursor).normalized();
        QColor tint = highlight();
        tint.setAlphaF(0.15f);
        p.fillRect(band, tint);
        p.drawRect(band);
    }
    QPolygonF line;
    for (const QPointF &world : m_line) line.append(toScreen(world));
    if (!line.isEmpty()) line.append(m_cursor);
    p.drawPolyline(line);
}

void DrawingView::resizeEvent(QResizeEvent *)
{
    m_view.size = size();
    m_view.dpi = logicalDpiX();
    refit();
    redraw();
}

void DrawingView::mousePressEvent(QMouseEvent *e)
{
    m_cursor = e->position().toPoint();
    const bool pan = e->button() == Qt::MiddleButton || (e->button() == Qt::LeftButton && m_space);
    if (pan) m_panFrom = m_cursor;
    else if (e->button() == Qt::LeftButton) begin(m_cursor);
    else if (e->button() == Qt::RightButton && m_tool == Tool::Line) endLine();
    showCursor();
}

/// A click of the tool.
void DrawingView::begin(QPoint at)
{
    switch (m_tool) {
    case Tool::Select:
    case Tool::ZoomWindow: m_rubberFrom = at; return;
    case Tool::Line: m_line.append(toWorld(at)); return update();
    case Tool::Point:
    case Tool::Symbol:
    case Tool::Text: emit pointGiven(toWorld(at)); return;
    }
}

void DrawingView::mouseMoveEvent(QMouseEvent *e)
{
    const QPoint at = e->position().toPoint();
    if (m_panFrom) {
        panBy(at - *m_panFrom);
        m_panFrom = at;
    }
    m_cursor = at;
    if (m_rubberFrom || !m_line.isEmpty()) update();
    emit cursorAt(toWorld(at));
}

void DrawingView::mouseReleaseEvent(QMouseEvent *e)
{
    m_cursor = e->position().toPoint();
    if (m_panFrom) m_panFrom.reset();
    else if (m_rubberFrom && e->button() == Qt::LeftButton) endRubber(m_cursor, e->modifiers());
    showCursor();
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent *e)
{
    if (e->button() == Qt::MiddleButton) return fit();
    if (m_tool == Tool::Line && e->button() == Qt::LeftButton)
        return endLine(); // the first click gave the point
    mousePressEvent(e);
}

void DrawingView::endRubber(QPoint at, Qt::KeyboardModifiers keys)
{
    const QPoint from = *std::exchange(m_rubberFrom, std::nullopt);
    const QRect band = QRect(from, at).normalized();
    const int drag = QGuiApplication::styleHints()->startDragDistance();
    const bool isClick = std::max(band.width(), band.height()) < drag;
    const bool adding = keys & (Qt::ShiftModifier | Qt::ControlModifier);
    update();
    if (m_tool == Tool::Select)
        return isClick ? selectAt(at, adding) : selectIn(band, from.x() < at.x(), adding);
    if (isClick) return zoomAt(at, 2);
    m_view.fit(m_view.localRect(QRectF(band)), 0);
    m_fit = Fit::No;
    setTool(Tool::Select);
    redraw();
}

void DrawingView::selectAt(QPoint at, bool adding)
{
    const int hit = m_scene.elementAt(m_view.toLocal(at), kReach / m_view.pxPerMetre);
    std::vector<int> wanted = adding ? m_selection : std::vector<int>();
    if (hit >= 0 && !std::erase(wanted, hit)) wanted.push_back(hit); // a second click takes it out again
    select(std::move(wanted));
}

/// Drawn to the right the band takes what lies in it wholly, to the left also what it touches.
void DrawingView::selectIn(const QRect &band, bool wholly, bool adding)
{
    std::vector<int> wanted = adding ? m_selection : std::vector<int>();
    for (int i : m_scene.elementsIn(m_view.localRect(QRectF(band)), wholly))
        if (!std::ranges::count(wanted, i)) wanted.push_back(i);
    select(std::move(wanted));
}

void DrawingView::endLine()
{
    const QList<QPointF> line = std::exchange(m_line, {});
    update();
    if (line.size() > 1) emit lineGiven(line);
}

void DrawingView::wheelEvent(QWheelEvent *e)
{
    const int turn = e->angleDelta().y();
    if (turn == 0) return e->ignore();
    zoomAt(e->position(), std::exp(turn * kPerWheelUnit));
    emit cursorAt(toWorld(e->position()));
    e->accept();
}

bool DrawingView::navigate(int key)
{
    const QPoint step(int(width() * kPanShare), int(height() * kPanShare));
    switch (key) {
    case Qt::Key_Left: return panBy({step.x(), 0}), true;
    case Qt::Key_Right: return panBy({-step.x(), 0}), true;
    case Qt::Key_Up: return panBy({0, step.y()}), true;
    case Qt::Key_Down: return panBy({0, -step.y()}), true;
    case Qt::Key_Plus: return zoomBy(kStep), true;
    case Qt::Key_Minus: return zoomBy(1 / kStep), true;
    case Qt::Key_F: return fit(), true;
    default: return false;
    }
}

bool DrawingView::edit(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return endLine(), true;
    case Qt::Key_Delete: emit deleteWanted(); return true;
    case Qt::Key_Backspace:
        if (!m_line.isEmpty()) m_line.removeLast();
        return update(), true;
    case Qt::Key_Escape:
        if (m_line.isEmpty() && !m_rubberFrom && m_tool == Tool::Select) select({});
        return setTool(m_line.isEmpty() && !m_rubberFrom ? Tool::Select : m_tool), true;
    default: return false;
    }
}

void DrawingView::keyPressEvent(QKeyEvent *e)
{
    if (e->key() == Qt::Key_Space) {
        m_space = true;
        showCursor();
    } else if (!navigate(e->key()) && !edit(e->key())) {
        QWidget::keyPressEvent(e);
    }
}

void DrawingView::keyReleaseEvent(QKeyEvent *e)
{
    if (e->key() == Qt::Key_Space && !e->isAutoRepeat()) {
        m_space = false;
        showCursor();
    } else {
        QWidget::keyReleaseEvent(e);
    }
}

void DrawingView::focusOutEvent(QFocusEvent *e)
{
    m_space = false; // its release will come to another window
    showCursor();
    QWidget::focusOutEvent(e);
}

void DrawingView::changeEvent(QEvent *e)
{
    if (e->type() == QEvent::PaletteChange) update();
    QWidget::changeEvent(e);
}

bool DrawingView::event(QEvent *e)
{
    if (e->type() == QEvent::NativeGesture) {
        const auto *g = static_cast<QNativeGestureEvent *>(e);
        if (g->gestureType() != Qt::ZoomNativeGesture) return QWidget::event(e);
        zoomAt(g->position(), 1 + g->value());
        return true;
    }
    if (e->type() == QEvent::Gesture)
        if (const auto *pinch =
                static_cast<QPinchGesture *>(static_cast<QGestureEvent *>(e)->gesture(Qt::PinchGesture))) {
            zoomAt(mapFromGlobal(pinch->hotSpot().toPoint()), pinch->scaleFactor());
            return true;
        }
    return QWidget::event(e);
}

} // namespace refhost
