#include "kit/forms/AccessKeys.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

class tst_AccessKeys : public QObject {
    Q_OBJECT
private slots:
    void everyCaptionGetsAKeyOfItsOwn()
    {
        const std::tuple<const char *, QStringList, const char *, QStringList> rows[] = {
            {"first letters", {"Új", "Másolás", "Törlés"}, "", {"Ú&j", "&Másolás", "&Törlés"}},
            {"a number before all else",
             {"Criteriul 1", "2. szempont"},
             "",
             {"Criteriul &1", "&2. szempont"}},
            {"a later word before the inside", {"Select all", "Sort by"}, "", {"&Select all", "Sort &by"}},
            {"inside when no beginning is left", {"Sort", "Save"}, "", {"&Sort", "S&ave"}},
            {"what a caption brings along stays", {"Sort", "&Save"}, "", {"S&ort", "&Save"}},
            {"an ampersand is no key", {"A && B"}, "", {"&A && B"}},
            {"given away before", {"Sort"}, "so", {"So&rt"}},
            {"no letter left", {"Aa", "aA", "ő"}, "", {"&Aa", "aA", "ő"}}};
        for (const auto &[name, captions, taken, keyed] : rows)
            tests::same(name, withAccessKeys(captions, taken), keyed);
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
