#pragma once

#include "kit/grid/ColumnRanks.h"
#include "kit/grid/SortKey.h"

#include <QLocale>
#include <QSet>

#include <map>
#include <optional>
#include <span>
#include <vector>

namespace QV_DOC_CONTROLS {

/// Order, groups and visible lines of a table, without a widget: up to four group levels and four sort keys
/// over ranks.
///
/// "Row" is a row of the source. "Line" is what a view shows: a row or a group band; lines are counted from
/// 0. Rows that the filter leaves out have no line; neither have rows in a collapsed band, which still count
/// as shown.
class RowEngine {
public:
    struct Band {
        int level = 0;          ///< 0..3
        int parent = -1;        ///< band
        int begin = 0;          ///< first place in the order of shown rows
        int count = 0;          ///< rows in it, at every depth
        bool expanded = true;
    };
    struct Span { int first = 0, count = 0; };              ///< lines
    struct Move { int from = 0, to = 0; };                  ///< lines, `to` counted without the moved one

    explicit RowEngine(const RowCells &cells) : m_cells(&cells) { setLocale(QLocale::c()); }
    void setLocale(const QLocale &locale);                  ///< order of texts; digits count as numbers
    void restart();                                         ///< another table: no keys, no filter, no states
    /// Other rows of the table, see setFitting(), maybe with fewer columns.
    void refill(std::vector<bool> fitting, std::vector<SortKey> groups, std::vector<SortKey> sorts);
    void setKeys(std::span<const SortKey> groups, std::span<const SortKey> sorts);
    void setFitting(std::vector<bool> rows);                ///< by row; empty = all
    const std::vector<SortKey> &groupLevels() const { return m_groups; }
    const std::vector<SortKey> &sortKeys() const { return m_sorts; }

    /// Takes note of one row's values. Its line stays until place() or rebuild().
    void rowEdited(int row, bool fits);
    std::optional<Move> targetOf(int row); ///< of an edited row; empty = it takes a rebuild()
    void place(int row, const Move &move);
    void rebuild();

    bool prepare(int column);                               ///< one step of a column's ranks; true = ready

    int lines() const { return int(m_lines.size()); }
    int rowAt(int line) const { return m_lines[size_t(line)]; }             ///< negative = a band
    int bandAt(int line) const { return ~m_lines[size_t(line)]; }           ///< negative = a row
    int lineOf(int row) const;                              ///< -1 = none
    bool isShown(int row) const { return m_fits.empty() || m_fits[size_t(row)]; }
    int shownCount() const { return int(m_shown.size()); }
    const std::vector<qint32> &shownRows() const { return m_shown; }        ///< in order, collapsed ones too
    const Band &band(int b) const { return m_bands[size_t(b)]; }
    int bandCount() const { return int(m_bands.size()); }
    int firstRowOf(int b) const { return m_shown[size_t(m_bands[size_t(b)].begin)]; }
    int lineOfBand(int b) const;                            ///< -1 = inside a collapsed one
    std::vector<int> bandsOver(int row) const;              ///< the outermost first
    std::vector<int> closedBandsOver(int row) const;

    Span toggled(int b) const; ///< lines that come or go when the band is toggled
    void toggle(int b);
    void setAllExpanded(bool expanded); ///< every band, also such as come later; then rebuild()
    bool expandedByDefault() const { return m_expandedByDefault; }

private:
    ColumnRanks &ranks(int column);
    void sortRows();
    bool before(int a, int b);                              ///< in the order of every row
    bool isInPlace(int row);
    int placeIn(const std::vector<qint32> &rows, int row, int at);
    void findBands();
    void openBands(int fromLevel, int at, std::vector<int> &open);
    void listLines();
    void appendLines(int b, std::vector<qint32> &lines) const;
    size_t pathOf(int b) const;
    int endOfSubtree(int b) const;

    const RowCells *m_cells;
    QCollator m_collator;
    std::vector<SortKey> m_groups, m_sorts;
    std::map<int, ColumnRanks> m_ranks;                     ///< by column, as far as needed
    std::vector<bool> m_fits;                               ///< by row; empty = all
    bool m_stale = false;                                   ///< an edit changed bands, or what fits
    std::vector<qint32> m_order;                            ///< every row
    std::vector<qint32> m_shown;                            ///< those that fit, in order
    std::vector<Band> m_bands;                              ///< each before the ones inside it
    std::vector<qint32> m_lines;                            ///< a row, or the complement of a band
    mutable std::vector<qint32> m_lineOf;                   ///< by row; empty = not known yet
    QSet<size_t> m_flipped;                                 ///< paths of bands that are not as by default
    bool m_expandedByDefault = true;
};

} // namespace QV_DOC_CONTROLS
