#include "kit/paper/SheetPreview.h"

#include "kit/paper/Ink.h"
#include "kit/paper/SheetPainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kCacheKiB = 96 * 1024;
constexpr int kMostPageKiB = 32 * 1024; ///< larger ones (A0 at 200 %) are drawn straight to the window

} // namespace

SheetPreview::SheetPreview(QWidget *parent) : QAbstractScrollArea(parent), m_drawn(kCacheKiB)
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Dark);
}

const std::vector<double> &SheetPreview::zoomSteps()
{
    static const std::vector<double> steps{0.5, 0.75, 1, 1.5, 2, 3};
    return steps;
}

int SheetPreview::pageCount() const { return m_sheet ? m_sheet->pageCount() : 0; }
int SheetPreview::gap() const { return fontMetrics().height() / 2; }

double SheetPreview::scale() const
{
    if (!m_sheet) return 1;
    const QSizeF paper = m_sheet->paperSize();
    const double wide = std::max(viewport()->width() - 2 * gap(), 1) / paper.width();
    if (m_zoom == kPageWidth) return wide;
    if (m_zoom == kWholePage)
        return std::min(wide, std::max(viewport()->height() - 2 * gap(), 1) / paper.height());
    return m_zoom * logicalDpiX() / kUnitsPerInch;
}

QSizeF SheetPreview::pageSize() const
{
    const QSizeF exact = m_sheet ? m_sheet->paperSize() * scale() : QSizeF();
    return {std::floor(exact.width()), std::floor(exact.height())};
}

void SheetPreview::setSheet(const SheetPainter *sheet)
{
    m_sheet = sheet;
    m_place = std::min(m_place, std::max(double(pageCount()) - 0.5, 0.5));
    m_toldPage = -1;
    layOut();
}

void SheetPreview::setZoom(double zoom)
{
    if (m_zoom == zoom) return;
    m_zoom = zoom;
    layOut();
    emit zoomChanged(zoom);
}

void SheetPreview::stepZoom(int direction)
{
    const double now = scale() * kUnitsPerInch / logicalDpiX();
    const auto &steps = zoomSteps();
    constexpr double kSame = 0.001;
    const auto above = std::ranges::find_if(steps, [&](double s) { return s > now + kSame; });
    const auto reached = std::ranges::find_if(steps, [&](double s) { return s >= now - kSame; });
    if (direction > 0 && above != steps.end()) setZoom(*above);
    if (direction < 0 && reached != steps.begin()) setZoom(*std::prev(reached));
}

void SheetPreview::layOut()
{
    m_drawn.clear();
    m_layingOut = true;
    const QSizeF page = pageSize();
    const double step = page.height() + gap();
    const int whole = int(step * pageCount()) + gap();
    verticalScrollBar()->setRange(0, std::max(whole - viewport()->height(), 0));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(std::max(fontMetrics().height() * 2, 1));
    horizontalScrollBar()->setRange(0, std::max(int(page.width()) + 2 * gap() - viewport()->width(), 0));
    horizontalScrollBar()->setPageStep(viewport()->width());
    verticalScrollBar()->setValue(
        int(std::lround(m_place * step + gap() / 2.0 - viewport()->height() / 2.0)));
    m_layingOut = false;
    viewport()->update();
    tellPage();
}

int SheetPreview::currentPage() const
{
    return pageCount() == 0 ? -1 : std::clamp(int(m_place), 0, pageCount() - 1);
}

void SheetPreview::goToPage(int page)
{
    if (page < 0 || page >= pageCount()) return;
    const double step = pageSize().height() + gap();
    // A page lower than the window shows whole and in the middle; of a higher one the top.
    const double free = std::max((viewport()->height() - step) / 2, 0.0);
    verticalScrollBar()->setValue(int(std::lround(page * step + gap() / 2.0 - free)));
    m_place = page + 0.5;
    tellPage();
}

void SheetPreview::tellPage()
{
    const int page = currentPage();
    if (page == m_toldPage) return;
    m_toldPage = page;
    if (m_sheet && page >= 0) setAccessibleDescription(m_sheet->footerOf(page));
    emit currentPageMoved(page);
}

void SheetPreview::scrollContentsBy(int, int)
{
    viewport()->update();
    if (m_layingOut) return;
    const double step = pageSize().height() + gap();
    m_place = (verticalScrollBar()->value() + viewport()->height() / 2.0 - gap() / 2.0) / std::max(step, 1.0);
    tellPage();
}

void SheetPreview::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

QPointF SheetPreview::cornerOf(int page) const
{
    const QSizeF size = pageSize();
    const double left = std::max((viewport()->width() - size.width()) / 2, double(gap()));
    return {std::floor(left) - horizontalScrollBar()->value(),
            std::floor(gap() + page * (size.height() + gap())) - verticalScrollBar()->value()};
}

void SheetPreview::paintEvent(QPaintEvent *event)
{
    if (!m_sheet) return;
    QPainter painter(viewport());
    const double step = pageSize().height() + gap();
    const int first = std::clamp(int((verticalScrollBar()->value() - gap()) / step), 0, pageCount() - 1);
    for (int page = first; page < pageCount() && cornerOf(page).y() < viewport()->height(); ++page)
        if (QRectF(cornerOf(page), pageSize()).intersects(event->rect())) drawPage(painter, page);
}

void SheetPreview::drawPage(QPainter &painter, int page)
{
    const QRectF place(cornerOf(page), pageSize());
    const auto paint = [&](QPainter &on) {
        on.fillRect(QRectF(QPointF(), place.size()), QColor::fromRgb(kPaper));
        on.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        on.scale(scale(), scale());
        m_sheet->paintPage(on, page);
    };
    const double ratio = devicePixelRatioF();
    const qint64 kib = qint64(place.width() * ratio * place.height() * ratio * 4 / 1024);
    if (kib > kMostPageKiB) {
        painter.save();
        painter.translate(place.topLeft());
        paint(painter);
        painter.restore();
        return;
    }
    if (const QPixmap *drawn = m_drawn.object(page)) return painter.drawPixmap(place.topLeft(), *drawn);
    QPixmap picture((place.size() * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    {
        QPainter on(&picture);
        paint(on);
    }
    painter.drawPixmap(place.topLeft(), picture);
    m_drawn.insert(page, new QPixmap(std::move(picture)), int(kib) + 1);
}

void SheetPreview::keyPressEvent(QKeyEvent *event)
{
    const bool control = event->modifiers() & Qt::ControlModifier;
    switch (event->key()) {
    case Qt::Key_PageDown: return nextPage();
    case Qt::Key_PageUp: return previousPage();
    case Qt::Key_Home: return goToPage(0);
    case Qt::Key_End: return goToPage(pageCount() - 1);
    case Qt::Key_Plus: if (control) return stepZoom(1); break;
    case Qt::Key_Minus: if (control) return stepZoom(-1); break;
    default: break;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void SheetPreview::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) stepZoom(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

} // namespace QV_DOC_CONTROLS
