#include "document/SqliteDoc.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>

using namespace ZolWDoc;
using refhost::Element;
using refhost::SqliteDoc;

namespace {

template <class Act> void timed(const char *what, int rounds, Act act)
{
    double best = 1e300, bestCpu = 1e300;
    for (int i = 0; i < rounds; ++i) {
        const std::clock_t cpu = std::clock();
        QElapsedTimer clock;
        clock.start();
        act();
        best = std::min(best, double(clock.nsecsElapsed()) / 1e6);
        bestCpu = std::min(bestCpu, double(std::clock() - cpu) * 1e3 / CLOCKS_PER_SEC);
    }
    std::printf("%-46s %10.3f ms   processor %10.3f ms\n", what, best, bestCpu);
}

std::vector<tLay> manyLayers(int n)
{
    std::vector<tLay> all;
    for (int i = 0; i < n; ++i)
        all.push_back({.gNr = qint16(i + 10),
                       .Name = QStringLiteral("Layer of the survey %1").arg(i),
                       .PenStyleId = 1,
                       .ScrColor = qint16(i % 256),
                       .PenColorId = qint16(i % 256),
                       .TxdId = 1});
    return all;
}

std::vector<Element> manyElements(int n)
{
    std::vector<Element> all;
    for (int i = 0; i < n; ++i) {
        Element e{.layId = 1, .penStyleId = 1};
        for (int k = 0; k < 6; ++k) e.vertices.push_back({650000.0 + i + k, 240000.0 + i * k, 0});
        all.push_back(std::move(e));
    }
    return all;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir folder;
    auto doc = SqliteDoc::create(folder.filePath(QStringLiteral("bench.qvd")));
    const auto layers = manyLayers(32000);
    std::vector<qint16> ids;
    timed("add 32,000 layers, one call", 1, [&] { doc->layers().addAll(layers, ids); });
    std::vector<tLay> all;
    timed("read 32,000 layers", 7, [&] { all = doc->layers().readAll(); });
    int written = 0;
    timed("switch 32,000 layers off or on, one call", 5, [&] {
        for (tLay &l : all) l.Visible = !l.Visible;
        doc->layers().updateAll(all, written);
    });
    timed("write back 32,000 unchanged layers", 5, [&] { doc->layers().writeAll(all); });
    for (tLay &l : all) l.gNr = qint16(32767 - l.gNr);
    timed("exchange the numbers of 32,000 layers", 2, [&] {
        doc->layers().updateAll(all, written);
        for (tLay &l : all) l.gNr = qint16(32767 - l.gNr);
    });
    all = doc->layers().readAll();
    timed("find 10,000 layers by identifier", 5, [&] {
        for (int i = 0; i < 10000; ++i) doc->layers().find(ids[size_t(i)]);
    });
    timed("find 10,000 layers by number", 5, [&] {
        for (int i = 0; i < 10000; ++i) doc->layers().findByNumber(qint16(i + 10));
    });
    timed("1,000 single durable updates", 3, [&] {
        for (int i = 0; i < 1000; ++i) doc->layers().update(all[size_t(i)]);
    });
    timed("uses of 32,000 layers", 3, [&] { doc->layers().usesAll(ids); });
    const auto elements = manyElements(100000);
    timed("add 100,000 elements of 6 vertices", 1, [&] { doc->addElements(elements); });
    timed("read 100,000 elements", 5, [&] { doc->elements(); });
    timed("save a copy", 2, [&] { doc->saveCopyAs(folder.filePath(QStringLiteral("copy.qvd"))); });
    timed("open the copy", 3, [&] { SqliteDoc::open(folder.filePath(QStringLiteral("copy.qvd"))); });
    timed("remove 32,000 layers with their elements", 1,
          [&] { doc->layers().removeAll(ids, true, written); });
    return 0;
}
