#include "rules/LayerSet.h"
#include "rules/Numeric.h"
#include "support/Registry.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

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
tLayArr tableUpTo(int highest)
{
    tLayArr all;
    for (int nr = 1; nr <= highest; ++nr) all.push_back({.LayId = qint16(nr), .gNr = qint16(nr)});
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

} // namespace

class tst_LayerSet : public QObject {
    Q_OBJECT
private slots:
    void numbersInTheWideSense_data()
    {
        QTest::addColumn<bool>("numeric");
        QTest::addColumn<QString>("inSixteenBits");
        QTest::newRow("7") << true << "7";
        QTest::newRow("  7 ") << true << "7";
        QTest::newRow("+7") << true << "7";
        QTest::newRow("-7") << true << "-7";
        QTest::newRow("- 7") << true << "-7";
        QTest::newRow("007.50") << true << "8";
        QTest::newRow("2.5") << true << "2";            // halves to even
        QTest::newRow("3.5") << true << "4";
        QTest::newRow("-2.5") << true << "-2";
        QTest::newRow("5.") << true << "5";
        QTest::newRow(".6") << true << "1";
        QTest::newRow("32767.4") << true << "32767";
        QTest::newRow("32767.5") << true << "none";
        QTest::newRow("-32768.5") << true << "-32768";
        QTest::newRow("-32769") << true << "none";
        QTest::newRow("70000") << true << "none";
        QTest::newRow(QByteArray(400, '9').constData()) << true << "none";
        for (const char *no :
             {"", " ", "-", "+", ".", "-.", "1 2", "1e3", "7-", "--7", "0x7", "1,5", "\n7", "7\t", "٧"})
            QTest::newRow(no) << false << "none";
    }
    void numbersInTheWideSense()
    {
        QFETCH(bool, numeric);
        QFETCH(QString, inSixteenBits);
        const QString text = QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(isNumeric(text), numeric);
        const auto value = shortValue(text);
        QCOMPARE(value ? QString::number(*value) : QStringLiteral("none"), inSixteenBits);
    }

    void textsNameLayers_data()
    {
        QTest::addColumn<QString>("normalised");
        QTest::newRow("") << "";
        QTest::newRow("3,1,2") << "1-3";
        QTest::newRow("1,2,3,5,7,8") << "1-3,5,7-8";
        QTest::newRow("5,6") << "5-6";                  // a run of two is a range too
        QTest::newRow("4,4") << "4";
        QTest::newRow("1-5,3") << "1-5";
        QTest::newRow("5-3") << "";
        QTest::newRow("2-2") << "2";
        QTest::newRow("1 2") << "";
        QTest::newRow("1\n2") << "";
        QTest::newRow("1\r\n2,4") << "4";
        QTest::newRow(" 7 ") << "7";
        QTest::newRow("1 - 3") << "1-3";
        QTest::newRow("2.5") << "2";
        QTest::newRow("1.5-3.5") << "2-4";
        QTest::newRow("70000,3") << "3";
        QTest::newRow("1-70000,3") << "3";
        QTest::newRow("1-2-3,4") << "4";                // "2-3" is no number
        QTest::newRow("1-,-3,a-b,a,4,x,5") << "4-5";    // every failing item is passed over
        QTest::newRow(",,,4") << "4";
        QTest::newRow("99,4") << "4";                   // there is no 99
        QTest::newRow("0-32767") << "1-9";
    }
    void textsNameLayers()
    {
        QFETCH(QString, normalised);
        const LayerSet set = parsed(QString::fromUtf8(QTest::currentDataTag()), tableUpTo(9));
        QCOMPARE(layerSetText(set.layers()), normalised);
    }

    void negativeNumbersAreNumbers()
    {
        const tLayArr all = table({-3, -2, 0, 3});
        QCOMPARE(layerSetText(parsed(QStringLiteral("-3"), all).layers()), QStringLiteral("-3"));
        QCOMPARE(layerSetText(parsed(QStringLiteral("-3,-2"), all).layers()), QStringLiteral("-3--2"));
        QCOMPARE(parsed(QStringLiteral("-3--2"), all).count(), 0); // nothing stands before the first "-"
        QCOMPARE(parsed(QStringLiteral("0--2"), all).count(), 0);
    }

    void runsOfCommasShrinkInTheCallersText_data()
    {
        QTest::addColumn<QString>("after");
        QTest::newRow("1,,,4") << "1,4";
        QTest::newRow(",,,") << ",";
        QTest::newRow(",,1,,2-3,,,,") << ",1,2-3,";
        QTest::newRow("1, ,4") << "1, ,4";
        QTest::newRow("1,4") << "1,4";
    }
    void runsOfCommasShrinkInTheCallersText()
    {
        QFETCH(QString, after);
        QString text = QString::fromUtf8(QTest::currentDataTag());
        layerNumbersIn(text);
        QCOMPARE(text, after);
    }

    void equalNumbersHaveTheirPlaces()
    {
        const auto placed = [](std::initializer_list<qint16> numbers) {
            LayerSet set;
            for (const tLay &l : table(numbers)) set.add(l);
            return dump(set.layers());
        };
        QCOMPARE(placed({5, 5}), QStringLiteral("5#1 5#2"));
        QCOMPARE(placed({5, 5, 5}), QStringLiteral("5#1 5#3 5#2"));
        QCOMPARE(placed({3, 5, 5}), QStringLiteral("3#1 5#3 5#2"));     // just before the last
        QCOMPARE(placed({5, 3, 5}), QStringLiteral("3#2 5#3 5#1"));
        QCOMPARE(placed({3, 5, 5, 7, 5}), QStringLiteral("3#1 5#3 5#2 5#5 7#4"));
    }

    void anyOrderComesOutAsStepByStep_data()
    {
        QTest::addColumn<int>("numbers");               // drawn from so many: the fewer, the more are equal
        QTest::addColumn<int>("readEvery");             // reading puts in order what came meanwhile
        for (const int numbers : {1, 2, 7, 40, 60000})
            for (const int readEvery : {1, 3, 1000})
                QTest::addRow("%d numbers, read every %d", numbers, readEvery) << numbers << readEvery;
    }
    void anyOrderComesOutAsStepByStep()
    {
        QFETCH(int, numbers);
        QFETCH(int, readEvery);
        QRandomGenerator random(20240719);
        for (int round = 0; round < 60; ++round) {
            LayerSet set;
            StepByStep expected;
            for (int i = 0; i < round; ++i) {
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
        QVERIFY(set.add({.LayId = 7, .gNr = 3, .Name = QStringLiteral("first")}));
        QVERIFY(!set.add({.LayId = 7, .gNr = 4, .Name = QStringLiteral("second")}));
        QVERIFY(set.add({.LayId = -7, .gNr = 1}));
        QVERIFY(set.add({.LayId = -32768, .gNr = 2}));
        QCOMPARE(set.find(7)->Name, QStringLiteral("first"));
        QCOMPARE(set.find(-32768)->gNr, qint16(2));
        QVERIFY(!set.find(8) && !set.contains(-1));
        const LayerSet copy = set;
        QVERIFY(set.add({.LayId = 8, .gNr = 2}));
        QCOMPARE(copy.count(), 3);
        QVERIFY(!(copy == set));
    }

    void everyLayerOfANumberIsFoundInTableOrder()
    {
        const tLayArr all = table({2, 1, 2, 3, 2});
        QCOMPARE(dump(parsed(QStringLiteral("2"), all).layers()), QStringLiteral("2#1 2#5 2#3"));
        QCOMPARE(dump(parsed(QStringLiteral("3,2"), all).layers()), QStringLiteral("2#1 2#3 2#5 3#4"));
        QCOMPARE(layerSetText(parsed(QStringLiteral("1-3"), all).layers()), QStringLiteral("1-2,2,2-3"));
    }

    void everySetReadsBackFromItsText()
    {
        QRandomGenerator random(7);
        const tLayArr all = tableUpTo(60);
        for (int round = 0; round < 300; ++round) {
            LayerSet set;
            for (const tLay &l : all)
                if (random.bounded(3) > 0) set.add(l);
            const QString text = layerSetText(set.layers());
            QVERIFY2(parsed(text, all) == set, qPrintable(text));
        }
    }
};

QVDC_TEST(tst_LayerSet)
#include "tst_LayerSet.moc"
