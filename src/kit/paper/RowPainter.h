#pragma once

#include "kit/paper/SheetLayout.h"

#include <QHash>
#include <QLineF>
#include <QList>
#include <QPainterPath>

class QPainter;

namespace QV_DOC_CONTROLS {

/// Draws captions, bands and records of one page. Texts of a row are drawn together, lines and check marks of
/// the page by finish(): a file of few long strokes is written several times faster than one of many short
/// ones.
class RowPainter {
public:
    RowPainter(QPainter &painter, const SheetLayout &layout, const SheetLayout::Strip &strip);
    void captions();
    void row(const SheetSource::Row &row, double height);   ///< goes on downwards from the row before
    void finish();

private:
    void band(const SheetSource::Row &row, const QRectF &box);
    void cell(const SheetSource::Cell &cell, Qt::Alignment alignment, const QRectF &box);
    void swatch(const QColor &color, const QRectF &box);
    void check(bool on, const QRectF &box, Qt::Alignment alignment);
    double picture(const SheetSource::Cell &cell, const QRectF &box, Qt::Alignment alignment);
    void text(const QString &text, const PaperFont &font, const QRectF &box, Qt::Alignment alignment);
    void flushTexts();
    void flushChecks();

    QPainter &m_painter;
    const SheetLayout &m_layout;
    const SheetLayout::Strip &m_strip;
    struct Run {
        const PaperFont *font;
        QRgb ink;
        PaperFont::Glyphs glyphs;
    };
    struct Marks {
        QPainterPath boxes, ticks;
    };
    std::vector<Run> m_runs;                ///< of the row
    QHash<QRgb, Marks> m_checks;            ///< of the page, by ink
    QRgb m_ink;                             ///< of the cell
    int m_lines = SheetLayout::kMostLines;  ///< that a cell's text may take
    double m_top;
    double m_columnsTop;                    ///< where the lines between columns begin; bands interrupt them
    QList<QLineF> m_rules;
    QList<QRectF> m_frames;                 ///< of swatches
};

} // namespace QV_DOC_CONTROLS
