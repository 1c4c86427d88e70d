#pragma once

#include <QByteArrayList>
#include <QStringList>

#include <span>

namespace QV_DOC_CONTROLS {

/// The captions of one window or menu with an access key each, as far as letters go; no two share one, in no
/// language.
///
/// A key that a caption brings along ("&x") stays its own. Chosen are digits and unaccented Latin letters,
/// which every keyboard of the four languages has: a number first, then a word's beginning, else from inside.
/// `taken` are keys already given.
QStringList withAccessKeys(const QStringList &captions, const QString &taken = {});

/// The same for captions that stand on several menus: those that meet on one share no key.
struct KeyedCaption {
    QString caption;
    QByteArrayList menus;
};
void giveAccessKeys(std::span<KeyedCaption> captions);

QChar accessKeyOf(const QString &caption);      ///< in upper case; null = none

} // namespace QV_DOC_CONTROLS
