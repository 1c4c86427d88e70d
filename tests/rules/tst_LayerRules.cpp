#include "facade/services/Language.h"
#include "rules/AsNow.h"
#include "rules/LayerRules.h"
#include "support/Registry.h"

using namespace tests;
using namespace ZolWDoc;

namespace {

tLayArr layers(std::initializer_list<std::pair<qint16, const char *>> rows)
{
    tLayArr all;
    for (const auto &[nr, name] : rows)
        all.push_back({.LayId = qint16(all.size() + 1), .gNr = nr, .Name = name});
    return all;
}
QString numbers(const std::optional<tLayArr> &all)
{
    QStringList out;
    if (!all) return "refused";
    for (const tLay &l : *all) out << QString::number(l.gNr);
    return out.join(u' ');
}

} // namespace

class tst_LayerRules : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void copiesGetAFreeNumberAndName()
    {
        const QString refused = "A(z) 10 sorszámú rétegről nem lehet másolatot csinálni %1 sorszámmal!";
        const std::tuple<const char *, int, QString> rows[] = {
            {"free", 5, "15 Út_15"},
            {"name taken too", 20, "30 Út_30_2"},
            {"number taken", 10, "A(z) 20 sorszámú réteg már van !"},
            {"highest", 31990, "32000 Út_32000"},
            {"beyond", 31991, refused.arg(32001)},
            {"below the first", -10, refused.arg(0)}};
        const tLayArr all = layers({{10, "Út"}, {20, "B"}, {21, "Út_30"}});
        for (const auto &[name, growth, outcome] : rows) {
            const auto copy = copyOf(all[0], growth, TakenLayers(all));
            const auto *const lay = std::get_if<tLay>(&copy);
            same(name, lay ? QString::number(lay->gNr) + u' ' + lay->Name : std::get<QString>(copy), outcome);
        }
    }

    void newLayersFollowTheHighest()
    {
        QCOMPARE(newLayer({}, tLay{})->gNr, qint16(1));
        const auto made =
            newLayer(layers({{7, "Az_új_réteg_neve"}, {3, "B"}}), {.LayId = 5, .PenStyleId = 4});
        QCOMPARE(*made, (tLay{.gNr = 8, .Name = "Az_új_réteg_neve_2", .PenStyleId = 4}));
        QVERIFY(!newLayer(layers({{32767, "A"}}), tLay{}));
    }

    void renumberingNeverCollides()
    {
        const std::tuple<const char *, int, int, const char *> rows[] = {
            {"free", 100, 10, "100 110"},
            {"a permutation of the selection", 2, -1, "2 1"},
            {"onto a layer outside", 2, 1, "refused"},
            {"the same number twice", 9, 0, "refused"},
            {"past the end", 32767, 1, "refused"},
            {"up to the end", 32766, 1, "32766 32767"},
            {"far past the end", 32767, 2147483647, "refused"}};
        const tLayArr all = layers({{1, "A"}, {2, "B"}, {3, "C"}});
        for (const auto &[name, start, growth, outcome] : rows)
            same(name, numbers(renumbered(std::span(all).first(2), start, growth, all)), outcome);
    }

    void prefixesAreCutAtTheFirstDash()
    {
        constexpr const char *rows[][3] = { // a name, without any prefix, without one that is a number
            {"12-Út", "Út", "Út"}, {" +1.5 - Út ", "Út", "Út"}, {"A-Út", "Út", "A-Út"}, {"Út", "Út", "Út"},
            {"-Út", "-Út", "-Út"}, {"12-  ", "12-  ", "12-  "}, {"1-2-Út", "2-Út", "2-Út"},
            {"1e2-Út", "Út", "1e2-Út"}};
        for (const auto &[name, anyPrefix, numbersOnly] : rows) {
            same(name, withoutPrefix(name, false), anyPrefix);
            same(name, withoutPrefix(name, true), numbersOnly);
        }
    }

    void prefixesAreCutOneLayerAfterTheOther()
    {
        const tLayArr all =
            layers({{1, "1-A"}, {2, "2-A"}, {3, "B-1-A"}, {4, "4-C"}, {5, "C"}, {6, "6-1-A"}});
        const ShorterNames names = withoutPrefixes(all, false, TakenLayers(all));
        // The third takes the name that the first has given up; the last finds it taken again.
        QCOMPARE(names.lines, (QStringList{"'1-A' ---> 'A'", "'B-1-A' ---> '1-A'"}));
        QCOMPARE(numbers(names.changed), "1 3");
        QCOMPARE(names.taken, 3);
    }

    void layersAreFoundAgain()
    {
        const tLayArr old = layers({{1, "A"}, {2, "B"}, {3, "C"}});
        tLayArr now = layers({{1, "A"}, {2, "B2"}});
        std::ranges::reverse(now);
        QCOMPARE(asNow(old, now, &tLay::LayId), (tLayArr{now[1], now[0]}));
    }

    void growthIsProposedWhereCopiesFit()
    {
        const tLayArr all = layers({{1, "A"}, {2, "B"}, {11, "C"}, {31999, "D"}});
        const TakenLayers taken(all);
        QCOMPARE(proposedGrowth(std::span(all).subspan(1, 2), taken), 1);
        QCOMPARE(proposedGrowth(std::span(all).first(2), taken), 100);
        QCOMPARE(proposedGrowth(all, taken), 1);        // none fits all
    }

    void savedVisibilitiesFindTheirLayers()
    {
        tLayArr saved = layers({{1, "B"}, {2, "X"}, {9, "Y"}});
        for (tLay &l : saved) l.Visible = false;
        const tLayArr all = layers({{1, "A"}, {2, "B"}, {3, "C"}});
        const auto hidden = [](const tLayArr &rows) {
            QString out;
            for (const tLay &l : rows)
                if (!l.Visible) out += l.Name;
            return out;
        };
        QCOMPARE(hidden(withVisibilityOf(saved, all, LayerMatch::ByNumber).layers), "AB");
        QCOMPARE(hidden(withVisibilityOf(saved, all, LayerMatch::ByName).layers), "B");
    }
};

QVDC_TEST(tst_LayerRules)
#include "tst_LayerRules.moc"
