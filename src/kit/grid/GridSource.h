#pragma once

#include "facade/services/Prompts.h"

#include <QHash>
#include <QPixmap>
#include <QString>
#include <QVariant>

#include <optional>
#include <span>
#include <vector>

class QMimeData;

namespace QV_DOC_CONTROLS {

/// How a cell is shown and edited.
enum class CellKind {
    Text,
    Number,
    Check,  ///< bool
    List,   ///< one of the source's choices
    Color,  ///< a number over a colour style
    Picture, ///< the source's picture; its text names it for those who cannot see it
};

/// One column as the grid sees it.
struct GridColumn {
    QString key;            ///< published, the same in every language
    QString caption{};      ///< of the header
    QString longCaption{};  ///< of tool tips and column lists
    CellKind kind = CellKind::Text;
    bool editable = false;
    int width = 0;          ///< twips; 0 = by its content
    QString unit{};         ///< of its numbers, for tool tips
    bool asks = false;      ///< a value can be chosen in a box of its own
};

struct GridChoice {
    QVariant value;
    QString text;
};

/// Which styles a row and its cells wear; the names are those of the grid's format styles.
struct RowStyles {
    QString row;
    QHash<int, QString> cells;  ///< by column
    bool bold = false;          ///< the record that counts most just now
};

/// Where something dragged is over a grid.
struct DropTarget {
    int row = -1;           ///< record under the mouse; -1 = none
    int bandColumn = -1;    ///< column whose group band is under the mouse; -1 = none
    int bandRow = -1;       ///< a record of that band
};

/// Rows and cells behind a grid. Rows are counted from 0 in the source's own order; the grid sorts and groups
/// on its own.
///
/// What paints (value, text, picture, styles) never reaches the host. What writes (edit, removeRows, drop)
/// may: it is the source that keeps host errors away from the event loop.
class GridSource {
public:
    virtual ~GridSource() = default;
    virtual const std::vector<GridColumn> &columns() const = 0;
    virtual int rowCount() const = 0;
    virtual qint64 rowId(int row) const = 0;                    ///< stays with the record; unique
    /// Those of these records that there are, though they are not rows just now.
    virtual std::vector<qint64> existing(std::vector<qint64>) const { return {}; }
    virtual QVariant value(int row, int column) const = 0;      ///< for editing and sorting
    virtual QString text(int row, int column) const = 0;        ///< as shown
    virtual QPixmap picture(int, int) const
    {
        return {};
    } ///< of row and column; asked for when painted, kept
    virtual RowStyles styles(int) const { return {}; }           ///< of a row
    virtual std::vector<GridChoice> choices(int) const { return {}; } ///< of a List column
    /// Why what is typed is no value of the cell, whatever the other rows hold; empty = it may be one.
    virtual std::optional<Message> refusal(int, int, const QString &) const { return {}; }
    /// Asks for a value of a column that asks; empty = cancelled. What is chosen comes back to edit().
    virtual std::optional<QVariant> choose(int, int) { return {}; }
    /// False = refused, the user knows why, and the old value stays.
    virtual bool edit(int row, int column, const QVariant &value) = 0;
    /// The delete key: asks, removes and refills the grid by itself; false = nothing is ever removed here.
    virtual bool removeRows(std::span<const int>) { return false; }
    virtual QMimeData *dragData(std::span<const int>) const
    {
        return nullptr;
    } ///< the caller's; null = no drag of these
    virtual Qt::DropAction dragAction() const { return Qt::MoveAction; } ///< what a drag means without keys
    virtual bool canDrop(const QMimeData &, const DropTarget &) const { return false; }
    virtual void drop(const QMimeData &, const DropTarget &) {} ///< only what canDrop() let through
};

} // namespace QV_DOC_CONTROLS
