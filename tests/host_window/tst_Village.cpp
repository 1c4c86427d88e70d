#include "document/SqliteDoc.h"
#include "sample/Village.h"

#include "support/Registry.h"

#include <cmath>

using namespace refhost;

class tst_Village : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<SqliteDoc> m_doc = made();
    static std::unique_ptr<SqliteDoc> made()
    {
        auto doc = SqliteDoc::create(":memory:");
        makeVillage(*doc);
        return doc;
    }

private slots:
    void noLayerIsEmptyOrInNoGroup()
    {
        QVERIFY(m_doc->elementCount() > 4500 && m_doc->layers().count() == 40);
        for (const ZolWDoc::tLay &l : m_doc->layers().readAll())
            QVERIFY2(m_doc->layers().uses(l.LayId) > 0 && m_doc->layers().groupOf(l.LayId) > 0,
                     qPrintable(l.Name));
        for (const Element &e : m_doc->elements()) {
            QVERIFY((e.kind == ElementKind::Symbol) == (e.sidId != -1));
            for (const Vertex &v : e.vertices) { // hundredths in the national grid
                QVERIFY(v.x > 649900 && v.x < 650950 && v.y > 239400 && v.y < 240350);
                QCOMPARE(v.x, std::round(v.x * 100) / 100);
            }
        }
    }
    void everySymbolHasStrokes()
    {
        const ZolWDoc::VectorFont *font = m_doc->ownFont().find(m_doc->ownFontName());
        QVERIFY(font && m_doc->symbols().count() >= 12);
        for (const ZolWDoc::tSid &s : m_doc->symbols().readAll()) {
            QCOMPARE(s.Facename, m_doc->ownFontName());
            const ZolWDoc::Glyph g = font->glyph(s.Code);
            QVERIFY2(!g.strokes.empty(), qPrintable(s.FullName));
            for (const auto &stroke : g.strokes) QVERIFY2(stroke.size() > 1, qPrintable(s.FullName));
        }
    }
    void isTheSameEveryTime()
    {
        const auto again = made();
        QVERIFY(again->elements() == m_doc->elements());
        QVERIFY(again->layers().readAll() == m_doc->layers().readAll());
        QVERIFY(again->points().readAll() == m_doc->points().readAll());
    }
};

QVDC_TEST(tst_Village)
#include "tst_Village.moc"
