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

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using FaceAct = std::function<void(frmTrueTypeSel &)>;
using ViewAct = std::function<void(FontViewer &)>;
Q_DECLARE_METATYPE(FaceAct)
Q_DECLARE_METATYPE(ViewAct)

namespace {

const ScriptedFace kSans{QStringLiteral("DejaVu Sans"), 238};

void chooseScript(QComboBox &list, qint32 charSet) { list.setCurrentIndex(list.findData(charSet)); }

FaceAct typedFace(const char *keys)
{
    return [=](frmTrueTypeSel &d) { type(d, QString::fromUtf8(keys)); };
}

ViewAct typedCode(const char *keys)
{
    return [=](FontViewer &d) {
        d.txtCode->setFocus();
        d.txtCode->selectAll();
        type(d, QString::fromUtf8(keys));
    };
}

FontCharacter characterOfSans(qint32 code, qint32 charSet = 238)
{
    return {FontKind::TrueType, kSans.face, charSet, code};
}

void faceColumns()
{
    QTest::addColumn<ScriptedFace>("first");
    QTest::addColumn<FaceAct>("act");
    QTest::addColumn<ScriptedFace>("chosen"); // `first` = cancelled, or nothing changed
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
    void aFaceIsChosen_data()
    {
        faceColumns();
        const ScriptedFace unknown{QStringLiteral("ZolW_DAT1_M2"), 238};
        const QString serif = QStringLiteral("DejaVu Serif"), mono = QStringLiteral("DejaVu Sans Mono");
        QTest::newRow("as it was") << kSans << typedFace("\r") << kSans;
        QTest::newRow("escape") << kSans << FaceAct([](frmTrueTypeSel &d) {
            d.txtSearch->setText(QStringLiteral("Serif"));
            type(d, QStringLiteral("\x1b"));
        }) << kSans;
        QTest::newRow("searched, any case") << kSans << FaceAct([](frmTrueTypeSel &d) {
            d.txtSearch->setFocus();
            type(d, QStringLiteral("vu sans MONO\r"));
        }) << ScriptedFace{mono, 238};
        QTest::newRow("walked from the search line") << kSans << FaceAct([](frmTrueTypeSel &d) {
            d.txtSearch->setFocus();
            type(d, QStringLiteral("DejaVu Ser"));
            QTest::keyClick(d.txtSearch, Qt::Key_Up);
            type(d, QStringLiteral("\r"));
        }) << ScriptedFace{serif, 238};
        QTest::newRow("unknown, then found") << unknown << FaceAct([=](frmTrueTypeSel &d) {
            QCOMPARE(d.lblHint->text(), QStringLiteral("( ZolW_DAT1_M2 )  Ismeretlen  készlet !"));
            QVERIFY(!d.cmdOk->isEnabled());
            type(d, QStringLiteral("\t"));                      // looking at the list is not choosing
            QVERIFY(!d.cmdOk->isEnabled());
            d.txtSearch->setText(kSans.face);
            d.cmdOk->click();
        }) << ScriptedFace{kSans.face, 238};
        QTest::newRow("nothing found") << kSans << FaceAct([](frmTrueTypeSel &d) {
            d.txtSearch->setText(QStringLiteral("no such face"));
            QVERIFY(!d.cmdOk->isEnabled());
            type(d, QStringLiteral("\r\x1b"));
        }) << kSans;
    }
    void aFaceIsChosen()
    {
        QFETCH(ScriptedFace, first);
        QFETCH(FaceAct, act);
        const auto watch = whileModal<frmTrueTypeSel>(act);
        const auto chosen = fontPicker()->pickTrueType(first, nullptr);
        QTEST(chosen.value_or(first), "chosen");
    }
    void aScriptIsChosen_data()
    {
        faceColumns();
        const QString serif = QStringLiteral("DejaVu Serif"), mono = QStringLiteral("DejaVu Sans Mono");
        QTest::newRow("a script") << kSans << FaceAct([](frmTrueTypeSel &d) {
            chooseScript(*d.ComboScript, 204);
            d.cmdOk->click();
        }) << ScriptedFace{kSans.face, 204};
        QTest::newRow("a script that the next face lacks") << ScriptedFace{kSans.face, 177}
            << FaceAct([](frmTrueTypeSel &d) {
                   d.txtSearch->setText(QStringLiteral("DejaVu Serif"));
                   QVERIFY(d.lblHint->text().contains(QStringLiteral("nem támogatja")));
                   d.cmdOk->click();
               }) << ScriptedFace{serif, 0};
        QTest::newRow("and that comes back with the face") << ScriptedFace{kSans.face, 177}
            << FaceAct([](frmTrueTypeSel &d) {
                   d.txtSearch->setText(QStringLiteral("DejaVu Serif"));
                   d.txtSearch->clear();
                   d.lstFaces->setCurrentItem(d.lstFaces->findItems(kSans.face, Qt::MatchExactly)[0]);
                   QCOMPARE(d.lblHint->text(), QString());
                   d.cmdOk->click();
               }) << ScriptedFace{kSans.face, 177};
        QTest::newRow("a number that means no script stays")
            << ScriptedFace{kSans.face, 1} << FaceAct([=](frmTrueTypeSel &d) {
                   d.txtSearch->setText(mono);
                   QCOMPARE(d.ComboScript->currentText(), QStringLiteral("Alapértelmezett"));
                   d.cmdOk->click();
               }) << ScriptedFace{mono, 1};
    }
    void aScriptIsChosen() { aFaceIsChosen(); }
    void aCharacterIsChosen_data()
    {
        QTest::addColumn<FontCharacter>("first");
        QTest::addColumn<ViewAct>("act");
        QTest::addColumn<int>("code");          // -1 = cancelled
        QTest::newRow("as it was") << characterOfSans(245) << typedCode("\r") << 245;
        QTest::newRow("decimal") << characterOfSans(33) << typedCode("40000\r") << 40000;
        QTest::newRow("hexadecimal") << characterOfSans(33) << typedCode("0x151\r") << 0x151;
        QTest::newRow("the Unicode way") << characterOfSans(33) << typedCode("u+20ac\r") << 0x20ac;
        QTest::newRow("itself") << characterOfSans(33) << typedCode("ő\r") << 0x151;
        QTest::newRow("itself, by the code page") << characterOfSans(33) << typedCode("á\r") << 0xe1;
        QTest::newRow("not in the code page") << characterOfSans(33, 204) << typedCode("á\r\x1b") << -1;
        QTest::newRow("a digit is a code") << characterOfSans(33) << typedCode("7\r") << 7;
        QTest::newRow("too large, put right") << characterOfSans(33) << typedCode("65536\r65535\r") << 65535;
        QTest::newRow("no code, escape") << characterOfSans(33) << typedCode("-1\r\x1b") << -1;
        QTest::newRow("typed over the cells") << characterOfSans(33) << ViewAct([](FontViewer &d) {
            QCOMPARE(d.focusWidget(), d.grdCharacters);
            type(d, QStringLiteral("12"));
            QCOMPARE(d.txtCode->text(), QStringLiteral("12"));
            type(d, QStringLiteral("3\r"));
        }) << 123;
        QTest::newRow("a letter over the cells") << characterOfSans(33) << ViewAct([](FontViewer &d) {
            type(d, QStringLiteral("ű"));
            QCOMPARE(d.txtCode->text(), QString::number(0x171));
            QTest::keyClick(d.grdCharacters, Qt::Key_Right);
            type(d, QStringLiteral("\r"));
        }) << 0x172;
        QTest::newRow("double click") << characterOfSans(0x400, 204) << ViewAct([](FontViewer &d) {
            const QPoint at = d.grdCharacters->visualRect(d.grdCharacters->currentIndex()).center();
            const QPoint right(at.x() + d.grdCharacters->columnWidth(0), at.y());
            QTest::mouseClick(d.grdCharacters->viewport(), Qt::LeftButton, {}, right);
            QTest::mouseDClick(d.grdCharacters->viewport(), Qt::LeftButton, {}, right);
        }) << 0x401;
    }
    void aCharacterIsChosen()
    {
        QFETCH(FontCharacter, first);
        QFETCH(ViewAct, act);
        const auto watch = whileModal<FontViewer>(act);
        const auto chosen = fontPicker()->pickCharacter(nullptr, first, nullptr);
        QTEST(chosen ? int(chosen->code) : -1, "code");
        if (chosen)
            QCOMPARE(*chosen, (FontCharacter{FontKind::TrueType, kSans.face, first.charSet, chosen->code}));
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
            d.cboFonts->setCurrentIndex(d.cboFonts->findText(QStringLiteral("DejaVu Serif")));
            chooseScript(*d.ComboScript, 204);
            QVERIFY(d.lblCode->text().contains(QStringLiteral("х")));   // 245 in that script
            QVERIFY(hasInk(*d.sample));
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(d.ComboScript->currentText(), QStringLiteral("Cyrillic"));
            setLanguage(Hungarian, {});
            d.cmdOk->click();
        });
        QCOMPARE(fontPicker()->pickCharacter(nullptr, characterOfSans(245), nullptr),
                 (FontCharacter{FontKind::TrueType, QStringLiteral("DejaVu Serif"), 204, 245}));
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
            QCOMPARE(d.cboFonts->placeholderText(), QStringLiteral("( X )  Ismeretlen  készlet !"));
            QVERIFY(!d.cmdOk->isEnabled());
            QVERIFY(!hasInk(*d.sample));
            d.cmdCancel->click();
        });
        QVERIFY(
            !fontPicker()->pickCharacter(nullptr, {FontKind::TrueType, QStringLiteral("X"), 0, 65}, nullptr));
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
            QVERIFY(d.lblCode->text().contains(QStringLiteral("dot")));
            QTest::keyClick(d.grdCharacters, Qt::Key_Right);
            QVERIFY(hasInk(*d.sample));
            d.cmdOk->click();
        });
        const FontCharacter dot{FontKind::Vector, host.name(), 238, 200};
        QCOMPARE(fontPicker()->pickCharacter(nullptr, dot, nullptr),
                 (FontCharacter{FontKind::Vector, host.name(), 238, 40000}));
    }
    void vectorFontsThatCannotBeListedAreSaid_data()
    {
        QTest::addColumn<bool>("hasHost");
        QTest::addColumn<QStringList>("offered");
        QTest::newRow("no provider") << false << QStringList();
        QTest::newRow("no names") << true << QStringList();
        QTest::newRow("none that it can give") << true << QStringList{QStringLiteral("Lost")};
    }
    void vectorFontsThatCannotBeListedAreSaid()
    {
        QFETCH(bool, hasHost);
        QFETCH(QStringList, offered);
        const ScriptedPrompts::Step missing{"tell", appTitle(),
                                            QStringLiteral("Hiányoznak a vektor fontok tulajdonságai!"), {},
                                            Icon::Information};
        std::unique_ptr<BlockHost> host;
        if (hasHost) host = std::make_unique<BlockHost>();
        if (host) host->offered = offered;
        const ScriptedPrompts user{{missing, missing}};
        QVERIFY(!fontPicker()->pickVector(nullptr, {}, nullptr));
        QVERIFY(!fontPicker()->pickCharacter(nullptr, {.kind = FontKind::Vector}, nullptr));
    }
    void anErrorOfTheHostReachesTheCaller()
    {
        BlockHost host;
        host.fails = true;
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 fontPicker()->pickVector(nullptr, host.name(), nullptr));
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
