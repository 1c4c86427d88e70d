#include "facade/services/Trace.h"
#include "facade/services/clsDebug.h"

#include "support/Registry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;

class tst_Trace : public QObject {
    Q_OBJECT
private slots:
    void entryStepsAndExitAreQuotedLines()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("trace.log"));
        clsDebug().setsLogFileName(file.fileName());
        { Trace t("clsDocDlgs", "bEdit_Layers"); t.step(1); }
        QVERIFY(!file.exists());                // nothing is written while it is off
        clsDebug().setbCallLog(true);
        { Trace t("clsDocDlgs", "bEdit_Layers"); t.step(1); t.step(2); }
        { Trace t("a\"b", "c"); }
        clsDebug().setbCallLog(false);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(),
                 "\"clsDocDlgs.bEdit_Layers >>\"\r\n\"clsDocDlgs.bEdit_Layers 1\"\r\n"
                 "\"clsDocDlgs.bEdit_Layers 2\"\r\n\"clsDocDlgs.bEdit_Layers <<\"\r\n"
                 "\"a\"\"b.c >>\"\r\n\"a\"\"b.c <<\"\r\n");
    }
    void livingObjectsAreListedUntilTheyGo()
    {
        const auto before = traceObjects().entries().size();
        {
            DebugIdentity first("frmSelect"), second("clsJs_Layer");
            QCOMPARE(qint32(second), qint32(first) + 1);
            QCOMPARE(traceObjects().entries().size(), before + 2);
        }
        QCOMPARE(traceObjects().entries().size(), before);
    }
};

QVDC_TEST(tst_Trace)
#include "tst_Trace.moc"
