#pragma once

#include "facade/contract/HostServices.h"

namespace refhost {

class SqliteDoc;

/// The vector fonts of one drawing: its own characters, then the fonts of the program. The drawing is asked
/// anew each time.
class DrawingFonts final : public ZolWDoc::VectorFontProvider {
public:
    DrawingFonts(SqliteDoc *own, const ZolWDoc::VectorFontProvider &others) : m_own(own), m_others(others) {}
    QStringList names() const override;
    const ZolWDoc::VectorFont *find(const QString &name) const override;

private:
    SqliteDoc *m_own;                           ///< null = no drawing
    const ZolWDoc::VectorFontProvider &m_others;
};

} // namespace refhost
