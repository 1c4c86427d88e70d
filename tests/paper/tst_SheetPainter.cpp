#include "kit/paper/SheetPainter.h"

#include "kit/paper/Ink.h"
#include "kit/paper/SheetOutput.h"
#include "paper/SamplePaper.h"
#include "support/FullDisk.h"
#include "support/Looks.h"
#include "support/Registry.h"

#include <QPdfWriter>

using namespace tests;

namespace {

/// A hundred records on three pages.
SheetPainter threePages(bool withCount = true)
{
    static SampleSheet sheet({{"A", 100}});
    if (sheet.rows.empty()) sheet.outline(QString(100, u'r'));
    return {sheet, {"T", "p. ", " oldal", withCount}, sheetOf(100, 200)};
}
QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
qsizetype pagesIn(const QByteArray &pdf)
{
    return pdf.count("/Type /Page\n");
}

} // namespace

class tst_SheetPainter : public QObject {
    Q_OBJECT
private slots:
    void aDarkScreenPrintsTheSamePage()
    {
        SampleSheet sheet({{"Number", 60, Qt::AlignRight}, {"Name", 90}, {"On", 40}});
        sheet.band(0, "Visible: yes (2)");
        sheet.record({"1", "Road", {}}).cells[2].check = 1;
        sheet.record({"2", "Wall", {}}).cells[2].check = 0;
        const QPalette before = QApplication::palette();
        const auto print = [&] { return pictureOf(SheetPainter(sheet, {"Layers"}, sheetOf(120, 80)), 0); };
        const QImage light = print();
        QApplication::setPalette(darkPalette());
        const QImage dark = print();
        QApplication::setPalette(before);
        QVERIFY(light == dark);
        QCOMPARE(dark.pixel(1, 1), kPaper);
        QVERIFY(darkestIn(dark, dark.rect()) < 40);
    }
    void lettersCanBeReadOnTheirGround()
    {
        const QColor none, white(Qt::white), black(Qt::black), red(160, 0, 0);
        const std::tuple<const char *, QColor, QColor, QColor> rows[] = {
            {"paper", none, none, black},
            {"light letters of a dark screen", none, QColor(230, 230, 230), black},
            {"a colour that can be read stays", none, red, red},
            {"black on black", black, black, white},
            {"yellow swatch", Qt::yellow, white, black},
            {"blue swatch", Qt::blue, none, white}};
        for (const auto &[name, ground, wanted, ink] : rows) same(name, inkOn(ground, wanted), ink);
    }
    void cellsShowSwatchChecksGrayAndKeepTheirTextInside()
    {
        SampleSheet sheet({{"A", 60}, {"B", 60}, {"C", 60}});
        const QString words = QString("long words that never fit in here at all ").repeated(3);
        sheet.record({words, {}, "7"}).cells[2].background = Qt::red;
        sheet.record({"gray", {}, {}}).cells[0].grayed = true;
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
        QVERIFY(darkestIn(page, cell(1, 0)) >= 0x60 && darkestIn(page, cell(1, 0)) < 0xd0); // gray, and there
        QCOMPARE(brightestIn(page, QRect(cell(2, 0).center(), QSize(1, 1))), 255);
        QVERIFY(darkestIn(page, QRect(cell(2, 1).center() - QPoint(4, 4), QSize(9, 9))) < 100);
    }
    void aFooterSaysWhichPageItIs()
    {
        QCOMPARE(threePages(false).footerOf(1), "p. 2 oldal");
        QCOMPARE(threePages().footerOf(1), "p. 2/3 oldal");
    }
    void aPdfReplacesTheOlderFileOnlyWhenItIsWhole()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.pdf");
        const SheetPainter painter = threePages();
        QString error;
        QFile old(path);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("older") > 0);
        old.close();
        const auto stop = [](SheetOutput &o) {
            return o.start() && o.printNext() ? OutputResult::Stopped : OutputResult::Failed;
        };
        QCOMPARE(savePdf(painter, path, error, stop), OutputResult::Stopped);
        QCOMPARE(contentOf(path), "older");
        QCOMPARE(savePdf(painter, path, error), OutputResult::Done);
        QVERIFY(contentOf(path).startsWith("%PDF-"));
        if (FullDisk::isPossible) { // the last letters are those that are kept back until the end
            const FullDisk full(QFileInfo(path).size() - 100);
            QCOMPARE(savePdf(painter, path, error), OutputResult::Failed);
        }
        QCOMPARE(pagesIn(contentOf(path)), 3);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("a.pdf"));
        QCOMPARE(savePdf(painter, folder.filePath("no/such/a.pdf"), error), OutputResult::Failed);
        QVERIFY(!error.isEmpty());
    }
    void aRangeOfPagesIsPrinted()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("b.pdf");
        const SheetPainter painter = threePages();
        QPdfWriter writer(path);
        SheetOutput output(painter, writer, 1, 7);
        QCOMPARE(output.pages(), 2);
        QCOMPARE(runAll(output), OutputResult::Done);
        QCOMPARE(pagesIn(contentOf(path)), 2);
    }
};
QVDC_TEST(tst_SheetPainter)
#include "tst_SheetPainter.moc"
