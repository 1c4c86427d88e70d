#pragma once

#include <QString>
#include <QStringList>

namespace QV_DOC_CONTROLS {

/// A text of the user interface: its identifier and the Hungarian text beside it, for the reader and as
/// fall-back.
struct Text {
    int id = 0;
    const char16_t *hu = u"";
};

QString txt(Text); ///< in the current language; `hu` when that language has no such text
QStringList everyTxt(Text); ///< in every language that has it, the Hungarian one first; none twice
inline QString txt(const QString &s) { return s; }
inline QString txt(int n) { return QString::number(n); }

/// Joins the pieces of a message in the given order: join(Text, number or name, Text). Blanks inside texts
/// stay.
template <class... P> QString join(const P &...p) { return (QString() + ... + txt(p)); }

} // namespace QV_DOC_CONTROLS
