#include "document/HostRoles.h"

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;

namespace refhost {

void Commands::beginCommand(const QString &)
{
    if (m_open == 0) m_db.begin();
    ++m_open;
}

void Commands::endCommand()
{
    if (m_open == 0)
        throw DocumentError(txt(Text{30063, u"Nincs megkezdett parancs, amelyet be lehetne fejezni."}));
    if (--m_open > 0) return;
    try {
        m_db.commit();
    } catch (...) {
        m_db.rollback();
        throw;
    }
}

} // namespace refhost
