#pragma once

#include <QString>

#include <vector>

namespace QV_DOC_CONTROLS {

/// An attribute of a column's description, with the prefix "rs:" or "dt:" where it has one.
struct RecordsetAttribute {
    QString name, value;
    bool operator==(const RecordsetAttribute &) const = default;
};

/// A column: its name, what its values are, and its description as it stands in a file.
struct RecordsetField {
    enum class Type : quint8 {
        Text,
        Int8,
        Int16,
        Int32,
        Int64,
        UInt8,
        UInt16,
        UInt32,
        Single,
        Double,
        Boolean,
        Other
    };

    QString name;    ///< what programs call it
    QString xmlName; ///< the attribute of a row that holds its value
    Type type = Type::Text;
    qint64 maxLength = -1;                            ///< of texts, in UTF-16 units; -1 = none
    bool needsValue = false;                          ///< a row without a value cannot be opened
    std::vector<RecordsetAttribute> column, datatype; ///< as written, in order

    bool isInteger() const { return type >= Type::Int8 && type <= Type::UInt32; }
    bool isReal() const { return type == Type::Single || type == Type::Double; }
    bool operator==(const RecordsetField &) const = default;
};
RecordsetField nullable(RecordsetField f); ///< the same column, whose rows may be without a value

/// A table of typed columns whose values keep the text they were read from, so that what nobody edits is
/// written as it was. All texts share one buffer: a value costs twelve bytes beside its letters, an absent
/// one nothing.
class Recordset {
public:
    enum class RowState : quint8 { Unchanged, Inserted };

    /// The columns of a new, disconnected set: `length` counts for texts only, in UTF-16 units. Names are not
    /// empty and differ without regard to case; for one that is no XML name the file says another beside it.
    struct Column {
        QString name;
        RecordsetField::Type type;
        int length = 0;
    };
    static Recordset made(const std::vector<Column> &columns);
    explicit Recordset(std::vector<RecordsetField> fields) : m_fields(std::move(fields)) {}
    Recordset() = default;

    const std::vector<RecordsetField> &fields() const { return m_fields; }
    int fieldNamed(QAnyStringView name) const; ///< without regard to case; -1 = no such column
    int rowCount() const { return int(m_rows.size()); }
    RowState state(int row) const { return m_rows[size_t(row)].state; }

    /// The columns that have a value in the row or are null explicitly, ascending.
    int valueCount(int row) const { return int(m_rows[size_t(row)].count); }
    int fieldOfValue(int row, int i) const
    {
        return int(m_values[m_rows[size_t(row)].first + size_t(i)].field);
    }

    bool isNull(int row, int field) const;
    bool isForcedNull(int row, int field) const;
    QStringView text(int row, int field) const; ///< as stored; empty for null
    qint64 integer(int row, int field) const;   ///< of an integer column; 0 for null
    double real(int row, int field) const;      ///< of any number column; 0 for null
    bool boolean(int row, int field) const;     ///< of a boolean column; false for null

    Recordset withoutRows() const;              ///< the same columns
    int addRow(RowState state);       ///< without values; returns its index
    void setNull(int row, int field); ///< said explicitly, as an edited value is
    // Each false = the column cannot hold it (too long, half a letter, out of range, not finite); nothing
    // changes then.
    bool setText(int row, int field, QStringView value);
    bool setInteger(int row, int field, qint64 value);
    bool setReal(int row, int field, double value);
    bool setBoolean(int row, int field, bool value);

    /// Puts a text in without a check: it was read from a file and checked there.
    void keepSource(int row, int field, QStringView text);
    bool hasRoomFor(qsizetype letters) const { return m_texts.size() + letters < kMostLetters; }

    QString rowName = QStringLiteral("row"); ///< of the element that is a row
    std::vector<RecordsetAttribute> rowDescription{{QStringLiteral("content"), QStringLiteral("eltOnly")},
                                                   {QStringLiteral("rs:updatable"), QStringLiteral("true")}};

private:
    static constexpr quint32 kForcedNull = 0xFFFFFFFF;
    static constexpr qsizetype kMostLetters = qsizetype(1) << 30;
    struct Value {
        quint32 field, from, length;
    };
    struct Row {
        size_t first;
        quint32 count;
        RowState state;
    };
    const Value *find(int row, int field) const; ///< null = absent
    Value &place(int row, int field);

    std::vector<RecordsetField> m_fields;
    std::vector<Row> m_rows;
    std::vector<Value> m_values; ///< a row's stand together, by column
    QString m_texts;
};

} // namespace QV_DOC_CONTROLS
