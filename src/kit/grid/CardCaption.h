#pragma once

#include <QString>

namespace QV_DOC_CONTROLS {

/// What names a record: the pattern up to "|", a blank, the number, what follows the "|", and the name:
/// "Réteg:|/" -> "Réteg: 5/Falak". Without a "|", the name.
inline QString cardCaption(const QString &pattern, const QString &number, const QString &name)
{
    const qsizetype bar = pattern.indexOf(u'|');
    return bar < 0 ? name : pattern.first(bar) + u' ' + number + pattern.sliced(bar + 1) + name;
}

} // namespace QV_DOC_CONTROLS
