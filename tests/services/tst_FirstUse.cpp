#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "facade/services/clsDebug.h"
#include "services/SampleHost.h"
#include "support/Registry.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

using namespace QV_DOC_CONTROLS;

/// What is decided at the first use in a process; so these run in a process of their own.
class tst_FirstUse : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (currentLanguage() != 0) QSKIP("the texts are loaded already: run this class alone");
    }
    void aDevelopmentFileBesideTheProgramGoesFirst()
    {
        QFile file(QCoreApplication::applicationDirPath() + "/QV_DOC_CONTROLS.res");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("1038\t3165\tPróba\\nszöveg\r\n2057\t3165\tTrial\r\nx\t1\ty\r\n1038\tnone\ty\r\n");
        file.close();
        qputenv("QV_DOC_CONTROLS_DEVELOPMENT", "1");
        const clsDebug debug;                           // makes sure that the texts are loaded
        file.remove();
        QCOMPARE(currentLanguage(), int(Hungarian));
        QCOMPARE(txt(Text{3165, u"Rétegválasztó"}), "Próba\nszöveg");
        QCOMPARE(txt(Text{3299, u"Rétegnév"}), "Rétegnév");
        setLanguage(English, {});
        QCOMPARE(txt(Text{3165, u"Rétegválasztó"}), "Trial");
        QCOMPARE(debug.sComponentName(), "ZolWOp");
    }
    void settingsAreReadTheNewWayFromVersionFiveOn()
    {
        const tests::SampleHost host(5);
        for (int n = 0; n < 2; ++n) QVERIFY(readBoolSetting("setup", "ShowTooltipsOnGrid", false));
        QCOMPARE(host.versionsRead, 1);
        QCOMPARE(host.reads, QStringList(2, "new setup/ShowTooltipsOnGrid"));
    }
};

QVDC_TEST(tst_FirstUse)
#include "tst_FirstUse.moc"
