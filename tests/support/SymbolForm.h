#pragma once

#include "document/SqliteDoc.h"
#include "grids/symbol/SymbolCommands.h"
#include "support/TableForm.h"

namespace tests {

struct SymbolForm : TableForm<QV_DOC_CONTROLS::clsJS_Sid> {
    explicit SymbolForm(ZolWDoc::ZOLW_Doc &doc) : TableForm(doc, QV_DOC_CONTROLS::kSymbolCommands) {}
    std::vector<ZolWDoc::tSid> rows() { return TableForm::rows(&ZolWDoc::tSid::SidId); }
    /// Edits a cell of a listed record as the grid's editor does; false = refused.
    bool edit(int number, int column, const QVariant &value)
    {
        select({number});
        QAbstractItemModel &cells = *grid.table()->model();
        for (int r = 0; r < cells.rowCount(); ++r)
            if (cell(r, 0).toInt() == number) return cells.setData(cells.index(r, column), value);
        return false;
    }
};

/// A document in memory with these symbols and no others, in the first of its groups "Egy" and "Kettő" unless
/// they name another one.
inline std::unique_ptr<refhost::SqliteDoc> symbolDoc(std::vector<ZolWDoc::tSid> symbols)
{
    auto doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
    ZolWDoc::SymbolRole &role = doc->symbols();
    for (const ZolWDoc::tSid &s : role.readAll()) role.remove(s.SidId);
    for (const ZolWDoc::tGroup &g : role.groups().readAll()) role.groups().remove(g.GroupId);
    const qint16 first = role.groups().add(QStringLiteral("Egy"));
    role.groups().add(QStringLiteral("Kettő"));
    for (ZolWDoc::tSid &s : symbols)
        if (s.GroupName.isEmpty()) s.GroupId = first;
    std::vector<qint16> ids;
    role.addAll(symbols, ids);
    return doc;
}
inline ZolWDoc::tSid symbol(qint16 number, const char *name, const char *group = "Egy")
{
    ZolWDoc::tSid s = QV_DOC_CONTROLS::newSymbol(QString::fromUtf8(name), {-1, QString::fromUtf8(group)});
    s.SidId = number;
    return s;
}
/// "1 A Egy 5 16 0" of every symbol: number, name, group, size, thickness, font type.
inline QString dumpSymbols(const std::vector<ZolWDoc::tSid> &symbols)
{
    QStringList out;
    for (const ZolWDoc::tSid &s : symbols)
        out << QStringLiteral("%1 %2 %3 %4 %5 %6")
                   .arg(s.SidId).arg(s.ShortName, s.GroupName)
                   .arg(double(s.Size_mm)).arg(s.Weight).arg(s.Type);
    return out.join(QStringLiteral(", "));
}

} // namespace tests
