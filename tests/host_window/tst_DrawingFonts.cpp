#include "document/SqliteDoc.h"
#include "window/HostServices.h"
#include "window/Resources.h"

#include "support/Registry.h"

#include <QTest>

using namespace refhost;

class tst_DrawingFonts : public QObject {
    Q_OBJECT
private slots:
    void aDrawingsFontsAreItsOwnAndTheProgramsOnes()
    {
        HostServices services;
        const auto doc = SqliteDoc::create(QStringLiteral(":memory:")),
                   other = SqliteDoc::create(QStringLiteral(":memory:"));
        doc->addGlyph(33, QStringLiteral("tree"), {{{{0, 0}, {0, 1}}}, 1});
        const ZolWDoc::VectorFontProvider &fonts = *services.vectorFonts(doc.get());
        const QString strokes = QStringLiteral("Hershey Roman Simplex");
        QCOMPARE(services.vectorFonts(other.get())->names().first(), strokes);
        QVERIFY(!services.vectorFonts(nullptr)->find(doc->ownFontName()));
        QCOMPARE(fonts.names().first(), doc->ownFontName()); // whoever was asked in between
        QVERIFY(fonts.names().contains(strokes));
        QCOMPARE(fonts.find(doc->ownFontName())->entries().front().name, QStringLiteral("tree"));
    }
    void symbolsAreDrawnWithEither()
    {
        HostServices services;
        const auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        doc->addGlyph(33, QStringLiteral("tree"), {{{{0, 0}, {0, 1}}}, 1});
        ZolWDoc::tSid symbol = doc->symbols().readAll().front();
        symbol.Type = 1;
        const std::pair<QString, qint32> rows[] = {
            {doc->ownFontName(), 33}, {QStringLiteral("Hershey Roman Simplex"), 0x151}};
        for (const auto &[face, code] : rows) {
            symbol.Facename = face;
            symbol.Code = code;
            doc->symbols().update(symbol);
            QCOMPARE(resourcesOf(*doc).glyphs.value(symbol.SidId).strokes,
                     services.vectorFonts(doc.get())->find(face)->glyph(code).strokes);
            QVERIFY(!resourcesOf(*doc).glyphs.value(symbol.SidId).strokes.empty());
        }
    }
};
QVDC_TEST(tst_DrawingFonts)
#include "tst_DrawingFonts.moc"
