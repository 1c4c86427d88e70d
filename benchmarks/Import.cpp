#include "Figures.h"

#include "import/DxfImport.h"

#include <QDir>

using namespace benchmarks;
using refhost::DxfImport;

namespace {

/// Elements that the import brings into a new document in one second: reading, judging and writing.
double elementsPerSecond(const QString &path)
{
    const refhost::ImportGuess guess = DxfImport::guessOf(path);
    int elements = 0;
    const double nanoseconds = medianOf([&] {
        const auto start = Clock::now();
        const refhost::Drawing drawing = DxfImport::parse(path);
        const auto doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
        elements = DxfImport::write(drawing, *doc, guess.options()).elementCount();
        return nanosecondsSince(start);
    });
    return elements / nanoseconds * 1e9;
}

/// One figure for every drawing below the folder that QVDC_SAMPLES names; none without it.
bool enterAll()
{
    const QDir folder(qEnvironmentVariable("QVDC_SAMPLES") + QStringLiteral("/dxf"));
    if (qEnvironmentVariableIsEmpty("QVDC_SAMPLES")) return false;
    for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.dxf")}, QDir::Files))
        figure("import." + file.completeBaseName().toStdString(), "elements/s", unbounded(),
               [path = file.filePath()] { return elementsPerSecond(path); });
    return true;
}
const bool s_entered = enterAll();

} // namespace
