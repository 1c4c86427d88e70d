#include "kit/forms/AccessKeys.h"
#include "support/Registry.h"

#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;

class tst_AccessKeys : public QObject {
    Q_OBJECT
private slots:
    void everyCaptionGetsAKeyOfItsOwn_data()
    {
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QString>("taken");
        QTest::addColumn<QStringList>("keyed");
        QTest::newRow("first letters") << QStringList{"Új", "Másolás", "Törlés"} << ""
                                       << QStringList{"Ú&j", "&Másolás", "&Törlés"};
        QTest::newRow("digits") << QStringList{"1. szempont", "2. szempont"} << ""
                                << QStringList{"&1. szempont", "&2. szempont"};
        QTest::newRow("a number before all else") << QStringList{"Criteriul 1", "Criteriul 2"} << ""
                                                  << QStringList{"Criteriul &1", "Criteriul &2"};
        QTest::newRow("a later word before the inside") << QStringList{"Select all", "Sort by"} << ""
                                                        << QStringList{"&Select all", "Sort &by"};
        QTest::newRow("inside when no beginning is left")
            << QStringList{"Sort", "Save"} << "" << QStringList{"&Sort", "S&ave"};
        QTest::newRow("what a caption brings along stays")
            << QStringList{"Sort", "&Save"} << "" << QStringList{"S&ort", "&Save"};
        QTest::newRow("an ampersand is no key") << QStringList{"A && B"} << "" << QStringList{"&A && B"};
        QTest::newRow("given away before") << QStringList{"Sort"} << "so" << QStringList{"So&rt"};
        QTest::newRow("no letter left")
            << QStringList{"Aa", "aA", "ő"} << "" << QStringList{"&Aa", "aA", "ő"};
    }
    void everyCaptionGetsAKeyOfItsOwn()
    {
        QFETCH(QStringList, captions);
        QFETCH(QString, taken);
        QTEST(withAccessKeys(captions, taken), "keyed");
    }
    /// "Ab" stands on both menus, so it must leave A to "A" and B to "B" can not be its own then: C is.
    void captionsThatMeetOnAMenuShareNoKey()
    {
        std::vector<KeyedCaption> all{
            {"Abc", {"one", "two"}}, {"A", {"one"}}, {"B", {"two"}}, {"Ax", {"two"}}};
        giveAccessKeys(all);
        QStringList seen;
        for (const KeyedCaption &c : all) seen << c.caption;
        QCOMPARE(seen, QStringList({"Ab&c", "&A", "&B", "&Ax"}));
    }
};
QVDC_TEST(tst_AccessKeys)
#include "tst_AccessKeys.moc"
