#include "document/SqliteDoc.h"
#include "sample/Village.h"

#include "support/Registry.h"

#include <QSet>
#include <QTest>

#include <cmath>

using namespace refhost;

class tst_Village : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<SqliteDoc> m_doc = made();
    static std::unique_ptr<SqliteDoc> made()
    {
        auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        makeVillage(*doc);
        return doc;
    }

private slots:
    void showsWhatADrawingCanHave()
    {
        QVERIFY(m_doc->elementCount() > 4500 && m_doc->elementCount() < 5500);
        QCOMPARE(m_doc->layers().groups().size(), size_t(6 + 1)); // and the system group
        const auto layers = m_doc->layers().readAll();
        QCOMPARE(layers.size(), size_t(40));
        QVERIFY(std::ranges::count(layers, false, &ZolWDoc::tLay::Visible) >= 2);
        int dashed = 0, withSymbols = 0;
        for (const ZolWDoc::tPenStyle &t : m_doc->lineTypes().readAll())
            dashed += !t.Pattern.empty(), withSymbols += t.Slots.at(0) != 0;
        QVERIFY(dashed >= 7 && withSymbols >= 5);
        QSet<int> used;
        for (const Element &e : m_doc->elements()) {
            QVERIFY(e.layId != -1 && (e.kind == ElementKind::Symbol) == (e.sidId != -1));
            used.insert(e.layId);
        }
        QCOMPARE(used.size(), 40); // no layer is empty
        for (const ZolWDoc::tLay &l : layers)
            QVERIFY2(l.PenColorId > 0 && m_doc->layers().groupOf(l.LayId) > 0, qPrintable(l.Name));
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
    void coordinatesAreHundredthsInTheNationalGrid()
    {
        for (const Element &e : m_doc->elements())
            for (const Vertex &v : e.vertices) {
                QVERIFY(v.x > 649900 && v.x < 650950 && v.y > 239400 && v.y < 240350);
                QCOMPARE(v.x, std::round(v.x * 100) / 100);
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
