#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "facade/services/clsDebug.h"
#include "support/Registry.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace QV_DOC_CONTROLS;

namespace {

struct Settings final : ZolWDoc::SettingsService {
    mutable int asked = 0, olderReads = 0;
    int version() const override { return ++asked, 5; }
    bool readBool(const QString &, const QString &, bool) const override { return ++olderReads, false; }
    void readBool(const QString &section, const QString &key, bool fallback, bool &result) const override
    {
        result =
            section == QLatin1String("setup") && key == QLatin1String("ShowTooltipsOnGrid") ? true : fallback;
    }
};
struct BrokenStore final : ZolWDoc::SettingsStore {
    QString read(const QString &, const QString &, const QString &, const QString &) const override
    {
        throw 1;
    }
    void write(const QString &, const QString &, const QString &, const QString &) override { throw 1; }
    void remove(const QString &, const QString &, const QString &) override { throw 1; }
};
struct Host final : ZolWDoc::HostServices {
    Settings own;
    BrokenStore broken;
    ZolWDoc::SettingsService *settings() override { return &own; }
    ZolWDoc::SettingsStore *store() override { return &broken; }
};

} // namespace

/// What is decided at the first use in a process; so these run in a process of their own.
class tst_FirstUse : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (currentLanguage() != 0) QSKIP("the texts are loaded already: run this class alone");
    }
    void cleanup() { setHostServices(nullptr); }

    void aDevelopmentFileBesideTheProgramGoesFirst()
    {
        const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/QV_DOC_CONTROLS.res");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("1038\t3165\tPróba\\nszöveg\r\n2057\t3165\tTrial\r\nx\t1\ty\r\n1038\tnone\ty\r\n");
        file.close();
        qputenv("QV_DOC_CONTROLS_DEVELOPMENT", "1");
        const clsDebug debug;                           // makes sure that the texts are loaded
        QFile::remove(path);
        QCOMPARE(currentLanguage(), int(Hungarian));
        QCOMPARE(txt(Text{3165, u"Rétegválasztó"}), QStringLiteral("Próba\nszöveg"));
        QCOMPARE(txt(Text{3299, u"Rétegnév"}), QStringLiteral("Rétegnév"));
        setLanguage(English, {});
        QCOMPARE(txt(Text{3165, u"Rétegválasztó"}), QStringLiteral("Trial"));
        QCOMPARE(debug.sComponentName(), QStringLiteral("ZolWOp"));
    }
    void settingsAreReadTheNewWayFromVersionFiveOn()
    {
        Host host;
        setHostServices(&host);
        QVERIFY(readBoolSetting(QStringLiteral("setup"), QStringLiteral("ShowTooltipsOnGrid"), false));
        QVERIFY(!readBoolSetting(QStringLiteral("setup"), QStringLiteral("OldStyleSetupForms"), false));
        QCOMPARE(host.own.asked, 1);
        QCOMPARE(host.own.olderReads, 0);
    }
    void aBrokenStoreIsNobodysTrouble()
    {
        Host host;
        setHostServices(&host);
        const QString a = QStringLiteral("a");
        settingsStore().write(a, a, a, a);
        settingsStore().remove(a, a, a);
        QCOMPARE(settingsStore().read(a, a, a, QStringLiteral("fallback")), QStringLiteral("fallback"));
    }
};

QVDC_TEST(tst_FirstUse)
#include "tst_FirstUse.moc"
