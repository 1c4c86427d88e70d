#include "facade/services/Language.h"
#include "rules/AsNow.h"
#include "rules/LayerRules.h"
#include "support/Registry.h"

#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

tLayArr layers(std::initializer_list<std::pair<qint16, const char *>> rows)
{
    tLayArr all;
    for (const auto &[nr, name] : rows)
        all.push_back({.LayId = qint16(all.size() + 1), .gNr = nr, .Name = QString::fromUtf8(name)});
    return all;
}
QString numbers(const std::optional<tLayArr> &all)
{
    QStringList out;
    if (!all) return QStringLiteral("refused");
    for (const tLay &l : *all) out << QString::number(l.gNr);
    return out.join(u' ');
}

} // namespace

class tst_LayerRules : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void copiesGetAFreeNumberAndName_data()
    {
        QTest::addColumn<int>("growth");
        QTest::addColumn<QString>("outcome");
        const QString refused =
            QStringLiteral("A(z) 10 sorszámú rétegről nem lehet másolatot csinálni %1 sorszámmal!");
        QTest::newRow("free") << 5 << QStringLiteral("15 Út_15");
        QTest::newRow("name taken too") << 20 << QStringLiteral("30 Út_30_2");
        QTest::newRow("number taken") << 10 << QStringLiteral("A(z) 20 sorszámú réteg már van !");
        QTest::newRow("highest") << 31990 << QStringLiteral("32000 Út_32000");
        QTest::newRow("beyond") << 31991 << refused.arg(32001);
        QTest::newRow("below the first") << -10 << refused.arg(0);
    }
    void copiesGetAFreeNumberAndName()
    {
        QFETCH(int, growth);
        QFETCH(QString, outcome);
        const tLayArr all = layers({{10, "Út"}, {20, "B"}, {21, "Út_30"}});
        const auto copy = copyOf(all[0], growth, TakenLayers(all));
        const auto *const lay = std::get_if<tLay>(&copy);
        QCOMPARE(lay ? QString::number(lay->gNr) + u' ' + lay->Name : std::get<QString>(copy), outcome);
    }

    void newLayersFollowTheHighest()
    {
        QCOMPARE(newLayer({}, tLay{})->gNr, qint16(1));
        const tLayArr all = layers({{7, "Az_új_réteg_neve"}, {3, "B"}});
        const auto made = newLayer(all, {.LayId = 5, .PenStyleId = 4});
        QCOMPARE(made->gNr, qint16(8));
        QCOMPARE(made->Name, QStringLiteral("Az_új_réteg_neve_2"));
        QCOMPARE(made->LayId, qint16(-1));
        QCOMPARE(made->PenStyleId, qint16(4));
        QVERIFY(!newLayer(layers({{32767, "A"}}), tLay{}));
    }

    void renumberingNeverCollides_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("growth");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("free") << 100 << 10 << QStringLiteral("100 110");
        QTest::newRow("a permutation of the selection") << 2 << -1 << QStringLiteral("2 1");
        QTest::newRow("onto a layer outside") << 2 << 1 << QStringLiteral("refused");
        QTest::newRow("the same number twice") << 9 << 0 << QStringLiteral("refused");
        QTest::newRow("past the end") << 32767 << 1 << QStringLiteral("refused");
        QTest::newRow("up to the end") << 32766 << 1 << QStringLiteral("32766 32767");
        QTest::newRow("far past the end") << 32767 << 2147483647 << QStringLiteral("refused");
    }
    void renumberingNeverCollides()
    {
        QFETCH(int, start);
        QFETCH(int, growth);
        QFETCH(QString, outcome);
        const tLayArr all = layers({{1, "A"}, {2, "B"}, {3, "C"}});
        QCOMPARE(numbers(renumbered(std::span(all).first(2), start, growth, all)), outcome);
    }

    void prefixesAreCutAtTheFirstDash_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("anyPrefix");
        QTest::addColumn<QString>("numbersOnly");
        QTest::newRow("number") << "12-Út" << "Út" << "Út";
        QTest::newRow("number in the wide sense") << " +1.5 - Út " << "Út" << "Út";
        QTest::newRow("letters") << "A-Út" << "Út" << "A-Út";
        QTest::newRow("no dash") << "Út" << "Út" << "Út";
        QTest::newRow("dash first") << "-Út" << "-Út" << "-Út";
        QTest::newRow("nothing behind") << "12-  " << "12-  " << "12-  ";
        QTest::newRow("only the first dash") << "1-2-Út" << "2-Út" << "2-Út";
        QTest::newRow("exponents are letters") << "1e2-Út" << "Út" << "1e2-Út";
    }
    void prefixesAreCutAtTheFirstDash()
    {
        QFETCH(QString, name);
        QFETCH(QString, anyPrefix);
        QFETCH(QString, numbersOnly);
        QCOMPARE(withoutPrefix(name, false), anyPrefix);
        QCOMPARE(withoutPrefix(name, true), numbersOnly);
    }

    void prefixesAreCutOneLayerAfterTheOther()
    {
        const tLayArr all =
            layers({{1, "1-A"}, {2, "2-A"}, {3, "B-1-A"}, {4, "4-C"}, {5, "C"}, {6, "6-1-A"}});
        const ShorterNames names = withoutPrefixes(all, false, TakenLayers(all));
        // The third takes the name that the first has given up; the last finds it taken again.
        QCOMPARE(names.lines, (QStringList{"'1-A' ---> 'A'", "'B-1-A' ---> '1-A'"}));
        QCOMPARE(numbers(names.changed), QStringLiteral("1 3"));
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
        QCOMPARE(hidden(withVisibilityOf(saved, all, LayerMatch::ByNumber).layers), QStringLiteral("AB"));
        QCOMPARE(hidden(withVisibilityOf(saved, all, LayerMatch::ByName).layers), QStringLiteral("B"));
    }
};

QVDC_TEST(tst_LayerRules)
#include "tst_LayerRules.moc"
