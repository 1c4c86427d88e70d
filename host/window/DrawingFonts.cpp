#include "window/DrawingFonts.h"

#include "document/SqliteDoc.h"

namespace refhost {

QStringList DrawingFonts::names() const
{
    return (m_own ? m_own->ownFont().names() : QStringList()) + m_others.names();
}

const ZolWDoc::VectorFont *DrawingFonts::find(const QString &name) const
{
    const ZolWDoc::VectorFont *const own = m_own ? m_own->ownFont().find(name) : nullptr;
    return own ? own : m_others.find(name);
}

} // namespace refhost
