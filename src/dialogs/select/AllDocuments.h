#pragma once

#include "facade/contract/ZOLW_Doc.h"

#include <span>

class QWidget;

namespace QV_DOC_CONTROLS {

/// Gives `parts` of the layers of `from` to the layers of the same number in every other document of the list
/// and has each of these drawn anew. Shows its progress when it takes long.
///
/// Throws the error of the document that failed, after it was named to the user; the documents behind it are
/// as they were then.
void copyToAllDocuments(ZolWDoc::ZOLW_Doc &from, ZolWDoc::DocumentList &list,
                        std::span<bool ZolWDoc::tLay::*const> parts, QWidget *asker);

} // namespace QV_DOC_CONTROLS
