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
#include <QDialogButtonBox>
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
    QDialogButtonBox *buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QStringList raised;
    bool cancel = false;

    explicit Form(ZOLW_Doc *doc)
    {
        auto *const column = new QVBoxLayout(&dialog);
        for (QWidget *w : std::initializer_list<QWidget *>{control, other, buttons}) column->addWidget(w);
        QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
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
        m_doc = tests::layerDoc({{.gNr = 10, .Name = QStringLiteral("Telekhatár")},
                                 {.gNr = 12, .Name = QStringLiteral("Út")},
                                 {.gNr = 21, .Name = QStringLiteral("Épület")}});
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
        QCOMPARE(f.raised, QStringList({"7: 12", "255: 21", "0: 10"}));
    }
    void notSetCurrentLayerGovernsNumbersOnly()
    {
        Form f(m_doc.get());
        QVERIFY(!f.control->NotSetCurrentLayer());
        f.control->setNotSetCurrentLayer(true);
        f.control->LetLayNr(12, 0);
        QCOMPARE(f.shown(), QStringLiteral("12 Út"));
        QCOMPARE(current(), qint16(10));
        QCOMPARE(f.raised, QStringList{"0: 12"});
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

    void whatIsNoLayerIsToldAndChangesNothing_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("message");
        QTest::newRow("letters") << QVariant("x") << kNoNumber;
        QTest::newRow("empty") << QVariant("") << kNoNumber;
        QTest::newRow("none") << QVariant() << kNoNumber;
        QTest::newRow("unknown") << QVariant(99) << kNoLayer;
        QTest::newRow("beyond 16 bits") << QVariant(70000) << kNoLayer;
    }
    void whatIsNoLayerIsToldAndChangesNothing()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, message);
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        f.raised.clear();
        ScriptedPrompts user({refusal(message), refusal(message)});
        f.control->LetLayNr(value, 0);
        f.control->LetLayId(value, 0);
        QCOMPARE(user.alerts(), 2);
        QCOMPARE(f.shown(), QStringLiteral("12 Út"));
        QCOMPARE(current(), qint16(12));
        QCOMPARE(f.raised, QStringList());
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
    void anotherDocumentForgetsTheLayer()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        const auto second = tests::layerDoc({{.gNr = 1, .Name = QStringLiteral("A")}});
        f.control->setoDoc(second.get());
        QCOMPARE(f.shown(), QStringLiteral(" "));
        QCOMPARE(f.control->LayId(), qint16(-1));
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
        QCOMPARE(f.field().text(), QStringLiteral("12"));
        QApplication::clipboard()->setText(QStringLiteral("-3"));
        f.field().paste();
        QCOMPARE(f.field().text(), QStringLiteral("12"));
        QApplication::clipboard()->setText(QStringLiteral("3"));
        f.field().paste();
        QCOMPARE(f.field().text(), QStringLiteral("123"));
    }
    void leavingTakesWhatWasTyped()
    {
        Form f(m_doc.get());
        f.type("12");
        f.leave();
        QCOMPARE(f.raised, QStringList{"0: 12"});
        QCOMPARE(current(), qint16(12));
        f.type("99");
        ScriptedPrompts user({refusal(kNoLayer)});
        f.leave();
        QCOMPARE(user.asked(), 1);
        QCOMPARE(f.shown(), QStringLiteral("12 Út"));
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
    void aClickOnCancelCancels()
    {
        Form f(m_doc.get());
        ScriptedPrompts nobody;
        f.type("99");
        QPushButton &cancel = *f.buttons->button(QDialogButtonBox::Cancel);
        QTest::mousePress(&cancel, Qt::LeftButton);
        QCoreApplication::sendPostedEvents();
        QVERIFY(cancel.hasFocus());
        QTest::mouseRelease(&cancel, Qt::LeftButton);
        QCoreApplication::sendPostedEvents();
        QVERIFY(!f.dialog.isVisible());
        QCOMPARE(f.raised, QStringList());
    }
    void aRejectingButtonThatIsLeftAgainOnlyDelays()
    {
        Form f(m_doc.get());
        f.type("12");
        f.buttons->button(QDialogButtonBox::Cancel)->setFocus();
        QCoreApplication::sendPostedEvents();
        QCOMPARE(f.raised, QStringList());
        f.leave();
        QCOMPARE(f.raised, QStringList{"0: 12"});
    }
    void aWindowThatGoesInactiveIsNotLeft()
    {
        Form f(m_doc.get());
        ScriptedPrompts nobody;
        f.type("99");
        for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
            QFocusEvent out(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(&f.field(), &out);
            QCoreApplication::sendPostedEvents();
        }
        QCOMPARE(f.field().text(), QStringLiteral("99"));
    }

    void clicksAreAnnouncedMayBeCancelledAndEnd_data()
    {
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<int>("picked");        // number of a layer; 0 = the dialog is cancelled
        QTest::addColumn<QStringList>("raised");
        QTest::newRow("another layer") << false << 21 << QStringList{"before", "0: 21", "after"};
        QTest::newRow("the same layer") << false << 12 << QStringList{"before", "after"};
        QTest::newRow("no layer") << false << 0 << QStringList{"before", "after"};
        QTest::newRow("cancelled by the host") << true << 21 << QStringList{"before"};
    }
    void clicksAreAnnouncedMayBeCancelledAndEnd()
    {
        QFETCH(bool, cancel);
        QFETCH(int, picked);
        QFETCH(QStringList, raised);
        Picker picker;
        if (picked) picker.answer = layer(qint16(picked)).LayId;
        Form f(m_doc.get());
        f.control->LetLayId(layer(12).LayId, 0);
        f.raised.clear();
        f.cancel = cancel;
        QTest::mouseClick(f.control->cmdModLay, Qt::LeftButton);
        QCOMPARE(f.raised, raised);
        QCOMPARE(picker.first, cancel ? QList<qint16>() : QList<qint16>{layer(12).LayId});
        QCOMPARE(f.shown(), cancel || picked != 21 ? QStringLiteral("12 Út") : QStringLiteral("21 Épület"));
    }
    void withoutALayerThePickerStartsFromTheCurrentOne()
    {
        Picker picker;
        Form f(m_doc.get());
        f.control->cmdModLay->click();
        QCOMPARE(picker.first, QList<qint16>{layer(10).LayId});
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
    void aClickEndsEvenWhenTheDocumentFails()
    {
        Picker picker;
        picker.answer = layer(21).LayId;
        tests::FaultyDoc doc(*m_doc);
        Form f(&doc);
        doc.log.failNext = QStringLiteral("layers.find");
        ScriptedPrompts user({{"tell", appTitle(), QStringLiteral("layers.find"), {}, Icon::Exclamation}});
        f.control->cmdModLay->click();
        QCOMPARE(f.raised, QStringList({"before", "after"}));
    }
    void theControlMayGoWhileTheDialogIsOpen()
    {
        Picker picker;
        picker.answer = layer(21).LayId;
        Form f(m_doc.get());
        picker.meanwhile = [&f] { delete std::exchange(f.control, nullptr); };
        f.control->cmdModLay->click();
        QCOMPARE(f.raised, QStringList{"before"});
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
        ScriptedPrompts user(
            {{"tell", appTitle(), QStringLiteral("layers.findByNumber"), {}, Icon::Exclamation}});
        f.type("12");
        QTest::keyClick(&f.field(), Qt::Key_Return);
        QCOMPARE(f.shown(), QStringLiteral("10 Telekhatár"));
    }

    void infoModeOnlyShows()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        const int before = f.control->lblLayId->width();
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
    void theIconIsWanted()
    {
        Form f(m_doc.get());
        QVERIFY(f.control->cmdModLay->icon().isNull());
        f.control->setVisibleIcon(true);
        QVERIFY(!f.control->cmdModLay->icon().isNull());
        f.control->setVisibleIcon(false);
        QVERIFY(f.control->cmdModLay->icon().isNull());
    }
    void bagsKeepEveryProperty()
    {
        const QVariantMap bag{{"Enabled", false},
                              {"InfoMode", true},
                              {"VisibleIcon", true},
                              {"Font", QFont(QStringLiteral("DejaVu Serif"), 21)}};
        Form f(m_doc.get());
        QCOMPARE(f.control->propertyBag(), QVariantMap());
        f.control->setPropertyBag(bag);
        QCOMPARE(f.control->propertyBag(), bag);
        QCOMPARE(f.field().font().pointSize(), 21);
        QVERIFY(!f.control->Enabled() && f.control->InfoMode() && f.control->VisibleIcon());
        f.control->setPropertyBag({});
        QCOMPARE(f.control->propertyBag(), QVariantMap());
    }

    void captionsFollowTheLanguage_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("captions");
        QTest::addColumn<QString>("refusal");
        QTest::newRow("hu") << int(Hungarian) << "Réteg  :|Réteg..."
                            << "Hibás rétegszám|Nincs ilyen számú réteg!";
        QTest::newRow("en") << int(English) << "Layer  :|Layer..."
                            << "Invalid layer number!|No such a layer with this number";
        QTest::newRow("ro") << int(Romanian) << "Strat  :|Strat..."
                            << "Număr de strat greșit|Nu există niciun strat cu acest număr!";
        QTest::newRow("vi") << int(Vietnamese) << "Lớp  :|Lớp..."
                            << "Số hiệu lớp không hợp lệ|Không có lớp nào mang số hiệu này!";
    }
    void captionsFollowTheLanguage()
    {
        QFETCH(int, language);
        QFETCH(QString, captions);
        QFETCH(QString, refusal);
        Form f(m_doc.get());
        setLanguage(language, {});
        emit LanguageHub::instance().LanguageChanged();
        QCOMPARE(f.control->lblLay->text() + u'|' + f.control->cmdModLay->text(), captions);
        const QStringList said = refusal.split(u'|');
        ScriptedPrompts user({{"tell", said[0], said[1], {}, Icon::Exclamation}});
        f.type("99");
        QTest::keyClick(&f.field(), Qt::Key_Return);
        QCOMPARE(user.asked(), 1);
    }

    void readersHearTheLayer()
    {
        Form f(m_doc.get());
        f.control->LetLayNr(12, 0);
        const QAccessibleInterface &group = *QAccessible::queryAccessibleInterface(f.control);
        QCOMPARE(group.role(), QAccessible::Grouping);
        QCOMPARE(group.text(QAccessible::Name), QStringLiteral("Réteg"));
        QCOMPARE(group.text(QAccessible::Description), QStringLiteral("12 Út"));
        const QAccessibleInterface &field = *QAccessible::queryAccessibleInterface(&f.field());
        QCOMPARE(field.text(QAccessible::Name), QStringLiteral("Rétegszám"));
        QCOMPARE(field.text(QAccessible::Value), QStringLiteral("12"));
        QCOMPARE(field.text(QAccessible::Description), QStringLiteral("Út"));
    }
};

QVDC_TEST(tst_ZOL3_LayInfo)
#include "tst_ZOL3_LayInfo.moc"
