#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "services/SampleHost.h"
#include "support/Registry.h"

#include <QTest>

using namespace QV_DOC_CONTROLS;

class tst_Language : public QObject {
    Q_OBJECT
private slots:
    void onlyListedLanguagesAreTaken()
    {
        const std::tuple<int, int, const char *> rows[] = {
            {1038, 1038, "Rétegválasztó"}, {2057, 2057, "Layer selector"},
            {1031, 1038, "Rétegválasztó"}, {0, 1038, "Rétegválasztó"}, // all others become Hungarian
            {2074, 2074, "Rétegválasztó"}, {100000, 100000, "Rétegválasztó"}}; // kept without a table
        for (const auto &[asked, taken, text] : rows) {
            setLanguage(asked, "QV_DOC_CONTROLS");
            QCOMPARE(currentLanguage(), taken);
            QCOMPARE(txt(Text{3165, u"az eredeti"}), text);
            QCOMPARE(txt(Text{19999, u"nincs ilyen"}), "nincs ilyen");
        }
    }
    void blanksInsideMessagesStay()
    {
        setLanguage(English, {});
        QCOMPARE(join(Text{3029, u"Nincs "}, QString("7"), Text{3028, u" érték!"}), "None7 value!");
        setLanguage(Hungarian, {});
        QCOMPARE(join(Text{3029, u"Nincs "}, 7, Text{3028, u" érték!"}), "Nincs 7 érték!");
    }
    void theLibraryFollowsItsHostBeforeItTellsItsForms()
    {
        tests::SampleHost host(4);
        LanguageHub &hub = LanguageHub::instance();
        host.runtime.now = Romanian;
        hub.connectToRuntime();
        hub.takeOver();
        QCOMPARE(currentLanguage(), int(Romanian));
        int seen = 0;
        QObject forms;
        connect(&hub, &LanguageHub::LanguageChanged, &forms, [&] { seen = currentLanguage(); });
        host.runtime.now = Vietnamese;
        emit host.runtime.LanguageChanged();
        QCOMPARE(seen, int(Vietnamese));
        setAppTitle("Rajz");
        QCOMPARE(host.title, "Rajz");
    }
    void settingsAreReadTheOldWayBelowVersionFive()
    {
        const tests::SampleHost host(4);
        for (int n = 0; n < 2; ++n) QVERIFY(readBoolSetting("setup", "ShowTooltipsOnGrid", false));
        QCOMPARE(host.versionsRead, 1);
        QCOMPARE(host.reads, QStringList(2, "old setup/ShowTooltipsOnGrid"));
    }
    void aBrokenStoreIsNobodysTrouble()
    {
        const tests::SampleHost host(4);
        settingsStore().write("a", "a", "a", "a");
        settingsStore().remove("a", "a", "a");
        QCOMPARE(settingsStore().read("a", "a", "a", "fallback"), "fallback");
    }
};

QVDC_TEST(tst_Language)
#include "tst_Language.moc"
