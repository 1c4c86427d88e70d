#include "host_window/Program.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"

#include <QDockWidget>

using namespace tests;

namespace {

void type(QWidget &into, const char *keys)
{
    into.setFocus();
    QTest::keyClick(&into, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&into, keys);
    QTest::keyClick(&into, Qt::Key_Return);
}

struct Form : Program {
    ZOL3_LayInfo &layer() { return child<ZOL3_LayInfo>("layerOfNew"); }
    ZOL3_LayGroup &layers() { return child<ZOL3_LayGroup>("layersOfNew"); }
    void typeNumber(const char *box, const char *keys) { type(*child<usInputBox>(box).txtCombo, keys); }
};

} // namespace

class tst_NewElementForm : public QObject {
    Q_OBJECT
private slots:
    void aLineGetsTheWidth()
    {
        Form f;
        QCOMPARE(f.drawnLine().penStyleId, qint16(-1)); // 0: as its layer
        const int before = f.doc().lineTypes().count();
        f.typeNumber("widthOfNew", "0,35");             // as one writes it in Hungarian
        const auto type = f.doc().lineTypes().find(f.drawnLine().penStyleId);
        QCOMPARE(type->Size, 0.35f);
        QCOMPARE(type->Name, "Folytonos 0,35 mm");
        f.drawnLine();
        QCOMPARE(f.doc().lineTypes().count(), before + 1); // the same serves again
    }
    void aTextGetsRotationAndHeight()
    {
        Form f;
        QCOMPARE(f.drawnText("Kossuth tér").size, 0.0);
        f.typeNumber("rotationOfNew", "30");
        f.typeNumber("heightOfNew", "2,5");
        const Element text = f.drawnText("Kossuth tér");
        QCOMPARE(text.rotation, 30.0);
        QCOMPARE(text.size, 2.5 * f.doc().info().scale / 1000);
    }
    void enterGoesOnToTheNextNumber()
    {
        Form f;
        f.typeNumber("widthOfNew", "1");
        QVERIFY(f.child<usInputBox>("rotationOfNew").txtCombo->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_9);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(f.view().hasFocus());
        QCOMPARE(f.child<usInputBox>("rotationOfNew").Value().toDouble(), 0.0);
        f.trigger("newElement");                        // hides its page, shows it again
        QVERIFY(!f.child<QDockWidget>("newElementPage").isVisible());
        f.trigger("newElement");
        QVERIFY(f.layer().txtLayNr->hasFocus());        // it is shown to be worked in
        QCOMPARE(f.layer().txtLayNr->selectedText(), "1");
    }
    void theElementGoesOntoEveryLayerOfTheSet()
    {
        Form f;
        const qint16 first = f.doc().layers().currentId(), roads = f.addLayer(7);
        f.addLayer(8);
        type(*f.layers().txtLays, "7,0-1");
        f.drawnLine();
        const auto all = f.doc().elements();
        QCOMPARE(all.size(), size_t(2));
        QVERIFY(all[0].layId == first && all[1].layId == roads);
        type(*f.layers().txtLays, "99");                // an empty set: the current layer
        QCOMPARE(f.drawnLine().layId, first);
    }
    void manyCopiesAreAskedFor()
    {
        Form f;
        for (qint16 number = 100; number < 121; ++number) f.addLayer(number);
        type(*f.layers().txtLays, "100-120");
        const QString question = "Ennyi rétegre kerül egy-egy példány: 21. Elhelyezed?";
        ScriptedPrompts user({{"yesNo", "Új elem", question, false, Icon::Question},
                              {"yesNo", "Új elem", question, true, Icon::Question}});
        f.drawn("point", {{100, 100}});
        QCOMPARE(f.doc().elementCount(), 0);
        f.drawn("point", {{100, 100}});
        QCOMPARE(f.doc().elementCount(), 21);
    }
    void theFormFollowsTheDrawing()
    {
        Form f;
        const qint16 roads = f.addLayer(7);
        f.makeCurrent(roads);
        QCOMPARE(f.layer().LayId(), roads);
        QCOMPARE(f.layers().sLays(), "7");              // "(Aktuális réteg)" is chosen
        QCOMPARE(f.drawnLine().layId, roads);
        type(*f.layer().txtLayNr, "1");                 // the other way round
        QCOMPARE(f.doc().layers().find(f.doc().layers().currentId())->gNr, qint16(1));
        f.page().refresh();
        QCOMPARE(f.layers().sLays(), "1");
        QTest::keyClick(f.layer().txtLayNr, Qt::Key_7);
        f.page().refresh();
        QCOMPARE(f.layer().txtLayNr->text(), "17");     // what is being typed stays
    }
    void theFormBelongsToTheDrawingInFront()
    {
        Form f;
        f.addLayer(7);
        type(*f.layer().txtLayNr, "7");
        QVERIFY(f.files().newDrawing());
        QVERIFY(f.page().drawing().isUntouched());      // looking at it changes nothing
        QCOMPARE(f.layer().oDoc(), static_cast<ZolWDoc::ZOLW_Doc *>(&f.doc()));
        QCOMPARE(f.layer().layNr(), qint16(1));
        f.window->tabs().setCurrentIndex(0);
        QCOMPARE(f.layer().layNr(), qint16(7));
        QVERIFY(f.files().close(1));
        QTemporaryDir folder;
        ScriptedPrompts user({{"saveFile", "Rajz mentése", "Rajzok|*.qvd", folder.filePath("a.qvd")}});
        QVERIFY(f.files().saveAs());                    // goes on in another document
        QCOMPARE(f.layer().oDoc(), static_cast<ZolWDoc::ZOLW_Doc *>(&f.doc()));
        QCOMPARE(f.layers().ZOLW_Doc(), static_cast<ZolWDoc::ZOLW_Doc *>(&f.doc()));
        f.drawnLine();
        QCOMPARE(f.doc().elementCount(), 1);
    }
};

QVDC_TEST(tst_NewElementForm)
#include "tst_NewElementForm.moc"
