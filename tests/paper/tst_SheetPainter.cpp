#include "kit/paper/SheetPainter.h"

#include "kit/paper/Ink.h"
#include "kit/paper/SheetOutput.h"
#include "paper/SamplePaper.h"
#include "support/Registry.h"

#include <QApplication>
#include <QFile>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

QPalette darkPalette()
{
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    return dark;
}

SampleSheet smallTable()
{
    SampleSheet sheet({{QStringLiteral("Number"), 60, Qt::AlignRight},
                       {QStringLiteral("Name"), 90},
                       {QStringLiteral("On"), 40}});
    sheet.band(0, QStringLiteral("Visible: yes (2)"));
    sheet.record({QStringLiteral("1"), QStringLiteral("Road"), {}}).cells[2].check = 1;
    sheet.record({QStringLiteral("2"), QStringLiteral("Wall"), {}}).cells[2].check = 0;
    return sheet;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qsizetype pagesIn(const QByteArray &pdf)
{
    static const QRegularExpression page(QStringLiteral("/Type /Page\\b"));
    qsizetype n = 0;
    for (auto it = page.globalMatch(QString::fromLatin1(pdf)); it.hasNext(); it.next()) ++n;
    return n;
}

} // namespace

class tst_SheetPainter : public QObject {
    Q_OBJECT
private slots:
    void aDarkScreenPrintsTheSamePage()
    {
        const SampleSheet sheet = smallTable();
        const QPalette before = QApplication::palette();
        const auto print = [&] {
            return pictureOf(SheetPainter(sheet, {QStringLiteral("Layers")}, sheetOf(120, 80)), 0);
        };
        const QImage light = print();
        QApplication::setPalette(darkPalette());
        const QImage dark = print();
        QApplication::setPalette(before);
        QVERIFY(light == dark);
        QCOMPARE(dark.pixel(1, 1), kPaper);
        QVERIFY(darkestIn(dark, dark.rect()) < 40);
    }
    void lettersCanBeReadOnTheirGround_data()
    {
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<QColor>("wanted");
        QTest::addColumn<QColor>("ink");
        const QColor none, white(Qt::white), black(Qt::black);
        QTest::newRow("paper") << none << none << black;
        QTest::newRow("light letters of a dark screen") << none << QColor(230, 230, 230) << black;
        QTest::newRow("a colour that can be read stays") << none << QColor(160, 0, 0) << QColor(160, 0, 0);
        QTest::newRow("black swatch") << black << white << white;
        QTest::newRow("black on black") << black << black << white;
        QTest::newRow("yellow swatch") << QColor(Qt::yellow) << white << black;
        QTest::newRow("blue swatch") << QColor(Qt::blue) << none << white;
    }
    void lettersCanBeReadOnTheirGround()
    {
        QFETCH(QColor, ground);
        QFETCH(QColor, wanted);
        QTEST(inkOn(ground, wanted), "ink");
    }
    void cellsShowSwatchChecksGrayAndKeepTheirTextInside()
    {
        SampleSheet sheet({{QStringLiteral("A"), 60}, {QStringLiteral("B"), 60}, {QStringLiteral("C"), 60}});
        auto &row = sheet.record({QStringLiteral("long words that never fit in here at all ").repeated(3),
                                  {},
                                  QStringLiteral("7")});
        row.cells[2].background = Qt::red;
        sheet.record({QStringLiteral("gray"), {}, {}}).cells[0].grayed = true;
        auto &checks = sheet.record({{}, {}, {}});
        checks.cells[0].check = 0;
        checks.cells[1].check = 1;
        const SheetPainter painter(sheet, {}, sheetOf(150, 100));
        const QImage page = pictureOf(painter, 0);
        const auto cell = [&](int r, int c) { return insideOf(painter.layout(), r, c); };

        QVERIFY(darkestIn(page, cell(0, 0)) < 80);
        QCOMPARE(darkestIn(page, cell(0, 1)), 255);                     // the long text stayed in its column
        QCOMPARE(QColor(page.pixel(cell(0, 2).center())), QColor(Qt::red));
        QVERIFY(darkestIn(page, cell(0, 2)) < 40 || brightestIn(page, cell(0, 2)) > 215);
        QVERIFY(darkestIn(page, cell(1, 0)) >= 0x60);                   // gray, and there
        QVERIFY(darkestIn(page, cell(1, 0)) < 0xd0);
        QCOMPARE(brightestIn(page, QRect(cell(2, 0).center(), QSize(1, 1))), 255);
        QVERIFY(darkestIn(page, QRect(cell(2, 1).center() - QPoint(4, 4), QSize(9, 9))) < 100);
    }
    void everyPageHasItsFooter_data()
    {
        QTest::addColumn<bool>("withCount");
        QTest::addColumn<QString>("second");
        QTest::newRow("n/N") << true << QStringLiteral("p. 2/3 oldal");
        QTest::newRow("n") << false << QStringLiteral("p. 2 oldal");
    }
    void everyPageHasItsFooter()
    {
        QFETCH(bool, withCount);
        SampleSheet sheet({{QStringLiteral("A"), 100}});
        sheet.outline(QString(100, u'r'));
        const SheetPainter painter(
            sheet, {QStringLiteral("T"), QStringLiteral("p. "), QStringLiteral(" oldal"), withCount},
            sheetOf(100, 200));
        QCOMPARE(painter.pageCount(), 3);
        QTEST(painter.footerOf(1), "second");
        for (int p = 0; p < 3; ++p) { // captions above and footer below stand on each page alike
            const QImage page = pictureOf(painter, p);
            const auto &l = painter.layout();
            const auto band = [&](double top, double bottom) {
                return QRect(0, int(top * kPixelsPerUnit), page.width(),
                             int((bottom - top) * kPixelsPerUnit));
            };
            QVERIFY(darkestIn(page, band(l.captionsTop(), l.bodyTop()).adjusted(0, 2, 0, -2)) < 80);
            QVERIFY(darkestIn(page, band(l.bodyBottom(), l.area().bottom()).adjusted(0, 2, 0, 0)) < 80);
            QCOMPARE(darkestIn(page, band(l.area().bottom() + 8, painter.paperSize().height() - 8)), 255);
        }
    }
    void aPdfReplacesTheOlderFileOnlyWhenItIsWhole()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.pdf"));
        SampleSheet sheet({{QStringLiteral("A"), 100}});
        sheet.outline(QString(100, u'r'));
        const SheetPainter painter(sheet, {QStringLiteral("T")}, sheetOf(100, 200));
        QString error;
        QFile old(path);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("older");
        old.close();

        const auto stop = [](SheetOutput &o) {
            return o.start() && o.printNext() ? OutputResult::Stopped : OutputResult::Failed;
        };
        QCOMPARE(savePdf(painter, path, error, stop), OutputResult::Stopped);
        QCOMPARE(contentOf(path), QByteArray("older"));
        QCOMPARE(savePdf(painter, path, error), OutputResult::Done);
        QVERIFY(contentOf(path).startsWith("%PDF-"));
        QCOMPARE(pagesIn(contentOf(path)), 3);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("a.pdf")));
        QCOMPARE(savePdf(painter, folder.filePath(QStringLiteral("no/such/a.pdf")), error),
                 OutputResult::Failed);
        QVERIFY(!error.isEmpty());
    }
    void aRangeOfPagesIsPrinted()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("b.pdf"));
        SampleSheet sheet({{QStringLiteral("A"), 100}});
        sheet.outline(QString(100, u'r'));
        const SheetPainter painter(sheet, {QStringLiteral("T")}, sheetOf(100, 200));
        QPdfWriter writer(path);
        SheetOutput output(painter, writer, 1, 7);
        QCOMPARE(output.pages(), 2);
        QCOMPARE(runAll(output), OutputResult::Done);
        QCOMPARE(pagesIn(contentOf(path)), 2);
    }
};
QVDC_TEST(tst_SheetPainter)
#include "tst_SheetPainter.moc"
