#include "Figures.h"

#include "document/SqliteDoc.h"

#include <QTemporaryDir>

using namespace benchmarks;
using refhost::Element;
using refhost::SqliteDoc;
using ZolWDoc::tLay;

namespace {

constexpr int kLayers = 32000;

/// A document on disk with 32,000 layers, made for one figure.
struct LargeDocument {
    QTemporaryDir folder;
    std::unique_ptr<SqliteDoc> doc = SqliteDoc::create(folder.filePath(QStringLiteral("bench.qvd")));
    std::vector<qint16> ids;
    std::vector<tLay> all;
    LargeDocument()
    {
        std::vector<tLay> rows;
        for (int i = 0; i < kLayers; ++i)
            rows.push_back({.gNr = qint16(i + 10),
                            .Name = QStringLiteral("Layer of the survey %1").arg(i),
                            .PenStyleId = 1,
                            .ScrColor = qint16(i % 256),
                            .PenColorId = qint16(i % 256),
                            .TxdId = 1});
        doc->layers().addAll(rows, ids);
        all = doc->layers().readAll();
    }
};

double millisecondsOf(const std::function<void()> &body) // once: a write cannot be repeated as it was
{
    const auto start = Clock::now();
    body();
    return nanosecondsSince(start) / 1e6;
}

const bool s_read = figure("document.layers.32000.read", "ms", unbounded(), [] {
    LargeDocument d;
    return medianOf([&] { return millisecondsOf([&] { keep(d.doc->layers().readAll()); }); });
});
const bool s_find = figure("document.layers.32000.find", "us", unbounded(), [] {
    LargeDocument d;
    size_t next = 0;
    return nanosecondsOf([&] { keep(d.doc->layers().find(d.ids[next++ % d.ids.size()])); }) / 1000;
});
const bool s_update = figure("document.layers.32000.update.all", "ms", unbounded(), [] {
    LargeDocument d;
    return medianOf([&] {
        for (tLay &l : d.all) l.Visible = !l.Visible;
        int written = 0;
        return millisecondsOf([&] { d.doc->layers().updateAll(d.all, written); });
    });
});
const bool s_single = figure("document.layers.1000.update.each", "ms", unbounded(), [] {
    LargeDocument d;
    return medianOf([&] {
        for (tLay &l : d.all) l.Visible = !l.Visible;
        return millisecondsOf([&] {
            for (int i = 0; i < 1000; ++i) d.doc->layers().update(d.all[size_t(i)]);
        });
    });
});
const bool s_elements = figure("document.elements.100000.read", "ms", unbounded(), [] {
    LargeDocument d;
    std::vector<Element> rows;
    for (int i = 0; i < 100000; ++i) {
        Element e{.layId = d.ids[0], .penStyleId = 1};
        for (int k = 0; k < 6; ++k) e.vertices.push_back({650000.0 + i + k, 240000.0 + i * k, 0});
        rows.push_back(std::move(e));
    }
    d.doc->addElements(rows);
    return medianOf([&] { return millisecondsOf([&] { keep(d.doc->elements()); }); });
});

} // namespace
