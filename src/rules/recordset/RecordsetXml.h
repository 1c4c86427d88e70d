#pragma once

#include "rules/recordset/Recordset.h"

#include <QByteArray>

#include <variant>

namespace QV_DOC_CONTROLS {

/// Why a file is no recordset that can be opened.
struct RecordsetRefusal {
    enum class Why {
        TooLarge,
        UnknownEncoding, ///< `subject`: the one it declares
        WrongBytes,      ///< they are no text in its encoding
        WrongMarkup,
        CutShort, ///< it ends before its last element does
        WrongRoot,
        NoSchema,
        DescribedTwice, ///< the columns as a whole, or the column that is the subject
        NoSuchColumn, ///< the schema refers to a column it does not describe
        NoNumber,
        OutOfRange, ///< for the type of the column
        NoTruthValue,
        LacksValue, ///< a row without a value that the column needs
    } why;
    qint64 line = 0;   ///< from 1; 0 = of the file as a whole
    QString subject{}; ///< the column, where one is concerned
    bool operator==(const RecordsetRefusal &) const = default;
};
QString textOf(const RecordsetRefusal &refusal); ///< for people, in the current language

/// Reads a persisted recordset: UTF-8, UTF-16 or the 8-bit encoding it declares, any prefixes and quotes,
/// bare rows and change blocks. Comes out what a program sees that opens it: updates merged, deleted rows
/// gone, every value checked against its column and kept as it stands; too long texts are cut.
/// Time and memory grow with the file's size.
std::variant<Recordset, RecordsetRefusal> recordsetOf(const QByteArray &bytes);

/// The file: UTF-8 without a mark, rows that were inserted in one block behind the others. A row that lacks a
/// value its column needs cannot be opened again.
QByteArray bytesOf(const Recordset &recordset);

} // namespace QV_DOC_CONTROLS
