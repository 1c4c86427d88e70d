#include "kit/paper/SheetLayout.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <memory>
#include <numeric>

namespace QV_DOC_CONTROLS {
namespace {

constexpr double kPadPerLine = 0.25;        ///< blank beside a text, in line heights
constexpr double kRowPadPerLine = 0.12;     ///< above and below it
constexpr double kMostPictureLines = 3;     ///< pictures of a row are not higher
constexpr double kGapPerLine = 0.5;         ///< between header, table and footer
constexpr double kRoundingSlack = 1.03;

QFont boldened(QFont font)
{
    font.setBold(true);
    return font;
}

std::shared_ptr<const PaperFont> sized(const QFont &font, double points)
{
    return std::make_shared<const PaperFont>(font, points);
}

QRectF areaOf(const QPageLayout &paper)
{
    const QSizeF size = paper.fullRect(QPageLayout::Inch).size() * kUnitsPerInch;
    const QMarginsF margins = paper.margins(QPageLayout::Inch) * kUnitsPerInch;
    return QRectF(QPointF(), size).marginsRemoved(margins);
}

double sumOf(const std::vector<double> &widths) { return std::accumulate(widths.begin(), widths.end(), 0.0); }

bool staysWithNext(int level, int next) { return level >= 0 && (next < 0 || next > level); }

} // namespace

SheetLayout::SheetLayout(const SheetSource &source, bool withHeader, const QPageLayout &paper)
    : m_paper(paper), m_area(areaOf(paper)), m_withHeader(withHeader), m_columns(source.sheetColumns()),
      m_titleFont(boldened(QGuiApplication::font()), kPoints * 1.3)
{
    fitColumns(source);
    breakPages(source);
}

/// As on the screen, but wide enough for its caption, which is never cut.
std::vector<double> SheetLayout::wantedWidths() const
{
    constexpr double kStep = 1.06;
    const auto cut = [this](const QString &caption, double room) {
        return m_boldFont->lines(caption, room, kMostCaptionLines + 1).size() > kMostCaptionLines;
    };
    std::vector<double> widths;
    for (const SheetSource::Column &c : m_columns) {
        double room = std::max(c.width * m_unitsPerPixel - 2 * m_pad, m_boldFont->widestWord(c.caption));
        while (cut(c.caption, room) && room < m_area.width()) room *= kStep;
        widths.push_back(room + 2 * m_pad);
    }
    return widths;
}

/// What the captions and some rows from all over the table fill on one line, at most what the screen gives.
std::vector<double> SheetLayout::neededWidths(const SheetSource &source,
                                              const std::vector<double> &wanted) const
{
    constexpr int kRows = 400;
    std::vector<double> needed(m_columns.size());
    for (size_t c = 0; c < needed.size(); ++c) needed[c] = m_boldFont->widestWord(m_columns[c].caption);
    const int step = std::max(1, source.sheetRows() / kRows);
    for (int r = 0; r < source.sheetRows(); r += step) {
        const SheetSource::Row row = source.sheetRow(r);
        for (size_t c = 0; row.level < 0 && c < std::min(row.cells.size(), needed.size()); ++c) {
            const SheetSource::Cell &cell = row.cells[c];
            double width = cell.text.isEmpty() ? 0 : m_font->width(cell.text);
            if (cell.check >= 0) width += m_font->lineHeight();
            if (!cell.picture.isNull())
                width += cell.picture.deviceIndependentSize().width() * m_unitsPerPixel + m_pad;
            needed[c] = std::max(needed[c], width);
        }
    }
    for (size_t c = 0; c < needed.size(); ++c) needed[c] = std::min(needed[c] + 2 * m_pad, wanted[c]);
    return needed;
}

void SheetLayout::sizeLetters(double points)
{
    const QFont screen = QGuiApplication::font();
    m_font = sized(screen, points);
    m_boldFont = sized(boldened(screen), points);
    m_pad = m_font->lineHeight() * kPadPerLine;
    m_unitsPerPixel = double(m_font->font().pixelSize()) / std::max(QFontInfo(screen).pixelSize(), 1);
}

void SheetLayout::fitColumns(const SheetSource &source)
{
    const double room = m_area.width();
    sizeLetters(kPoints);
    m_widths = wantedWidths();
    double whole = sumOf(m_widths);
    if (whole > room) {
        std::vector<double> needed = neededWidths(source, m_widths);
        double least = sumOf(needed);
        if (least > room) {
            sizeLetters(std::max(kPoints * room / least, kSmallestPoints));
            m_widths = wantedWidths();
            needed = neededWidths(source, m_widths);
            whole = sumOf(m_widths), least = sumOf(needed);
        }
        const double share = whole > least ? std::clamp((room - least) / (whole - least), 0.0, 1.0) : 0;
        // Sizes of letters are whole units: what rounding leaves over the edge is taken off every column.
        const double over = least > room && least < room * kRoundingSlack ? room / least : 1;
        for (size_t c = 0; c < needed.size(); ++c)
            m_widths[c] = (needed[c] + (m_widths[c] - needed[c]) * share) * over;
    }
    for (double &w : m_widths) w = std::min(w, room);
    cutStrips(m_widths);
    takeCaptionsHeight();
}

void SheetLayout::takeCaptionsHeight()
{
    int lines = 0;
    for (size_t c = 0; c < m_columns.size(); ++c) {
        const double room = m_widths[c] - 2 * m_pad;
        lines = std::max(lines, int(m_boldFont->lines(m_columns[c].caption, room, kMostCaptionLines).size()));
    }
    m_captionsHeight = lines == 0 ? 0 : (lines + 3 * kRowPadPerLine) * m_boldFont->lineHeight();
}

void SheetLayout::cutStrips(const std::vector<double> &widths)
{
    constexpr double kSlack = 0.5;
    constexpr double kMostRepeated = 1.0 / 3;  ///< of the page: a wider first column is not worth repeating
    const bool repeats = widths.size() > 1 && widths[0] <= m_area.width() * kMostRepeated;
    m_strips.assign(1, {{}, {m_area.left()}});
    const auto put = [this](Strip &strip, int column, double width) {
        strip.columns.push_back(column);
        strip.edges.push_back(std::min(strip.edges.back() + width, m_area.right()));
    };
    for (int c = 0; c < int(widths.size()); ++c) {
        const double width = widths[size_t(c)];
        if (!m_strips.back().columns.empty()
            && m_strips.back().edges.back() + width > m_area.right() + kSlack) {
            m_strips.push_back({{}, {m_area.left()}});
            if (repeats && widths[0] + width <= m_area.width()) put(m_strips.back(), 0, widths[0]);
        }
        put(m_strips.back(), c, width);
    }
}

double SheetLayout::heightOf(const SheetSource::Row &row, const std::vector<double> &rooms) const
{
    const double line = m_font->lineHeight();
    double content = line;
    if (row.level < 0) {
        for (size_t c = 0; c < std::min(row.cells.size(), rooms.size()); ++c) {
            const SheetSource::Cell &cell = row.cells[c];
            if (!cell.text.isEmpty() && !m_font->fits(cell.text, rooms[c]))
                content = std::max(content, kMostLines * line);
            if (!cell.picture.isNull())
                content = std::max(content,
                                   std::min(cell.picture.deviceIndependentSize().height() * m_unitsPerPixel,
                                            kMostPictureLines * line));
        }
    }
    return content + 2 * kRowPadPerLine * line;
}

void SheetLayout::breakPages(const SheetSource &source)
{
    const int rows = source.sheetRows();
    const double room = std::max(bodyBottom() - bodyTop(), 0.0);
    std::vector<double> rooms;
    for (double w : m_widths) rooms.push_back(w - 2 * m_pad);
    std::vector<qint8> levels;
    m_breaks.assign(1, 0);
    double used = 0;
    for (int r = 0; r < rows; ++r) {
        const SheetSource::Row row = source.sheetRow(r);
        levels.push_back(qint8(row.level));
        m_heights.push_back(float(heightOf(row, rooms)));
        used += m_heights.back();
        if (used <= room || r == m_breaks.back()) continue;
        int first = r;                      // bands directly above go along with their first row
        while (first > m_breaks.back() && staysWithNext(levels[size_t(first - 1)], levels[size_t(first)]))
            --first;
        if (first == m_breaks.back()) first = r; // a page of bands only: there is no better place
        m_breaks.push_back(first);
        used = std::accumulate(m_heights.begin() + first, m_heights.end(), 0.0);
    }
    if (rows > 0 || m_breaks.size() < 2) m_breaks.push_back(rows);
}

SheetLayout::Page SheetLayout::page(int number) const
{
    const size_t down = size_t(number) / m_strips.size();
    return {m_breaks[down], m_breaks[down + 1], int(size_t(number) % m_strips.size())};
}

double SheetLayout::captionsTop() const
{
    return m_area.top() + (m_withHeader ? m_titleFont.lineHeight() + kGapPerLine * m_font->lineHeight() : 0);
}

double SheetLayout::bodyBottom() const { return m_area.bottom() - (1 + kGapPerLine) * m_font->lineHeight(); }

} // namespace QV_DOC_CONTROLS
