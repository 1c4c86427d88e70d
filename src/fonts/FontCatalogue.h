#pragma once

#include "facade/services/Text.h"

#include <QFontDatabase>
#include <QStringList>

#include <vector>

namespace QV_DOC_CONTROLS {

/// A script as its users know it, with the character set number under which drawings keep it.
struct Script {
    Text name;
    qint32 charSet;
    QFontDatabase::WritingSystem system; ///< a face must be known to write it; Any = any face
    const char16_t *letters;             ///< a face must have them all; also shown as a sample
};

/// The faces of this machine that can be drawn at any size, without those that only stand for another one.
/// Read once; again when fonts were installed.
const QStringList &trueTypeFaces();
int indexOfFace(const QStringList &faces, const QString &face);         ///< in any case of letters; -1 = none

/// The scripts that the face really has letters for; at least one. Reads the font's file when first asked.
const std::vector<const Script *> &scriptsOf(const QString &face);
/// The script that a drawing means by the number, whether or not there are faces for it; null = it means
/// none, or the machine's own.
const Script *scriptOf(qint32 charSet);
QString scriptNameOf(qint32 charSet);           ///< the number itself when it is unknown

QFont plainFont(const QString &face);           ///< letters that the face lacks are not borrowed from others
QString unknownFaceText(const QString &face);   ///< says that there is no such face

} // namespace QV_DOC_CONTROLS
