#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <vector>

namespace QV_DOC_CONTROLS {

/// How a cell is shown and edited.
enum class CellKind {
    Text,
    Number,
    Check,  ///< bool
    List,   ///< one of the source's choices
    Color,  ///< a number over a colour style
};

/// One column as the grid sees it.
struct GridColumn {
    QString key;            ///< published, the same in every language
    QString caption;        ///< of the header
    QString longCaption;    ///< of tool tips and column lists
    CellKind kind = CellKind::Text;
    bool editable = false;
    int width = 0;          ///< twips; 0 = by its content
};

struct GridChoice {
    QVariant value;
    QString text;
};

/// Which styles a row and its cells wear; the names are those of the grid's format styles.
struct RowStyles {
    QString row;
    QHash<int, QString> cells;  ///< by column
};

/// Rows and cells behind a grid. Rows are counted from 0 in the source's own order; the grid sorts and groups on its own.
///
/// What paints (value, text, styles) never reaches the host. What writes (edit, removeRows) may: it is the source that
/// keeps host errors away from the event loop.
class GridSource {
public:
    virtual ~GridSource() = default;
    virtual const std::vector<GridColumn> &columns() const = 0;
    virtual int rowCount() const = 0;
    virtual qint64 rowId(int row) const = 0;                    ///< stays with the record; unique
    virtual QVariant value(int row, int column) const = 0;      ///< for editing and sorting
    virtual QString text(int row, int column) const = 0;        ///< as shown
    virtual RowStyles styles(int) const { return {}; }           ///< of a row
    virtual std::vector<GridChoice> choices(int) const { return {}; } ///< of a List column
    virtual bool edit(int row, int column, const QVariant &value) = 0;  ///< false = refused, the old value stays
};

} // namespace QV_DOC_CONTROLS
