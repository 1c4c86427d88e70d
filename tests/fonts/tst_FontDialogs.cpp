#include "fonts/BlockHost.h"
#include "fonts/CharacterGrid.h"
#include "fonts/CharacterSource.h"
#include "fonts/FontSample.h"
#include "fonts/FontViewer.h"
#include "fonts/frmTrueTypeSel.h"
#include "fonts/frmVectorFontSel.h"
#include "facade/services/Language.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/Typing.h"

using namespace tests;

using FaceAct = std::function<void(frmTrueTypeSel &)>;
using ViewAct = std::function<void(FontViewer &)>;

namespace {

const ScriptedFace kSans{"DejaVu Sans", 238};

void chooseScript(QComboBox &list, qint32 charSet) { list.setCurrentIndex(list.findData(charSet)); }

FaceAct typedFace(const char *keys)
{
    return [=](frmTrueTypeSel &d) { type(d, keys); };
}

ViewAct typedCode(const char *keys)
{
    return [=](FontViewer &d) {
        d.txtCode->setFocus();
        d.txtCode->selectAll();
        type(d, keys);
    };
}

FontCharacter characterOfSans(qint32 code, qint32 charSet = 238)
{
    return {FontKind::TrueType, kSans.face, charSet, code};
}

void confirm(frmTrueTypeSel &d) { d.cmdOk->click(); }
FaceAct searched(const char *text, const FaceAct &then = confirm)
{
    return [=](frmTrueTypeSel &d) { d.txtSearch->setFocus(), d.txtSearch->setText(text), then(d); };
}

bool hasInk(const QWidget &of)
{
    const QImage seen = const_cast<QWidget &>(of).grab().toImage();
    const QColor paper = of.palette().color(QPalette::Base);
    for (int y = 4; y < seen.height() - 4; ++y)
        for (int x = 4; x < seen.width() - 4; ++x)
            if (seen.pixelColor(x, y) != paper) return true;
    return false;
}

} // namespace

class tst_FontDialogs : public QObject {
    Q_OBJECT
private slots:
    void aFaceAndAScriptAreChosen() // table
    {
        const QString serif = "DejaVu Serif", mono = "DejaVu Sans Mono";
        const ScriptedFace unknown{"ZolW_DAT1_M2", 238}, hebrew{kSans.face, 177};
        const std::tuple<const char *, ScriptedFace, FaceAct, ScriptedFace> rows[] = {
            {"as it was", kSans, typedFace("\r"), kSans},
            {"escape", kSans, searched("Serif", typedFace("\x1b")), kSans},
            {"searched, any case", kSans, searched("", typedFace("vu sans MONO\r")), {mono, 238}},
            {"walked from the search line", kSans, searched("DejaVu Ser", [](auto &d) {
                 QTest::keyClick(d.txtSearch, Qt::Key_Up);
                 type(d, "\r");
             }), {serif, 238}},
            {"unknown, then found", unknown, [](auto &d) {
                 QCOMPARE(d.lblHint->text(), "( ZolW_DAT1_M2 )  Ismeretlen  készlet !");
                 QVERIFY(!d.cmdOk->isEnabled());
                 type(d, "\t");                 // looking at the list is not choosing
                 QVERIFY(!d.cmdOk->isEnabled());
                 searched("DejaVu Sans")(d);
             }, kSans},
            {"nothing found", kSans, searched("no such face", [](auto &d) {
                 QVERIFY(!d.cmdOk->isEnabled());
                 type(d, "\r\x1b");
             }), kSans},
            {"a script", kSans, [](auto &d) { chooseScript(*d.ComboScript, 204), confirm(d); },
             {kSans.face, 204}},
            {"a script that the next face lacks", hebrew, searched("DejaVu Serif", [](auto &d) {
                 QVERIFY(d.lblHint->text().contains("nem támogatja"));
                 confirm(d);
             }), {serif, 0}},
            {"and that comes back with the face", hebrew, searched("DejaVu Serif", [](auto &d) {
                 d.txtSearch->clear();
                 d.lstFaces->setCurrentItem(d.lstFaces->findItems(kSans.face, Qt::MatchExactly)[0]);
                 QCOMPARE(d.lblHint->text(), "");
                 confirm(d);
             }), hebrew},
            {"a number that means no script", {kSans.face, 1}, searched("Sans Mono", [](auto &d) {
                 QCOMPARE(d.ComboScript->currentText(), "Alapértelmezett");
                 confirm(d);
             }), {mono, 1}}};
        for (const auto &[name, first, act, chosen] : rows) {
            const auto watch = whileModal<frmTrueTypeSel>(act);
            QVERIFY2(fontPicker()->pickTrueType(first, nullptr).value_or(first) == chosen, name);
        }
    }
    void aCharacterIsChosen()
    {
        const std::tuple<const char *, FontCharacter, ViewAct, int> rows[] = { // -1 = cancelled
            {"as it was", characterOfSans(245), typedCode("\r"), 245},
            {"decimal", characterOfSans(33), typedCode("40000\r"), 40000},
            {"hexadecimal", characterOfSans(33), typedCode("0x151\r"), 0x151},
            {"the Unicode way", characterOfSans(33), typedCode("u+20ac\r"), 0x20ac},
            {"itself", characterOfSans(33), typedCode("ő\r"), 0x151},
            {"itself, by the code page", characterOfSans(33), typedCode("á\r"), 0xe1},
            {"not in the code page", characterOfSans(33, 204), typedCode("á\r\x1b"), -1},
            {"a digit is a code", characterOfSans(33), typedCode("7\r"), 7},
            {"too large, put right", characterOfSans(33), typedCode("65536\r65535\r"), 65535},
            {"no code, escape", characterOfSans(33), typedCode("-1\r\x1b"), -1},
            {"typed over the cells", characterOfSans(33), [](FontViewer &d) {
                 QCOMPARE(d.focusWidget(), d.grdCharacters);
                 type(d, "12");
                 QCOMPARE(d.txtCode->text(), "12");
                 type(d, "3\r");
             }, 123},
            {"a letter over the cells", characterOfSans(33), [](FontViewer &d) {
                 type(d, "ű");
                 QCOMPARE(d.txtCode->text(), QString::number(0x171));
                 QTest::keyClick(d.grdCharacters, Qt::Key_Right);
                 type(d, "\r");
             }, 0x172},
            {"double click", characterOfSans(0x400, 204), [](FontViewer &d) {
                 const QPoint at = d.grdCharacters->visualRect(d.grdCharacters->currentIndex()).center();
                 const QPoint right(at.x() + d.grdCharacters->columnWidth(0), at.y());
                 QTest::mouseClick(d.grdCharacters->viewport(), Qt::LeftButton, {}, right);
                 QTest::mouseDClick(d.grdCharacters->viewport(), Qt::LeftButton, {}, right);
             }, 0x401}};
        for (const auto &[name, first, act, code] : rows) {
            const auto watch = whileModal<FontViewer>(act);
            const auto chosen = fontPicker()->pickCharacter(nullptr, first, nullptr);
            same(name, chosen ? int(chosen->code) : -1, code);
            if (chosen) QCOMPARE(*chosen, characterOfSans(chosen->code, first.charSet));
        }
    }
    void aSymbolSetIsTypedByItsKeys()
    {
        const auto letters = trueTypeCharacters({kSans.face, 2});
        QCOMPARE(letters->codeOf(u'A'), 65);
        QCOMPARE(letters->codeOf(u'\xf041'), 0xf041);
        QCOMPARE(letters->codeOf(u'é'), -1);
    }
    void theViewerTakesAnotherFaceAndScript()
    {
        const auto watch = whileModal<FontViewer>([](FontViewer &d) {
            d.cboFonts->setCurrentIndex(d.cboFonts->findText("DejaVu Serif"));
            chooseScript(*d.ComboScript, 204);
            QVERIFY(d.lblCode->text().contains("х"));   // 245 in that script
            QVERIFY(hasInk(*d.sample));
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(d.ComboScript->currentText(), "Cyrillic");
            setLanguage(Hungarian, {});
            d.cmdOk->click();
        });
        QCOMPARE(fontPicker()->pickCharacter(nullptr, characterOfSans(245), nullptr),
                 (FontCharacter{FontKind::TrueType, "DejaVu Serif", 204, 245}));
    }
    void tabGoesInReadingOrder()
    {
        const auto watch = whileModal<FontViewer>([](FontViewer &d) {
            d.cboFonts->setFocus();
            QStringList order;
            for (int i = 0; i < 9; ++i) {
                order << d.focusWidget()->objectName();
                QTest::keyClick(d.focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(order.join(u' '), QStringLiteral("cboFonts ComboScript chkPresent cmdZoomOut cmdZoomIn "
                                                      "grdCharacters txtCode cmdOk cmdCancel"));
            d.cmdCancel->click();
        });
        fontPicker()->pickCharacter(nullptr, characterOfSans(65), nullptr);
    }
    void anUnknownFaceHasNoCharacters()
    {
        const auto watch = whileModal<FontViewer>([](FontViewer &d) {
            QCOMPARE(d.cboFonts->placeholderText(), "( X )  Ismeretlen  készlet !");
            QVERIFY(!d.cmdOk->isEnabled() && !hasInk(*d.sample));
            d.cmdCancel->click();
        });
        QVERIFY(!fontPicker()->pickCharacter(nullptr, {FontKind::TrueType, "X", 0, 65}, nullptr));
    }
    void vectorFontsAreTheHosts()
    {
        const BlockHost host;
        const auto choosing = whileModal<frmVectorFontSel>([](frmVectorFontSel &d) {
            d.lstFaces->setCurrentRow(0);
            QVERIFY(hasInk(*d.sample));
            d.cmdOk->click();
        });
        QCOMPARE(fontPicker()->pickVector(nullptr, {}, nullptr), host.name());
        const auto viewing = whileModal<FontViewer>([](FontViewer &d) {
            QVERIFY(!d.ComboScript->isVisible());
            QCOMPARE(d.grdCharacters->model()->rowCount(), 1);          // three of all codes
            QVERIFY(d.lblCode->text().contains("dot"));
            QTest::keyClick(d.grdCharacters, Qt::Key_Right);
            QVERIFY(hasInk(*d.sample));
            d.cmdOk->click();
        });
        const FontCharacter dot{FontKind::Vector, host.name(), 238, 200};
        QCOMPARE(fontPicker()->pickCharacter(nullptr, dot, nullptr),
                 (FontCharacter{FontKind::Vector, host.name(), 238, 40000}));
    }
    void vectorFontsThatCannotBeListedAreSaid()
    {
        const ScriptedPrompts::Step missing{
            "tell", appTitle(), "Hiányoznak a vektor fontok tulajdonságai!", {}, Icon::Information};
        const std::optional<QStringList> rows[] = {{}, QStringList(), {{"Lost"}}}; // none: no provider
        for (const auto &offered : rows) {
            const auto host = offered ? std::make_unique<BlockHost>() : nullptr;
            if (host) host->offered = *offered;
            const ScriptedPrompts user{{missing, missing}};
            QVERIFY(!fontPicker()->pickVector(nullptr, {}, nullptr));
            QVERIFY(!fontPicker()->pickCharacter(nullptr, {.kind = FontKind::Vector}, nullptr));
        }
    }
    void anErrorOfTheHostReachesTheCaller()
    {
        BlockHost host;
        host.fails = true;
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, fontPicker()->pickVector(nullptr, host.name(), nullptr));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 fontPicker()->pickCharacter(nullptr, {FontKind::Vector, host.name(), 0, 33},
                                                             nullptr));
    }
    void nothingThatPaintsAsksTheHost()
    {
        const BlockHost host;
        const auto watch = whileModal<FontViewer>([&](FontViewer &d) {
            const int before = host.asked;
            d.grab();
            d.resize(d.size() + QSize(40, 40));
            d.grab();
            QCOMPARE(host.asked, before);
            QCOMPARE(before, 3);                                        // each once
            d.cmdCancel->click();
        });
        fontPicker()->pickCharacter(nullptr, {FontKind::Vector, host.name(), 0, 33}, nullptr);
    }
};
QVDC_TEST(tst_FontDialogs)
#include "tst_FontDialogs.moc"
