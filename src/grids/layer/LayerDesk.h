#pragma once

#include "facade/contract/ZOLW_Doc.h"

#include <functional>

class QObject;

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// What a layer command works with: the manager of the layer table is its desk. Everything throws the host's
/// error.
///
/// A command asks first and calls `relay().checkpoint()` after every prompt; then it reads the table once,
/// and then writes with one bulk call inside write().
struct LayerDesk {
    virtual bool isOpen() const = 0;                    ///< there is a document
    virtual ZolWDoc::ZOLW_Doc &doc() = 0;               ///< ends the command when it was torn down meanwhile
    virtual ZolWDoc::tLayArr selected() const = 0;      ///< shown selected rows, in grid order
    virtual int selectedCount() const = 0;
    virtual std::optional<ZolWDoc::tLay> current() const = 0; ///< of the grid's current row
    virtual qint16 chosenGroup() const = 0;             ///< GroupRows::kAll = "MIND"
    /// Runs `body` as one command of the document, then refills; after an error too, so that the grid agrees
    /// with what had been written by then.
    virtual void write(const QString &command, const std::function<void()> &body) = 0;
    virtual void refill() = 0; ///< current item and selection come back by identifier
    virtual void selectLayer(qint16 layId) = 0;         ///< makes it the current row, if it is listed
    virtual ErrorRelay &relay() const = 0;
    virtual QObject *asker() const = 0;                 ///< what the prompts belong to

protected:
    ~LayerDesk() = default;
};

} // namespace QV_DOC_CONTROLS
