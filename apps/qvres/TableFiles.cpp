#include "qvres/TableFiles.h"

#include "qvres/CsvTable.h"
#include "qvres/JsonTable.h"
#include "qvres/RecordTables.h"

#include "document/SqliteDoc.h"
#include "facade/services/Text.h"
#include "rules/LayerFile.h"
#include "rules/LayerFileTexts.h"
#include "rules/WholeFile.h"
#include "rules/recordset/RecordsetXml.h"

#include <QFileInfo>

namespace qvres {

using namespace QV_DOC_CONTROLS;

Failure failureOf(const QString &path, const QString &why)
{
    return Failure(path + QStringLiteral(": ") + why);
}

namespace {

QByteArray bytesIn(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw failureOf(path, file.errorString());
    return file.readAll();
}
Recordset setIn(const QString &path)
{
    auto read = recordsetOf(bytesIn(path));
    if (const auto *const refusal = std::get_if<RecordsetRefusal>(&read))
        throw failureOf(path, textOf(*refusal));
    return std::get<Recordset>(std::move(read));
}

Content readSet(const QString &path, const QString &) { return {{}, setIn(path)}; }
Content readLayers(const QString &path, const QString &codePage)
{
    const auto read = layerFileOf(bytesIn(path), codePage);
    if (const auto *const refusal = std::get_if<LayerFileRefusal>(&read))
        throw Failure(notUsable(*refusal, path));
    return {tablesOf(std::get<LayerFile>(read)), {}};
}
Content readDocument(const QString &path, const QString &)
{
    return {tablesOf(*refhost::SqliteDoc::openToRead(path)), {}};
}
template <Table (*tableOfBytes)(const QByteArray &)> Content readText(const QString &path, const QString &)
{
    const QByteArray bytes = bytesIn(path);
    return about(path, [&] { return Content{{tableOfBytes(bytes)}, {}}; });
}

Table onlyTable(const Content &content)
{
    std::vector<Table> tables = tablesOf(content);
    if (tables.size() != 1)
        throw Failure(txt(Text{31112, u"A forrásban több táblázat van; ezek csak JSON-fájlba írhatók."}));
    return std::move(tables.front());
}

QByteArray setBytes(const Content &content, const Recordset *like)
{
    if (content.set && !like) return bytesOf(*content.set); // its values as they stand
    return bytesOf(setFor(onlyTable(content), like));
}
QByteArray jsonBytes(const Content &content, const Recordset *) { return jsonOf(tablesOf(content)); }
QByteArray csvBytes(const Content &content, const Recordset *) { return csvOf(onlyTable(content)); }

struct FileKind {
    const char *ending;
    Content (*read)(const QString &path, const QString &codePage);
    QByteArray (*bytes)(const Content &, const Recordset *like); ///< null = cannot be written
};
constexpr FileKind kKinds[] = {
    {"rst", readSet, setBytes},
    {"json", readText<tableOfJson>, jsonBytes},
    {"csv", readText<tableOfCsv>, csvBytes},
    {"z3l", readLayers, nullptr},
    {"qvd", readDocument, nullptr},
};

const FileKind &kindOf(const QString &path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    for (const FileKind &kind : kKinds)
        if (ending == QLatin1String(kind.ending)) return kind;
    throw failureOf(
        path, txt(Text{31113, u"Ismeretlen fájlfajta. Ismert végződések: .rst, .json, .csv, .z3l, .qvd."}));
}

} // namespace

std::vector<Table> tablesOf(Content content)
{
    return content.set ? std::vector{tableOf(*content.set)} : std::move(content.tables);
}

Content read(const QString &path, const QString &codePage) { return kindOf(path).read(path, codePage); }

void write(const QString &path, const Content &content, const QString &like)
{
    const FileKind &kind = kindOf(path);
    if (!kind.bytes)
        throw failureOf(path, txt(Text{31114, u"Ilyen fájlba nem lehet írni. Írható: .rst, .json, .csv."}));
    const auto model = like.isEmpty() ? std::nullopt : std::optional(setIn(like)); // a missing one is told
    const QByteArray bytes = about(path, [&] { return kind.bytes(content, model ? &*model : nullptr); });
    if (const auto why = writeWhole(path, bytes)) throw failureOf(path, *why);
}

} // namespace qvres
