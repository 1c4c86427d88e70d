#include "facade/services/Trace.h"
#include "facade/services/clsDebug.h"

#include "support/Registry.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;

class tst_Trace : public QObject {
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("trace.log"));
    QByteArray written() const
    {
        QFile f(m_path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
private slots:
    void init()
    {
        QFile::remove(m_path);
        clsDebug().setsLogFileName(m_path);
    }
    void cleanup() { clsDebug().setbCallLog(false); }

    void nothingIsWrittenWhileOff()
    {
        { Trace t("clsDocDlgs", "bEdit_Layers"); t.step(1); }
        QVERIFY(!QFile::exists(m_path));
    }
    void entryStepsAndExitAreQuotedLines()
    {
        clsDebug().setbCallLog(true);
        { Trace t("clsDocDlgs", "bEdit_Layers"); t.step(1); t.step(2); }
        QCOMPARE(written(),
                 QByteArray("\"clsDocDlgs.bEdit_Layers >>\"\r\n\"clsDocDlgs.bEdit_Layers 1\"\r\n"
                            "\"clsDocDlgs.bEdit_Layers 2\"\r\n\"clsDocDlgs.bEdit_Layers <<\"\r\n"));
    }
    void innerQuotesAreDoubled()
    {
        clsDebug().setbCallLog(true);
        { Trace t("a\"b", "c"); }
        QVERIFY(written().startsWith("\"a\"\"b.c >>\"\r\n"));
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
