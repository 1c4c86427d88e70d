#include "dialogs/select/frmSelect.h"
#include "dialogs/viewtools/frmPreview.h"
#include "facade/services/Language.h"
#include "kit/paper/PageSetup.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using tests::child;
using tests::ScriptedPrompts;
using tests::whileModal;

using Act = std::function<void(Grid &)>;
Q_DECLARE_METATYPE(Act)

/// The way from the selection dialog to a PDF file, which is read again with a program of its own.
class tst_GridPaper : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;

    /// A line for each line of the grid: a band, or the words of the cells, check marks apart.
    static QStringList shownIn(const Grid &grid)
    {
        QStringList lines;
        const auto sheet = grid.sheet();
        for (int r = 0; r < sheet->sheetRows(); ++r) {
            QStringList words;
            for (const SheetSource::Cell &cell : sheet->sheetRow(r).cells) words << cell.text;
            lines << words.join(u' ').simplified();
        }
        return lines;
    }
    /// The lines on all pages between captions and footers.
    static QStringList printedIn(const QString &path, const QString &title)
    {
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {"-layout", path, "-"});
        if (!reader.waitForFinished()) return {};
        QStringList lines;
        for (const QString &page : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f')) {
            QStringList all;
            for (const QString &line : page.split(u'\n'))
                if (!line.simplified().isEmpty()) all << line.simplified();
            if (all.size() < 3 || all.first() != title) continue;
            lines += all.mid(2, all.size() - 3);
        }
        return lines;
    }
    /// What the dialog's print command and the preview's PDF command make of the grid.
    static void savePdf(frmSelect &d, const QString &path)
    {
        ScriptedPrompts user({{"saveFile", txt(Text{21407, u"Mentés PDF-be"}),
                               join(Text{21408, u"PDF-fájl"}, QStringLiteral(" (*.pdf)|*.pdf")), path}});
        const auto watch = whileModal<frmPreview>([](frmPreview &preview) {
            child<QAction>(preview, "cmdSavePdf").trigger();
            preview.reject();
        });
        child<QAction>(d, "miPrintPreview").trigger();
    }

private slots:
    void init()
    {
        storePageSetup(pageLayoutOf(QPageSize::A4, QPageLayout::Landscape, {15, 15, 15, 15}));
        m_doc = tests::layerDoc(ZolWDoc::tLayArr());
        const char *const names[] = {"Út széle", "Țărm",     "Đường đồng mức",
                                     "Kerítés",  "Ống nước", "Lakóépület"};
        for (qint16 i = 0; i < 60; ++i)
            m_doc->layers().add({.gNr = qint16(200 + i),
                                 .Name = QString::fromUtf8(names[i % 6]) + QStringLiteral(" %1").arg(i),
                                 .Visible = i % 3 != 0,
                                 .PenStyleId = 1,
                                 .ScrColor = i,
                                 .PrnColor = qint16(2 * i),
                                 .PenColorId = qint16(255 - i),
                                 .TxdId = 1});
    }
    void paperShowsExactlyWhatTheGridShows_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("title");
        QTest::addColumn<Act>("act");
        const Act grouped = [](Grid &grid) {
            grid.setGroupLevels(std::vector<SortKey>{{2, SortOrder::Descending}, {3}});
            grid.setSortKeys(std::vector<SortKey>{{1, SortOrder::Descending}});
        };
        const Act filtered = [grouped](Grid &grid) {
            grouped(grid);
            grid.showColumns(std::vector{1, 0, 2, 4});
            grid.setFilterText(QStringLiteral("đường"));
        };
        const Act closed = [grouped](Grid &grid) {
            grouped(grid);
            grid.setAllExpanded(false);
            grid.setCurrentRow(7);
        };
        QTest::newRow("hu") << int(Hungarian) << QStringLiteral("Rétegek") << Act([](Grid &) {});
        QTest::newRow("hu, grouped") << int(Hungarian) << QStringLiteral("Rétegek") << grouped;
        QTest::newRow("ro, grouped and filtered") << int(Romanian) << QStringLiteral("Straturi") << filtered;
        QTest::newRow("vi, grouped and filtered") << int(Vietnamese) << QStringLiteral("Các lớp") << filtered;
        QTest::newRow("en, all groups but one closed") << int(English) << QStringLiteral("Layers") << closed;
        QTest::newRow("vi, nothing left") << int(Vietnamese) << QStringLiteral("Các lớp")
                                          << Act([filtered](Grid &grid) {
                                                 filtered(grid), grid.setFilterText(QStringLiteral("none"));
                                             });
    }
    void paperShowsExactlyWhatTheGridShows()
    {
        QFETCH(int, language);
        QFETCH(QString, title);
        QFETCH(Act, act);
        QVERIFY2(!QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty(),
                 "needs poppler-utils");
        setLanguage(language, {});
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("layers.pdf"));
        const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
            Grid &grid = child<Grid>(d, "gridItems");
            act(grid);
            savePdf(d, path);
            QCOMPARE(printedIn(path, title), shownIn(grid));
            d.reject();
        });
        ZolWDoc::tLay lay = m_doc->layers().readAll().front();
        QVERIFY(!frmSelect().bDoSelect_Lay(*m_doc, lay, nullptr));
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_GridPaper)
#include "tst_GridPaper.moc"
