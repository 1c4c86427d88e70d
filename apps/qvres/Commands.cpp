#include "qvres/Commands.h"

#include "qvres/JsonTable.h"
#include "qvres/TableFiles.h"

#include "facade/services/Text.h"
#include "rules/SymbolSet.h"

#include <QCommandLineParser>
#include <QHash>
#include <QTextStream>

namespace qvres {

using namespace QV_DOC_CONTROLS;

namespace {

Content readBy(const QString &path, const QCommandLineParser &options)
{
    return read(path, options.value(QStringLiteral("code-page")));
}

std::vector<Table> tablesBy(const QString &path, const QCommandLineParser &options)
{
    Content content = readBy(path, options);
    return about(path, [&] { return tablesOf(std::move(content)); });
}

void print(const QString &text) { QTextStream(stdout) << text << '\n'; }

/// Columns as wide as their widest value, numbers to the right.
void printTable(const Table &table)
{
    std::vector<qsizetype> widths;
    for (const QString &column : table.columns) widths.push_back(column.size());
    for (const auto &row : table.rows)
        for (size_t c = 0; c < row.size(); ++c) widths[c] = std::max(widths[c], row[c].text.size());
    const auto line = [&](auto valueOf) {
        QString out;
        for (size_t c = 0; c < widths.size(); ++c) out += valueOf(c) + QStringLiteral("  ");
        while (out.endsWith(u' ')) out.chop(1);
        print(out);
    };
    if (!table.name.isEmpty()) print(QStringLiteral("# ") + table.name);
    line([&](size_t c) { return table.columns[qsizetype(c)].leftJustified(widths[c]); });
    for (const auto &row : table.rows)
        line([&](size_t c) {
            const bool isNumber = row[c].kind == Cell::Kind::Number;
            return isNumber ? row[c].text.rightJustified(widths[c]) : row[c].text.leftJustified(widths[c]);
        });
}

int show(const QStringList &files, const QCommandLineParser &options)
{
    const std::vector<Table> tables = tablesBy(files[0], options);
    if (options.isSet(QStringLiteral("json"))) {
        QTextStream(stdout) << QString::fromUtf8(about(files[0], [&] { return jsonOf(tables); }));
        return 0;
    }
    for (const Table &table : tables) printTable(table);
    return 0;
}

int convert(const QStringList &files, const QCommandLineParser &options)
{
    write(files[1], readBy(files[0], options), options.value(QStringLiteral("like")));
    return 0;
}

/// A set that has the columns of a symbol set must hold symbols too.
void checkSymbols(const QString &path, const Recordset &set)
{
    const auto content = symbolsIn(set);
    if (!content.fault || !content.fault->row) return; // whole, or a set of another kind
    throw Failure(join(path, QStringLiteral(": "), Text{31115, u"az érték egy jelkulcsban nem állhat. Sor: "},
                       *content.fault->row + 1, Text{31103, u", oszlop: "}, content.fault->field));
}

int check(const QStringList &files, const QCommandLineParser &options)
{
    const Content content = readBy(files[0], options);
    const auto inOrder = [&](const QString &name, int rows) {
        print(join(files[0], name.isEmpty() ? QString() : u' ' + name, QStringLiteral(": "),
                   Text{31116, u"rendben, sorok száma: "}, rows));
    };
    if (content.set) {
        checkSymbols(files[0], *content.set);
        inOrder({}, content.set->rowCount());
    }
    for (const Table &table : content.tables) inOrder(table.name, int(table.rows.size()));
    return 0;
}

// --- differences

QString lineOf(const std::vector<Cell> &row)
{
    QStringList values;
    for (const Cell &c : row) values << (c.kind == Cell::Kind::Null ? QStringLiteral("null") : c.text);
    return values.join(QStringLiteral(" | "));
}

/// What the row goes by; rows that share it go together in their order.
QString keyOf(const std::vector<Cell> &row, size_t column)
{
    return column < row.size() ? row[column].text : QString();
}
QHash<QString, std::vector<const std::vector<Cell> *>> rowsByKey(const Table &table, size_t column)
{
    QHash<QString, std::vector<const std::vector<Cell> *>> rows;
    for (const auto &row : table.rows) rows[keyOf(row, column)].push_back(&row);
    return rows;
}

/// The columns of `b` in the order of those of `a`; empty when they are not the same.
std::vector<size_t> sameColumns(const Table &a, const Table &b)
{
    std::vector<size_t> places;
    for (const QString &column : a.columns) {
        const qsizetype at = b.columns.indexOf(column);
        if (at >= 0) places.push_back(size_t(at));
    }
    const bool same = places.size() == size_t(a.columns.size()) && a.columns.size() == b.columns.size();
    return same ? places : std::vector<size_t>{};
}

bool differs(const Table &a, const std::vector<Cell> &old, const std::vector<Cell> &now,
             const std::vector<size_t> &places)
{
    QStringList changes;
    for (size_t c = 0; c < old.size(); ++c)
        if (!old[c].same(now[places[c]]))
            changes << a.columns[qsizetype(c)] + QStringLiteral(": ") + old[c].text + QStringLiteral(" -> ") +
                           now[places[c]].text;
    if (!changes.isEmpty())
        print(QStringLiteral("~ ") + keyOf(old, 0) + u' ' + changes.join(QStringLiteral(", ")));
    return !changes.isEmpty();
}

/// Rows go together by the first column of `a`, wherever `b` has it.
bool differs(const Table &a, const Table &b)
{
    const std::vector<size_t> places = sameColumns(a, b);
    if (places.empty() && !(a.columns.isEmpty() && b.columns.isEmpty())) {
        print(QStringLiteral("- ") + a.columns.join(QStringLiteral(" | ")));
        print(QStringLiteral("+ ") + b.columns.join(QStringLiteral(" | ")));
        return true;
    }
    bool any = false;
    const size_t keyPlace = places.empty() ? 0 : places.front();
    const auto left = rowsByKey(b, keyPlace);
    QHash<QString, size_t> next;
    for (const auto &row : a.rows) {
        const QString key = keyOf(row, 0);
        const size_t i = next[key]++;
        const auto others = left.constFind(key);
        const bool there = others != left.cend() && i < others->size();
        if (!there) print(QStringLiteral("- ") + lineOf(row));
        any = !there || differs(a, row, *(*others)[i], places) || any;
    }
    for (const auto &row : b.rows) {
        const QString key = keyOf(row, keyPlace);
        if (next.value(key, 0) > 0) {
            --next[key];
            continue;
        }
        print(QStringLiteral("+ ") + lineOf(row));
        any = true;
    }
    return any;
}

int diff(const QStringList &files, const QCommandLineParser &options)
{
    const std::vector<Table> a = tablesBy(files[0], options), b = tablesBy(files[1], options);
    if (a.size() != b.size())
        throw Failure(txt(Text{31118, u"A két fájl nem ugyanannyi táblázatot tartalmaz."}));
    bool any = false;
    for (size_t i = 0; i < a.size(); ++i) any = differs(a[i], b[i]) || any;
    return any ? 1 : 0;
}

constexpr Command kCommands[] = {
    {"show", 1, show}, {"convert", 2, convert}, {"check", 1, check}, {"diff", 2, diff}};

} // namespace

const Command *commandNamed(const QString &name)
{
    for (const Command &command : kCommands)
        if (name == QLatin1String(command.name)) return &command;
    return nullptr;
}

} // namespace qvres
