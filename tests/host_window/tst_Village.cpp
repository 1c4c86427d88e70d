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
    std::unique_ptr<SqliteDoc> m_doc;
    static std::unique_ptr<SqliteDoc> made()
    {
        auto doc = SqliteDoc::create(QStringLiteral(":memory:"));
        makeVillage(*doc);
        return doc;
    }
    template <class Rec> static QSet<int> idsOf(const std::vector<Rec> &all, qint16 Rec::*key)
    {
        QSet<int> ids{-1};
        for (const Rec &r : all) ids.insert(r.*key);
        return ids;
    }

private slots:
    void initTestCase() { m_doc = made(); }

    void hasTheSizeOfASheet()
    {
        const int n = m_doc->elementCount();
        QVERIFY2(n > 4500 && n < 5500, qPrintable(QString::number(n)));
        QCOMPARE(m_doc->layers().count(), 40);
        QCOMPARE(m_doc->layers().groups().size(), size_t(6 + 1)); // and the system group
        QVERIFY(m_doc->symbols().count() >= 12);
        QVERIFY(m_doc->lineTypes().count() >= 10);
        int hidden = 0, dashed = 0, withSymbols = 0;
        for (const ZolWDoc::tLay &l : m_doc->layers().readAll()) hidden += !l.Visible;
        for (const ZolWDoc::tPenStyle &t : m_doc->lineTypes().readAll())
            dashed += !t.Pattern.empty(), withSymbols += t.Slots.at(0) != 0;
        QVERIFY(hidden >= 2 && dashed >= 7 && withSymbols >= 5);
    }

    void everyReferenceIsThere()
    {
        const QSet<int> layers = idsOf(m_doc->layers().readAll(), &ZolWDoc::tLay::LayId);
        const QSet<int> lineTypes = idsOf(m_doc->lineTypes().readAll(), &ZolWDoc::tPenStyle::iPenStyleId);
        const QSet<int> textTypes = idsOf(m_doc->textTypes().readAll(), &ZolWDoc::tTxd::TxdId);
        const QSet<int> symbols = idsOf(m_doc->symbols().readAll(), &ZolWDoc::tSid::SidId);
        QSet<int> used;
        for (const Element &e : m_doc->elements()) {
            QVERIFY(e.layId != -1 && layers.contains(e.layId) && lineTypes.contains(e.penStyleId));
            QVERIFY(textTypes.contains(e.txdId) && symbols.contains(e.sidId));
            QVERIFY((e.kind == ElementKind::Symbol) == (e.sidId != -1));
            used.insert(e.layId);
        }
        QCOMPARE(used.size(), 40); // no layer is empty
        for (const ZolWDoc::tLay &l : m_doc->layers().readAll()) {
            QVERIFY(lineTypes.contains(l.PenStyleId) && textTypes.contains(l.TxdId) && l.PenColorId > 0);
            QVERIFY2(m_doc->layers().groupOf(l.LayId) > 0, qPrintable(l.Name));
        }
        for (const ZolWDoc::tPenStyleSi &s : m_doc->lineSymbolizations().readAll())
            QVERIFY(symbols.contains(s.SidId));
    }

    void everySymbolHasStrokes()
    {
        const ZolWDoc::VectorFont *font = m_doc->ownFont().find(m_doc->ownFontName());
        QVERIFY(font);
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
