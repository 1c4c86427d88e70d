#include "import/DxfImport.h"

#include "import/DrawingWriter.h"
#include "import/DxfReader.h"
#include "import/DxfScan.h"

#include <QFile>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

DxfImport::Progress between(double from, double to, const DxfImport::Progress &progress)
{
    if (!progress) return {};
    return [=](double done) { return progress(from + (to - from) * done); };
}

} // namespace

Drawing DxfImport::parse(const QString &path, const Progress &progress)
{
    DxfScan scan(path);
    scan.run(between(0, 0.2, progress));
    return readDrawing(scan, between(0.2, 1, progress));
}

ImportReport DxfImport::write(const Drawing &drawing, SqliteDoc &doc, const ImportOptions &options,
                              const Progress &progress)
{
    if (doc.elementCount() > 0 || doc.layers().count() > 1)
        throw DocumentError(txt(Text{30310, u"Importálni csak új, üres rajzba lehet. Készíts új rajzot!"}));
    DrawingWriter writer(drawing, doc, options);
    ZolWDoc::inCommand(doc, txt(Text{30311, u"DXF importálása"}), [&] { writer.run(progress); });
    doc.redrawAll();
    return writer.report();
}

std::unique_ptr<SqliteDoc> DxfImport::into(const QString &target, const QString &path,
                                           const ImportOptions &options, ImportReport &report,
                                           const Progress &progress)
{
    const Drawing drawing = parse(path, between(0, 0.5, progress));
    auto doc = SqliteDoc::create(target);
    try {
        report = write(drawing, *doc, options, between(0.5, 1, progress));
    } catch (...) {
        doc.reset();
        for (const char *ending : {"", "-wal", "-shm"}) QFile::remove(target + QString::fromLatin1(ending));
        throw;
    }
    return doc;
}

} // namespace refhost
