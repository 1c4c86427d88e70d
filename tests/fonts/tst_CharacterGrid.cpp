#include "fonts/BlockHost.h"
#include "fonts/CharacterGrid.h"
#include "fonts/GlyphPainter.h"
#include "kit/ask/ErrorRelay.h"
#include "support/Registry.h"

#include <QHelpEvent>
#include <QToolTip>

using namespace tests;

namespace {

/// A grid of DejaVu Sans in Cyrillic, ten lines high.
struct Shown {
    ErrorRelay host;
    CharacterGrid grid{host, nullptr};
    explicit Shown(bool onlyPresent = false)
    {
        grid.setSource(trueTypeCharacters({"DejaVu Sans", 204}));
        grid.setOnlyPresent(onlyPresent);
        grid.resize(grid.sizeHint());
        grid.show();
    }
    QRect cell() const { return grid.visualRect(grid.currentIndex()); }
    QString spoken(int code)
    {
        grid.setCode(code);
        const QModelIndex at = grid.currentIndex();
        auto &table = *QAccessible::queryAccessibleInterface(&grid)->tableInterface();
        return table.cellAt(at.row(), at.column())->text(QAccessible::Name);
    }
};

/// The box around what is not white.
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y).lightness() < 230) ink |= QRect(x, y, 1, 1);
    return ink;
}

template <class Draw> QRect inkDrawn(Draw draw)
{
    QImage paper(100, 100, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    draw(painter);
    painter.end();
    return inkOf(paper);
}

} // namespace

class tst_CharacterGrid : public QObject {
    Q_OBJECT
private slots:
    void keysWalkAllCodes()
    {
        const std::tuple<const char *, int, Qt::Key, int, Qt::KeyboardModifiers> rows[] = {
            {"right over the end of the line", 0x15f, Qt::Key_Right, 0x160, {}},
            {"left at the beginning", 0, Qt::Key_Left, 0, {}},
            {"down", 0x151, Qt::Key_Down, 0x161, {}},
            {"down in the last line", 0xfff5, Qt::Key_Down, 0xfff5, {}},
            {"home", 0x15a, Qt::Key_Home, 0x150, {}},
            {"very last", 0x15a, Qt::Key_End, 0xffff, Qt::ControlModifier},
            {"very first", 0x15a, Qt::Key_Home, 0, Qt::ControlModifier},
            {"a page on", 0x151, Qt::Key_PageDown, 0x1e1, {}}, // one line of the ten stays
            {"a page back", 0x21, Qt::Key_PageUp, 0x01, {}}};
        Shown shown;
        for (const auto &[name, from, key, to, held] : rows) {
            shown.grid.setCode(from);
            QTest::keyClick(&shown.grid, key, held);
            same(name, shown.grid.code(), to);
            QVERIFY2(shown.grid.viewport()->rect().contains(shown.cell()), name);
        }
    }
    void everyCellSaysCodeAndCharacter()
    {
        Shown shown;
        QCOMPARE(shown.spoken(0x151), "U+0151, 337, ő");
        QCOMPARE(shown.spoken(0xe1), "U+00E1, 225, б"); // by the code page
        QCOMPARE(shown.spoken(0xd800), "U+D800, 55296, A készletben nincs ilyen karakter.");
        QCOMPARE(shown.spoken(7), "U+0007, 7, A készletben nincs ilyen karakter.");
    }
    void charactersAreSeenLarge()
    {
        Shown shown;
        shown.grid.setCode(0x151);
        const QPoint at = shown.cell().center();
        QHelpEvent help(QEvent::ToolTip, at, shown.grid.viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(shown.grid.viewport(), &help);
        QVERIFY(QToolTip::text().contains("U+0151 = 337"));
        QToolTip::hideText();
        const int usual = shown.grid.rowHeight(0);
        QWheelEvent wheel(at, at, {}, {0, 120}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(shown.grid.viewport(), &wheel);
        QVERIFY(shown.grid.rowHeight(0) > usual);
        QCOMPARE(shown.grid.code(), 0x151);
        for (int i = 0; i < 100; ++i) shown.grid.zoom(-1);
        QVERIFY(shown.grid.rowHeight(0) > usual / 3);           // but not to nothing
    }
    void codesThatAreMissingCanBeLeftOut()
    {
        Shown shown(true);
        QVERIFY(shown.grid.model()->rowCount() < 4096 / 4 && !shown.grid.setCode(7));
        QVERIFY(shown.grid.setCode(0x1ebf));
        shown.grid.setOnlyPresent(false);
        QCOMPARE(shown.grid.model()->rowCount(), 4096);
        QCOMPARE(shown.grid.code(), 0x1ebf);                    // stays, and stays in sight
        QVERIFY(shown.grid.viewport()->rect().contains(shown.cell()));
    }
    void charactersStayInTheirCell()
    {
        const std::tuple<const char *, bool, quint16, int> rows[] = {
            // whether it has strokes, width of the cell
            {"a letter", false, 'g', 40},
            {"one that is too wide", false, 'W', 12},
            {"a mark without width", false, 0x301, 40},
            {"a cross about its middle", true, 33, 40},
            {"a dot", true, 200, 40},
            {"a line forty letters long", true, 40000, 40}};
        const BlockHost host;
        for (const auto &[name, isVector, code, width] : rows) {
            const auto source = isVector ? vectorCharacters(host) : trueTypeCharacters({"DejaVu Sans", 0});
            source->prepare({&code, 1});
            const QRect cell(20, 30, width, 36);
            const QRect ink =
                inkDrawn([&, code = code](QPainter &p) { source->draw(p, code, cell, Qt::black); });
            QVERIFY2(!ink.isEmpty() && cell.adjusted(-1, -1, 1, 1).contains(ink), name);
            QVERIFY2(std::abs(ink.center().x() - cell.center().x()) <= 1, name);
        }
    }
    void strokesAreDrawnWhereTheyAreSaidToBe()
    {
        const ZolWDoc::Glyph corner{{{{0, 0}, {0, 1}, {0.5, 1}}, {{1, 0}}}, 1};
        const GlyphPlace place{{20, 80}, 40, 4, Qt::black};
        QCOMPARE(boundsOf(corner, place), QRectF(18, 38, 44, 44));
        const QRect ink = inkDrawn([&](QPainter &p) { drawGlyph(p, corner, place); });
        QCOMPARE(ink, QRect(18, 38, 44, 44));                   // the dot is its last part
        QVERIFY(boundsOf({}, place).isNull());
    }
};
QVDC_TEST(tst_CharacterGrid)
#include "tst_CharacterGrid.moc"
