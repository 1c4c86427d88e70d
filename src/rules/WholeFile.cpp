#include "rules/WholeFile.h"

#include "facade/services/Text.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace QV_DOC_CONTROLS {
namespace {

QString about(const QString &path, const Text &what, const QString &details)
{
    return join(Text{3425, u"A(z) '"}, QDir::toNativeSeparators(path), what, details);
}

/// Why the new file must not take the place: it would put a device or a pipe away, or a file that nobody may
/// write, whatever rights the user has. A link counts for what it leads to.
std::optional<Text> objectionTo(const QString &path)
{
    constexpr int kMostLinks = 40; // as systems have it
    constexpr QFile::Permissions kAnyone = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    QFileInfo there(path);
    for (int links = 0; there.isSymLink() && links < kMostLinks; ++links)
        there.setFile(there.symLinkTarget());
    if (there.isSymLink() || (there.exists() && !there.isFile()))
        return Text{21772, u"ezen a helyen nem közönséges fájl van"};
    if (there.exists() && !(there.permissions() & kAnyone)) return Text{21773, u"a fájl írásvédett"};
    return {};
}

} // namespace

std::optional<QString> writeWhole(const QString &path, const QByteArray &bytes)
{
    if (const auto objection = objectionTo(path)) return txt(*objection);
    QSaveFile file(path);
    // On a full disk a part may be written without an error, and the flush of commit() says nothing of it.
    const bool isOnDisk =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isOnDisk && file.commit() ? std::nullopt : std::optional(file.errorString());
}

QString notWritable(const QString &path, const QString &details)
{
    return about(path,
                 {21767, u"' fájl nem menthető; ha volt ilyen fájl, a régi tartalma megmaradt. "
                         u"Ellenőrizd a szabad helyet és a jogosultságokat! Részletek: "},
                 details);
}

QString notReadable(const QString &path, const QString &details)
{
    return about(path,
                 {21765, u"' fájl nem olvasható. Ellenőrizd, hogy megvan-e, és van-e hozzá "
                         u"jogosultságod! Részletek: "},
                 details);
}

} // namespace QV_DOC_CONTROLS
