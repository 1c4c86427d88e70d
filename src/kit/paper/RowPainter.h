#pragma once

#include "kit/paper/SheetLayout.h"

#include <QLineF>
#include <QList>

class QPainter;

namespace QV_DOC_CONTROLS {

/// Draws captions, bands and records of one page; the lines between them are gathered and drawn by finish().
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
    void use(const PaperFont &font);
    void use(const QColor &ink);

    QPainter &m_painter;
    const SheetLayout &m_layout;
    const SheetLayout::Strip &m_strip;
    const PaperFont *m_font = nullptr;      ///< as the painter has it
    QColor m_ink;
    int m_lines = SheetLayout::kMostLines;  ///< that a cell's text may take
    double m_top;
    double m_columnsTop;                    ///< where the lines between columns begin; bands interrupt them
    QList<QLineF> m_rules;
};

} // namespace QV_DOC_CONTROLS
