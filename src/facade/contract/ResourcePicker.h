#pragma once

#include "facade/contract/Records.h"

#include <optional>

class QObject;
namespace ZolWDoc { struct ZOLW_Doc; }

namespace QV_DOC_CONTROLS {

/// The selection dialogs, for those below them: a command that needs a text type, say, asks for one here.
struct ResourcePicker {
    virtual ~ResourcePicker() = default;
    virtual bool canPick(ZolWDoc::TableKind kind) const = 0; ///< there is a selection dialog of that kind
    /// The identifier of the record that the user chose; empty = cancelled. `first` is current when the
    /// dialog opens, -1 = none. `owner`: a widget of the asking window, null = the active window. A layer
    /// becomes the document's current one, as always when one is selected. Throws the document's error.
    virtual std::optional<qint16> pick(ZolWDoc::TableKind kind, ZolWDoc::ZOLW_Doc &doc, qint16 first,
                                       QObject *owner) = 0;
};

ResourcePicker *resourcePicker();                       ///< null = there are no selection dialogs
bool canPickResource(ZolWDoc::TableKind kind);          ///< there is a picker, with a dialog of that kind
ResourcePicker *setResourcePicker(ResourcePicker *);    ///< not owned; returns what was set before

} // namespace QV_DOC_CONTROLS
