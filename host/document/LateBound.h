#pragma once

#include "document/HostRoles.h"
#include "document/LinePattern.h"
#include "document/OwnFont.h"

#include <QObject>

namespace refhost {

/// A symbol at a place, as strokes of its vector font or as a letter of a TrueType face. `glyph` is null for
/// the latter.
void appendSymbol(ZolWDoc::DrawingObjects &, const ZolWDoc::tSid &, const ZolWDoc::Glyph *glyph,
                  const Place &);

/// The two members that the library reaches by name.
class LateBound : public QObject {
    Q_OBJECT
public:
    LateBound(Tables &tables, OwnFont &own) : m_tables(tables), m_ownFont(own) {}
    Q_INVOKABLE bool bGetPenStyle(int iPenStyleId, ZolWDoc::tPenStyle *style);          // published spelling
    Q_INVOKABLE ZolWDoc::DrawingObjects ElRec2ObjLst(const ZolWDoc::LineElement &line); // published spelling
    void setDocument(const SqliteDoc *doc) { m_doc = doc; }
private:
    const ZolWDoc::VectorFont *fontOf(const ZolWDoc::tSid &) const;
    void appendSymbolization(ZolWDoc::DrawingObjects &, const Polyline &line, qint16 nr) const;
    const SqliteDoc *m_doc = nullptr; ///< whose fonts are asked for
    Tables &m_tables;
    OwnFont &m_ownFont;
};

} // namespace refhost
