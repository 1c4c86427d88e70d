#pragma once

#include "facade/contract/ZOLW_Doc.h"

namespace QV_DOC_CONTROLS {

/// Edits one table in a new setup dialog with that dialog's own defaults; true = confirmed.
bool editTable(ZolWDoc::ZOLW_Doc &doc, ZolWDoc::TableKind kind);

struct SetupOptions {
    bool warnInvisible = false;
    bool automaticItemSelection = true;
    ZolWDoc::DocumentList *documents = nullptr;
};
/// The general form: any page, with the caller's options.
bool setUp(ZolWDoc::ZOLW_Doc &doc, qint16 page, const SetupOptions &options);

} // namespace QV_DOC_CONTROLS
