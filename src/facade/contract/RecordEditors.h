#pragma once

#include "facade/contract/Records.h"

class QObject;
namespace ZolWDoc { struct ZOLW_Doc; }

namespace QV_DOC_CONTROLS {

/// The editors of single records, for those below them: a command that opens one asks for it here.
struct RecordEditors {
    virtual ~RecordEditors() = default;
    virtual bool canEdit(ZolWDoc::TableKind kind) const = 0; ///< there is an editor of that kind
    /// Edits the record of the document; true = confirmed, and it was written. `owner`: a widget of the
    /// asking window, null = the active window. Throws the document's error.
    virtual bool edit(ZolWDoc::TableKind kind, ZolWDoc::ZOLW_Doc &doc, qint16 id, QObject *owner) = 0;
};

RecordEditors *recordEditors();                         ///< null = there are no editors
RecordEditors *setRecordEditors(RecordEditors *);       ///< not owned; returns what was set before

} // namespace QV_DOC_CONTROLS
