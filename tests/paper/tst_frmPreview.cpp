#include "dialogs/viewtools/frmPreview.h"

#include "facade/services/Language.h"
#include "kit/paper/OutputProgress.h"
#include "kit/paper/PageSetup.h"
#include "kit/paper/PageSetupDialog.h"
#include "kit/paper/SheetPreview.h"
#include "paper/SamplePaper.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QPdfWriter>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

SampleSheet threePages()
{
    SampleSheet sheet({{QStringLiteral("A"), 100}});
    sheet.outline(QString(150, u'r'));
    return sheet;
}
SheetTitles titles() { return {txt(Text{3283, u"Rétegek"}), {}, txt(Text{3277, u" oldal"}), true}; }

template <class Act> void preview(Act act)
{
    const SampleSheet sheet = threePages();
    frmPreview form;
    const auto script = whileModal<frmPreview>([&](frmPreview &f) {
        act(f);
        child<QPushButton>(f, "cmdClose").click();
    });
    form.showPages(sheet, &titles, nullptr);
    QCOMPARE(form.grPrev->pageCount(), 0);          // let go of the grid
}

} // namespace

class tst_frmPreview : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qputenv("CUPS_SERVER", "/no/such/printer/server"); // the same on a machine with printers
        setLanguage(Hungarian, {});
        storePageSetup(pageLayoutOf(QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 15}));
    }
    void keysAndButtonsTurnPages()
    {
        preview([](frmPreview &f) {
            auto &page = child<QSpinBox>(f, "spinPage");
            auto &previous = child<QAction>(f, "cmdPrevious"), &next = child<QAction>(f, "cmdNext");
            QCOMPARE(page.maximum(), 3);
            QVERIFY(!previous.isEnabled());
            QTest::keyClick(f.grPrev, Qt::Key_PageDown);
            QCOMPARE(page.value(), 2);
            next.trigger();
            QCOMPARE(f.grPrev->currentPage(), 2);
            QVERIFY(!next.isEnabled());
            QTest::keyClick(&page, Qt::Key_PageUp); // the same from the box
            QCOMPARE(f.grPrev->currentPage(), 1);
            page.setValue(3);
            QCOMPARE(f.grPrev->currentPage(), 2);
            QTest::keyClick(f.grPrev, Qt::Key_Home);
            QCOMPARE(page.value(), 1);
        });
    }
    void thePlaceStaysWhenZoomOrSizeChange()
    {
        preview([](frmPreview &f) {
            f.grPrev->goToPage(1);
            auto &zoom = child<QComboBox>(f, "cboZoom");
            for (int i = 0; i < zoom.count(); ++i) {
                f.grPrev->setZoom(zoom.itemData(i).toDouble());
                QCOMPARE(zoom.currentIndex(), i);
                QCOMPARE(f.grPrev->currentPage(), 1);
            }
            f.resize(f.size() * 2);
            QCOMPARE(f.grPrev->currentPage(), 1);
            QTest::keyClick(f.grPrev, Qt::Key_Minus, Qt::ControlModifier);
            QCOMPARE(f.grPrev->zoom(), 2.0);
        });
    }
    void pageSetupLaysThePagesOutAnew()
    {
        preview([](frmPreview &f) {
            const auto script = whileModal<PageSetupDialog>([](PageSetupDialog &d) {
                auto &paper = child<QComboBox>(d, "cboPaper");
                paper.setCurrentIndex(paper.findData(int(QPageSize::A3)));
                child<QPushButton>(d, "cmdOk").click();
            });
            child<QAction>(f, "cmdPageSetup").trigger();
            QCOMPARE(child<QSpinBox>(f, "spinPage").maximum(), 2);
        });
        storePageSetup(pageLayoutOf(QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 15}));
    }
    void aLanguageChangeReachesWindowAndPages()
    {
        preview([](frmPreview &f) {
            QCOMPARE(f.windowTitle(), QStringLiteral("Nyomtatási kép"));
            f.grPrev->goToPage(1);
            QCOMPARE(f.grPrev->accessibleDescription(), QStringLiteral("2/3 oldal"));
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(f.windowTitle(), QStringLiteral("Print preview"));
            QCOMPARE(child<QPushButton>(f, "cmdClose").text(), QStringLiteral("Close"));
            QCOMPARE(child<QToolBar>(f, "barPreview").accessibleName(), QStringLiteral("Preview tools"));
            QCOMPARE(f.grPrev->accessibleDescription(), QStringLiteral("2/3 page"));
        });
        setLanguage(Hungarian, {});
    }
    void withoutAPrinterPdfIsOffered()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("out.pdf"));
        ScriptedPrompts user({
            {"yesNo",
             {},
             QStringLiteral("Ezen a gépen nincs telepített nyomtató.\nMenti inkább PDF-fájlba?"),
             true,
             Icon::Question},
            {"saveFile", QStringLiteral("Mentés PDF-be"), QStringLiteral("PDF-fájl (*.pdf)|*.pdf"), path},
        });
        preview([&](frmPreview &f) {
            child<QAction>(f, "cmdPrint").trigger();
            QVERIFY(child<QLabel>(f, "lblNote").text().contains(path));
        });
        QVERIFY(QFile::exists(path));
    }
    void anUnwritableFileIsNamed()
    {
        const QString path = QStringLiteral("/proc/no/such/folder/out.pdf");
        ScriptedPrompts user({
            {"saveFile", QStringLiteral("Mentés PDF-be"), QStringLiteral("PDF-fájl (*.pdf)|*.pdf"), path},
            {"tell",
             {},
             QStringLiteral("A PDF-fájl nem írható: /proc/no/such/folder/out.pdf\nNo such file or directory\n"
                            "Válasszon másik mappát vagy fájlnevet! A korábbi fájl változatlan maradt."),
             {},
             Icon::Exclamation},
        });
        preview([](frmPreview &f) { child<QAction>(f, "cmdSavePdf").trigger(); });
    }
    void aLongPrintCanBeStopped_data()
    {
        QTest::addColumn<bool>("stop");
        QTest::newRow("stopped") << true;
        QTest::newRow("left alone") << false;
    }
    void aLongPrintCanBeStopped()
    {
        QFETCH(bool, stop);
        QTemporaryDir folder;
        SampleSheet sheet({{QStringLiteral("A"), 100}});
        sheet.outline(QString(60000, u'r')); // far more than one tick prints
        const SheetPainter painter(sheet, titles(), storedPageSetup());
        QPdfWriter writer(folder.filePath(QStringLiteral("c.pdf")));
        SheetOutput output(painter, writer, 0, painter.pageCount() - 1);
        QVERIFY(output.start());
        OutputProgress progress(output, nullptr);
        if (stop)
            QTimer::singleShot(0, &progress, [&] { child<QPushButton>(progress, "cmdCancel").click(); });
        QCOMPARE(progress.run(), stop ? OutputResult::Stopped : OutputResult::Done);
        QCOMPARE(output.done(), !stop);
    }
};
QVDC_TEST(tst_frmPreview)
#include "tst_frmPreview.moc"
