#include "fonts/BlockHost.h"
#include "fonts/CharacterGrid.h"
#include "fonts/GlyphPainter.h"
#include "kit/ask/ErrorRelay.h"
#include "support/Registry.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

/// A grid of DejaVu Sans in Cyrillic, ten lines high.
struct Shown {
    ErrorRelay host;
    CharacterGrid grid{host, nullptr};
    explicit Shown(bool onlyPresent = false)
    {
        grid.setSource(trueTypeCharacters({QStringLiteral("DejaVu Sans"), 204}));
        grid.setOnlyPresent(onlyPresent);
        grid.resize(grid.sizeHint());
        grid.show();
    }
    QString spoken(int code)
    {
        grid.setCode(code);
        QAccessibleInterface *const table = QAccessible::queryAccessibleInterface(&grid);
        return table->tableInterface()
            ->cellAt(grid.currentIndex().row(), grid.currentIndex().column())
            ->text(QAccessible::Name);
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
    void keysWalkAllCodes_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("control");
        QTest::addColumn<int>("to");
        const auto row = [](const char *name, int from, Qt::Key key, int to, bool ctrl = false) {
            QTest::newRow(name) << from << int(key) << ctrl << to;
        };
        row("right over the end of the line", 0x15f, Qt::Key_Right, 0x160);
        row("left at the beginning", 0, Qt::Key_Left, 0);
        row("down", 0x151, Qt::Key_Down, 0x161);
        row("down in the last line", 0xfff5, Qt::Key_Down, 0xfff5);
        row("home", 0x15a, Qt::Key_Home, 0x150);
        row("very last", 0x15a, Qt::Key_End, 0xffff, true);
        row("very first", 0x15a, Qt::Key_Home, 0, true);
        row("a page on", 0x151, Qt::Key_PageDown, 0x1e1); // one line of the ten stays
        row("a page back", 0x21, Qt::Key_PageUp, 0x01);
    }
    void keysWalkAllCodes()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(bool, control);
        QFETCH(int, to);
        Shown shown;
        shown.grid.setCode(from);
        QTest::keyClick(&shown.grid, Qt::Key(key), control ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(shown.grid.code(), to);
        QVERIFY(shown.grid.viewport()->rect().contains(shown.grid.visualRect(shown.grid.currentIndex())));
    }
    void everyCellSaysCodeAndCharacter()
    {
        Shown shown;
        QCOMPARE(shown.spoken(0x151), QStringLiteral("U+0151, 337, ő"));
        QCOMPARE(shown.spoken(0xe1), QStringLiteral("U+00E1, 225, б")); // by the code page
        QCOMPARE(shown.spoken(0xd800), QStringLiteral("U+D800, 55296, A készletben nincs ilyen karakter."));
        QCOMPARE(shown.spoken(7), QStringLiteral("U+0007, 7, A készletben nincs ilyen karakter."));
    }
    void charactersAreSeenLarge()
    {
        Shown shown;
        shown.grid.setCode(0x151);
        const QPoint at = shown.grid.visualRect(shown.grid.currentIndex()).center();
        QHelpEvent help(QEvent::ToolTip, at, shown.grid.viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(shown.grid.viewport(), &help);
        QVERIFY(QToolTip::text().contains(QStringLiteral("U+0151 = 337")));
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
        QVERIFY(shown.grid.model()->rowCount() < 4096 / 4);
        QVERIFY(!shown.grid.setCode(7));
        QVERIFY(shown.grid.setCode(0x1ebf));
        shown.grid.setOnlyPresent(false);
        QCOMPARE(shown.grid.model()->rowCount(), 4096);
        QCOMPARE(shown.grid.code(), 0x1ebf);                    // stays, and stays in sight
        QVERIFY(shown.grid.viewport()->rect().contains(shown.grid.visualRect(shown.grid.currentIndex())));
    }
    void missingCodesAreDimmed()
    {
        Shown shown;
        shown.grid.setCode(0x15f);
        const QImage seen = shown.grid.viewport()->grab().toImage();
        const auto ground = [&](int code) {
            const QModelIndex at = shown.grid.model()->index(code / 16, code % 16);
            return seen.pixelColor(shown.grid.visualRect(at).topLeft() + QPoint(1, 1));
        };
        QCOMPARE(ground(0x15e), shown.grid.palette().color(QPalette::Base));
        shown.grid.setCode(0xffff);
        const QImage last = shown.grid.viewport()->grab().toImage();
        const QModelIndex none = shown.grid.model()->index(0xfff0 / 16, 0);
        QCOMPARE(last.pixelColor(shown.grid.visualRect(none).topLeft() + QPoint(1, 1)),
                 shown.grid.palette().color(QPalette::Window));
    }
    void charactersStayInTheirCell_data()
    {
        QTest::addColumn<bool>("isVector");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("width");         // of the cell
        QTest::newRow("a letter") << false << int('g') << 40;
        QTest::newRow("one that is too wide") << false << int('W') << 12;
        QTest::newRow("a mark without width") << false << 0x301 << 40;
        QTest::newRow("a cross about its middle") << true << 33 << 40;
        QTest::newRow("a dot") << true << 200 << 40;
        QTest::newRow("a line forty letters long") << true << 40000 << 40;
    }
    void charactersStayInTheirCell()
    {
        QFETCH(bool, isVector);
        QFETCH(int, code);
        QFETCH(int, width);
        const BlockHost host;
        const auto source =
            isVector ? vectorCharacters(host) : trueTypeCharacters({QStringLiteral("DejaVu Sans"), 0});
        const auto one = quint16(code);
        source->prepare({&one, 1});
        const QRect cell(20, 30, width, 36);
        const QRect ink = inkDrawn([&](QPainter &p) { source->draw(p, code, cell, Qt::black); });
        QVERIFY(!ink.isEmpty());
        QVERIFY(cell.adjusted(-1, -1, 1, 1).contains(ink));
        QVERIFY(std::abs(ink.center().x() - cell.center().x()) <= 1);
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
