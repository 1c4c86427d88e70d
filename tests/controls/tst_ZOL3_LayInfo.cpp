#include "controls/ZOL3_LayInfo.h"
#include "dialogs/select/frmSelect.h"
#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;

namespace {

/// Stands in for the selection dialog: answers, and says what it was asked.
struct Picker final : ResourcePicker {
    std::optional<qint16> answer;
    std::function<void()> meanwhile = [] {};
    QList<qint16> first;
    ResourcePicker *const before = setResourcePicker(this);
    ~Picker() override { setResourcePicker(before); }
    bool canPick(TableKind kind) const override { return kind == TableKind::Layers; }
    std::optional<qint16> pick(TableKind, ZOLW_Doc &, qint16 current, QObject *) override
    {
        first << current;
        meanwhile();
        return answer;
    }
};

/// A host's dialog with a picker, and what it raised.
struct Form {
    QDialog dialog;
    ZOL3_LayInfo *control = new ZOL3_LayInfo(&dialog);
    QLineEdit *other = new QLineEdit(&dialog);
    QStringList raised;
    bool cancel = false;

    explicit Form(ZOLW_Doc *doc)
    {
        auto *const column = new QVBoxLayout(&dialog);
        for (QWidget *w : std::initializer_list<QWidget *>{control, other}) column->addWidget(w);
        QObject::connect(control, &ZOL3_LayInfo::LayIdClickBefore, [this](bool &stop) {
            raised << QStringLiteral("before");
            stop = cancel;
        });
        QObject::connect(control, &ZOL3_LayInfo::LayIdClickAfter,
                         [this] { raised << QStringLiteral("after"); });
        QObject::connect(control, &ZOL3_LayInfo::ChangeLay, [this](quint8 mode, tLay &lay) {
            raised << QStringLiteral("%1: %2").arg(mode).arg(lay.gNr);
        });
        if (doc) control->setoDoc(doc);
        dialog.show();
        dialog.activateWindow();
        QApplication::setActiveWindow(&dialog);
        field().setFocus();
    }
    QLineEdit &field() { return *control->txtLayNr; }
    void type(const char *keys)
    {
        field().setFocus();
        field().selectAll();
        QTest::keyClick(&field(), Qt::Key_Backspace);
        QTest::keyClicks(&field(), QLatin1String(keys));
    }
    void leave()
    {
        other->setFocus();
        QCoreApplication::sendPostedEvents();
    }
    QString shown() { return field().text() + u' ' + control->lblLayId->text(); }
};

ScriptedPrompts::Step refusal(const QString &text)
{
    return {"tell", QStringLiteral("Hibás rétegszám"), text, {}, Icon::Exclamation};
}
const QString kNoNumber = QStringLiteral("Egész számot kell megadni!");
const QString kNoLayer = QStringLiteral("Nincs ilyen számú réteg!");

} // namespace

class tst_ZOL3_LayInfo : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }
    qint16 current() { return m_doc->layers().find(m_doc->layers().currentId())->gNr; }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::layerDoc("10 Telekhatár, 12 Út, 21 Épület");
        m_doc->layers().makeCurrent(layer(10));
    }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a control was not released"); }

    void layersAreShownByNumberOrIdentifier()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 7);
        QCOMPARE(f.shown(), QStringLiteral("12 Út"));
        QCOMPARE(f.control->layNr(), qint16(12));
        QCOMPARE(f.control->LayId(), layer(12).LayId);
        QCOMPARE(current(), qint16(12));
        f.control->LetLayNr(QStringLiteral(" 12 "), 8); // the same again: no event
        f.control->LetLayId(layer(21).LayId, 255);
        QCOMPARE(f.shown(), QStringLiteral("21 Épület"));
        QCOMPARE(current(), qint16(12));        // by identifier the current layer stays
        f.control->setLayId(layer(10).LayId);
        f.control->setNotSetCurrentLayer(true); // by number it stays too then
        f.control->LetLayNr(21, 0);
        QCOMPARE(current(), qint16(12));
        QCOMPARE(f.raised, QStringList({"7: 12", "255: 21", "0: 10", "0: 21"}));
        const auto second = tests::layerDoc("1 A");
        f.control->setoDoc(second.get());       // identifiers mean nothing there
        QCOMPARE(f.shown(), QStringLiteral(" "));
    }
    void aDisabledControlChangesSilently()
    {
        Form f(m_doc.get());
        f.control->setEnabled(false);
        f.control->LetLayNr(12, 0);
        QCOMPARE(f.shown(), QStringLiteral("12 Út"));
        QCOMPARE(current(), qint16(12));
        f.control->LetLayId(layer(21).LayId, 0);
        QCOMPARE(f.raised, QStringList());
        f.control->setEnabled(true);
        f.dialog.setEnabled(false);             // the form around is; the control is not
        f.control->LetLayNr(10, 0);
        QCOMPARE(f.raised, QStringList{"0: 10"});
    }

    void whatIsNoLayerIsToldAndChangesNothing()
    {
        for (const auto &[value, message] :
             {std::pair(QVariant("x"), kNoNumber), {QVariant(""), kNoNumber}, {QVariant(), kNoNumber},
              {QVariant(99), kNoLayer}, {QVariant(70000), kNoLayer}}) {
            Form f(m_doc.get());
            f.control->LetLayId(layer(12).LayId, 0);
            f.raised.clear();
            ScriptedPrompts user({refusal(message), refusal(message)});
            f.control->LetLayNr(value, 0);
            f.control->LetLayId(value, 0);
            QCOMPARE(user.alerts(), 2);
            QCOMPARE(f.shown(), QStringLiteral("12 Út"));
            QCOMPARE(current(), qint16(10));
            QCOMPARE(f.raised, QStringList());
        }
    }

    void withoutADocumentNothingHappens()
    {
        QTest::ignoreMessage(QtDebugMsg, "QV_DOC_CONTROLS.ZOL4_LayInfo.set_oDoc invalid argument!");
        ScriptedPrompts nobody;
        Form f(nullptr);
        f.control->setoDoc(nullptr);            // says so to the debugger
        f.control->LetLayNr(QStringLiteral("x"), 0);
        f.control->LetLayId(1, 0);
        f.type("10");
        QTest::keyClick(&f.field(), Qt::Key_Return);
        f.leave();
        QCOMPARE(f.control->LayId(), qint16(-1));
        QCOMPARE(f.raised, QStringList());
        f.control->setoDoc(m_doc.get());
        f.control->TearDown();                  // says nothing
        f.control->TearDown();
        f.control->LetLayNr(12, 0);
        QCOMPARE(f.control->oDoc(), nullptr);
        QCOMPARE(f.raised, QStringList());
    }
    void enterTakesTheNumberAndIsConsumed()
    {
        Form f(m_doc.get());
        for (const auto &[key, number] : {std::pair(Qt::Key_Return, "12"), {Qt::Key_Enter, "21"}}) {
            f.type(number);
            QTest::keyClick(&f.field(), key);
            QCOMPARE(f.raised.last(), QStringLiteral("0: ") + QLatin1String(number));
            QCOMPARE(f.field().selectedText(), QLatin1String(number));
            QVERIFY(f.dialog.isVisible());
        }
        QCOMPARE(current(), qint16(21));
        f.type("99");
        ScriptedPrompts user({refusal(kNoLayer)});
        QTest::keyClick(&f.field(), Qt::Key_Return);
        QCOMPARE(f.shown(), QStringLiteral("21 Épület")); // the layer that stays
    }
    void onlyDigitsPass()
    {
        Form f(m_doc.get());
        f.type("1-a2.e ");
        for (const char *pasted : {"-3", "3"}) {
            QApplication::clipboard()->setText(QLatin1String(pasted));
            f.field().paste();
        }
        QCOMPARE(f.field().text(), QStringLiteral("123"));
    }
    void leavingTakesWhatWasTypedAndTellsLater()
    {
        Form f(m_doc.get());
        f.type("12");
        f.other->setFocus();
        QCOMPARE(f.raised, QStringList{"0: 12"});
        QCOMPARE(current(), qint16(12));
        f.type("99");
        {
            ScriptedPrompts nobody;
            f.other->setFocus();
            QCOMPARE(f.shown(), QStringLiteral("12 Út"));
        }
        ScriptedPrompts user({refusal(kNoLayer)});
        QCoreApplication::sendPostedEvents();
        QCOMPARE(user.asked(), 1);
        QVERIFY(f.other->hasFocus());
    }
    void whatWasOnlyShownIsNotReadBack()
    {
        Form f(m_doc.get());
        ScriptedPrompts nobody;
        f.leave();                              // an empty field
        f.control->LetLayId(layer(12).LayId, 0);
        f.field().setFocus();
        f.leave();
        QCOMPARE(current(), qint16(10));        // else the layer shown would have become current
    }

    void clicksAreAnnouncedMayBeCancelledAndEnd()
    {
        struct Row {
            bool cancel;
            int picked;                         // number of a layer; 0 = the dialog is cancelled
            QStringList raised;
        };
        for (const auto &[cancel, picked, raised] :
             {Row{false, 21, {"before", "0: 21", "after"}}, {false, 12, {"before", "after"}},
              {false, 0, {"before", "after"}}, {true, 21, {"before"}}}) {
            Picker picker;
            if (picked) picker.answer = layer(qint16(picked)).LayId;
            Form f(m_doc.get());
            f.control->LetLayId(layer(12).LayId, 0);
            f.raised.clear();
            f.cancel = cancel;
            QTest::mouseClick(f.control->cmdModLay, Qt::LeftButton);
            QCOMPARE(f.raised, raised);
            QCOMPARE(picker.first, cancel ? QList<qint16>() : QList<qint16>{layer(12).LayId});
            QCOMPARE(f.control->layNr(), qint16(cancel || picked != 21 ? 12 : 21));
        }
    }
    void theSelectionDialogIsBehindTheButton()
    {
        Form f(m_doc.get());
        f.control->setNotSetCurrentLayer(true);
        f.control->LetLayNr(21, 0);
        const auto watch = tests::whileModal<frmSelect>([&](frmSelect &d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Rétegválasztó"));
            QVERIFY(d.jsLayer->selectById(layer(12).LayId));
            tests::child<QPushButton>(d, "cmdOk").click();
        });
        QTest::keyClick(f.control->cmdModLay, Qt::Key_Space);
        QCOMPARE(f.raised, QStringList({"0: 21", "before", "0: 12", "after"}));
        QCOMPARE(current(), qint16(12));        // that is what the dialog does
    }
    void controlOrDocumentMayGoWhileTheDialogIsOpen()
    {
        Picker picker;
        picker.answer = layer(21).LayId;
        Form f(m_doc.get());
        picker.meanwhile = [&f] { f.control->TearDown(); };
        f.control->cmdModLay->click();
        QCOMPARE(picker.first, QList<qint16>{layer(10).LayId}); // the current one, as none is shown
        QCOMPARE(f.raised, QStringList({"before", "after"}));
        f.control->setoDoc(m_doc.get());
        picker.meanwhile = [&f] { delete std::exchange(f.control, nullptr); };
        f.control->cmdModLay->click();
        QCOMPARE(f.raised, QStringList({"before", "after", "before"}));
    }
    void aHandlerMayDeleteTheControl()
    {
        for (const bool leaves : {true, false}) {
            Form f(m_doc.get());
            QObject::connect(f.control, &ZOL3_LayInfo::ChangeLay, &f.dialog,
                             [&f] { delete std::exchange(f.control, nullptr); });
            f.type("12");
            if (leaves) f.leave();
            else QTest::keyClick(&f.field(), Qt::Key_Return);
            QCOMPARE(f.raised, QStringList{"0: 12"});
        }
    }

    void whatTheDocumentThrowsReachesTheCaller()
    {
        tests::FaultyDoc doc(*m_doc);
        Form f(&doc);
        f.control->LetLayId(layer(10).LayId, 0);
        doc.log.failNext = QStringLiteral("layers.makeCurrent");
        QVERIFY_THROWS_EXCEPTION(tests::HostError, f.control->LetLayNr(12, 0));
        QCOMPARE(f.shown(), QStringLiteral("10 Telekhatár"));
        doc.log.failNext = QStringLiteral("layers.findByNumber");
        const auto told = [](const char *call) {
            return ScriptedPrompts::Step{"tell", appTitle(), QLatin1String(call), {}, Icon::Exclamation};
        };
        ScriptedPrompts user({told("layers.findByNumber"), told("layers.find")});
        f.type("12");
        QTest::keyClick(&f.field(), Qt::Key_Return);
        QCOMPARE(f.shown(), QStringLiteral("10 Telekhatár"));
        Picker picker;
        picker.answer = layer(21).LayId;
        f.raised.clear();
        doc.log.failNext = QStringLiteral("layers.find");
        f.control->cmdModLay->click();
        QCOMPARE(f.raised, QStringList({"before", "after"})); // a click ends all the same
    }

    void infoModeOnlyShows()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        const int before = f.control->lblLayId->width();
        QCOMPARE(f.control->sizeHint(), Form(m_doc.get()).control->sizeHint()); // that shows no name
        f.control->setInfoMode(true);
        QVERIFY(!f.control->fraModLay->isVisible());
        f.type("21");
        QTest::keyClick(&f.field(), Qt::Key_Return);
        QCOMPARE(f.shown(), QStringLiteral("12 Út"));
        QVERIFY(f.control->lblLayId->width() > before); // the name gets the room
        f.control->LetLayNr(21, 0);             // the host still changes it
        QCOMPARE(f.shown(), QStringLiteral("21 Épület"));
        f.control->setInfoMode(false);
        QVERIFY(f.control->fraModLay->isVisible() && !f.field().isReadOnly());
    }
    void bagsKeepEveryProperty()
    {
        const QVariantMap bag{{"Enabled", false}, {"InfoMode", true}, {"VisibleIcon", true},
                              {"Font", QFont(QStringLiteral("DejaVu Serif"), 21)}};
        Form f(m_doc.get());
        QCOMPARE(f.control->propertyBag(), QVariantMap());
        QVERIFY(f.control->cmdModLay->icon().isNull());
        f.control->setPropertyBag(bag);
        QCOMPARE(f.control->propertyBag(), bag);
        QVERIFY(!f.control->cmdModLay->icon().isNull());
        QCOMPARE(f.field().font().pointSize(), 21);
        f.control->setPropertyBag({});
        QCOMPARE(f.control->propertyBag(), QVariantMap());
    }

    void captionsFollowTheLanguage()
    {
        Form f(m_doc.get());
        f.type("99");
        setLanguage(English, {});
        emit LanguageHub::instance().LanguageChanged();
        QCOMPARE(f.control->lblLay->text(), QStringLiteral("Layer  :"));
        QCOMPARE(f.control->cmdModLay->text(), QStringLiteral("Layer..."));
        ScriptedPrompts user({{"tell", QStringLiteral("Invalid layer number!"),
                               QStringLiteral("No such a layer with this number"), {}, Icon::Exclamation}});
        QTest::keyClick(&f.field(), Qt::Key_Return); // what was being typed is still there
    }

    void readersHearTheLayer()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        const auto heard = [](QWidget &w) {
            const QAccessibleInterface &as = *QAccessible::queryAccessibleInterface(&w);
            return QStringList{as.text(QAccessible::Name), as.text(QAccessible::Value),
                               as.text(QAccessible::Description)};
        };
        QCOMPARE(heard(*f.control), QStringList({"Réteg", "", "12 Út"}));
        QCOMPARE(heard(f.field()), QStringList({"Rétegszám", "12", "Út"}));
    }
};

QVDC_TEST(tst_ZOL3_LayInfo)
#include "tst_ZOL3_LayInfo.moc"
