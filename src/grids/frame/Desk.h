#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/Prompts.h"
#include "grids/frame/GroupRows.h"

class QObject;

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// What a command on a table works with; the manager of the table is its desk. Everything throws the host's
/// error.
///
/// A command asks first and calls `relay().checkpoint()` after every prompt; then it reads the table once,
/// and then writes with one bulk call inside write().
struct Desk {
    virtual ZolWDoc::ZOLW_Doc *document() const = 0;    ///< null = torn down
    ZolWDoc::ZOLW_Doc &doc();                           ///< ends the command when it was torn down meanwhile
    virtual int selectedCount() const = 0;
    virtual qint16 chosenGroup() const { return GroupRows::kAll; } ///< of a table with groups; kAll = "MIND"
    /// Runs `body` as one command of the document, then refills; after an error too, so that the grid agrees
    /// with what had been written by then. Current item and selection come back by identifier.
    virtual void write(const QString &command, const std::function<void()> &body) = 0;
    virtual void refillAfter(const std::function<void()> &body) = 0; ///< the same, of what writes by itself
    virtual bool selectById(qint16 id) = 0;             ///< makes it the current row; false = it is not shown
    virtual ErrorRelay &relay() const = 0;
    virtual QObject *asker() const = 0;                 ///< what the prompts belong to

    void tell(const Message &message);                  ///< and a checkpoint
    bool yesNo(const Message &question);                ///< and a checkpoint

protected:
    ~Desk() = default;
};

/// The desk of the commands on one table.
template <class Table> struct TableDesk : Desk {
    using Record = typename Table::Record;
    virtual std::vector<Record> selected() const = 0;   ///< shown selected rows, in grid order
    virtual std::optional<Record> currentRecord() const = 0;    ///< of the grid's current row

protected:
    ~TableDesk() = default;
};

} // namespace QV_DOC_CONTROLS
