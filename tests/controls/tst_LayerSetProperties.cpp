#include "controls/LayerSetForm.h"

#include "controls/PropertyError.h"
#include "support/Registry.h"

using namespace ZolWDoc;
using namespace tests;

class tst_LayerSetProperties : public LayerSetTest {
    Q_OBJECT
private:
    static QVariant fourth()
    {
        LayerSet set;
        set.add({.LayId = 5, .gNr = 4});
        return QVariant::fromValue(set);
    }

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    /// From a bag, or one by one as the loader of a form does it, in any order.
    void whatWasKeptTakesEffectWhenTheDocumentArrives()
    {
        const std::pair<QVariantMap, const char *> rows[] = {
            {{}, "[3] 3 (Aktuális réteg)"},
            {{{"sLays", "4,,2-3"}, {"sLayGroup", "(Felsorolt rétegek)"}}, "[2-4] 2-4 (Felsorolt rétegek)"},
            {{{"sLays", "1"}, {"sLayGroup", "Utak"}}, "[2,4] 2,4 Utak"},
            {{{"sLayGroup", "Vízfolyások"}}, "[3] 3 (Aktuális réteg)"}, // there is no such entry
            {{{"sLays", "1"}, {"CollectionLays", fourth()}}, "[4] 4 (Felsorolt rétegek)"}};
        for (const auto &[kept, look] : rows) {
            DocForm f;
            for (const QVariantMap &bag : {kept, QVariantMap(), kept}) {
                f.control->setPropertyBag(bag);
                QCOMPARE(f.control->propertyBag(), bag);
            }
            f.leave();                          // passing through changes nothing
            f.arrives(*m_doc);
            QCOMPARE(f.look(), look);
            if (kept.contains("CollectionLays")) continue;
            for (const bool backwards : {false, true}) {
                DocForm doc;
                ArrayForm array;
                QStringList names = kept.keys();
                if (backwards) std::ranges::reverse(names);
                for (const QString &name : names) {
                    QVERIFY(doc.control->setProperty(name.toLatin1(), kept[name]));
                    QVERIFY(array.control->setProperty(name.toLatin1(), kept[name]));
                }
                doc.arrives(*m_doc), array.arrives(*m_doc);
                QCOMPARE(doc.look(), look);
                if (kept.value("sLayGroup") == "(Felsorolt rétegek)") QCOMPARE(array.look(), look);
                QVERIFY(doc.control->setProperty("sLays", "7")); // from now on at once
                QCOMPARE(doc.raised.last(), "7");
            }
        }
    }

    void aBagAfterTheDocumentTakesEffectAtOnce()
    {
        DocForm f(m_doc.get());
        f.raised.clear();
        f.control->setPropertyBag({{"sLays", "1"}, {"sLayGroup", "Utak"}});
        QCOMPARE(f.look(), "[2,4] 2,4 Utak");
    }

    void refusedSettersCarryTheirNumber()
    {
        const auto number = [](const std::function<void()> &set) {
            try {
                set();
            } catch (const PropertyError &refused) {
                return int(refused.number());
            }
            return 0;
        };
        const QVariant none = QVariant::fromValue(LayerSet());
        DocForm f(m_doc.get());
        QCOMPARE(number([&] { f.control->setCollectionLays({}); }), 382);
        setDesignedTest([](const QWidget &) { return true; });
        QCOMPARE(number([&] { f.control->setCollectionLays({}); }), 383);
        QCOMPARE(number([&] { f.control->setsLays("1"); }), 387);
        QCOMPARE(number([&] { f.control->setsLayGroup("Utak"); }), 387);
        const QVariantMap before = f.control->propertyBag();
        f.control->setProperty("sLays", "1");   // ignored, and nothing is thrown through Qt
        f.control->setProperty("sLayGroup", "Utak");
        f.control->setProperty("CollectionLays", none);
        QCOMPARE(f.control->propertyBag(), before);
        setDesignedTest(nullptr);
        f.control->setProperty("CollectionLays", none);
        QCOMPARE(f.numbers(), "3");
    }
};

QVDC_TEST(tst_LayerSetProperties)
#include "tst_LayerSetProperties.moc"
