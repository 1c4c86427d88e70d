#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace qvres {

/// What ends the tool with exit code 2; what() is UTF-8 and names the thing and the remedy.
struct Failure : std::runtime_error {
    explicit Failure(const QString &text) : std::runtime_error(text.toStdString()) {}
};

/// One value of a table, as it is stored: a number keeps its digits.
struct Cell {
    enum class Kind : quint8 { Null, Text, Number, Boolean } kind = Kind::Null;
    QString text; ///< of a boolean "true" or "false"; empty for null

    static Cell ofText(const QString &text) { return {Kind::Text, text}; }
    static Cell ofNumber(const QString &digits) { return {Kind::Number, digits}; }
    static Cell ofBoolean(bool value)
    {
        return {Kind::Boolean, value ? QStringLiteral("true") : QStringLiteral("false")};
    }
    bool same(const Cell &other) const; ///< numbers by value, all else by letter
};

/// A table without types beyond those of its values: what all the file kinds have in common.
struct Table {
    QString name; ///< empty in files that hold one table
    QStringList columns;
    std::vector<std::vector<Cell>> rows; ///< as long as there are columns
};

/// Throws Failure when there would be more values than a table may hold; before they take up memory.
void checkSize(size_t rows, size_t columns);
/// Throws Failure with the first name that is there twice, by letter.
void checkNames(const QStringList &columns);
/// The writing of a number, as JSON has it; "007" and "+5" are codes, whose letters count.
bool isNumber(const QString &text);

} // namespace qvres
