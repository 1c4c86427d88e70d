#pragma once

#include "facade/contract/HostServices.h"

class QObject;

namespace QV_DOC_CONTROLS {

/// The vector fonts of the host for a document, as a list offers them.
struct VectorFontList {
    QStringList names;
    bool complete = true;       ///< false: the host has no fonts, or it names one that it cannot give
};
VectorFontList vectorFontList(const ZolWDoc::ZOLW_Doc *doc);            ///< throws the host's error

/// The list, after the user has been told when it is not complete.
QStringList vectorFontsOrTold(const ZolWDoc::ZOLW_Doc *doc, QObject *asker);

const ZolWDoc::VectorFont *vectorFont(const ZolWDoc::ZOLW_Doc *doc, const QString &name); ///< null = unknown

} // namespace QV_DOC_CONTROLS
