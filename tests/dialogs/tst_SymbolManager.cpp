#include "dialogs/editors/OptionBox.h"
#include "dialogs/editors/frmEditSid.h"
#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmSort.h"
#include "support/FaultyDoc.h"
#include "support/FixedFonts.h"
#include "support/ManagerForm.h"
#include "support/Registry.h"
#include "support/StrokeFont.h"
#include "support/ViewDrag.h"
#include "support/WillingPrompts.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::click;
using tests::kSizeAsked;
using tests::run;
using tests::ScriptedPrompts;
using tests::select;
using tests::told;
using tests::whileModal;
using Act = tests::ManagerAct;
using Steps = tests::PromptSteps;

/// The commands that the symbol manager has or words in its own way.
class tst_SymbolManager : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<tests::ManagerForm> m_form;

private slots:
    void init() { m_form = std::make_unique<tests::ManagerForm>(); }
    void cleanup() { m_form.reset(); }

    void commandsOfTheManager_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<Steps>("asked");
        QTest::addColumn<QString>("symbols");
        QTest::addColumn<QString>("groups");
        const auto row = [](const char *name, Act act, Steps asked, const char *symbols, const char *groups) {
            QTest::newRow(name) << act << asked << QString::fromUtf8(symbols) << QString::fromUtf8(groups);
        };
        const Icon stop = Icon::Critical;
        const QString number = QStringLiteral("Sorszám módosítás"), group = QStringLiteral("Csoport törlése");
        const auto asksNumber = [&](const QVariant &answer, int proposed = 1) {
            return ScriptedPrompts::Step{"numbers", number,
                                         QStringLiteral("A művelet rögzíti az eddigi változtatásokat is.\n"
                                                        "A(z) 'A' jelkulcs új sorszáma|Új sorszám:|%1")
                                             .arg(proposed),
                                         answer.isNull() ? answer : QVariantList{answer.toDouble()}};
        };
        const Act renumberAndCancel = [](frmSupSid &f) {
            select(f, 1);
            run(f, "cmdSid_Size"), run(f, "cmdSid_Nr");
            click(f, "cmdCancel");
        };
        row("renumbered: what was changed before cannot be dropped", renumberAndCancel,
            {kSizeAsked, asksNumber(30), told("Egyedi sorszám", "Létező sorszám !"), asksNumber(77, 30)},
            "2 B Egy 5 16 0, 30 C Kettő 5 16 0, 77 A Egy 7 16 0", "Egy Kettő");
        row("renumbering given up: nor then", renumberAndCancel, {kSizeAsked, asksNumber({})},
            "1 A Egy 7 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő");
        row(
            "sorted by keys alone",
            [](frmSupSid &f) {
                const auto user = whileModal<frmSort>([](frmSort &s) {
                    for (const Qt::Key key : {Qt::Key_N, Qt::Key_Tab, Qt::Key_Right, Qt::Key_Return})
                        QTest::keyClick(s.focusWidget(), key); // by name, downward
                });
                select(f, 2);
                f.lvSids->setFocus();
                QTest::keyClick(f.lvSids->report(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
                QCOMPARE(f.lvSids->report()->model()->index(0, 1).data().toString(), QStringLiteral("B"));
                QCOMPARE(f.lvSids->currentRow(), 0);
                click(f, "cmdOk");
            },
            {}, "1 A Egy 5 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő");
        row(
            "removed but for the last one",
            [](frmSupSid &f) {
                run(f, "cmdByGroups");
                f.lvSids->report()->selectAll();
                QTest::keyClick(f.lvSids->report(), Qt::Key_Delete);
                click(f, "cmdOk");
            },
            {told("Jelkulcs típus törlése", "Az utolsó jelkulcs nem törölhető!")},
            "30 C Kettő 5 16 0", "Egy Kettő");
        const auto inUse = [&](const char *name, bool goOn) {
            return ScriptedPrompts::Step{"yesNo", group,
                                         QStringLiteral("A(z) %1 csoport használatban van, ezért nem "
                                                        "törölhető! Folytatja?")
                                             .arg(QString::fromUtf8(name)),
                                         goOn, stop};
        };
        const Act removeAllGroups = [](frmSupSid &f) {
            f.lvGroups->selectAll();
            QTest::keyClick(f.lvGroups, Qt::Key_Delete);
            click(f, "cmdOk");
        };
        row("used groups stay", removeAllGroups, {inUse("Egy", true), inUse("Kettő", true)},
            "1 A Egy 5 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő");
        row(
            "stopped at a used group",
            [=](frmSupSid &f) {
                run(f, "cmdGroup_Add");
                removeAllGroups(f);
            },
            {{"text", QStringLiteral("Új csoport"), QStringLiteral("Új csoportnév|"), QStringLiteral("Fák")},
             inUse("Egy", false)},
            "1 A Egy 5 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő Fák");
        row(
            "edited in its editor",
            [](frmSupSid &f) {
                select(f, 2);
                const auto user = whileModal<frmEditSid>([](frmEditSid &e) {
                    e.optFontType->findChildren<QAbstractButton *>()[1]->click();
                    e.cmdOk->click();
                });
                QTest::keyClick(f.lvSids->report(), Qt::Key_Return);
                click(f, "cmdOk");
            },
            {}, "1 A Egy 5 16 0, 2 B Egy 5 16 1, 30 C Kettő 5 16 0", "Egy Kettő");
        row(
            "a character of a vector font",
            [](frmSupSid &f) {
                const auto user = whileModal<frmChooseList>([](frmChooseList &c) {
                    c.lstKh->setCurrentRow(1);
                    c.cmdOk->click();
                });
                run(f, "cmdSid_OpenFont25");
                QCOMPARE(f.lvSids->currentRow(), 2);
                click(f, "cmdOk");
            },
            {}, "1 A Egy 5 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0, 31 N Egy 5 16 1", "Egy Kettő");
        row(
            "what an element uses stays, and the rest goes",
            [this](frmSupSid &f) {
                m_form->doc->addElements({{{.kind = refhost::ElementKind::Symbol, .sidId = 1}}});
                f.lvSids->report()->selectAll();
                QTest::keyClick(f.lvSids->report(), Qt::Key_Delete);
                click(f, "cmdOk");
            },
            {tests::warned("Jelkulcs típus törlése", "A(z) 'A' nevű jelkulcs típus nem törölhető!")},
            "1 A Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő");
    }
    void commandsOfTheManager()
    {
        QFETCH(Act, act);
        QFETCH(Steps, asked);
        QFETCH(QString, symbols);
        QFETCH(QString, groups);
        const tests::StrokeFontHost host;
        const tests::FixedFonts picker;
        ScriptedPrompts user(asked);
        m_form->open(MODE_EDIT, act, 1);
        QCOMPARE(m_form->symbols(), symbols);
        QCOMPARE(m_form->groups(), groups);
        QVERIFY(!m_form->isSpanOpen());
    }

    void allCharactersOfAFontBecomeSymbols()
    {
        const tests::StrokeFontHost host;
        const tests::FixedFonts picker;
        m_form->open(
            MODE_EDIT,
            [](frmSupSid &f) {
                const auto user = whileModal<frmChooseList>([](frmChooseList &c) {
                    QVERIFY(c.lstKh->item(0)->text().startsWith(QStringLiteral("Minden karakter")));
                    c.lstKh->setCurrentRow(0);
                    c.cmdOk->click();
                });
                run(f, "cmdSid_OpenFont25");
                click(f, "cmdOk");
            },
            1);
        const tSid added = m_form->doc->symbols().readAll().back();
        QVERIFY(added.ShortName == QStringLiteral("N") && added.Code == 'N' && added.Facename == host.name());
        QVERIFY(added.Align == 24 && added.DspZoom == 10 && added.YwFact == 1 && added.XwFact == 1);
    }

    void groupsStayWhenTheirSymbolsCannotBeRead()
    {
        tests::FaultyDoc faulty(*m_form->doc);
        const ScriptedPrompts user{{told(
            "Csoport törlése", "Nem  sikerült lekérdezni a jelkulcs típusokat!", Icon::Critical)}};
        const Act act = [&](frmSupSid &f) {
            faulty.log.failNext = QStringLiteral("symbols.readAll");
            run(f, "cmdGroup_Remove");
            click(f, "cmdOk");
        };
        qint16 id = 1;
        m_form->open(faulty, MODE_EDIT, act, id);
        QCOMPARE(m_form->groups(), QStringLiteral("Egy Kettő"));
    }

    void symbolsAreDraggedToAGroup_data()
    {
        QTest::addColumn<int>("onto"); // a row of the group list; -1 = below the last one
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("group"); // where they are then
        const QString own = QStringLiteral("FromZol3GridSid 1 2");
        QTest::newRow("another one") << 1 << own << QStringLiteral("Kettő");
        QTest::newRow("the one they are in") << 0 << own << QStringLiteral("Egy");
        QTest::newRow("none") << -1 << own << QStringLiteral("Egy");
        QTest::newRow("a foreign text") << 1 << QStringLiteral("1 2") << QStringLiteral("Egy");
    }
    /// Where nothing moves nothing is written, and there is nothing to keep.
    void symbolsAreDraggedToAGroup()
    {
        QFETCH(int, onto);
        QFETCH(QString, text);
        QFETCH(QString, group);
        const bool moves = group != QStringLiteral("Egy");
        ScriptedPrompts user(moves ? Steps{tests::keepAsked(true)} : Steps{});
        tests::FaultyDoc counted(*m_form->doc);
        const Act drag = [&](frmSupSid &f) {
            QTreeView &list = *f.lvSids->report();
            list.selectAll();
            QVERIFY(!tests::dragged(list)); // whoever chooses one moves none
            run(f, "cmdEditMode");
            list.selectAll();
            const auto mime = tests::dragged(list);
            QCOMPARE(mime ? mime->text() : QString(), QStringLiteral("FromZol3GridSid 1 2"));
            mime->setText(text);
            counted.log.calls.clear();
            const QAbstractItemModel &groups = *f.lvGroups->model();
            const bool isOwn = text != QStringLiteral("1 2");
            QCOMPARE(groups.canDropMimeData(mime.get(), Qt::MoveAction, -1, -1, groups.index(onto, 0)),
                     isOwn && onto >= 0);
            tests::drop(*mime, *f.lvGroups, onto);
            QCOMPARE(counted.log.writes().size(), moves ? 2 : 0);
            click(f, "cmdCancel");
        };
        qint16 id = 1;
        m_form->open(counted, MODE_SELECT, drag, id);
        QCOMPARE(m_form->symbols(),
                 QStringLiteral("1 A %1 5 16 0, 2 B %1 5 16 0, 30 C Kettő 5 16 0").arg(group));
    }

    void theLastGroupStays()
    {
        for (const tSid &s : m_form->doc->symbols().readAll()) m_form->doc->symbols().remove(s.SidId);
        ScriptedPrompts user({told("Csoport törlése", "Az utolsó csoport nem törölhető!", Icon::Critical)});
        m_form->open(
            MODE_EDIT,
            [](frmSupSid &f) {
                f.lvGroups->selectAll();
                run(f, "cmdGroup_Remove");
                click(f, "cmdOk");
            },
            -1);
        QCOMPARE(m_form->groups(), QStringLiteral("Kettő"));
    }

    void loadedSymbolsShareOneGroup()
    {
        QTemporaryDir folder;
        tests::WillingPrompts user;
        user.path = folder.filePath(QStringLiteral("set.rst"));
        m_form->doc->symbols().groups().add(QStringLiteral("fájlBÓL"));
        m_form->open(
            MODE_EDIT,
            [&](frmSupSid &f) {
                run(f, "cmdByGroups"); // all are listed
                for (const int number : {1, 2}) {
                    select(f, number);
                    run(f, "cmdSid_SaveFile");
                    user.written = QString::number(number) + u'x';
                    run(f, "cmdSid_Name"); // so that the name is free
                    run(f, "cmdSid_OpenFile");
                }
                click(f, "cmdOk");
            },
            1);
        QCOMPARE(m_form->groups(), QStringLiteral("Egy Kettő fájlBÓL"));
        QCOMPARE(m_form->symbols(), QStringLiteral("1 1x Egy 5 16 0, 2 2x Egy 5 16 0, 30 C Kettő 5 16 0, "
                                                   "31 A fájlBÓL 5 16 0, 32 B fájlBÓL 5 16 0"));
    }

    void everyCallOfEveryCommandMayFail_data()
    {
        QTest::addColumn<QByteArray>("tool");
        for (const char *tool : {"cmdSid_Add", "cmdSid_SaveFile", "cmdSid_OpenFile", "cmdSid_Edit",
                                 "cmdSid_Nr", "cmdSid_TrueType", "cmdSid_Remove", "cmdGroup_Name",
                                 "cmdGroup_Remove", "cmdEditMode", "cmdOk"})
            QTest::newRow(tool) << QByteArray(tool);
    }
    /// The error arrives at the caller, the form is closed and nothing is left open; reading symbols for the
    /// deletion of groups is the one call whose failure is told instead.
    void everyCallOfEveryCommandMayFail()
    {
        QFETCH(QByteArray, tool);
        const tests::FixedFonts picker;
        QTemporaryDir folder;
        for (int failAt = -1, calls = 1; failAt < calls; ++failAt) {
            init();
            m_form->doc->symbols().groups().add(QStringLiteral("Üres"));
            tests::WillingPrompts user;
            user.path = folder.filePath(QStringLiteral("set.rst"));
            tests::FaultyDoc faulty(*m_form->doc);
            const Act act = [&](frmSupSid &f) {
                run(f, "cmdByGroups");
                select(f, 1);
                run(f, "cmdSid_SaveFile");
                run(f, "cmdSid_Size");
                if (tool == "cmdSid_OpenFile") user.written = QStringLiteral("Z"), run(f, "cmdSid_Name");
                run(f, "cmdByGroups");
                if (tool == "cmdGroup_Remove") select(*f.lvGroups, {QStringLiteral("Üres")});
                QTimer editor;
                editor.callOnTimeout([] {
                    if (auto *const e = qobject_cast<frmEditSid *>(QApplication::activeModalWidget()))
                        e->txtFullName->setText(QString()), emit e->txtFullName->textEdited({}),
                            e->cmdOk->click();
                });
                editor.start(0);
                faulty.log.calls.clear();
                faulty.log.failAt = failAt;
                if (tool == "cmdOk")
                    click(f, "cmdOk");
                else
                    run(f, tool.constData());
                if (failAt < 0) calls = int(faulty.log.calls.size());
                faulty.log.failAt = -1;
                if (f.isVisible()) click(f, "cmdCancel");
            };
            QString failed;
            qint16 id = 1;
            try {
                m_form->open(faulty, MODE_EDIT, act, id);
            } catch (const tests::HostError &e) {
                failed = QString::fromStdString(e.what());
            }
            const bool isTold = tool == "cmdGroup_Remove" && failAt == 0;
            QCOMPARE(failed.isEmpty(), failAt < 0 || isTold);
            QVERIFY(calls > 0);
            QVERIFY2(!m_form->isSpanOpen(), qPrintable(failed));
        }
    }
};

QVDC_TEST(tst_SymbolManager)
#include "tst_SymbolManager.moc"
