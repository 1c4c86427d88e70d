#pragma once

#include "kit/grid/SheetSource.h"

namespace tests {

/// A table written down in a test: rows of cells, or bands "level: text".
struct SampleSheet : QV_DOC_CONTROLS::SheetSource {
    std::vector<Column> columns;
    std::vector<Row> rows;

    SampleSheet() = default;
    explicit SampleSheet(std::vector<Column> c) : columns(std::move(c)) {}
    void band(int level, const QString &text)
    {
        Row row{level, {}};
        row.cells.push_back({text});
        rows.push_back(std::move(row));
    }
    Row &record(const QStringList &texts)
    {
        Row row;
        for (const QString &t : texts) row.cells.push_back({t});
        rows.push_back(std::move(row));
        return rows.back();
    }
    /// One row per letter: '0'..'3' a band of that level, 'r' a record, 'w' a record whose first text is too
    /// long.
    void outline(const QString &letters)
    {
        for (QChar c : letters) {
            if (c.isDigit()) band(c.digitValue(), "band");
            else record({c == u'r' ? "1" : QStringLiteral("many words ").repeated(12)});
        }
    }
    std::vector<Column> sheetColumns() const override { return columns; }
    int sheetRows() const override { return int(rows.size()); }
    Row sheetRow(int row) const override { return rows[size_t(row)]; }
};

} // namespace tests
