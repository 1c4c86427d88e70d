#include "import/DxfImport.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <cstdio>

using namespace refhost;

namespace {

struct Figure {
    int objects = 0, elements = 0;
    double read = 1e300, written = 1e300;   // seconds
};

/// The best of some rounds: other work on the machine only adds.
Figure importOf(const QString &path)
{
    Figure f;
    const ImportGuess guess = DxfImport::guessOf(path);
    f.objects = guess.objects;
    for (int round = 0; round < 5; ++round) {
        QElapsedTimer clock;
        clock.start();
        const Drawing drawing = DxfImport::parse(path);
        f.read = std::min(f.read, double(clock.nsecsElapsed()) / 1e9);
        const auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        clock.restart();
        f.elements = DxfImport::write(drawing, *doc, guess.options()).elementCount();
        f.written = std::min(f.written, double(clock.nsecsElapsed()) / 1e9);
    }
    return f;
}

} // namespace

/// Imports every drawing below the folder that QVDC_SAMPLES names.
int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QDir folder(qEnvironmentVariable("QVDC_SAMPLES") + QStringLiteral("/dxf"));
    double seconds = 0;
    int elements = 0, objects = 0;
    for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.dxf")}, QDir::Files)) {
        const Figure f = importOf(file.filePath());
        seconds += f.read + f.written, elements += f.elements, objects += f.objects;
        std::printf("%-34s %6d objects %6d elements  read %7.1f ms  written %7.1f ms\n",
                    qPrintable(file.completeBaseName()), f.objects, f.elements, f.read * 1e3, f.written * 1e3);
    }
    if (seconds > 0)
        std::printf("import: %.0f objects per second, %.0f elements per second\n", objects / seconds, elements / seconds);
    return 0;
}
