#include "kit/paper/RowPainter.h"

#include "kit/paper/Ink.h"

#include <QGlyphRun>
#include <QPainter>

namespace QV_DOC_CONTROLS {
namespace {

constexpr double kHairline = kUnitsPerInch / 288.0; ///< a quarter of a point
constexpr double kCheckPerLine = 0.72;              ///< side of a check box in line heights
/// By level, the outermost darkest.
constexpr QRgb kBandFills[] = {0xffdcdcdc, 0xffe8e8e8, 0xfff0f0f0, 0xfff6f6f6};

double startOf(Qt::Alignment alignment, const QRectF &box, double width)
{
    if (alignment & Qt::AlignRight) return box.right() - width;
    if (alignment & Qt::AlignHCenter) return box.center().x() - width / 2;
    return box.left();
}

} // namespace

RowPainter::RowPainter(QPainter &painter, const SheetLayout &layout, const SheetLayout::Strip &strip)
    : m_painter(painter), m_layout(layout), m_strip(strip), m_ink(kInk), m_top(layout.captionsTop()),
      m_columnsTop(m_top)
{
}

void RowPainter::flushTexts()
{
    for (const Run &run : m_runs) {
        if (run.glyphs.indexes.isEmpty()) continue; // its text was drawn as text
        QGlyphRun glyphs;
        glyphs.setRawFont(run.font->rawFont());
        glyphs.setGlyphIndexes(run.glyphs.indexes);
        glyphs.setPositions(run.glyphs.places);
        m_painter.setPen(QColor::fromRgb(run.ink));
        m_painter.drawGlyphRun({}, glyphs);
    }
    m_runs.clear();
}

void RowPainter::text(const QString &text, const PaperFont &font, const QRectF &box, Qt::Alignment alignment)
{
    if (text.isEmpty() || box.width() <= 0) return;
    auto run = std::ranges::find_if(m_runs, [&](const Run &r) { return r.font == &font && r.ink == m_ink; });
    if (run == m_runs.end()) run = m_runs.insert(run, {&font, m_ink, {}});
    const QStringList lines = font.lines(text, box.width(), m_lines);
    double y = box.center().y() - double(lines.size()) * font.lineHeight() / 2 + font.ascent();
    for (const QString &line : lines) {
        const double x = alignment & Qt::AlignLeft ? box.left() : startOf(alignment, box, font.width(line));
        if (!font.addGlyphs(line, {x, y}, run->glyphs)) {
            m_painter.setFont(font.font());
            m_painter.setPen(QColor::fromRgb(m_ink));
            m_painter.drawText(QPointF(x, y), line);
        }
        y += font.lineHeight();
    }
}

void RowPainter::captions()
{
    const QRectF all(m_strip.edges.front(), m_top, m_strip.edges.back() - m_strip.edges.front(),
                     m_layout.captionsHeight());
    if (all.isEmpty()) return;
    m_painter.fillRect(all, QColor::fromRgb(kCaptionFill));
    m_rules << QLineF(all.topLeft(), all.topRight()) << QLineF(all.bottomLeft(), all.bottomRight());
    m_lines = SheetLayout::kMostCaptionLines;
    m_ink = kInk;
    for (size_t i = 0; i < m_strip.columns.size(); ++i) {
        const auto &column = m_layout.columns()[size_t(m_strip.columns[i])];
        const QRectF box(QPointF(m_strip.edges[i], all.top()), QPointF(m_strip.edges[i + 1], all.bottom()));
        text(column.caption, m_layout.boldFont(), box.adjusted(m_layout.pad(), 0, -m_layout.pad(), 0),
             column.alignment);
    }
    flushTexts();
    m_lines = SheetLayout::kMostLines;
    m_top = all.bottom();
}

void RowPainter::row(const SheetSource::Row &row, double height)
{
    const QRectF all(m_strip.edges.front(), m_top, m_strip.edges.back() - m_strip.edges.front(), height);
    if (row.level >= 0) {
        band(row, all);
    } else {
        for (size_t i = 0; i < m_strip.columns.size(); ++i) {
            const size_t c = size_t(m_strip.columns[i]);
            if (c >= row.cells.size()) continue;
            const QRectF box(QPointF(m_strip.edges[i], all.top()),
                             QPointF(m_strip.edges[i + 1], all.bottom()));
            cell(row.cells[c], m_layout.columns()[c].alignment, box);
        }
    }
    flushTexts();
    m_rules << QLineF(all.bottomLeft(), all.bottomRight());
    m_top = all.bottom();
}

void RowPainter::band(const SheetSource::Row &row, const QRectF &box)
{
    const int level = std::min(row.level, int(std::size(kBandFills)) - 1);
    m_painter.fillRect(box, QColor::fromRgb(kBandFills[level]));
    for (double x : m_strip.edges) m_rules << QLineF(x, m_columnsTop, x, box.top());
    m_columnsTop = box.bottom();
    m_rules << QLineF(box.topLeft(), box.bottomLeft()) << QLineF(box.topRight(), box.bottomRight());
    if (row.cells.empty()) return;
    m_ink = kInk;
    const double indent = m_layout.pad() + level * 1.5 * m_layout.font().lineHeight();
    m_lines = 1;
    text(row.cells[0].text, m_layout.boldFont(), box.adjusted(indent, 0, -m_layout.pad(), 0), Qt::AlignLeft);
    m_lines = SheetLayout::kMostLines;
}

void RowPainter::cell(const SheetSource::Cell &cell, Qt::Alignment alignment, const QRectF &box)
{
    QRectF inside = box.adjusted(m_layout.pad(), 0, -m_layout.pad(), 0);
    if (cell.background.isValid()) swatch(cell.background, box);
    const bool grayed = cell.grayed && !cell.background.isValid();
    m_ink = inkOn(cell.background, grayed ? QColor::fromRgb(kGrayInk) : cell.color).rgb();
    if (!cell.picture.isNull()) inside.setLeft(inside.left() + picture(cell, inside, alignment));
    if (cell.check >= 0) {
        check(cell.check > 0, inside, cell.text.isEmpty() ? Qt::AlignHCenter : Qt::AlignLeft);
        inside.setLeft(inside.left() + m_layout.font().lineHeight());
    }
    text(cell.text, m_layout.font(), inside, alignment);
}

void RowPainter::swatch(const QColor &color, const QRectF &box)
{
    const double gap = m_layout.pad() / 4;
    const QRectF inner = box.adjusted(gap, gap, -gap, -gap);
    m_painter.fillRect(inner, color);
    m_frames << inner;                      // white swatches have an edge too
}

void RowPainter::check(bool on, const QRectF &box, Qt::Alignment alignment)
{
    const double side = m_layout.font().lineHeight() * kCheckPerLine;
    const QRectF square(startOf(alignment, box, side), box.center().y() - side / 2, side, side);
    Marks &marks = m_checks[m_ink];
    marks.boxes.addRect(square);
    if (!on) return;
    marks.ticks.moveTo(square.topLeft() + QPointF(side * 0.2, side * 0.52));
    marks.ticks.lineTo(square.topLeft() + QPointF(side * 0.42, side * 0.76));
    marks.ticks.lineTo(square.topLeft() + QPointF(side * 0.82, side * 0.24));
}

void RowPainter::flushChecks()
{
    const double side = m_layout.font().lineHeight() * kCheckPerLine;
    m_painter.setBrush(Qt::NoBrush);
    for (const auto &[ink, marks] : m_checks.asKeyValueRange()) {
        m_painter.setPen(QPen(QColor::fromRgb(ink), side / 12));
        m_painter.drawPath(marks.boxes);
        m_painter.setPen(QPen(QColor::fromRgb(ink), side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPath(marks.ticks);
    }
    m_checks.clear();
}

/// Draws it as large as on the screen or as its cell allows; the width that a text beside it must leave.
double RowPainter::picture(const SheetSource::Cell &cell, const QRectF &box, Qt::Alignment alignment)
{
    const QSizeF natural = cell.picture.deviceIndependentSize() * m_layout.unitsPerPixel();
    const QSizeF room(box.width(), box.height() - 2 * kHairline);
    QSizeF size = natural;
    if (size.width() > room.width() || size.height() > room.height()) size.scale(room, Qt::KeepAspectRatio);
    const double x = cell.text.isEmpty() ? startOf(alignment, box, size.width()) : box.left();
    const QRectF place(QPointF(x, box.center().y() - size.height() / 2), size);
    m_painter.save();
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (cell.grayed) m_painter.setOpacity(0.5);
    m_painter.drawPixmap(place, cell.picture, QRectF(cell.picture.rect()));
    m_painter.restore();
    return size.width() + m_layout.pad();
}

void RowPainter::finish()
{
    flushChecks();
    for (double x : m_strip.edges) m_rules << QLineF(x, m_columnsTop, x, m_top);
    m_painter.setPen(QPen(QColor::fromRgb(kRule), kHairline));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRects(m_frames);
    m_painter.drawLines(m_rules);
}

} // namespace QV_DOC_CONTROLS
