// Any text over any table of layers: the set is sorted, holds nothing twice and only what the text can name,
// and its own text names the same layers again.
#include "../fuzz/Feed.h"
#include "rules/LayerSet.h"

#include <algorithm>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tLay;
using ZolWDoc::tLayArr;

namespace {

void checkSet(const LayerSet &set)
{
    const tLayArr &layers = set.layers();
    PROMISE(set.count() == int(layers.size()));
    PROMISE(std::ranges::is_sorted(layers, {}, &tLay::gNr));
    std::vector<qint16> ids;
    for (const tLay &l : layers) ids.push_back(l.LayId);
    std::ranges::sort(ids);
    PROMISE(std::ranges::adjacent_find(ids) == ids.end());
    for (const qint16 id : ids) PROMISE(set.find(id)->LayId == id);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    tests::Feed feed(data, size);
    tLayArr table;
    LayerSet all;
    for (int n = feed.take<uint8_t>() % 40; n > 0; --n) {
        const tLay lay{.LayId = feed.take<int8_t>(), .gNr = feed.take<int8_t>()};
        table.push_back(lay);
        const bool known = all.contains(lay.LayId);
        PROMISE(all.add(lay) != known);
        if (n % 3 == 0) checkSet(all);
    }
    checkSet(all);

    QString text = feed.text(2000);
    const std::vector<LayerNumbers> numbers = layerNumbersIn(text);
    PROMISE(!text.contains(QStringLiteral(",,")));
    const QString before = text;
    PROMISE(layerNumbersIn(text) == numbers && text == before);
    const LayerSet set = layersNumbered(numbers, table);
    checkSet(set);
    for (const tLay &l : set.layers())
        PROMISE(std::ranges::any_of(numbers, [&](auto n) { return n.from <= l.gNr && l.gNr <= n.to; }));

    QString again = layerSetText(set.layers());
    const bool readable =
        set.count() == 0 || set.layers().front().gNr >= 0; // a run that begins below 0 is not
    if (readable) PROMISE(layersNumbered(layerNumbersIn(again), set.layers()).count() == set.count());
    return 0;
}
