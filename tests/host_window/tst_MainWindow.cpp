#include "import/DxfImport.h"
#include "window/CodePageMenu.h"
#include "window/DialogCalls.h"
#include "window/HostServices.h"
#include "window/MainWindow.h"
#include "window/WindowActions.h"

#include "facade/services/Language.h"
#include "facade/services/LayerFileCodePage.h"
#include "facade/services/Services.h"

#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>

using namespace refhost;
using namespace QV_DOC_CONTROLS;
using tests::ScriptedPrompts;

class tst_MainWindow : public QObject {
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<MainWindow> m_window;

    SqliteDoc &doc() { return m_window->files().drawing()->doc(); }
    DrawingView &view() { return m_window->view(); }
    void trigger(const char *name) { m_window->findChild<QAction *>(QLatin1String(name))->trigger(); }
    QString status(const char *name) { return m_window->findChild<QLabel *>(QLatin1String(name))->text(); }
    Element last() { return doc().elements().back(); }
    QString names()                 // of the tabs
    {
        QStringList all;
        for (int i = 0; i < m_window->tabs().count(); ++i) all << m_window->tabs().tabText(i);
        return all.join(QStringLiteral(", "));
    }

private slots:
    void init()
    {
        m_services = std::make_unique<HostServices>();
        m_services->language()->setForThisRun(Hungarian);
        m_window = std::make_unique<MainWindow>(*m_services);
        m_window->resize(800, 600);
        QVERIFY(m_window->files().newDrawing());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_services.reset();
    }

    void placedElementsLandOnTheCurrentLayer()
    {
        const qint16 roads = doc().layers().add(
            {.gNr = 7, .Name = QStringLiteral("Utak"), .Visible = false, .PenStyleId = 1, .TxdId = 1});
        doc().layers().makeCurrent(*doc().layers().find(roads));
        m_window->page().refresh();
        QCOMPARE(status("layerStatus"), QStringLiteral("Réteg: 7 Utak (nem látható)"));

        trigger("point");
        const QPointF at = view().toWorld({100, 100});
        QTest::mouseClick(&view(), Qt::LeftButton, {}, {100, 100});
        QCOMPARE(last().kind, ElementKind::Point);
        QCOMPARE(QPointF(last().vertices[0].x, last().vertices[0].y), at);

        trigger("line");
        for (QPoint p : {QPoint(50, 60), QPoint(90, 60)}) QTest::mouseClick(&view(), Qt::LeftButton, {}, p);
        QTest::keyClick(&view(), Qt::Key_Return);
        QCOMPARE(last().kind, ElementKind::Line);
        QCOMPARE(last().vertices.size(), size_t(2));

        trigger("text");
        QTest::mouseClick(&view(), Qt::LeftButton, {}, {200, 100});
        auto *const entry = view().findChild<QLineEdit *>(QStringLiteral("textEntry"));
        QVERIFY(entry);
        entry->setText(QStringLiteral("Kossuth tér"));
        QTest::keyClick(entry, Qt::Key_Return);
        QCOMPARE(last().text, QStringLiteral("Kossuth tér"));
        for (const Element &e : doc().elements()) QCOMPARE(e.layId, roads);
        QCOMPARE(doc().elementCount(), 3);
        QCOMPARE(status("countStatus"), QStringLiteral("3 elem"));
    }

    void classicManagersAreASettingThatIsKept()
    {
        const auto opens = [this](const char *form) {
            QString opened;
            QTimer::singleShot(0, m_window.get(), [&] {
                auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                opened = dialog->objectName();
                dialog->reject();
            });
            trigger("bEdit_Sids");
            return opened == QLatin1String(form);
        };
        QVERIFY(opens("frmSetup"));
        trigger("oldStyle");
        QVERIFY(opens("frmSupSid"));
        m_window = std::make_unique<MainWindow>(*m_services);
        QVERIFY(m_window->findChild<QAction *>(QStringLiteral("oldStyle"))->isChecked());
        trigger("oldStyle");
    }

    void aTextThatWasNotTypedIsNotPlaced_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("escape") << int(Qt::Key_Escape);
        QTest::newRow("empty") << int(Qt::Key_Return);
    }
    void aTextThatWasNotTypedIsNotPlaced()
    {
        QFETCH(int, key);
        trigger("text");
        QTest::mouseClick(&view(), Qt::LeftButton, {}, {200, 100});
        auto *const entry = view().findChild<QLineEdit *>(QStringLiteral("textEntry"));
        if (key == Qt::Key_Escape) entry->setText(QStringLiteral("x"));
        QTest::keyClick(entry, Qt::Key(key));
        QCOMPARE(doc().elementCount(), 0);
    }

    void deletingAsksWithTheCount()
    {
        const Element point{.kind = ElementKind::Point, .layId = 1, .vertices = {{5, 5}}};
        doc().addElements(std::vector{point, point, point});
        m_window->page().refresh();
        view().select({0, 2});
        const QString title = QStringLiteral("Elemek törlése"),
                      text = QStringLiteral(
                          "A kijelölt elemek száma: 2. Törlöd őket? A törlés nem vonható vissza.");
        ScriptedPrompts user(
            {{"yesNo", title, text, false, Icon::Question}, {"yesNo", title, text, true, Icon::Question}});
        trigger("delete");
        QCOMPARE(doc().elementCount(), 3);
        const qint64 kept = doc().elements()[1].id;
        QTest::keyClick(&view(), Qt::Key_Delete);
        QCOMPARE(doc().elementCount(), 1);
        QCOMPARE(doc().elements()[0].id, kept);
        QVERIFY(view().selection().empty());
        trigger("delete"); // nothing selected: nothing asked
    }

    void leavingUnsavedWorkAsks()
    {
        const QString title = QStringLiteral("Rajz mentése"),
                      text = QStringLiteral(
                          "A(z) 'Névtelen rajz' rajz még nincs fájlba mentve. Mi legyen vele?"),
                      filter = QStringLiteral("Rajzok|*.qvd");
        const QString path = m_folder.filePath(QStringLiteral("új.qvd"));
        QVERIFY(m_window->files().mayLeave()); // nothing was done yet
        doc().layers().add({.gNr = 9, .Name = QStringLiteral("Kút"), .PenStyleId = 1, .TxdId = 1});
        ScriptedPrompts user({{"choose", title, text, QVariant()},
                              {"choose", title, text, 0},
                              {"saveFile", title, filter, QString()},
                              {"choose", title, text, 0},
                              {"saveFile", title, filter, path}});
        QVERIFY(!m_window->close());           // stays
        QVERIFY(!m_window->files().close(0));  // saving was given up
        QCOMPARE(doc().layers().count(), 2);
        QVERIFY(m_window->files().mayLeave());
        QVERIFY(QFile::exists(path));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("új.qvd – QVDraw"));
        QCOMPARE(FileCommands::recent().value(0), path);
        doc().layers().add({.gNr = 10, .Name = QStringLiteral("Fa"), .PenStyleId = 1, .TxdId = 1});
        trigger("close");                      // a saved drawing is durable: nothing is asked
        QCOMPARE(names(), QStringLiteral("Névtelen rajz"));
        QVERIFY(m_window->files().openFile(path));
        QCOMPARE(doc().layers().count(), 3);
    }

    void eachDrawingHasATabOfItsOwn()
    {
        const QString path = m_folder.filePath(QStringLiteral("a.qvd"));
        SqliteDoc::create(path);
        QVERIFY(m_window->files().openFile(path)); // in place of the drawing that nobody has touched
        QCOMPARE(names(), QStringLiteral("a.qvd"));
        QVERIFY(m_window->files().openSample());
        trigger("new");
        QCOMPARE(names(), QStringLiteral("a.qvd, Mintarajz, Névtelen rajz"));
        trigger("point");
        QTest::mouseClick(&view(), Qt::LeftButton, {}, {100, 100});
        QCOMPARE(names(), QStringLiteral("a.qvd, Mintarajz, Névtelen rajz*"));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Névtelen rajz* – QVDraw"));

        QVERIFY(m_window->files().openFile(path)); // open already: comes to the front
        QCOMPARE(m_window->tabs().count(), 3);
        QCOMPARE(m_window->windowTitle(), QStringLiteral("a.qvd – QVDraw"));
        QCOMPARE(doc().elementCount(), 0);
        QVERIFY(
            m_window->findChild<QAction *>(QStringLiteral("select"))->isChecked()); // each has its own tool
        QVERIFY(status("countStatus").startsWith(u'0'));

        ZolWDoc::DocumentList &all = m_window->tabs().documents();
        QCOMPARE(all.count(), 3);
        QVERIFY(all.item(0) == &doc() && all.item(1)->layers().count() == 40 && !all.item(3));
        QVERIFY(m_window->files().close(1)); // nothing was done in the sample
        QVERIFY(m_window->files().close(0));
        QCOMPARE(names(), QStringLiteral("Névtelen rajz*"));
        ScriptedPrompts user(
            {{"choose", QStringLiteral("Rajz mentése"),
              QStringLiteral("A(z) 'Névtelen rajz' rajz még nincs fájlba mentve. Mi legyen vele?"), 1}});
        trigger("close");
        QCOMPARE(names(), QStringLiteral("Névtelen rajz"));
        QVERIFY(!m_window->findChild<QAction *>(QStringLiteral("close"))->isEnabled());
    }

    void aFileThatIsOpenIsNotReplaced()
    {
        const QString path = m_folder.filePath(QStringLiteral("b.qvd"));
        SqliteDoc::create(path);
        QVERIFY(m_window->files().openFile(path));
        QVERIFY(m_window->files().openSample());
        ScriptedPrompts user(
            {{"saveFile", QStringLiteral("Rajz mentése"), QStringLiteral("Rajzok|*.qvd"), path},
             {"tell", QStringLiteral("A művelet nem sikerült"),
              QStringLiteral(
                  "A(z) 'b.qvd' rajz egy másik lapon meg van nyitva. Zárd be ott, vagy adj meg másik nevet!"),
              QVariant(), Icon::Exclamation}});
        QVERIFY(!m_window->files().saveAs());
        QCOMPARE(names(), QStringLiteral("b.qvd, Mintarajz"));
        QCOMPARE(SqliteDoc::open(path)->layers().count(), 1);
    }

    void whatIsWrittenShowsAtOnce()
    {
        QVERIFY(m_window->files().openSample());
        QVERIFY(m_window->files().newDrawing());
        DrawingPage &sample = *m_window->tabs().page(0);
        const qint16 current = sample.doc().layers().currentId();
        for (ZolWDoc::tLay lay : sample.doc().layers().readAll())
            if (lay.LayId == current) lay.Visible = false, sample.doc().layers().update(lay);
        QVERIFY(sample.view().scene().resources().layers.find(current)->Visible); // not within the call
        QTRY_VERIFY(!sample.view().scene().resources().layers.find(current)->Visible);
        QVERIFY(
            !status("layerStatus").contains(QStringLiteral("nem látható"))); // another drawing is in front
        m_window->tabs().setCurrentIndex(0);
        QVERIFY(status("layerStatus").endsWith(QStringLiteral("(nem látható)")));
    }

    void aFileThatCannotBeOpenedIsToldAndTheDrawingStays()
    {
        const QString path = m_folder.filePath(QStringLiteral("semmi.qvd"));
        SqliteDoc *const before = &doc();
        ScriptedPrompts user({{"tell", QStringLiteral("A művelet nem sikerült"),
                               QStringLiteral("A(z) '") + path +
                                   QStringLiteral("' fájl nem található. Ellenőrizd a nevét és a mappáját!"),
                               QVariant(), Icon::Exclamation}});
        QVERIFY(!m_window->files().openFile(path));
        QCOMPARE(&doc(), before);
    }

    void importAsksForTheUnitAndTellsWhatCameOver()
    {
        const QString path = m_folder.filePath(QStringLiteral("telek.dxf"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nHATAR\n10\n650000.0\n20\n240000.0\n11\n650010."
                   "0\n21\n240000.0\n"
                   "0\nENDSEC\n0\nEOF\n");
        file.close();
        ImportReport expected;
        DxfImport::into(m_folder.filePath(QStringLiteral("same.qvd")), path,
                        DxfImport::guessOf(path).options(), expected);
        const QString title = QStringLiteral("DXF importálása"), note = DxfImport::guessOf(path).note;
        const QString text = QStringLiteral("Milyen egységben vannak a(z) 'telek.dxf' fájl koordinátái?")
                             + (note.isEmpty() ? QString() : u'\n' + note);
        ScriptedPrompts user(
            {{"choose", title, text, QVariant()},
             {"choose", title, text, 0},
             {"tell",
                               title,
                               QStringLiteral("Egység: méter, méretarány 1:100\n") + expected.text(),
                               QVariant(),
                               Icon::Information},
             {"choose", QStringLiteral("Rajz mentése"),
              QStringLiteral("A(z) 'telek' rajz még nincs fájlba mentve. Mi legyen vele?"), 1}});
        QVERIFY(!m_window->files().importFile(path));
        QCOMPARE(doc().elementCount(), 0);
        QVERIFY(m_window->files().importFile(path)); // metres, the first unit
        QCOMPARE(doc().elementCount(), 1);
        QCOMPARE(last().vertices[1].x, 650010.0);
        trigger("close");                            // an import is work: it asks
    }

    void aFileThatIsNoDxfIsToldAndTheDrawingStays()
    {
        const QString path = m_folder.filePath(QStringLiteral("nem.dxf"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("semmi") > 0);
        file.close();
        QString why;
        try {
            DxfImport::guessOf(path);
        } catch (const DocumentError &e) {
            why = e.text();
        }
        QVERIFY(why.contains(path) || why.contains(QStringLiteral("nem.dxf")));
        ScriptedPrompts user(
            {{"tell", QStringLiteral("A művelet nem sikerült"), why, QVariant(), Icon::Exclamation}});
        SqliteDoc *const before = &doc();
        QVERIFY(!m_window->files().importFile(path));
        QCOMPARE(&doc(), before);
    }

    void captionsFollowTheLanguageAtOnce()
    {
        trigger("line");
        m_services->language()->setCurrent(Vietnamese);
        QCOMPARE(m_window->menuBar()->actions()[0]->text(), QStringLiteral("&Tệp"));
        QCOMPARE(m_window->findChild<QAction *>(QStringLiteral("bSelect_Lay"))->text(),
                 QStringLiteral("Chọn &lớp…"));
        QVERIFY(status("countStatus").endsWith(QStringLiteral("đối tượng")));
        QCOMPARE(Language().currentLanguage(), int(Vietnamese)); // remembered
        m_services->language()->setCurrent(Hungarian);
    }

    void theCodePageOfLayerFilesIsSeenAndChosen()
    {
        auto &menu = *m_window->findChild<CodePageMenu *>();
        const auto chosen = [&menu] {
            emit menu.aboutToShow();
            QStringList all;
            for (const QAction *a : menu.actions())
                if (a->isChecked()) all << a->data().toString();
            return all.join(u'|');
        };
        QCOMPARE(chosen(), QString());
        for (QAction *a : menu.actions())
            if (a->data() == QStringLiteral("windows-1251")) a->trigger();
        QCOMPARE(layerFileCodePage(), QStringLiteral("windows-1251"));
        QCOMPARE(chosen(), QStringLiteral("windows-1251"));
        setLayerFileCodePage(QStringLiteral("IBM852")); // by hand, in the settings file
        QCOMPARE(chosen(), QStringLiteral("IBM852"));
        menu.actions().front()->trigger();
        QCOMPARE(layerFileCodePage(), QString());
    }

    void accessKeysAreUniquePerMenuInEveryLanguage()
    {
        for (int id : Language::all()) {
            m_services->language()->setForThisRun(id);
            std::vector<QList<QAction *>> menus{m_window->menuBar()->actions()};
            for (const QAction *a : m_window->menuBar()->actions())
                if (a->menu()->actions().value(0) && !a->menu()->actions()[0]->data().toInt())
                    menus.push_back(a->menu()->actions());
            for (const auto &menu : menus) {
                QSet<QChar> keys;
                for (const QAction *a : menu) {
                    if (a->isSeparator()) continue;
                    const qsizetype at = a->text().indexOf(u'&');
                    QVERIFY2(at >= 0, qPrintable(a->text()));
                    const QChar key = a->text().at(at + 1).toLower();
                    QVERIFY2(!keys.contains(key), qPrintable(languageNameOf(id) + u' ' + a->text()));
                    keys.insert(key);
                }
            }
        }
    }

    void everyToolbarSignIsItsOwn()
    {
        QList<QImage> signs;
        for (const WindowActions::Row &row : WindowActions::rows())
            if (row.sign) signs << iconOf(*row.sign).pixmap(48).toImage();
        for (const DialogCall &call : dialogCalls()) signs << iconOf(call.sign).pixmap(48).toImage();
        for (qsizetype i = 0; i < signs.size(); ++i)
            for (qsizetype k = 0; k < i; ++k)
                QVERIFY2(signs[i] != signs[k], qPrintable(QStringLiteral("%1 = %2").arg(i).arg(k)));
    }
};

QVDC_TEST(tst_MainWindow)
#include "tst_MainWindow.moc"
