#include "kit/paper/SheetPainter.h"

#include "kit/paper/Ink.h"
#include "kit/paper/RowPainter.h"

#include <QPainter>

namespace QV_DOC_CONTROLS {

SheetPainter::SheetPainter(const SheetSource &source, SheetTitles titles, const QPageLayout &paper)
    : m_source(&source), m_titles(std::move(titles)), m_layout(source, !m_titles.header.isEmpty(), paper)
{
}

QString SheetPainter::footerOf(int page) const
{
    QString number = QString::number(page + 1);
    if (m_titles.withPageCount) number += u'/' + QString::number(pageCount());
    return m_titles.footerBefore + number + m_titles.footerAfter;
}

QSizeF SheetPainter::paperSize() const
{
    return m_layout.paper().fullRect(QPageLayout::Inch).size() * kUnitsPerInch;
}

void SheetPainter::paintPage(QPainter &painter, int page) const
{
    painter.save();
    painter.setPen(QColor::fromRgb(kInk));
    const QRectF area = m_layout.area();
    const PaperFont &large = m_layout.titleFont();
    painter.setFont(large.font());
    painter.drawText(QPointF(area.left(), area.top() + large.ascent()),
                     large.lines(m_titles.header, area.width(), 1).value(0));
    const PaperFont &small = m_layout.font();
    painter.setFont(small.font());
    const QString footer = footerOf(page);
    painter.drawText(QPointF(area.center().x() - small.width(footer) / 2,
                             area.bottom() - small.lineHeight() + small.ascent()), footer);

    const SheetLayout::Page rows = m_layout.page(page);
    RowPainter table(painter, m_layout, m_layout.strip(rows.strip));
    table.captions();
    for (int r = rows.firstRow; r < rows.endRow; ++r) table.row(m_source->sheetRow(r), m_layout.rowHeight(r));
    table.finish();
    painter.restore();
}

} // namespace QV_DOC_CONTROLS
