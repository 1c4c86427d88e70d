#include "dialogs/editors/frmEditSid.h"

#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usSiInfo.h"
#include "controls/usTxAlign.h"
#include "dialogs/editors/OptionBox.h"
#include "facade/contract/RecordEditors.h"
#include "facade/services/Language.h"
#include "fonts/FontCatalogue.h"
#include "support/EachCall.h"
#include "support/FixedFonts.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/StrokeFont.h"
#include "support/Typing.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using tests::told;
using tests::warned;
using tests::whileModal;

using Act = std::function<void(frmEditSid &)>;
using Edit = std::function<void(tSid &)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Edit)

namespace {

const QLocale kHungary(QLocale::Hungarian, QLocale::Hungary);

void typeInto(QWidget &field, const QString &text)
{
    auto *const line = qobject_cast<QLineEdit *>(&field);
    (line ? line : field.findChild<QLineEdit *>())->setFocus();
    QTest::keySequence(field.focusWidget(), QKeySequence::SelectAll);
    tests::type(*field.window(), text);
}
Act typed(const char *control, const char *text)
{
    return [=](frmEditSid &f) { typeInto(tests::child<QWidget>(f, control), QString::fromUtf8(text)); };
}

} // namespace

class tst_frmEditSid : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    std::optional<tests::StrokeFontHost> m_host;
    static inline qint16 s_road; // a layer

    tSid symbol() const { return *m_doc->symbols().find(7); }
    /// What comes of `act` and a click on OK, or on Cancel.
    tSid edited(const tSid &record, const Act &act, const char *button = "cmdOk")
    {
        frmEditSid form;
        form.setLocale(kHungary);
        form.Init(*m_doc, record);
        const auto user = whileModal<frmEditSid>([&](frmEditSid &f) {
            act(f);
            QTest::mouseClick(&tests::child<QPushButton>(f, button), Qt::LeftButton);
        });
        const bool confirmed = form.edit();
        if (confirmed != form.IsOk()) qFatal("edit() and IsOk() differ");
        form.TearDown();
        return form.GetSid();
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_host.emplace();
        m_doc = tests::layerDoc(
            {{.gNr = 11, .Name = QStringLiteral("Épület")}, {.gNr = 12, .Name = QStringLiteral("Út")}});
        s_road = m_doc->layers().findByNumber(12)->LayId;
        m_doc->layers().makeCurrent(*m_doc->layers().findByNumber(11));
        tSid s;
        s.SidId = 7, s.ShortName = QStringLiteral("Kút"),
        s.GroupId = m_doc->symbols().groups().readAll()[0].GroupId;
        s.Facename = trueTypeFaces().front(), s.Code = 33, s.Size_mm = 5, s.Align = 24, s.DspZoom = 3;
        s.ProtType = 1, s.ProtXmm = 4.125, s.YwFact = s.XwFact = 1, s.Weight = 16, s.CharSet = 238;
        s.LayId = m_doc->layers().findByNumber(11)->LayId;
        m_doc->symbols().add(s);
        s.SidId = 8, s.ShortName = QStringLiteral("Fa");
        m_doc->symbols().add(s);
    }
    void cleanup() { m_doc.reset(), m_host.reset(); }

    void eachFieldChangesItsOwnValue_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<Edit>("expected");
        const auto row = [](const char *name, Act act, Edit expected) {
            QTest::newRow(name) << act << expected;
        };
        row("name", typed("txtShortName", "Szőlő"), [](tSid &s) { s.ShortName = QStringLiteral("Szőlő"); });
        row("description", typed("txtFullName", "ű"), [](tSid &s) { s.FullName = QStringLiteral("ű"); });
        row("code", typed("usNumAscIICode", "337"), [](tSid &s) { s.Code = 337; });
        row("a comma is a decimal sign", typed("usNumSize", "2,5"), [](tSid &s) { s.Size_mm = 2.5f; });
        row("across", typed("usNumXMove", "-1,25\r"), [](tSid &s) { s.MoveXmm = -1.25f; });
        row("up", typed("usNumYMove", "1\t"), [](tSid &s) { s.MoveYmm = 1; });
        row("radius", typed("usNumProtParam1", "1000"), [](tSid &s) { s.ProtXmm = 1000; });
        row("layer", typed("usLayInfo1", "12"), [](tSid &s) { s.LayId = s_road; });
        row("layer left", typed("txtLayNr", "12\t"), [](tSid &s) { s.LayId = s_road; });
        row(
            "face that has the character set",
            [](frmEditSid &f) { f.cboFonts->setCurrentText(QStringLiteral("DejaVu Serif")); },
            [](tSid &s) { s.Facename = QStringLiteral("DejaVu Serif"); });
        row(
            "alignment",
            [](frmEditSid &f) { f.usTxAlign1->findChildren<QAbstractButton *>().front()->click(); },
            [](tSid &s) { s.Align = 0; });
        row(
            "a bound that the arrows reach",
            [](frmEditSid &f) {
                f.usNumXMove->setValue(999.95);
                f.usNumXMove->txtCombo->setFocus();
                QTest::keyClick(f.usNumXMove->txtCombo, Qt::Key_Up);
            },
            [](tSid &s) { s.MoveXmm = 1000; });
        row(
            "vector font, its thickness in hundredths",
            [](frmEditSid &f) {
                f.optFontType->findChildren<QAbstractButton *>()[1]->click();
                f.cboFonts->setCurrentIndex(0);
                typeInto(*f.usNumWidth, QStringLiteral("0,35"));
            },
            [](tSid &s) { s.Type = 1, s.Weight = 35, s.Facename = QStringLiteral("Strokes"); });
        row(
            "another marker starts without sizes",
            [](frmEditSid &f) {
                f.cboProtType->setCurrentIndex(3);
                typeInto(*f.usNumProtParam2, QStringLiteral("0,5"));
            },
            [](tSid &s) { s.ProtType = 3, s.ProtXmm = 0, s.ProtYmm = 0.5; });
        row(
            "the grid is of the preview", [](frmEditSid &f) { f.chkGrid->click(); }, [](tSid &) {});
    }
    void eachFieldChangesItsOwnValue()
    {
        QFETCH(Act, act);
        QFETCH(Edit, expected);
        tSid wanted = symbol();
        expected(wanted);
        tSid previewed;
        QCOMPARE(
            edited(symbol(),
                   [&](frmEditSid &f) {
                       act(f);
                       QTest::keyClick(f.focusWidget(), Qt::Key_Tab);
                       QCoreApplication::sendPostedEvents(); // a layer is looked for once its field was left
                       previewed = f.usSiInfo1->GetSidRec();
                   }) == wanted,
            true);
        QVERIFY(previewed == wanted);
        QVERIFY(edited(symbol(), act, "cmdNok") == symbol());
        QCOMPARE(m_doc->layers().currentId(), m_doc->layers().findByNumber(11)->LayId);
    }

    /// Values that no control can show, or only rounded.
    void whatIsLeftAloneStays()
    {
        tSid odd = symbol();
        odd.Size_mm = 2.34567f, odd.Weight = 1234, odd.Code = 70000, odd.MoveXmm = -0.004f, odd.ProtXmm = -3;
        odd.ProtType = 9, odd.Align = 5, odd.LayId = 999, odd.Facename = QStringLiteral("ZolW_DAT1_M2");
        for (const quint8 type : {0, 1, 7}) {
            odd.Type = type;
            const tSid after = edited(odd, [&](frmEditSid &f) {
                QCOMPARE(f.usSiInfo1->GetSidRec() == odd, true);
                QCOMPARE(f.cboFonts->placeholderText(),
                         QStringLiteral("( ZolW_DAT1_M2 )  Ismeretlen  készlet !"));
                QWidget *const first = f.focusWidget();
                int steps = 0;
                do QTest::keyClick(f.focusWidget(), Qt::Key_Tab);
                while (f.focusWidget() != first && ++steps < 100);
                QVERIFY(steps < 100);
            });
            QVERIFY(after == odd);
        }
    }

    void aFaceWithoutTheCharacterSetDoesNotLoseIt()
    {
        const QString sans = QStringLiteral("DejaVu Sans"), serif = QStringLiteral("DejaVu Serif");
        const struct {
            int wanted;
            QStringList walk;
            int expected;
        } rows[] = {{177, {serif}, scriptsOf(serif).front()->charSet}, // which has no Hebrew
                    {177, {serif, sans}, 177},
                    {1, {serif}, 1}};
        for (const auto &row : rows) {
            tSid first = symbol();
            first.Facename = sans, first.CharSet = row.wanted;
            const tSid after = edited(first, [&](frmEditSid &f) {
                for (const QString &face : row.walk) f.cboFonts->setCurrentText(face);
            });
            QCOMPARE(after.CharSet, row.expected);
        }
        QVERIFY(rows[0].expected != 177);
    }

    void numbersFollowTheLanguage()
    {
        edited(symbol(), [](frmEditSid &f) {
            QCOMPARE(f.usNumSize->txtCombo->currentText(), QStringLiteral("5,00"));
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(f.usNumSize->txtCombo->currentText(), QStringLiteral("5.00"));
        });
    }

    void tabGoesAsOneReads()
    {
        QStringList visited;
        int steps = 0;
        edited(
            symbol(),
            [&](frmEditSid &f) {
                QWidget *const first = f.focusWidget();
                do {
                    QWidget *field = f.focusWidget();
                    while (field->parentWidget() != &f && !qobject_cast<QGroupBox *>(field->parentWidget()))
                        field = field->parentWidget();
                    if (qobject_cast<OptionBox *>(field->parentWidget())) field = field->parentWidget();
                    const QString name = field == f.cmdOk->parentWidget() ? QStringLiteral("buttons")
                                                                          : field->objectName();
                    if (visited.isEmpty() || visited.last() != name) visited << name;
                    QTest::keyClick(f.focusWidget(), Qt::Key_Tab);
                } while (f.focusWidget() != first && ++steps < 100);
            },
            "cmdNok");
        QCOMPARE(visited.join(u' '),
                 QStringLiteral("txtShortName txtFullName optFontType cboFonts usNumAscIICode "
                                "usNumSize usNumXMove usNumYMove usTxAlign1 cboProtType usNumProtParam1 "
                                "usLayInfo1 cmdChooseChar chkGrid usSiInfo1 buttons"));
    }

    void markerAndFontSayWhichFieldsThereAre()
    {
        frmEditSid form;
        const char *const kCaptions[] = {"|", "Sugár|", "Y méret|X méret", "Sugár|Y/X arány"};
        for (const quint8 type : {0, 1, 2, 3, 200}) {
            tSid s = symbol();
            s.ProtType = type, s.Type = type;
            form.Init(*m_doc, s);
            QCOMPARE(form.GetSid().ProtXmm, 4.125);
            const QStringList captions = QString::fromUtf8(kCaptions[type % 200]).split(u'|');
            int at = 0;
            for (const usInputBox *box : {form.usNumProtParam1, form.usNumProtParam2}) {
                QCOMPARE(box->BeforeString(), captions[at++]);
                QCOMPARE(box->isEnabled(), !box->BeforeString().isEmpty());
            }
            QCOMPARE(form.usNumProtParam2->AfterString().isEmpty(), type == 3); // a ratio
            QCOMPARE(form.usNumWidth->isEnabled(), type == 1);
            QCOMPARE(form.fraMove->isEnabled(), type <= 1);
            QCOMPARE(form.fraAlign->isEnabled(), type == 0);
        }
    }

    void whatIsRefusedKeepsTheFormOpen_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        const QString range = QStringLiteral("Érték hiba!"), name = QStringLiteral("Egyedi név");
        QTest::newRow("size") << typed("usNumSize", "0,05") << range
                              << QStringLiteral("0,10 és 1000,00 közé eső értéket kell megadni!");
        QTest::newRow("code") << typed("usNumAscIICode", "65536") << range
                              << QStringLiteral("0 és 65535 közé eső értéket kell megadni!");
        QTest::newRow("taken") << typed("txtShortName", "Fa") << name
                               << QStringLiteral("Létező jelkulcs név!");
        QTest::newRow("none") << typed("txtShortName", " ") << name << QStringLiteral("Hiányzik a név!");
        QTest::newRow("layer") << typed("usLayInfo1", "77") << QStringLiteral("Hibás rétegszám")
                               << QStringLiteral("Nincs ilyen számú réteg!");
    }
    void whatIsRefusedKeepsTheFormOpen()
    {
        QFETCH(Act, act);
        QFETCH(QString, title);
        QFETCH(QString, text);
        ScriptedPrompts user({warned(title, text)});
        const tSid after = edited(
            symbol(),
            [&](frmEditSid &f) {
                act(f);
                QWidget *const field = f.focusWidget();
                QTest::mouseClick(f.cmdOk, Qt::LeftButton);
                QVERIFY(f.isVisible() && f.focusWidget() == field);
            },
            "cmdNok");
        QVERIFY(after == symbol());
        QCOMPARE(user.asked(), 1);
    }

    void aCharacterComesFromTheViewer()
    {
        tests::FixedFonts picker;
        picker.character = {FontKind::TrueType, trueTypeFaces()[1], 204, 200};
        tSid wanted = symbol();
        wanted.Facename = trueTypeFaces()[1], wanted.CharSet = 204, wanted.Code = 200;
        QVERIFY(edited(symbol(), [](frmEditSid &f) { f.cmdChooseChar->click(); }) == wanted);
        QVERIFY((picker.asked == FontCharacter{FontKind::TrueType, symbol().Facename, 238, 33}));
    }

    void missingVectorFontsAreTold()
    {
        m_host.reset(); // a host without any
        ScriptedPrompts user({told({}, QStringLiteral("Hiányoznak a vektor fontok tulajdonságai!"))});
        tSid wanted = symbol();
        wanted.Type = 1;
        QVERIFY(edited(symbol(), [](frmEditSid &f) {
                    f.optFontType->findChildren<QAbstractButton *>()[1]->click();
                }) == wanted);
    }

    /// The road of the commands: read, edited, written at once; and every call of it may fail.
    void theEditorOfTheLibraryWritesOrThrows()
    {
        const auto confirm = [](frmEditSid &f) {
            typeInto(*f.usLayInfo1, QStringLiteral("12"));
            typeInto(*f.txtShortName, QStringLiteral("Akna"));
            if (f.isVisible()) f.cmdOk->click();
        };
        const auto edit = [](ZOLW_Doc &doc) {
            return recordEditors()->edit(TableKind::Symbols, doc, 7, nullptr);
        };
        QVERIFY(tests::failEachCall<frmEditSid>(*m_doc, edit, confirm, [] {}) > 4);
        QVERIFY(symbol().ShortName == QStringLiteral("Akna") && symbol().LayId == s_road);
    }
};

QVDC_TEST(tst_frmEditSid)
#include "tst_frmEditSid.moc"
