#include "rules/LayerSet.h"
#include "rules/Numeric.h"
#include "support/Registry.h"

#include <array>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

/// Layers with these numbers; the identifiers count from 1.
tLayArr table(std::initializer_list<qint16> numbers)
{
    tLayArr all;
    for (const qint16 nr : numbers) all.push_back({.LayId = qint16(all.size() + 1), .gNr = nr});
    return all;
}

/// The sorted insert as it is told: one element at a time, by halving.
struct StepByStep {
    tLayArr all;
    const tLay &element(size_t n) const { return all[n - 1]; } // counted from 1
    void insertAfter(size_t n, const tLay &lay) { all.insert(all.begin() + qsizetype(n), lay); }
    void add(const tLay &lay)
    {
        if (std::ranges::count(all, lay.LayId, &tLay::LayId) > 0) return;
        if (all.empty() || lay.gNr > all.back().gNr) return all.push_back(lay);
        if (lay.gNr < all.front().gNr) return insertAfter(0, lay);
        size_t lo = 1, hi = all.size();
        while (hi - lo >= 2) {
            const size_t mid = (lo + hi) / 2;
            (lay.gNr < element(mid).gNr ? hi : lo) = mid;
        }
        insertAfter(lo, lay);
    }
};

/// "number#identifier" of every layer.
QString dump(const tLayArr &layers)
{
    QStringList out;
    for (const tLay &l : layers) out << QString::number(l.gNr) + u'#' + QString::number(l.LayId);
    return out.join(u' ');
}
LayerSet parsed(QString text, const tLayArr &all) { return layersNumbered(layerNumbersIn(text), all); }

struct Row {
    const char *text, *is;
};

} // namespace

class tst_LayerSet : public QObject {
    Q_OBJECT
private slots:
    void numbersInTheWideSense()
    {
        const QByteArray endless(400, '9');
        const Row numbers[] = {                         // and what they are in 16 bits
            {"  7 ", "7"}, {"+7", "7"}, {"- 7", "-7"}, {"007.50", "8"}, {"5.", "5"}, {".6", "1"},
            {"2.5", "2"}, {"3.5", "4"}, {"-2.5", "-2"}, // halves to even
            {"32767.4", "32767"}, {"32767.5", ""}, {"-32768.5", "-32768"}, {"-32769", ""}, {"70000", ""},
            {endless.constData(), ""}};
        for (const auto &[text, is] : numbers) {
            QVERIFY2(isNumeric(QString(text)), text);
            const auto value = shortValue(QString(text));
            tests::same(text, value ? QString::number(*value) : QString(), is);
        }
        for (const char *no :
             {"", " ", "-", "+", ".", "-.", "1 2", "1e3", "7-", "--7", "0x7", "1,5", "\n7", "7\t", "٧"})
            QVERIFY2(!isNumeric(QString::fromUtf8(no)) && !shortValue(QString::fromUtf8(no)), no);
    }

    void textsNameLayers()
    {
        const tLayArr nine = table({1, 2, 3, 4, 5, 6, 7, 8, 9});
        const Row rows[] = {                            // and their normal form
            {"", ""}, {"3,1,2", "1-3"}, {"1,2,3,5,7,8", "1-3,5,7-8"}, {"5,6", "5-6"}, {"4,4", "4"},
            {"1-5,3", "1-5"}, {"5-3", ""}, {"2-2", "2"}, {"1 2", ""}, {"1\n2", ""}, {"1\r\n2,4", "4"},
            {" 7 ", "7"}, {"1 - 3", "1-3"}, {"2.5", "2"}, {"1.5-3.5", "2-4"}, {"70000,3", "3"},
            {"1-70000,3", "3"}, {"99,4", "4"}, {"0-32767", "1-9"},
            {"1-2-3,4", "4"},                           // "2-3" is no number
            {"1-,-3,a-b,a,4,x,5", "4-5"}};              // every failing item is passed over
        for (const auto &[text, normalised] : rows)
            QCOMPARE(layerSetText(parsed(QString::fromUtf8(text), nine).layers()), QLatin1String(normalised));

        const tLayArr below = table({-3, -2, 0, 3});    // "-3--2": nothing stands before the first "-"
        for (const auto &[text, normalised] :
             {Row{"-3", "-3"}, {"-3,-2", "-3--2"}, {"-3--2", ""}, {"0--2", ""}})
            QCOMPARE(layerSetText(parsed(QLatin1String(text), below).layers()), QLatin1String(normalised));

        const tLayArr twice = table({2, 1, 2, 3, 2});   // every layer of a number, in table order
        QCOMPARE(dump(parsed("3,2", twice).layers()), "2#1 2#3 2#5 3#4");
        QCOMPARE(layerSetText(parsed("1-3", twice).layers()), "1-2,2,2-3");
    }

    void runsOfCommasShrinkInTheCallersText()
    {
        for (const auto &[before, after] : {Row{"1,,,4", "1,4"}, {",,,", ","}, {",,1,,2-3,,,,", ",1,2-3,"},
                                            {"1, ,4", "1, ,4"}, {"1,4", "1,4"}}) {
            QString text = QLatin1String(before);
            layerNumbersIn(text);
            QCOMPARE(text, QLatin1String(after));
        }
    }

    /// Numbers drawn from so many: the fewer, the more are equal. Reading puts in order what came meanwhile.
    void anyOrderComesOutAsStepByStep()
    {
        QRandomGenerator random(20240719);
        for (int round = 0; round < 900; ++round) {
            const int numbers = std::array{1, 2, 7, 40, 60000}[size_t(round % 5)];
            const int readEvery = std::array{1, 3, 1000}[size_t(round % 3)];
            LayerSet set;
            StepByStep expected;
            for (int i = 0; i < round / 15; ++i) {
                const auto id = qint16(random.bounded(-30, 60)); // some twice
                const tLay lay{.LayId = id, .gNr = qint16(random.bounded(numbers) - numbers / 2)};
                QCOMPARE(set.add(lay), std::ranges::count(expected.all, id, &tLay::LayId) == 0);
                expected.add(lay);
                if (i % readEvery == 0) QCOMPARE(dump(set.layers()), dump(expected.all));
            }
            QCOMPARE(dump(set.layers()), dump(expected.all));
            QCOMPARE(set.count(), int(expected.all.size()));
        }
    }

    void theKeyIsTheIdentifier()
    {
        LayerSet set;
        QVERIFY(set.add({.LayId = 7, .gNr = 3, .Name = "first"}));
        QVERIFY(!set.add({.LayId = 7, .gNr = 4, .Name = "second"}) && set.add({.LayId = -32768, .gNr = 2}));
        QCOMPARE(set.find(7)->Name, "first");
        QCOMPARE(set.find(-32768)->gNr, qint16(2));
        QVERIFY(!set.find(8) && !set.contains(-1));
        const LayerSet copy = set;
        QVERIFY(set.add({.LayId = 8, .gNr = 2}));
        QCOMPARE(copy.count(), 2);
        QVERIFY(!(copy == set));
    }
};

QVDC_TEST(tst_LayerSet)
#include "tst_LayerSet.moc"
