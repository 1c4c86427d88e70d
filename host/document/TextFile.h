#pragma once

#include "facade/services/Text.h"

#include <QString>

#include <vector>

namespace refhost {

/// One line of a list file: "number<blank, tab or ;>rest".
struct ListLine {
    int line = 0;           ///< counted from 1, for messages
    qint16 number = 0;
    QString rest;           ///< trimmed
};

/// A list file of one purpose, read whole before anything is changed.
class TextFile {
public:
    /// UTF-8 with or without a mark, else in the code page of layer files; where that is the system's, in
    /// windows-1250. Passes over empty lines and those that begin with #.
    /// Throws DocumentError when the file cannot be read or a line does not begin with a number and go on.
    TextFile(const QString &path, QV_DOC_CONTROLS::Text expected);
    const std::vector<ListLine> &lines() const { return m_lines; }
    qint16 restAsNumber(const ListLine &) const;                                ///< throws when it is none
    [[noreturn]] void fail(const ListLine &, QV_DOC_CONTROLS::Text reason) const;
private:
    [[noreturn]] void fail(int line, const QString &reason) const;
    QString m_path;
    QV_DOC_CONTROLS::Text m_expected;
    std::vector<ListLine> m_lines;
};

} // namespace refhost
