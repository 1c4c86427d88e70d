#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "support/Registry.h"

#include <QTest>

using namespace QV_DOC_CONTROLS;

namespace {

struct Runtime final : ZolWDoc::LanguageRuntime {
    int language = 0;
    int currentLanguage() const override { return language; }
};
struct Settings final : ZolWDoc::SettingsService {
    int asked = 0;
    mutable QStringList reads;
    int version() const override { return ++const_cast<Settings *>(this)->asked, 4; }
    bool readBool(const QString &section, const QString &key, bool) const override
    {
        reads << section + u'/' + key;
        return true;
    }
    void readBool(const QString &, const QString &, bool, bool &result) const override
    {
        reads << QStringLiteral("newer");
        result = true;
    }
};
struct Errors final : ZolWDoc::ErrorReporter {
    QString title;
    void setTitle(const QString &t) override { title = t; }
};
struct Host final : ZolWDoc::HostServices {
    Runtime runtime;
    Settings own;
    Errors reporter;
    ZolWDoc::LanguageRuntime *language() override { return &runtime; }
    ZolWDoc::SettingsService *settings() override { return &own; }
    ZolWDoc::ErrorReporter *errors() override { return &reporter; }
};

} // namespace

class tst_Language : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { setHostServices(nullptr); }

    void onlyListedLanguagesAreTaken_data()
    {
        QTest::addColumn<int>("asked");
        QTest::addColumn<int>("taken");
        QTest::addColumn<QString>("text");
        QTest::newRow("hungarian") << 1038 << 1038 << QStringLiteral("Rétegválasztó");
        QTest::newRow("english") << 2057 << 2057 << QStringLiteral("Layer selector");
        QTest::newRow("german becomes hungarian") << 1031 << 1038 << QStringLiteral("Rétegválasztó");
        QTest::newRow("none becomes hungarian") << 0 << 1038 << QStringLiteral("Rétegválasztó");
        QTest::newRow("kept without a table") << 2074 << 2074 << QStringLiteral("Rétegválasztó");
        QTest::newRow("kept without a table, too") << 100000 << 100000 << QStringLiteral("Rétegválasztó");
    }
    void onlyListedLanguagesAreTaken()
    {
        QFETCH(int, asked);
        QFETCH(int, taken);
        QFETCH(QString, text);
        setLanguage(asked, QStringLiteral("QV_DOC_CONTROLS"));
        QCOMPARE(currentLanguage(), taken);
        QCOMPARE(txt(Text{3165, u"az eredeti"}), text);
    }
    void aMissingTextIsTheCallersOwn()
    {
        for (int language : {1038, 1048, 1066, 2057}) {
            setLanguage(language, {});
            QCOMPARE(txt(Text{19999, u"nincs ilyen"}), QStringLiteral("nincs ilyen"));
        }
    }
    void blanksInsideMessagesStay()
    {
        setLanguage(English, {});
        QCOMPARE(join(Text{3029, u"Nincs "}, QStringLiteral("7"), Text{3028, u" érték!"}),
                 QStringLiteral("None7 value!"));
        setLanguage(Hungarian, {});
        QCOMPARE(join(Text{3029, u"Nincs "}, 7, Text{3028, u" érték!"}), QStringLiteral("Nincs 7 érték!"));
    }
    void theLibraryFollowsItsHostBeforeItTellsItsForms()
    {
        Host host;
        setHostServices(&host);
        LanguageHub &hub = LanguageHub::instance();
        host.runtime.language = Romanian;
        hub.connectToRuntime();
        hub.takeOver();
        QCOMPARE(currentLanguage(), int(Romanian));
        int seen = 0;
        const auto told =
            connect(&hub, &LanguageHub::LanguageChanged, this, [&] { seen = currentLanguage(); });
        host.runtime.language = Vietnamese;
        emit host.runtime.LanguageChanged();
        disconnect(told);
        QCOMPARE(seen, int(Vietnamese));
    }
    void settingsAreReadTheOldWayBelowVersionFive()
    {
        Host host;
        setHostServices(&host);
        QVERIFY(readBoolSetting(QStringLiteral("setup"), QStringLiteral("ShowTooltipsOnGrid"), false));
        QVERIFY(readBoolSetting(QStringLiteral("setup"), QStringLiteral("OldStyleSetupForms"), false));
        QCOMPARE(host.own.reads, QStringList({"setup/ShowTooltipsOnGrid", "setup/OldStyleSetupForms"}));
        QCOMPARE(host.own.asked, 1);                    // the version is read once
    }
    void theTitleReachesTheErrorReports()
    {
        Host host;
        setHostServices(&host);
        setAppTitle(QStringLiteral("Rajz"));
        QCOMPARE(host.reporter.title, QStringLiteral("Rajz"));
        QCOMPARE(appTitle(), QStringLiteral("Rajz"));
    }
};

QVDC_TEST(tst_Language)
#include "tst_Language.moc"
