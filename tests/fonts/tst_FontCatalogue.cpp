#include "fonts/FontCatalogue.h"
#include "support/Registry.h"

#include <QFontDatabase>
#include <QTest>

using namespace QV_DOC_CONTROLS;

class tst_FontCatalogue : public QObject {
    Q_OBJECT
private slots:
    void facesAreThoseThatADrawingCanName()
    {
        const QStringList &faces = trueTypeFaces();
        QVERIFY(faces.contains(QStringLiteral("DejaVu Sans")));
        QCOMPARE(faces.count(QStringLiteral("DejaVu Sans Mono")), 1);
        for (const QString &face : faces) QVERIFY2(!face.contains(u'['), qPrintable(face)); // no foundry
        QVERIFY(!faces.contains(QStringLiteral("Monospace")));  // stands for another face
        QCOMPARE(indexOfFace(faces, QStringLiteral("dejavu SANS")),
                 int(faces.indexOf(QStringLiteral("DejaVu Sans"))));
        QCOMPARE(indexOfFace(faces, QStringLiteral("DejaVu")), -1);
    }
    void scriptsAreThoseThatAFaceHasLettersFor_data()
    {
        QTest::addColumn<QString>("face");
        QTest::addColumn<QList<int>>("charSets");
        QTest::newRow("many") << QStringLiteral("DejaVu Sans")
                              << QList<int>{0, 238, 204, 161, 162, 186, 163, 177, 178};
        QTest::newRow("no Semitic ones") << QStringLiteral("DejaVu Serif")
                                         << QList<int>{0, 238, 204, 161, 162, 186, 163};
        QTest::newRow("Arabic only") << QStringLiteral("DejaVu Sans Mono")
                                            << QList<int>{0, 238, 204, 161, 162, 186, 178};
    }
    void scriptsAreThoseThatAFaceHasLettersFor()
    {
        QFETCH(QString, face);
        QList<int> found;
        for (const Script *script : scriptsOf(face)) found << script->charSet;
        QTEST(found, "charSets");
    }
    void everyFaceHasAScript()
    {
        for (const QString &face : trueTypeFaces()) QVERIFY2(!scriptsOf(face).empty(), qPrintable(face));
        QCOMPARE(scriptNameOf(238), QStringLiteral("Közép-európai"));
        QCOMPARE(scriptNameOf(77), QStringLiteral("77"));       // not offered, but drawings may hold it
    }
};
QVDC_TEST(tst_FontCatalogue)
#include "tst_FontCatalogue.moc"
