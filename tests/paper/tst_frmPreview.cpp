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

#include <QPdfWriter>
#include <QSpinBox>

using namespace tests;

namespace {

SheetTitles titles() { return {txt(Text{3283, u"Rétegek"}), {}, txt(Text{3277, u" oldal"}), true}; }

/// The preview of three pages; `act` is done there.
template <class Act> void preview(Act act)
{
    SampleSheet sheet({{"A", 100}});
    sheet.outline(QString(150, u'r'));
    frmPreview form;
    const auto script = whileModal<frmPreview>([&](frmPreview &f) {
        act(f);
        child<QPushButton>(f, "cmdClose").click();
    });
    form.showPages(sheet, &titles, nullptr);
    QCOMPARE(form.grPrev->pageCount(), 0);          // let go of the grid
}
ScriptedPrompts::Step savesTo(const QString &path)
{
    return {"saveFile", "Mentés PDF-be", "PDF-fájl (*.pdf)|*.pdf", path};
}

} // namespace

class tst_frmPreview : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { qputenv("CUPS_SERVER", "/no/such/printer/server"); } // as on a machine without any
    void init()
    {
        setLanguage(Hungarian, {});
        storePageSetup(pageLayoutOf(QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 15}));
    }
    void keysAndButtonsTurnPages()
    {
        preview([](frmPreview &f) {
            auto &page = child<QSpinBox>(f, "spinPage");
            auto &previous = child<QAction>(f, "cmdPrevious"), &next = child<QAction>(f, "cmdNext");
            QVERIFY(page.maximum() == 3 && !previous.isEnabled());
            QTest::keyClick(f.grPrev, Qt::Key_PageDown);
            QCOMPARE(page.value(), 2);
            next.trigger();
            QVERIFY(f.grPrev->currentPage() == 2 && !next.isEnabled());
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
    }
    void aLanguageChangeReachesThePages()
    {
        preview([](frmPreview &f) {
            f.grPrev->goToPage(1);
            QCOMPARE(f.grPrev->accessibleDescription(), "2/3 oldal");
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(child<QPushButton>(f, "cmdClose").text(), "Close");
            QCOMPARE(f.grPrev->accessibleDescription(), "2/3 page");
        });
    }
    void withoutAPrinterPdfIsOffered()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("out.pdf");
        const QString offer = "Ezen a gépen nincs telepített nyomtató.\nMenti inkább PDF-fájlba?";
        ScriptedPrompts user({{"yesNo", {}, offer, true, Icon::Question}, savesTo(path)});
        preview([&](frmPreview &f) {
            child<QAction>(f, "cmdPrint").trigger();
            QVERIFY(child<QLabel>(f, "lblNote").text().contains(path));
        });
        QVERIFY(QFile::exists(path));
    }
    void anUnwritableFileIsNamed_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no folder") << "/proc/no/such/folder/out.pdf" << "No such file or directory";
        QTest::newRow("no file") << "/" << "ezen a helyen nem közönséges fájl van";
    }
    void anUnwritableFileIsNamed()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        const QString why = "A PDF-fájl nem írható: " + path + "\n" + reason +
                            "\nVálasszon másik mappát vagy fájlnevet! A korábbi fájl változatlan maradt.";
        ScriptedPrompts user({savesTo(path), {"tell", {}, why, {}, Icon::Exclamation}});
        preview([](frmPreview &f) { child<QAction>(f, "cmdSavePdf").trigger(); });
    }
    void aLongPrintCanBeStopped()
    {
        QTemporaryDir folder;
        SampleSheet sheet({{"A", 100}});
        sheet.outline(QString(60000, u'r')); // far more than one tick prints
        const SheetPainter painter(sheet, titles(), storedPageSetup());
        for (const bool stop : {true, false}) {
            QPdfWriter writer(folder.filePath("c.pdf"));
            SheetOutput output(painter, writer, 0, painter.pageCount() - 1);
            QVERIFY(output.start());
            OutputProgress progress(output, nullptr);
            const auto cancel = [&] { child<QPushButton>(progress, "cmdCancel").click(); };
            if (stop) QTimer::singleShot(0, &progress, cancel);
            QCOMPARE(progress.run(), stop ? OutputResult::Stopped : OutputResult::Done);
            QCOMPARE(output.done(), !stop);
        }
    }
};
QVDC_TEST(tst_frmPreview)
#include "tst_frmPreview.moc"
