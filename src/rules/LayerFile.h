#pragma once

#include "facade/contract/Records.h"

#include <QByteArray>

#include <optional>
#include <variant>

namespace QV_DOC_CONTROLS {

/// What a layer save file (".z3l") holds: version, layers, groups, memberships, in this order.
///
/// Little-endian. Counts and the version are 32-bit integers, identifiers, numbers and colours 16-bit; true
/// is -1 and any other value than 0 reads as true; a string is its length in bytes (16 bits, unsigned) and
/// its bytes in an 8-bit code page. A layer's fields stand in the order of tLay.
struct LayerFile {
    qint32 version = 0;                         ///< the host's layer-file version
    ZolWDoc::tLayArr layers;
    std::vector<ZolWDoc::tGroup> groups;
    std::vector<ZolWDoc::tLayMember> members;
    bool operator==(const LayerFile &) const = default;
};

/// Why a file cannot be read or written.
struct LayerFileRefusal {
    enum class Why {
        TooShort,       ///< it ends before its content does
        WrongCount,     ///< a count is negative or claims more than the file can hold
        TrailingBytes,  ///< more follows than the file says
        UnknownCodePage,
        LetterLacking,  ///< the code page has no such letter; `name` says where
        NameTooLong,    ///< over 65535 bytes; `name` says which
        TooMany,        ///< a table of over 2^31 - 1 rows
    } why;
    QString name;       ///< of the layer or group, where one is concerned
    bool operator==(const LayerFileRefusal &) const = default;
};

/// `codePage`: a name such as "windows-1250"; empty = the system's 8-bit code page.
std::variant<QByteArray, LayerFileRefusal> bytesOf(const LayerFile &file, const QString &codePage);
/// Takes no more memory than the file's size allows. Bytes without a letter in the code page read as U+FFFD.
std::variant<LayerFile, LayerFileRefusal> layerFileOf(const QByteArray &bytes, const QString &codePage);
/// The version at the head; empty = the file is too short to have one.
std::optional<qint32> layerFileVersionOf(const QByteArray &bytes);

} // namespace QV_DOC_CONTROLS
