#pragma once

#include <QString>

#include <vector>

namespace QV_DOC_CONTROLS {

/// How the user left a grid, keyed by column key, so that it outlives a change of language and of the column
/// set.
struct GridState {
    struct Column {
        QString key;
        int width = 0;                  ///< twips; 0 = by its content
        bool visible = true;
        bool operator==(const Column &) const = default;
    };
    struct Level {
        QString key;
        bool descending = false;
        bool operator==(const Level &) const = default;
    };
    std::vector<Column> columns;        ///< in display order, hidden ones at their place
    std::vector<Level> sort;            ///< the first one counts most; at most four
    std::vector<Level> groups;          ///< the outermost first; at most four
    qint16 view = 0;                    ///< 0 table, 1 card, 2 minimal card
    bool operator==(const GridState &) const = default;
};

} // namespace QV_DOC_CONTROLS
