#include "host_window/Program.h"
#include "import/DxfImport.h"
#include "window/CodePageMenu.h"
#include "window/DialogCalls.h"
#include "window/WindowActions.h"

#include "facade/services/LayerFileCodePage.h"
#include "kit/forms/AccessKeys.h"

#include <QDockWidget>

using namespace tests;

namespace {

using Step = ScriptedPrompts::Step;

Step failure(const QString &why) { return {"tell", "A művelet nem sikerült", why, {}, Icon::Exclamation}; }
/// Whether unsaved work is to be saved: 0 = yes, 1 = no, none = the user stays.
Step leaving(const QVariant &answer, const char *drawing = "Névtelen rajz")
{
    return {"choose", "Rajz mentése",
            QString("A(z) '%1' rajz még nincs fájlba mentve. Mi legyen vele?").arg(drawing), answer};
}
Step saving(const QString &path) { return {"saveFile", "Rajz mentése", "Rajzok|*.qvd", path}; }

/// Captions without an access key, or with one that another has.
QStringList keyless(const QStringList &captions)
{
    QStringList bad;
    QString keys;
    for (const QString &caption : captions) {
        const QChar key = accessKeyOf(caption);
        if (key.isNull() || keys.contains(key)) bad << caption;
        keys += key;
    }
    return bad;
}
QStringList captionsOf(const QList<QAction *> &menu)
{
    QStringList out;
    for (const QAction *a : menu)
        if (!a->isSeparator()) out << a->text();
    return out;
}

} // namespace

class tst_MainWindow : public QObject {
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    QString newFile(const char *name, const QByteArray &content = {})
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (content.isEmpty()) SqliteDoc::create(path);
        else if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0) qFatal("%s", name);
        return path;
    }

private slots:
    void placedElementsLandOnTheCurrentLayer()
    {
        Program p;
        const qint16 roads = p.addLayer(7, "Utak", false);
        p.makeCurrent(roads);
        QCOMPARE(p.status("layerStatus"), "Réteg: 7 Utak (nem látható)");
        const QPointF at = p.view().toWorld({100, 100});
        const Element point = p.drawn("point", {{100, 100}});
        QCOMPARE(point.kind, ElementKind::Point);
        QCOMPARE(QPointF(point.vertices[0].x, point.vertices[0].y), at);
        const Element line = p.drawnLine();
        QVERIFY(line.kind == ElementKind::Line && line.vertices.size() == 2);
        QCOMPARE(p.drawnText("Kossuth tér").text, "Kossuth tér");
        p.drawnText("x", Qt::Key_Escape);
        p.drawnText("");
        for (const Element &e : p.doc().elements()) QCOMPARE(e.layId, roads);
        QCOMPARE(p.status("countStatus"), "3 elem");
    }
    void classicManagersAreASettingThatIsKept()
    {
        Program p;
        const auto opened = [&p] {
            QString form;
            QTimer::singleShot(0, p.window.get(), [&] {
                auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                form = dialog->objectName();
                dialog->reject();
            });
            p.trigger("bEdit_Sids");
            return form;
        };
        QCOMPARE(opened(), "frmSetup");
        p.trigger("oldStyle");
        QCOMPARE(opened(), "frmSupSid");
        QVERIFY(MainWindow(p.services).findChild<QAction *>("oldStyle")->isChecked());
        p.trigger("oldStyle");
    }
    void deletingAsksWithTheCount()
    {
        Program p;
        const Element point{.kind = ElementKind::Point, .layId = 1, .vertices = {{5, 5}}};
        p.doc().addElements(std::vector{point, point, point});
        p.page().refresh();
        p.view().select({0, 2});
        const QString asked = "A kijelölt elemek száma: 2. Törlöd őket? A törlés nem vonható vissza.";
        ScriptedPrompts user({{"yesNo", "Elemek törlése", asked, false, Icon::Question},
                              {"yesNo", "Elemek törlése", asked, true, Icon::Question}});
        p.trigger("delete");
        QCOMPARE(p.doc().elementCount(), 3);
        const qint64 kept = p.doc().elements()[1].id;
        QTest::keyClick(&p.view(), Qt::Key_Delete);
        QVERIFY(p.doc().elementCount() == 1 && p.doc().elements()[0].id == kept);
        QVERIFY(p.view().selection().empty());
        p.trigger("delete"); // nothing selected: nothing asked
    }
    void leavingUnsavedWorkAsks()
    {
        Program p;
        const QString path = m_folder.filePath("új.qvd");
        QVERIFY(p.files().mayLeave());             // nothing was done yet
        p.addLayer(9);
        ScriptedPrompts user({leaving({}), leaving(0), saving({}), leaving(0), saving(path)});
        QVERIFY(!p.window->close());               // stays
        QVERIFY(!p.files().close(0));              // saving was given up
        QCOMPARE(p.doc().layers().count(), 2);
        QVERIFY(p.files().mayLeave());
        QCOMPARE(p.window->windowTitle(), "új.qvd – QVDraw");
        QCOMPARE(FileCommands::recent().value(0), path);
        p.addLayer(10);
        p.trigger("close");                        // a saved drawing is durable: nothing is asked
        QCOMPARE(p.tabs(), "Névtelen rajz");
        QVERIFY(p.files().openFile(path));
        QCOMPARE(p.doc().layers().count(), 3);
    }
    void eachDrawingHasATabOfItsOwn()
    {
        Program p;
        const QString path = newFile("a.qvd");
        QVERIFY(p.files().openFile(path)); // in place of the drawing that nobody has touched
        QCOMPARE(p.tabs(), "a.qvd");
        QVERIFY(p.files().openSample());
        p.trigger("new");
        p.drawn("point", {{100, 100}});
        QCOMPARE(p.tabs(), "a.qvd, Mintarajz, Névtelen rajz*");
        QCOMPARE(p.window->windowTitle(), "Névtelen rajz* – QVDraw");

        QVERIFY(p.files().openFile(path)); // open already: comes to the front
        QCOMPARE(p.window->tabs().count(), 3);
        QCOMPARE(p.window->windowTitle(), "a.qvd – QVDraw");
        QVERIFY(p.child<QAction>("select").isChecked()); // each has its own tool
        QVERIFY(p.status("countStatus").startsWith(u'0'));
        ZolWDoc::DocumentList &all = p.window->tabs().documents();
        QCOMPARE(all.count(), 3);
        QVERIFY(all.item(0) == &p.doc() && all.item(1)->layers().count() == 40 && !all.item(3));
        QVERIFY(p.files().close(1)); // nothing was done in the sample
        QVERIFY(p.files().close(0));
        ScriptedPrompts user({leaving(1)});
        p.trigger("close");
        QCOMPARE(p.tabs(), "Névtelen rajz");
        QVERIFY(!p.child<QAction>("close").isEnabled());
    }
    void whatIsWrittenShowsAtOnceAndInItsOwnDrawing()
    {
        Program p(&FileCommands::openSample);
        QVERIFY(p.files().newDrawing());
        ZolWDoc::LayerRole &layers = p.page(0).doc().layers();
        ZolWDoc::tLay current = *layers.find(layers.currentId());
        current.Visible = false;
        layers.update(current);
        const auto visible = [&] {
            return p.page(0).view().scene().resources().layers.find(current.LayId)->Visible;
        };
        QVERIFY(visible());                        // not within the call
        QTRY_VERIFY(!visible());
        QVERIFY(!p.status("layerStatus").contains("nem látható"));
        p.window->tabs().setCurrentIndex(0);
        QVERIFY(p.status("layerStatus").endsWith("(nem látható)"));
    }
    void whatFailsIsToldAndTheDrawingsStay()
    {
        Program p;
        const QString path = newFile("b.qvd"), none = m_folder.filePath("semmi.qvd");
        const QString junk = newFile("nem.dxf", "semmi");
        QVERIFY(p.files().openFile(path) && p.files().openSample());
        QString why;
        try {
            DxfImport::guessOf(junk);
        } catch (const DocumentError &e) {
            why = e.text();
        }
        ScriptedPrompts user({saving(path), failure(
                 "A(z) 'b.qvd' rajz egy másik lapon meg van nyitva. Zárd be ott, vagy adj meg másik nevet!"),
             failure("A(z) '" + none + "' fájl nem található. Ellenőrizd a nevét és a mappáját!"),
             failure(why)});
        QVERIFY(!p.files().saveAs() && !p.files().openFile(none) && !p.files().importFile(junk));
        QCOMPARE(p.tabs(), "b.qvd, Mintarajz");
        QCOMPARE(SqliteDoc::open(path)->layers().count(), 1);
    }
    void importAsksForTheUnitAndTellsWhatCameOver()
    {
        Program p;
        const QString path =
            newFile("telek.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nHATAR\n10\n650000.0\n"
                                 "20\n240000.0\n11\n650010.0\n21\n240000.0\n0\nENDSEC\n0\nEOF\n");
        ImportReport expected;
        const ImportGuess guess = DxfImport::guessOf(path);
        DxfImport::into(m_folder.filePath("same.qvd"), path, guess.options(), expected);
        QString text = "Milyen egységben vannak a(z) 'telek.dxf' fájl koordinátái?";
        if (!guess.note.isEmpty()) text += u'\n' + guess.note;
        const QString title = "DXF importálása", told = "Egység: méter, méretarány 1:100\n" + expected.text();
        ScriptedPrompts user({{"choose", title, text, {}},
                              {"choose", title, text, 0},
                              {"tell", title, told, {}, Icon::Information},
                              leaving(1, "telek")});
        QVERIFY(!p.files().importFile(path));
        QCOMPARE(p.doc().elementCount(), 0);
        QVERIFY(p.files().importFile(path)); // metres, the first unit
        QCOMPARE(p.doc().elements().at(0).vertices[1].x, 650010.0);
        p.trigger("close");                            // an import is work: it asks
    }
    void theCodePageOfLayerFilesIsSeenAndChosen()
    {
        Program p;
        auto &menu = *p.window->findChild<CodePageMenu *>();
        const auto chosen = [&menu] {
            emit menu.aboutToShow();
            QStringList all;
            for (const QAction *a : menu.actions())
                if (a->isChecked()) all << a->data().toString();
            return all.join(u'|');
        };
        QCOMPARE(chosen(), "");
        for (QAction *a : menu.actions())
            if (a->data() == "windows-1251") a->trigger();
        QCOMPARE(layerFileCodePage(), "windows-1251");
        QCOMPARE(chosen(), "windows-1251");
        setLayerFileCodePage("IBM852"); // by hand, in the settings file
        QCOMPARE(chosen(), "IBM852");
        menu.actions().front()->trigger();
        QCOMPARE(layerFileCodePage(), "");
    }
    void captionsFollowTheLanguageAndNoAccessKeyIsGivenTwice()
    {
        Program p;
        for (const int id : Language::all()) {
            p.services.language()->setCurrent(id);
            QCOMPARE(Language().currentLanguage(), id); // remembered
            QStringList bar = captionsOf(p.window->menuBar()->actions());
            for (const QLabel *label : p.child<QDockWidget>("newElementPage").findChildren<QLabel *>())
                if (label->text().contains(u'&')) bar << label->text();
            QCOMPARE(keyless(bar), QStringList());
            QCOMPARE(bar.size(), p.window->menuBar()->actions().size() + 4);
            for (const QAction *a : p.window->menuBar()->actions())
                if (a->menu()->actions().value(0) && !a->menu()->actions()[0]->data().toInt())
                    QCOMPARE(keyless(captionsOf(a->menu()->actions())), QStringList());
        }
        p.services.language()->setCurrent(Vietnamese);
        QCOMPARE(p.window->menuBar()->actions()[0]->text(), "&Tệp");
        QVERIFY(p.status("countStatus").endsWith("đối tượng"));
        p.services.language()->setCurrent(Hungarian);
    }
    void everyToolbarSignIsItsOwn()
    {
        QList<QImage> signs;
        for (const WindowActions::Row &row : WindowActions::rows())
            if (row.sign) signs << iconOf(*row.sign).pixmap(48).toImage();
        for (const DialogCall &call : dialogCalls()) signs << iconOf(call.sign).pixmap(48).toImage();
        for (qsizetype i = 0; i < signs.size(); ++i) QCOMPARE(signs.indexOf(signs[i]), i);
    }
};

QVDC_TEST(tst_MainWindow)
#include "tst_MainWindow.moc"
