#include "document/SqliteDoc.h"
#include "window/HostServices.h"
#include "window/Resources.h"

#include "support/Registry.h"

using namespace refhost;

class tst_DrawingFonts : public QObject {
    Q_OBJECT
private slots:
    void aDrawingsFontsAreItsOwnAndTheProgramsOnes()
    {
        HostServices services;
        const auto doc = SqliteDoc::create(":memory:"), other = SqliteDoc::create(":memory:");
        doc->addGlyph(33, "tree", {{{{0, 0}, {0, 1}}}, 1});
        const QString strokes = "Hershey Roman Simplex", own = doc->ownFontName();
        const ZolWDoc::VectorFontProvider &fonts = *services.vectorFonts(doc.get());
        QCOMPARE(services.vectorFonts(other.get())->names().first(), strokes);
        QVERIFY(!services.vectorFonts(nullptr)->find(own));
        QCOMPARE(fonts.names().first(), own);          // whoever was asked in between
        QCOMPARE(fonts.find(own)->entries().front().name, "tree");
        ZolWDoc::tSid symbol = doc->symbols().readAll().front();
        symbol.Type = 1;
        for (const auto &[face, code] :
             {std::pair(own, 33), {strokes, 0x151}}) { // symbols are drawn with either
            symbol.Facename = face;
            symbol.Code = code;
            doc->symbols().update(symbol);
            const auto drawn = resourcesOf(*doc).glyphs.value(symbol.SidId).strokes;
            QVERIFY(!drawn.empty());
            QCOMPARE(drawn, fonts.find(face)->glyph(code).strokes);
        }
    }
};
QVDC_TEST(tst_DrawingFonts)
#include "tst_DrawingFonts.moc"
