#pragma once

#include "kit/grid/SheetSource.h"
#include "kit/paper/PaperFont.h"

#include <QPageLayout>
#include <QRectF>

namespace QV_DOC_CONTROLS {

/// Where everything of a sheet stands on its pages; all lengths in paper units from the paper's corner.
///
/// Columns are as wide as on the screen. Where the page has less room, their blanks go first, then the
/// letters shrink; below the smallest legible ones columns go on upon further pages across, each of which
/// begins with the first column. A record takes one line, or two where a text is longer than its column. No
/// row is cut by a page's end, and a band stands on the page of the first row below it.
class SheetLayout {
public:
    static constexpr double kPoints = 9, kSmallestPoints = 6.5;   ///< letters of the table
    static constexpr int kMostLines = 2, kMostCaptionLines = 3;

    /// Columns that stand side by side on one page.
    struct Strip {
        std::vector<int> columns;           ///< indices of the source's columns
        std::vector<double> edges;          ///< left edge of each, and the right edge of the last
    };
    struct Page {
        int firstRow = 0, endRow = 0;       ///< rows of the source
        int strip = 0;
    };
    SheetLayout(const SheetSource &source, bool withHeader, const QPageLayout &paper);

    int pageCount() const { return int(m_breaks.size() - 1) * int(m_strips.size()); }
    Page page(int number) const;            ///< from 0; pages across first
    const std::vector<SheetSource::Column> &columns() const { return m_columns; }
    const Strip &strip(int index) const { return m_strips[size_t(index)]; }
    int strips() const { return int(m_strips.size()); }
    double rowHeight(int row) const { return m_heights[size_t(row)]; }

    const QPageLayout &paper() const { return m_paper; }
    QRectF area() const { return m_area; }  ///< between the margins
    double captionsTop() const;
    double captionsHeight() const { return m_captionsHeight; }
    double bodyTop() const { return captionsTop() + m_captionsHeight; }
    double bodyBottom() const;
    double pad() const { return m_pad; }    ///< blank between a cell's edge and its text
    const PaperFont &font() const { return *m_font; }
    const PaperFont &boldFont() const { return *m_boldFont; }
    const PaperFont &titleFont() const { return m_titleFont; }
    double unitsPerPixel() const { return m_unitsPerPixel; } ///< of the screen; also of pictures

private:
    std::vector<double> wantedWidths() const;
    std::vector<double> neededWidths(const SheetSource &source, const std::vector<double> &wanted) const;
    void sizeLetters(double points);
    void fitColumns(const SheetSource &source);
    void takeCaptionsHeight();
    void cutStrips(const std::vector<double> &widths);
    double heightOf(const SheetSource::Row &row, const std::vector<double> &rooms) const;
    void breakPages(const SheetSource &source);

    QPageLayout m_paper;
    QRectF m_area;
    bool m_withHeader;
    std::vector<SheetSource::Column> m_columns;
    std::vector<Strip> m_strips;
    std::vector<double> m_widths;           ///< of all columns
    std::vector<float> m_heights;           ///< of all rows
    std::vector<int> m_breaks;              ///< first row of each page downwards, and the number of rows
    PaperFont m_titleFont;
    std::shared_ptr<const PaperFont> m_font, m_boldFont; ///< shrunk to fit
    double m_unitsPerPixel = 1, m_pad = 0, m_captionsHeight = 0;
};

} // namespace QV_DOC_CONTROLS
