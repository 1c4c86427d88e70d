#include "document/HostTexts.h"

#include "facade/services/Language.h"

// outside the namespace, as the macro wants it
static void initHostStrings() { Q_INIT_RESOURCE(refhost_strings); }

namespace refhost {

void loadHostTexts()
{
    static const bool once = [] {
        initHostStrings();
        QV_DOC_CONTROLS::addStringTables(QStringLiteral(":/host/strings"));
        return true;
    }();
    Q_UNUSED(once)
}

} // namespace refhost
