#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

#include <vector>

namespace QV_DOC_CONTROLS {

/// A table as it stands on paper or on the clipboard: exactly what the grid shows, in its order, with its
/// groups.
class SheetSource {
public:
    struct Column {
        QString caption;
        int width = 0;              ///< as on the screen, pixels; pages scale it
        Qt::Alignment alignment = Qt::AlignLeft;
    };
    struct Cell {
        QString text;
        QColor background, color;   ///< invalid = the paper's, black
        QPixmap picture;            ///< null = none
        int check = -1;             ///< -1 = no check box, 0 off, 1 on
        bool grayed = false;
    };
    struct Row {
        int level = -1; ///< 0..3: a group band of that level, whose text is cells[0]; -1 = a record
        std::vector<Cell> cells;    ///< one per column
    };
    virtual ~SheetSource() = default;
    virtual std::vector<Column> sheetColumns() const = 0;
    virtual int sheetRows() const = 0;
    virtual Row sheetRow(int row) const = 0;
};

/// What stands around the table on every page.
struct SheetTitles {
    QString header;                 ///< title line of each page
    QString footerBefore, footerAfter; ///< around "n" or "n/N"
    bool withPageCount = true;      ///< "n/N" instead of "n"
};

} // namespace QV_DOC_CONTROLS
