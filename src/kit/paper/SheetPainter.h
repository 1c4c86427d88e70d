#pragma once

#include "kit/paper/SheetLayout.h"

class QPagedPaintDevice;
class QPainter;

namespace QV_DOC_CONTROLS {

/// The one painter of a table's pages: for the preview, the printer and PDF alike.
///
/// Shows exactly what the source shows, black on white whatever the palette. The layout is computed once,
/// here; the source must stay as it is while the painter lives. Not copied: pages may be many.
class SheetPainter {
public:
    SheetPainter(const SheetSource &source, SheetTitles titles, const QPageLayout &paper);
    SheetPainter(const SheetPainter &) = delete;
    SheetPainter &operator=(const SheetPainter &) = delete;

    int pageCount() const { return m_layout.pageCount(); }
    const SheetLayout &layout() const { return m_layout; }
    const SheetTitles &titles() const { return m_titles; }
    QString footerOf(int page) const;
    QSizeF paperSize() const;               ///< paper units

    /// The painter's origin is the paper's corner and its unit the paper unit; the ground is not filled.
    void paintPage(QPainter &painter, int page) const;

private:
    const SheetSource *m_source;
    SheetTitles m_titles;
    SheetLayout m_layout;
};

} // namespace QV_DOC_CONTROLS
