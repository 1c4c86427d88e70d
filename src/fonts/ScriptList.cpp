#include "fonts/ScriptList.h"

#include "fonts/FontCatalogue.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace QV_DOC_CONTROLS {

bool fillScripts(QComboBox &list, const QString &face, qint32 wanted)
{
    const QSignalBlocker quiet(list);
    list.clear();
    if (!face.isEmpty())
        for (const Script *script : scriptsOf(face)) list.addItem(txt(script->name), script->charSet);
    if (list.count() > 0 && !scriptOf(wanted)) list.addItem(scriptNameOf(wanted), wanted);
    const int at = list.findData(wanted);
    list.setCurrentIndex(std::max(0, at));
    list.setEnabled(list.count() > 0);
    return at >= 0;
}

qint32 charSetOf(const QComboBox &list)
{
    constexpr qint32 machinesOwn = 1;
    const QVariant number = list.currentData();
    return number.isValid() ? number.toInt() : machinesOwn;
}

} // namespace QV_DOC_CONTROLS
