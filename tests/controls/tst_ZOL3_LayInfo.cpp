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

using namespace tests;
using namespace ZolWDoc;

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
        column->addWidget(control);
        column->addWidget(other);
        QObject::connect(control, &ZOL3_LayInfo::LayIdClickBefore,
                         [this](bool &stop) { raised << "before", stop = cancel; });
        QObject::connect(control, &ZOL3_LayInfo::LayIdClickAfter, [this] { raised << "after"; });
        QObject::connect(control, &ZOL3_LayInfo::ChangeLay, [this](quint8 mode, tLay &lay) {
            raised << QString("%1: %2").arg(mode).arg(lay.gNr);
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
        QTest::keyClicks(&field(), keys);
    }
    void enter(const char *keys, Qt::Key key = Qt::Key_Return) { type(keys), QTest::keyClick(&field(), key); }
    void leave()
    {
        other->setFocus();
        QCoreApplication::sendPostedEvents();
    }
    QString shown() { return field().text() + u' ' + control->lblLayId->text(); }
};

ScriptedPrompts::Step refusal(const QString &text)
{
    return {"tell", "Hibás rétegszám", text, {}, Icon::Exclamation};
}
const char *const kNoNumber = "Egész számot kell megadni!", *const kNoLayer = "Nincs ilyen számú réteg!";

using Act = std::function<void(Form &)>;
Act entered(Qt::Key key)
{
    return [=](Form &f) {
        f.enter("12", key);
        QCOMPARE(f.field().selectedText(), "12");
    };
}

} // namespace

class tst_ZOL3_LayInfo : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }
    qint16 idOf(qint16 number) { return layer(number).LayId; }
    qint16 current() { return m_doc->layers().find(m_doc->layers().currentId())->gNr; }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::layerDoc("10 Telekhatár, 12 Út, 21 Épület");
        m_doc->layers().makeCurrent(layer(10));
    }
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a control was not released"); }

    void layersAreGivenTypedAndShown() // table
    {
        const auto other = tests::layerDoc("1 A");
        using Row = std::tuple<const char *, Act, const char *, const char *, int>; // raised, shown, current
        const Row rows[] = {
            {"by number", [](Form &f) { f.control->LetLayNr(12, 7); }, "7: 12", "12 Út", 12},
            {"the same again", [](Form &f) { f.control->LetLayNr(12, 7), f.control->LetLayNr(" 12 ", 8); },
             "7: 12", "12 Út", 12},
            {"by identifier: the current layer stays",
             [&](Form &f) { f.control->LetLayId(idOf(21), 255); }, "255: 21", "21 Épület", 10},
            {"property", [&](Form &f) { f.control->setLayId(idOf(12)); }, "0: 12", "12 Út", 10},
            {"by number, but it stays",
             [](Form &f) { f.control->setNotSetCurrentLayer(true), f.control->LetLayNr(21, 0); }, "0: 21",
             "21 Épület", 10},
            {"identifiers mean nothing in another document",
             [&](Form &f) { f.control->LetLayNr(12, 0), f.control->setoDoc(other.get()); }, "0: 12", " ", 12},
            {"disabled, it changes silently",
             [&](Form &f) { f.control->setEnabled(false), f.control->LetLayNr(12, 0); }, "", "12 Út", 12},
            {"the form around is disabled",
             [](Form &f) { f.dialog.setEnabled(false), f.control->LetLayNr(12, 0); }, "0: 12", "12 Út", 12},
            {"Return", entered(Qt::Key_Return), "0: 12", "12 Út", 12},
            {"Enter", entered(Qt::Key_Enter), "0: 12", "12 Út", 12},
            {"left", [](Form &f) { f.type("12"), f.leave(); }, "0: 12", "12 Út", 12},
            {"left while empty", [](Form &f) { f.leave(); }, "", " ", 10},
            {"left while only shown",
             [&](Form &f) { f.control->LetLayId(idOf(12), 0), f.field().setFocus(), f.leave(); }, "0: 12",
             "12 Út", 10},
            {"only shown in info mode",
             [](Form &f) { f.control->LetLayNr(12, 0), f.control->setInfoMode(true), f.enter("21"); },
             "0: 12", "12 Út", 12},
            {"by the host in info mode",
             [](Form &f) { f.control->setInfoMode(true), f.control->LetLayNr(21, 0); }, "0: 21", "21 Épület",
             21}};
        for (const auto &[name, act, raised, shown, becomes] : rows) {
            m_doc->layers().makeCurrent(layer(10));
            ScriptedPrompts nobody;
            Form f(m_doc.get());
            act(f);
            same(name, f.raised.join(u' '), raised);
            same(name, f.shown(), shown);
            same(name, int(current()), becomes);
            QVERIFY2(f.dialog.isVisible(), name);
        }
    }

    void whatIsNoLayerIsToldAndChangesNothing()
    {
        const std::pair<QVariant, const char *> rows[] = {
            {"x", kNoNumber}, {"", kNoNumber}, {{}, kNoNumber}, {99, kNoLayer}, {70000, kNoLayer}};
        for (const auto &[value, message] : rows) {
            Form f(m_doc.get());
            f.control->LetLayId(idOf(12), 0);
            ScriptedPrompts user({refusal(message), refusal(message)});
            f.control->LetLayNr(value, 0);
            f.control->LetLayId(value, 0);
            QCOMPARE(user.alerts(), 2);
            QCOMPARE(f.shown(), "12 Út");
            QCOMPARE(current(), qint16(10));
            QCOMPARE(f.raised, QStringList{"0: 12"});
        }
    }

    void whatIsTypedAndRefusedIsToldAfterLeaving()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        {
            ScriptedPrompts user({refusal(kNoLayer)});
            f.enter("99");
            QCOMPARE(f.shown(), "12 Út");       // the layer that stays
        }
        f.type("99");
        {
            ScriptedPrompts nobody;
            f.other->setFocus();
            QCOMPARE(f.shown(), "12 Út");
        }
        ScriptedPrompts user({refusal(kNoLayer)});
        QCoreApplication::sendPostedEvents();
        QCOMPARE(user.asked(), 1);
        QVERIFY(f.other->hasFocus());
    }

    void withoutADocumentNothingHappens()
    {
        QTest::ignoreMessage(QtDebugMsg, "QV_DOC_CONTROLS.ZOL4_LayInfo.set_oDoc invalid argument!");
        ScriptedPrompts nobody;
        Form f(nullptr);
        f.control->setoDoc(nullptr);            // says so to the debugger
        f.control->LetLayNr("x", 0);
        f.control->LetLayId(1, 0);
        f.enter("10");
        f.leave();
        QCOMPARE(f.control->LayId(), qint16(-1));
        f.control->setoDoc(m_doc.get());
        for (int n = 0; n < 2; ++n) f.control->TearDown(); // says nothing
        f.control->LetLayNr(12, 0);
        QCOMPARE(f.control->oDoc(), nullptr);
        QCOMPARE(f.raised, QStringList());
    }

    void onlyDigitsPass()
    {
        Form f(m_doc.get());
        f.type("1-a2.e ");
        for (const char *pasted : {"-3", "3"}) {
            QApplication::clipboard()->setText(pasted);
            f.field().paste();
        }
        QCOMPARE(f.field().text(), "123");
    }

    void clicksAreAnnouncedMayBeCancelledAndEnd()
    {
        const std::tuple<bool, int, QStringList> rows[] = { // whether the host cancels, the number picked
            {false, 21, {"before", "0: 21", "after"}}, {false, 12, {"before", "after"}},
            {false, 0, {"before", "after"}}, {true, 21, {"before"}}};
        for (const auto &[cancel, picked, raised] : rows) {
            Picker picker;
            if (picked) picker.answer = idOf(qint16(picked));
            Form f(m_doc.get());
            f.control->LetLayId(idOf(12), 0);
            f.raised.clear();
            f.cancel = cancel;
            QTest::mouseClick(f.control->cmdModLay, Qt::LeftButton);
            QCOMPARE(f.raised, raised);
            QCOMPARE(picker.first, cancel ? QList<qint16>() : QList<qint16>{idOf(12)});
            QCOMPARE(f.control->layNr(), qint16(cancel || picked != 21 ? 12 : 21));
        }
    }

    void theSelectionDialogIsBehindTheButton()
    {
        Form f(m_doc.get());
        f.control->setNotSetCurrentLayer(true);
        f.control->LetLayNr(21, 0);
        const auto watch = tests::whileModal<frmSelect>([&](frmSelect &d) {
            QCOMPARE(d.windowTitle(), "Rétegválasztó");
            QVERIFY(d.jsLayer->selectById(idOf(12)));
            tests::child<QPushButton>(d, "cmdOk").click();
        });
        QTest::keyClick(f.control->cmdModLay, Qt::Key_Space);
        QCOMPARE(f.raised, QStringList({"0: 21", "before", "0: 12", "after"}));
        QCOMPARE(current(), qint16(12));        // that is what the dialog does
    }

    void controlOrDocumentMayGoWhileTheDialogIsOpen()
    {
        Picker picker;
        picker.answer = idOf(21);
        Form f(m_doc.get());
        picker.meanwhile = [&f] { f.control->TearDown(); };
        f.control->cmdModLay->click();
        QCOMPARE(picker.first, QList<qint16>{idOf(10)}); // the current one, as none is shown
        QCOMPARE(f.raised, QStringList({"before", "after"}));
        f.control->setoDoc(m_doc.get());
        picker.meanwhile = [&f] { delete std::exchange(f.control, nullptr); };
        f.control->cmdModLay->click();
        QCOMPARE(f.raised, QStringList({"before", "after", "before"}));
    }

    void aHandlerMayDeleteTheControl()
    {
        for (const Act &act : {Act([](Form &f) { f.type("12"), f.leave(); }),
                               Act([](Form &f) { f.enter("12"); })}) {
            Form f(m_doc.get());
            QObject::connect(f.control, &ZOL3_LayInfo::ChangeLay, &f.dialog,
                             [&f] { delete std::exchange(f.control, nullptr); });
            act(f);
            QCOMPARE(f.raised, QStringList{"0: 12"});
        }
    }

    void whatTheDocumentThrowsReachesTheCaller()
    {
        tests::FaultyDoc doc(*m_doc);
        Form f(&doc);
        f.control->LetLayId(idOf(10), 0);
        doc.log.failNext = "layers.makeCurrent";
        QVERIFY_THROWS_EXCEPTION(tests::HostError, f.control->LetLayNr(12, 0));
        QCOMPARE(f.shown(), "10 Telekhatár");
        const auto told = [](const char *call) {
            return ScriptedPrompts::Step{"tell", appTitle(), call, {}, Icon::Exclamation};
        };
        ScriptedPrompts user({told("layers.findByNumber"), told("layers.find")});
        doc.log.failNext = "layers.findByNumber";
        f.enter("12");
        QCOMPARE(f.shown(), "10 Telekhatár");
        Picker picker;
        picker.answer = idOf(21);
        f.raised.clear();
        doc.log.failNext = "layers.find";
        f.control->cmdModLay->click();
        QCOMPARE(f.raised, QStringList({"before", "after"})); // a click ends all the same
    }

    void infoModeGivesTheNameTheRoomOfTheButton()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        const int before = f.control->lblLayId->width();
        QCOMPARE(f.control->sizeHint(), Form(m_doc.get()).control->sizeHint()); // that shows no name
        f.control->setVisibleIcon(true);
        QVERIFY(!f.control->cmdModLay->icon().isNull());
        f.control->setInfoMode(true);
        QCoreApplication::sendPostedEvents();
        QVERIFY(!f.control->fraModLay->isVisible() && f.control->lblLayId->width() > before);
        f.control->setInfoMode(false);
        QVERIFY(f.control->fraModLay->isVisible() && !f.field().isReadOnly());
    }

    void captionsFollowTheLanguage()
    {
        Form f(m_doc.get());
        f.type("99");
        setLanguage(English, {});
        emit LanguageHub::instance().LanguageChanged();
        QCOMPARE(f.control->lblLay->text(), "Layer  :");
        QCOMPARE(f.control->cmdModLay->text(), "Layer...");
        ScriptedPrompts user({{"tell", "Invalid layer number!", "No such a layer with this number", {},
                               Icon::Exclamation}});
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
