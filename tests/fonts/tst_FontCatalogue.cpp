#include "fonts/FontCatalogue.h"
#include "support/Registry.h"

#include <QFontDatabase>

using namespace QV_DOC_CONTROLS;

class tst_FontCatalogue : public QObject {
    Q_OBJECT
private slots:
    void facesAreThoseThatADrawingCanName()
    {
        const QStringList &faces = trueTypeFaces();
        QVERIFY(faces.contains("DejaVu Sans"));
        QCOMPARE(faces.count("DejaVu Sans Mono"), 1);
        for (const QString &face : faces) QVERIFY2(!face.contains(u'['), qPrintable(face)); // no foundry
        QVERIFY(!faces.contains("Monospace"));  // stands for another face
        QCOMPARE(indexOfFace(faces, "dejavu SANS"), int(faces.indexOf("DejaVu Sans")));
        QCOMPARE(indexOfFace(faces, "DejaVu"), -1);
    }
    void scriptsAreThoseThatAFaceHasLettersFor()
    {
        const std::pair<const char *, QList<int>> rows[] = {
            {"DejaVu Sans", {0, 238, 204, 161, 162, 186, 163, 177, 178}},
            {"DejaVu Serif", {0, 238, 204, 161, 162, 186, 163}},        // no Semitic ones
            {"DejaVu Sans Mono", {0, 238, 204, 161, 162, 186, 178}}};   // Arabic only
        for (const auto &[face, charSets] : rows) {
            QList<int> found;
            for (const Script *script : scriptsOf(face)) found << script->charSet;
            tests::same(face, found, charSets);
        }
    }
    void everyFaceHasAScript()
    {
        for (const QString &face : trueTypeFaces()) QVERIFY2(!scriptsOf(face).empty(), qPrintable(face));
        QCOMPARE(scriptNameOf(238), "Közép-európai");
        QCOMPARE(scriptNameOf(77), "77");       // not offered, but drawings may hold it
    }
};
QVDC_TEST(tst_FontCatalogue)
#include "tst_FontCatalogue.moc"
