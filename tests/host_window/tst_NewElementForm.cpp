#include "window/HostServices.h"
#include "window/MainWindow.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "facade/services/Language.h"

#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

using namespace refhost;
using namespace QV_DOC_CONTROLS;
using tests::ScriptedPrompts;

class tst_NewElementForm : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<MainWindow> m_window;

    SqliteDoc &doc() { return m_window->page().doc(); }
    template <class T> T &child(const char *name) { return *m_window->findChild<T *>(QLatin1String(name)); }
    ZOL3_LayInfo &layer() { return child<ZOL3_LayInfo>("layerOfNew"); }
    ZOL3_LayGroup &layers() { return child<ZOL3_LayGroup>("layersOfNew"); }
    void type(QWidget &into, const char *keys)
    {
        into.setFocus();
        QTest::keyClick(&into, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&into, QLatin1String(keys));
        QTest::keyClick(&into, Qt::Key_Return);
    }
    void typeNumber(const char *box, const char *keys) { type(*child<usInputBox>(box).txtCombo, keys); }
    void draw(const char *tool, std::initializer_list<QPoint> points)
    {
        m_window->findChild<QAction *>(QLatin1String(tool))->trigger();
        for (const QPoint p : points) QTest::mouseClick(&m_window->view(), Qt::LeftButton, {}, p);
    }
    const Element &drawnLine()
    {
        draw("line", {{50, 60}, {90, 60}});
        QTest::keyClick(&m_window->view(), Qt::Key_Return);
        return m_elements = doc().elements(), m_elements.back();
    }
    const Element &drawnText()
    {
        draw("text", {{200, 100}});
        QLineEdit &entry = child<QLineEdit>("textEntry");
        entry.setText(QStringLiteral("Kossuth tér"));
        QTest::keyClick(&entry, Qt::Key_Return);
        return m_elements = doc().elements(), m_elements.back();
    }
    qint16 addLayer(qint16 number)
    {
        const qint16 id = doc().layers().add(
            {.gNr = number, .Name = QString::number(number), .PenStyleId = 1, .TxdId = 1});
        m_window->page().refresh();
        return id;
    }
    std::vector<Element> m_elements;

private slots:
    void init()
    {
        m_services = std::make_unique<HostServices>();
        m_services->language()->setForThisRun(Hungarian);
        m_window = std::make_unique<MainWindow>(*m_services);
        m_window->resize(900, 600);
        QVERIFY(m_window->files().newDrawing());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QApplication::setActiveWindow(m_window.get());
    }
    void cleanup()
    {
        m_window.reset();
        m_services.reset();
    }

    void aLineGetsTheWidth()
    {
        QCOMPARE(drawnLine().penStyleId, qint16(-1));   // 0: as its layer
        const int before = doc().lineTypes().count();
        typeNumber("widthOfNew", "0,35");               // as one writes it in Hungarian
        const auto type = doc().lineTypes().find(drawnLine().penStyleId);
        QCOMPARE(type->Size, 0.35f);
        QCOMPARE(type->Name, QStringLiteral("Folytonos 0,35 mm"));
        drawnLine();
        QCOMPARE(doc().lineTypes().count(), before + 1); // the same serves again
    }
    void aTextGetsRotationAndHeight()
    {
        QCOMPARE(drawnText().size, 0.0);
        typeNumber("rotationOfNew", "30");
        typeNumber("heightOfNew", "2,5");
        const Element &text = drawnText();
        QCOMPARE(text.rotation, 30.0);
        QCOMPARE(text.size, 2.5 * doc().info().scale / 1000);
    }
    void enterGoesOnToTheNextNumber()
    {
        typeNumber("widthOfNew", "1");
        QVERIFY(child<usInputBox>("rotationOfNew").txtCombo->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_9);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(m_window->view().hasFocus());
        QCOMPARE(child<usInputBox>("rotationOfNew").Value().toDouble(), 0.0);
        QAction &shown = child<QAction>("newElement");
        if (shown.isChecked()) shown.trigger();
        shown.trigger();
        QCOMPARE(layer().txtLayNr->selectedText(), QStringLiteral("1")); // it is shown to be worked in
        QVERIFY(layer().txtLayNr->hasFocus());
    }

    void theElementGoesOntoEveryLayerOfTheSet()
    {
        const qint16 first = doc().layers().currentId(), roads = addLayer(7);
        addLayer(8);
        type(*layers().txtLays, "7,0-1");
        drawnLine();
        QCOMPARE(m_elements.size(), size_t(2));
        QCOMPARE(m_elements[0].layId, first);
        QCOMPARE(m_elements[1].layId, roads);
        type(*layers().txtLays, "99");                  // an empty set: the current layer
        QCOMPARE(drawnLine().layId, first);
    }
    void manyCopiesAreAskedFor()
    {
        for (qint16 number = 100; number < 121; ++number) addLayer(number);
        type(*layers().txtLays, "100-120");
        const QString question = QStringLiteral("Ennyi rétegre kerül egy-egy példány: 21. Elhelyezed?");
        ScriptedPrompts user({{"yesNo", QStringLiteral("Új elem"), question, false, Icon::Question},
                              {"yesNo", QStringLiteral("Új elem"), question, true, Icon::Question}});
        draw("point", {{100, 100}});
        QCOMPARE(doc().elementCount(), 0);
        draw("point", {{100, 100}});
        QCOMPARE(doc().elementCount(), 21);
    }

    void theFormFollowsTheDrawing()
    {
        const qint16 roads = addLayer(7);
        doc().layers().makeCurrent(*doc().layers().find(roads));
        m_window->page().refresh();
        QCOMPARE(layer().LayId(), roads);
        QCOMPARE(layers().sLays(), QStringLiteral("7")); // "(Aktuális réteg)" is chosen
        QCOMPARE(drawnLine().layId, roads);
        type(*layer().txtLayNr, "1");                   // the other way round
        QCOMPARE(doc().layers().find(doc().layers().currentId())->gNr, qint16(1));
        m_window->page().refresh();
        QCOMPARE(layers().sLays(), QStringLiteral("1"));
        QTest::keyClick(layer().txtLayNr, Qt::Key_7);
        m_window->page().refresh();
        QCOMPARE(layer().txtLayNr->text(), QStringLiteral("17")); // what is being typed stays
    }
    void theFormBelongsToTheDrawingInFront()
    {
        addLayer(7);
        type(*layer().txtLayNr, "7");
        QVERIFY(m_window->files().newDrawing());
        QVERIFY(m_window->page().drawing().isUntouched()); // looking at it changes nothing
        QCOMPARE(layer().oDoc(), static_cast<ZolWDoc::ZOLW_Doc *>(&doc()));
        QCOMPARE(layer().layNr(), qint16(1));
        m_window->tabs().setCurrentIndex(0);
        QCOMPARE(layer().layNr(), qint16(7));
        QVERIFY(m_window->files().close(1));
        QTemporaryDir folder;
        ScriptedPrompts user({{"saveFile", QStringLiteral("Rajz mentése"), QStringLiteral("Rajzok|*.qvd"),
                               folder.filePath(QStringLiteral("a.qvd"))}});
        QVERIFY(m_window->files().saveAs());            // goes on in another document
        QCOMPARE(layer().oDoc(), static_cast<ZolWDoc::ZOLW_Doc *>(&doc()));
        QCOMPARE(layers().ZOLW_Doc(), static_cast<ZolWDoc::ZOLW_Doc *>(&doc()));
        drawnLine();
        QCOMPARE(doc().elementCount(), 1);
    }

    void thePageIsShownAndHidden()
    {
        QAction &toggle = child<QAction>("newElement");
        QDockWidget &page = child<QDockWidget>("newElementPage");
        QVERIFY(page.isVisible() && toggle.isChecked());
        toggle.trigger();
        QVERIFY(!page.isVisible());
        toggle.trigger();
        QVERIFY(page.isVisible() && page.isAncestorOf(QApplication::focusWidget()));
    }
    void itsAccessKeysMeetNoMenuInAnyLanguage()
    {
        for (const int id : Language::all()) {
            m_services->language()->setForThisRun(id);
            QStringList captions;
            for (const QAction *menu : m_window->menuBar()->actions()) captions << menu->text();
            for (const QLabel *label : child<QDockWidget>("newElementPage").findChildren<QLabel *>())
                captions << label->text();
            QSet<QChar> keys;
            int marked = 0;
            for (const QString &caption : captions) {
                const qsizetype at = caption.indexOf(u'&');
                if (at < 0) continue;
                ++marked;
                keys.insert(caption.at(at + 1).toLower());
            }
            QCOMPARE(keys.size(), marked);
            QCOMPARE(marked, int(m_window->menuBar()->actions().size()) + 4);
        }
    }
};

QVDC_TEST(tst_NewElementForm)
#include "tst_NewElementForm.moc"
