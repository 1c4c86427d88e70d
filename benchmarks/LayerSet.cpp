#include "Figures.h"

#include "TinyDoc.h"
#include "controls/ZOL3_LayGroup.h"
#include "rules/LayerSet.h"

#include <QStringList>

#include <malloc.h>
#include <random>

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;
using ZolWDoc::tLay;
using ZolWDoc::tLayArr;

namespace {

constexpr int kLayers = 32000;

tLayArr ascending()
{
    tLayArr all;
    all.reserve(kLayers);
    for (int i = 1; i <= kLayers; ++i)
        all.push_back({.LayId = qint16(i), .gNr = qint16(i), .Name = QStringLiteral("Réteg %1").arg(i)});
    return all;
}
tLayArr descending()
{
    tLayArr all = ascending();
    std::ranges::reverse(all);
    return all;
}
tLayArr shuffled()
{
    tLayArr all = ascending();
    std::ranges::shuffle(all, std::mt19937(1));
    return all;
}

/// Built and read: the layers are in their places then.
LayerSet setOf(const tLayArr &all)
{
    LayerSet set;
    for (const tLay &l : all) set.add(l);
    keep(set.layers().size());
    return set;
}

bool enterBuild(const char *order, tLayArr (*rows)())
{
    return figure(std::string("layerset.32000.build.") + order, "ms", atMost(20), [rows] {
        const tLayArr all = rows();
        return nanosecondsOf([&] { keep(setOf(all)); }) / 1e6;
    });
}
const bool s_build = enterBuild("ascending", ascending) && enterBuild("descending", descending) &&
                     enterBuild("shuffled", shuffled);

/// From the text to the set and back; the layers are at hand.
double throughText(QString text)
{
    const tLayArr all = ascending();
    return nanosecondsOf([&] {
               const LayerSet set = layersNumbered(layerNumbersIn(text), all);
               keep(layerSetText(set.layers()));
           }) / 1e6;
}
const bool s_range = figure("layerset.32000.range.through.text", "ms", atMost(10),
                            [] { return throughText(QStringLiteral("1-32000")); });
const bool s_items = figure("layerset.32000.items.through.text", "ms", unbounded(), [] {
    QStringList numbers;
    for (int i = kLayers; i > 0; --i) numbers << QString::number(i);
    return throughText(numbers.join(u','));
});

/// Bytes that a set holds for each byte of its records; the names are shared with the table.
const bool s_memory = figure("layerset.32000.memory.to.records", "x", atMost(3), [] {
    const tLayArr all = shuffled();
    return medianOf([&] {
        const auto held = [] {
            const struct mallinfo2 info = mallinfo2();
            return double(info.uordblks + info.hblkhd);
        };
        const double before = held();
        const LayerSet set = setOf(all);
        return (held() - before + double(sizeof set)) / (double(sizeof(tLay)) * kLayers);
    });
});

/// The control on a document that answers from memory: the text is read, put in its normal form and one event
/// raised.
double throughControl(const QString &text)
{
    example::TinyDoc doc;
    static_cast<example::TinyLayers &>(doc.layers()).rows = ascending();
    ZOL3_LayGroup control;
    control.setZOLW_Doc(&doc);
    int raised = 0;
    QObject::connect(&control, &ZOL3_LayGroup::ChangeLays, [&raised](LayerSet &) { ++raised; });
    const double spent = nanosecondsOf([&] { control.setsLays(text); }) / 1e6;
    keep(raised);
    return spent;
}
const bool s_control = figure("layerset.32000.range.through.control", "ms", atMost(10),
                              [] { return throughControl(QStringLiteral("1-32000")); });
const bool s_odd = figure("layerset.16000.odd.through.control", "ms", unbounded(), [] {
    QStringList odd;
    for (int i = 1; i < kLayers; i += 2) odd << QString::number(i);
    return throughControl(odd.join(u','));
});

} // namespace
