#include "controls/LayerSetForm.h"

#include "controls/PropertyError.h"
#include "facade/services/clsDebug.h"
#include "support/Registry.h"

#include <QFile>
#include <QTemporaryDir>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using namespace tests;

class tst_LayerSetProperties : public LayerSetTest {
    Q_OBJECT
private:
    static QString traced(const std::function<void()> &act)
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("trace.log"));
        clsDebug debug;
        debug.setsLogFileName(path);
        debug.setbCallLog(true);
        act();
        debug.setbCallLog(false);
        QFile log(path);
        return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
    }

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void bagsKeepEveryProperty()
    {
        LayerSet set;
        set.add({.LayId = 5, .gNr = 4});
        for (const QVariantMap &bag :
             {QVariantMap{{"BackColor", 0x80000018u}}, {{"BackColor", 0xffeedeu}}, {{"SingleLine", true}},
              {{"WidthDiferent", -312.5}}, {{"sLays", "1-3"}}, {{"sLayGroup", "Utak"}},
              {{"CollectionLays", QVariant::fromValue(set)}},
              {{"Font", QFont(QStringLiteral("DejaVu Serif"), 21)}}}) {
            DocForm doc;
            ArrayForm array;
            for (LayerSetControl *c : std::initializer_list<LayerSetControl *>{doc.control, array.control}) {
                QCOMPARE(c->propertyBag(), QVariantMap());
                c->setPropertyBag(bag);
                QCOMPARE(c->propertyBag(), bag);
                QCOMPARE(doc.raised, QStringList()); // nothing but kept
                c->setPropertyBag({});
                QCOMPARE(c->propertyBag(), QVariantMap());
            }
        }
    }

    void singlePrecisionIsKept()
    {
        DocForm f;
        f.control->setWidthDiferent(0.1);
        QCOMPARE(f.control->WidthDiferent(), double(0.1f));
        f.control->setWidthDiferent(1e300);
        QCOMPARE(f.control->WidthDiferent(), double(std::numeric_limits<float>::max()));
        f.control->setWidthDiferent(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(f.control->WidthDiferent(), 0.0);
    }

    void whatWasKeptTakesEffectWhenTheDocumentArrives()
    {
        const QString enumerated = QStringLiteral("(Felsorolt rétegek)"),
                      current = QStringLiteral("(Aktuális réteg)"), roads = QStringLiteral("Utak");
        LayerSet set;
        set.add({.LayId = 5, .gNr = 4});
        for (const auto &[kept, numbers, entry] :
             {std::tuple(QVariantMap(), "3", current),
              {{{"sLays", "4,,2-3"}, {"sLayGroup", enumerated}}, "2-4", enumerated},
              {{{"sLays", "1"}, {"sLayGroup", roads}}, "2,4", roads},
              {{{"sLayGroup", "Vízfolyások"}}, "3", current},  // there is no such entry
              {{{"sLays", "1"}, {"CollectionLays", QVariant::fromValue(set)}}, "4", enumerated}}) {
            DocForm f;
            f.control->setPropertyBag(kept);
            f.leave();                          // passing through changes nothing
            f.control->setZOLW_Doc(m_doc.get());
            QCOMPARE(f.raised, QStringList{numbers});
            QCOMPARE(f.box().text(), QLatin1String(numbers));
            QCOMPARE(f.list().currentText(), entry);
            QCOMPARE(f.control->sLayGroup(), entry);
        }
    }

    /// As the loader of a form does it: through the property system, in any order.
    void formsSetThePropertiesInAnyOrder()
    {
        const std::pair<const char *, const char *> values[] = {{"sLays", "1-2"},
                                                                {"sLayGroup", "(Felsorolt rétegek)"}};
        for (const bool backwards : {false, true}) {
            DocForm doc;
            ArrayForm array;
            for (int i = 0; i < 2; ++i) {
                const auto &[name, value] = values[backwards ? 1 - i : i];
                QVERIFY(doc.control->setProperty(name, QString::fromUtf8(value)));
                QVERIFY(array.control->setProperty(name, QString::fromUtf8(value)));
            }
            doc.control->setZOLW_Doc(m_doc.get());
            array.control->SetLayArr(m_doc->layers().readAll());
            QCOMPARE(doc.raised, QStringList{"1-2"});
            QCOMPARE(array.raised, QStringList{"1-2"});
            QVERIFY(doc.control->setProperty("sLays", QStringLiteral("7"))); // from now on at once
            QCOMPARE(doc.raised.last(), QStringLiteral("7"));
        }
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
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        QCOMPARE(number([&] { f.control->setCollectionLays({}); }), 382);
        setDesignedTest([](const QWidget &) { return true; });
        QCOMPARE(number([&] { f.control->setCollectionLays({}); }), 383);
        QCOMPARE(number([&] { f.control->setsLays(QStringLiteral("1")); }), 387);
        QCOMPARE(number([&] { f.control->setsLayGroup(QStringLiteral("Utak")); }), 387);
        const QVariantMap before = f.control->propertyBag();
        const QString log = traced([&] {        // ignored, and nothing is thrown through Qt
            f.control->setProperty("sLays", QStringLiteral("1"));
            f.control->setProperty("sLayGroup", QStringLiteral("Utak"));
            f.control->setProperty("CollectionLays", QVariant::fromValue(LayerSet()));
        });
        QCOMPARE(f.control->propertyBag(), before);
        for (const char *line : {"ZOL3_LayGroup.sLays 387", "ZOL3_LayGroup.sLayGroup 387",
                                 "ZOL3_LayGroup.CollectionLays 383"})
            QVERIFY2(log.contains(QLatin1String(line)), line);
        setDesignedTest(nullptr);
        f.control->setProperty("CollectionLays", QVariant::fromValue(LayerSet()));
        QCOMPARE(f.numbers(), QStringLiteral("3"));
    }
};

QVDC_TEST(tst_LayerSetProperties)
#include "tst_LayerSetProperties.moc"
