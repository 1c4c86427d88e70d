#include "dialogs/editors/frmSupSid.h"

#include "controls/usSiInfo.h"
#include "dialogs/editors/OptionBox.h"
#include "dialogs/editors/frmEditSid.h"
#include "dialogs/viewtools/frmChooseList.h"
#include "facade/clsDocDlgs.h"
#include "facade/contract/FontPicker.h"
#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/Modal.h"
#include "support/OwnStore.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/StrokeFont.h"
#include "support/SymbolForm.h"
#include "support/WillingPrompts.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::ScriptedPrompts;
using tests::symbol;
using tests::whileModal;

using Act = std::function<void(frmSupSid &)>;
using Steps = std::vector<ScriptedPrompts::Step>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Steps)

namespace {

const ScriptedPrompts::Step kKeepAsked{"yesNo", QStringLiteral("Változások rögzítése"),
                                       QStringLiteral("Akarod rögzíteni a változtatásokat ?"), false,
                                       Icon::Question};
ScriptedPrompts::Step keep(bool yes)
{
    auto step = kKeepAsked;
    step.answer = yes;
    return step;
}
const ScriptedPrompts::Step kSize{"numbers", QStringLiteral("Betűnagyság"),
                                  QStringLiteral("A jelkulcstípus betűnagysága mm-ben|Nagyság=|5"),
                                  QVariantList{7.0}};

void run(frmSupSid &form, const char *tool) { child<QAction>(form, tool).trigger(); }
void click(frmSupSid &form, const char *button) { child<QPushButton>(form, button).click(); }
/// Selects what is listed, by its first column; the last one is current.
void select(QTreeView &list, const QStringList &names)
{
    list.clearSelection();
    const QAbstractItemModel &rows = *list.model();
    for (const QString &name : names)
        for (int row = 0; row < rows.rowCount(); ++row)
            if (rows.index(row, 0).data().toString() == name)
                list.selectionModel()->setCurrentIndex(rows.index(row, 0), QItemSelectionModel::Select |
                                                                               QItemSelectionModel::Rows);
}
void select(frmSupSid &form, const QStringList &numbers) { select(*form.lvSids->report(), numbers); }
QString listed(frmSupSid &form, int column = 0)
{
    QStringList all;
    const QAbstractItemModel &rows = *form.lvSids->report()->model();
    for (int row = 0; row < rows.rowCount(); ++row) all << rows.index(row, column).data().toString();
    return all.join(u' ');
}

struct OneFace final : FontPicker {
    FontPicker *before = setFontPicker(this);
    ~OneFace() override { setFontPicker(before); }
    std::optional<ScriptedFace> pickTrueType(const ScriptedFace &, QObject *) override
    {
        return ScriptedFace{QStringLiteral("DejaVu Sans"), 204};
    }
    std::optional<QString> pickVector(const ZOLW_Doc *, const QString &, QObject *) override
    {
        return QStringLiteral("Strokes");
    }
    std::optional<FontCharacter> pickCharacter(const ZOLW_Doc *, const FontCharacter &, QObject *) override
    {
        return {};
    }
};

/// A host whose user prefers the managers.
struct ManagerHost final : HostServices, SettingsService {
    ManagerHost() { setHostServices(this); }
    ~ManagerHost() override { setHostServices(nullptr); }
    SettingsService *settings() override { return this; }
    int version() const override { return 4; }
    bool readBool(const QString &section, const QString &key, bool) const override
    {
        return section == QStringLiteral("setup") && key == QStringLiteral("OldStyleSetupForms");
    }
};

} // namespace

class tst_frmSupSid : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    std::unique_ptr<tests::OwnStore> m_store;

    bool open(ZOLW_Doc &doc, enumSetupMode mode, const Act &act, qint16 &id)
    {
        frmSupSid form;
        const QAbstractItemModelTester rows(form.lvSids->report()->model());
        const QAbstractItemModelTester groups(form.lvGroups->model());
        const auto user = whileModal<frmSupSid>(act);
        return form.bDoModal(doc, mode, id);
    }
    QString dump() const { return tests::dumpSymbols(m_doc->symbols().readAll()); }
    QString groups() const
    {
        QStringList names;
        for (const tGroup &g : m_doc->symbols().groups().readAll()) names << g.GroupName;
        return names.join(u' ');
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_store = std::make_unique<tests::OwnStore>();
        m_doc = tests::symbolDoc({symbol(1, "A"), symbol(2, "B"), symbol(30, "C", "Kettő")});
        for (tSid s : m_doc->symbols().readAll())
            if (s.SidId == 30) s.GroupId = m_doc->symbols().groups().readAll()[1].GroupId, m_doc->symbols().update(s);
    }
    void cleanup() { m_doc.reset(), m_store.reset(); }

    void changesAreKeptOrDropped_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<Act>("act");
        QTest::addColumn<Steps>("asked");
        QTest::addColumn<QString>("result");    // returned, symbol chosen, sizes of all
        const auto row = [](const char *name, enumSetupMode mode, Act act, Steps asked, const char *result) {
            QTest::newRow(name) << int(mode) << act << asked << QString::fromUtf8(result);
        };
        const Act resize = [](frmSupSid &f) { select(f, {QStringLiteral("2")}), run(f, "cmdSid_Size"); };
        const auto then = [](Act first, const char *what) -> Act {
            return [=](frmSupSid &f) {
                first(f);
                if (qstrncmp(what, "cmdE", 4) == 0) run(f, what), click(f, "cmdCancel");
                else click(f, what);
            };
        };
        const Act two = [](frmSupSid &f) { select(f, {QStringLiteral("2")}); };
        row("picked", MODE_SELECT, then(two, "cmdOk"), {}, "1 2 5 5 5");
        row("not picked", MODE_SELECT, then(two, "cmdCancel"), {}, "0 30 5 5 5");
        row("picked by Enter", MODE_SELECT, [=](frmSupSid &f) {
            two(f);
            QTest::keyClick(f.lvSids->report(), Qt::Key_Return);
        }, {}, "1 2 5 5 5");
        row("edited", MODE_EDIT, then(resize, "cmdOk"), {kSize}, "1 2 5 7 5");
        row("closed, kept", MODE_EDIT, then(resize, "cmdCancel"), {kSize, keep(true)}, "1 2 5 7 5");
        row("closed, dropped", MODE_EDIT, then(resize, "cmdCancel"), {kSize, keep(false)}, "0 30 5 5 5");
        row("nothing changed", MODE_EDIT, then(two, "cmdCancel"), {}, "0 30 5 5 5");
        row("mode left, dropped", MODE_EDIT, then(resize, "cmdEditMode"), {kSize, keep(false)}, "0 30 5 5 5");
        row("mode left, kept", MODE_EDIT, then(resize, "cmdEditMode"), {kSize, keep(true)}, "0 30 5 7 5");
        row("mode entered", MODE_SELECT, [=](frmSupSid &f) {
            resize(f);                          // nothing is edited yet
            run(f, "cmdEditMode");
            resize(f);
            click(f, "cmdOk");
        }, {kSize}, "1 2 5 7 5");
        row("mode refused", MODE_SELECT_ONLY, [=](frmSupSid &f) {
            run(f, "cmdEditMode");
            resize(f);
            QVERIFY(!f.isEditMode() && !child<QAction>(f, "cmdEditMode").isChecked());
            click(f, "cmdCancel");
        }, {{"tell", appTitle(), QStringLiteral("A szerkesztő mód nem választható !"), {}, Icon::Exclamation}},
            "0 30 5 5 5");
    }
    void changesAreKeptOrDropped()
    {
        QFETCH(int, mode);
        QFETCH(Act, act);
        QFETCH(Steps, asked);
        QFETCH(QString, result);
        ScriptedPrompts user(asked);
        qint16 id = 30;
        const Act all = [&](frmSupSid &f) {
            QCOMPARE(listed(f), QStringLiteral("30"));  // its group
            run(f, "cmdByGroups");
            act(f);
        };
        QStringList got{QString::number(open(*m_doc, enumSetupMode(mode), all, id)), QString::number(id)};
        for (const tSid &s : m_doc->symbols().readAll()) got << QString::number(s.Size_mm);
        QCOMPARE(got.join(u' '), result);
        QVERIFY(!m_doc->changeScopes()->changesOpen(TableKind::Symbols));
    }

    /// What the manager does in its own way.
    void commandsOfTheManager_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<Steps>("asked");
        QTest::addColumn<QString>("symbols");
        QTest::addColumn<QString>("groups");
        const auto row = [](const char *name, Act act, Steps asked, const char *symbols, const char *groups) {
            QTest::newRow(name) << act << asked << QString::fromUtf8(symbols) << QString::fromUtf8(groups);
        };
        const Icon info = Icon::Information, stop = Icon::Critical;
        const QString number = QStringLiteral("Sorszám módosítás"), group = QStringLiteral("Csoport törlése");
        const auto asksNumber = [&](int answer, int proposed = 1) {
            return ScriptedPrompts::Step{
                "numbers", number,
                QStringLiteral("A művelet rögzíti az eddigi változtatásokat is.\n"
                               "A(z) 'A' jelkulcs új sorszáma|Új sorszám:|%1").arg(proposed),
                QVariantList{double(answer)}};
        };
        row("renumbered: what was changed before cannot be dropped",
            [](frmSupSid &f) {
                select(f, {QStringLiteral("1")});
                run(f, "cmdSid_Size"), run(f, "cmdSid_Nr");
                click(f, "cmdCancel");
            },
            {kSize, asksNumber(30),
             {"tell", QStringLiteral("Egyedi sorszám"), QStringLiteral("Létező sorszám !"), {}, info},
             asksNumber(77, 30)},
            "2 B Egy 5 16 0, 30 C Kettő 5 16 0, 77 A Egy 7 16 0", "Egy Kettő");
        row("removed but for the last one",
            [](frmSupSid &f) {
                run(f, "cmdByGroups");
                f.lvSids->report()->selectAll();
                QTest::keyClick(f.lvSids->report(), Qt::Key_Delete);
                click(f, "cmdOk");
            },
            {{"tell", QStringLiteral("Jelkulcs típus törlése"),
              QStringLiteral("Az utolsó jelkulcs nem törölhető!"), {}, info}},
            "30 C Kettő 5 16 0", "Egy Kettő");
        const auto inUse = [&](const char *name, bool goOn) {
            return ScriptedPrompts::Step{"yesNo", group,
                                         QStringLiteral("A(z) %1 csoport használatban van, ezért nem "
                                                        "törölhető! Folytatja?").arg(QString::fromUtf8(name)),
                                         goOn, stop};
        };
        const Act removeAllGroups = [](frmSupSid &f) {
            f.lvGroups->selectAll();
            QTest::keyClick(f.lvGroups, Qt::Key_Delete);
            click(f, "cmdOk");
        };
        row("used groups stay", removeAllGroups, {inUse("Egy", true), inUse("Kettő", true)},
            "1 A Egy 5 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő");
        row("stopped at a used group",
            [=](frmSupSid &f) {
                run(f, "cmdGroup_Add");
                removeAllGroups(f);
            },
            {{"text", QStringLiteral("Új csoport"), QStringLiteral("Új csoportnév|"), QStringLiteral("Fák")},
             inUse("Egy", false)},
            "1 A Egy 5 16 0, 2 B Egy 5 16 0, 30 C Kettő 5 16 0", "Egy Kettő Fák");
        row("edited in its editor",
            [](frmSupSid &f) {
                select(f, {QStringLiteral("2")});
                const auto user = whileModal<frmEditSid>([](frmEditSid &e) {
                    e.optFontType->findChildren<QAbstractButton *>()[1]->click();
                    e.cmdOk->click();
                });
                QTest::keyClick(f.lvSids->report(), Qt::Key_Return);
                click(f, "cmdOk");
            },
            {}, "1 A Egy 5 16 0, 2 B Egy 5 16 1, 30 C Kettő 5 16 0", "Egy Kettő");
        row("a character of a vector font",
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
    }
    void commandsOfTheManager()
    {
        QFETCH(Act, act);
        QFETCH(Steps, asked);
        QFETCH(QString, symbols);
        QFETCH(QString, groups);
        m_store.reset();
        const tests::StrokeFontHost host;
        const OneFace picker;
        ScriptedPrompts user(asked);
        qint16 id = 1;
        open(*m_doc, MODE_EDIT, act, id);
        QCOMPARE(dump(), symbols);
        QCOMPARE(this->groups(), groups);
        QVERIFY(!m_doc->changeScopes()->changesOpen(TableKind::Symbols));
    }

    void theLastGroupStays()
    {
        for (const tSid &s : m_doc->symbols().readAll()) m_doc->symbols().remove(s.SidId);
        ScriptedPrompts user{{{"tell", QStringLiteral("Csoport törlése"),
                               QStringLiteral("Az utolsó csoport nem törölhető!"), {}, Icon::Critical}}};
        qint16 id = -1;
        open(*m_doc, MODE_EDIT, [](frmSupSid &f) {
            f.lvGroups->selectAll();
            run(f, "cmdGroup_Remove");
            click(f, "cmdOk");
        }, id);
        QCOMPARE(groups(), QStringLiteral("Kettő"));
    }

    void loadedSymbolsShareOneGroup()
    {
        QTemporaryDir folder;
        tests::WillingPrompts user;
        user.path = folder.filePath(QStringLiteral("set.rst"));
        m_doc->symbols().groups().add(QStringLiteral("fájlBÓL"));
        qint16 id = 1;
        open(*m_doc, MODE_EDIT, [&](frmSupSid &f) {
            for (const char *number : {"1", "2"}) {
                select(f, {QLatin1String(number)});
                run(f, "cmdSid_SaveFile");
                user.written = QLatin1String(number) + u'x';
                run(f, "cmdSid_Name");          // so that the name is free
                run(f, "cmdSid_OpenFile");
            }
            click(f, "cmdOk");
        }, id);
        QCOMPARE(groups(), QStringLiteral("Egy Kettő fájlBÓL"));
        QCOMPARE(dump(), QStringLiteral("1 1x Egy 5 16 0, 2 2x Egy 5 16 0, 30 C Kettő 5 16 0, "
                                        "31 A fájlBÓL 5 16 0, 32 B fájlBÓL 5 16 0"));
    }

    /// Pictures, looks and words.
    void theListIsWorkedWith()
    {
        qint16 id = 2;
        open(*m_doc, MODE_SELECT, [&](frmSupSid &f) {
            auto &hint = child<QLabel>(f, "lblHint");
            QVERIFY(hint.text().startsWith(QStringLiteral(" 2 ")));
            f.lvSids->setCurrentRow(-1);
            QCOMPARE(hint.text(), QStringLiteral(" Válassz jelkulcsot! "));
            QVERIFY(!child<QPushButton>(f, "cmdOk").isEnabled());
            QHeaderView &header = *f.lvSids->report()->header();
            for (const int section : {1, 2}) // it may stand there from a window before
                QTest::mouseMove(header.viewport(), {header.sectionViewportPosition(section) + 4, 4});
            QCOMPARE(hint.text(), QStringLiteral(" Nagyság "));
            run(f, "cmdByGroups");
            select(f, {QStringLiteral("2")});
            for (const char *order : {"A B C", "C B A"}) {
                QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                                  {header.sectionViewportPosition(1) + 4, 4});
                QCOMPARE(listed(f, 1), QLatin1String(order));
                QCOMPARE(f.lvSids->selectedRows().size(), size_t(1));
            }
            const double before = f.usSiItem->Zoom();
            run(f, "cmdPlus");
            QCOMPARE(f.usSiItem->Zoom(), before + 0.2);
            for (int i = 0; i < 10; ++i) run(f, "cmdMinus");
            QCOMPARE(f.usSiItem->Zoom(), 0.2);
            for (const auto &[view, sizes] : {std::pair("miView_Icons", QList<int>{64, 96, 96}),
                                              std::pair("miView_Report", QList<int>{48, 64, 96})}) {
                run(f, view);
                for (const int size : sizes) {
                    run(f, "miView_Size+");
                    QCOMPARE(f.usSiItem->width(), size);
                }
            }
            click(f, "cmdCancel");
        }, id);
    }

    void onlyWhatIsSeenIsDrawn()
    {
        m_store.reset();
        const tests::StrokeFontHost host;
        std::vector<tSid> many;
        for (int i = 100; i < 3100; ++i) {
            many.push_back(symbol(qint16(i), QByteArray::number(i).constData()));
            many.back().Type = 1, many.back().Facename = host.name(), many.back().Code = 'N';
        }
        m_doc = tests::symbolDoc(many);
        qint16 id = 2000;
        open(*m_doc, MODE_SELECT, [&](frmSupSid &f) {
            QTRY_VERIFY(host.asked > 3);
            for (const char *view : {"miView_Icons", "miView_SmallIcon", "miView_List"}) {
                run(f, view);
                f.grab();
                QCoreApplication::processEvents();
            }
            QVERIFY(host.asked < 1500);
            QCOMPARE(f.lvSids->currentRow(), 1900);
            click(f, "cmdCancel");
        }, id);
    }

    void eachModeHasItsWidths()
    {
        qint16 id = 2;
        const Act widths = [](frmSupSid &f) {
            QHeaderView &header = *f.lvSids->report()->header();
            for (const int wide : {700, 780}) {
                f.resize(wide, 500), header.resizeSection(1, wide / 4);
                run(f, "cmdEditMode");
            }
            QCOMPARE(f.width(), 700);
            QCOMPARE(header.sectionSize(1), 175);
            run(f, "cmdEditMode");
            QCOMPARE(f.width(), 780);
            QCOMPARE(header.sectionSize(1), 195);
            click(f, "cmdCancel");
        };
        open(*m_doc, MODE_SELECT, widths, id);
        const auto &kept = m_store->kept.values;
        for (const char *key : {"ZolWOpfrmSupSid-Groups", "ZolWOpfrmSupSid-Sids", "ZolWOpfrmSupSid-Width4Edit",
                                "ZolWOpfrmSupSid-Width4Select", "ZolWOpfrmSupSid-Height"})
            QVERIFY2(kept.value(QStringLiteral("ZolWOp/Settings/") + QLatin1String(key)).toInt() > 0, key);
        QCOMPARE(kept.value(QStringLiteral("ZolWOp/Settings/ViewModelvSidsEditMode")), QStringLiteral("3"));
    }

    void aFreeNumberIsAskedFor()
    {
        const QString title = QStringLiteral("Sorszám");
        const QString text = QStringLiteral("Egyedi sorszám|Jelkulcstípus száma|%1");
        ScriptedPrompts user{{{"numbers", title, text.arg(1), QVariantList{2.0}},
                              {"tell", QStringLiteral("Egyedi sorszám"), QStringLiteral("Létező sorszám !"), {},
                               Icon::Information},
                              {"numbers", title, text.arg(2), QVariantList{5.0}},
                              {"numbers", title, text.arg(5)}}};
        qint16 id = 1;
        open(*m_doc, MODE_SELECT, [](frmSupSid &f) {
            qint16 number = 1;
            QVERIFY(f.bGetSidId(number) && number == 5);
            QVERIFY(!f.bGetSidId(number) && number == 5);
            click(f, "cmdCancel");
        }, id);
    }

    void theSettingOpensTheManager()
    {
        m_store.reset();
        const ManagerHost host;
        clsDocDlgs dialogs;
        tSid picked = *m_doc->symbols().find(30);
        {
            const auto user = whileModal<frmSupSid>([](frmSupSid &f) {
                QVERIFY(!f.isEditMode());
                run(f, "cmdByGroups");
                select(f, {QStringLiteral("1")});
                click(f, "cmdOk");
            });
            QVERIFY(dialogs.bSelect_Sid(*m_doc, picked));
        }
        QVERIFY(picked == *m_doc->symbols().find(1));
        const auto user = whileModal<frmSupSid>([](frmSupSid &f) {
            QVERIFY(f.isEditMode());
            click(f, "cmdCancel");
        });
        QVERIFY(!dialogs.bEdit_Sids(*m_doc));
    }

    void everyCallOfEveryCommandMayFail_data()
    {
        QTest::addColumn<QByteArray>("tool");
        for (const char *tool : {"cmdSid_Add", "cmdSid_SaveFile", "cmdSid_OpenFile", "cmdSid_Edit", "cmdSid_Nr",
                                 "cmdSid_Name", "cmdSid_Size", "cmdSid_TrueType", "cmdSid_Vector", "cmdSid_Width",
                                 "cmdSid_Remove", "cmdGroup_Add", "cmdGroup_Name", "cmdGroup_Remove",
                                 "cmdEditMode", "cmdOk"})
            QTest::newRow(tool) << QByteArray(tool);
    }
    /// The error arrives at the caller, the form is closed and nothing is left open; reading symbols for the
    /// deletion of groups is the one call whose failure is told instead.
    void everyCallOfEveryCommandMayFail()
    {
        QFETCH(QByteArray, tool);
        const OneFace picker;
        QTemporaryDir folder;
        for (int failAt = -1, calls = 1; failAt < calls; ++failAt) {
            init();
            m_doc->symbols().groups().add(QStringLiteral("Üres"));
            tests::WillingPrompts user;
            user.path = folder.filePath(QStringLiteral("set.rst"));
            tests::FaultyDoc faulty(*m_doc);
            const Act act = [&](frmSupSid &f) {
                run(f, "cmdByGroups");
                select(f, {QStringLiteral("1")});
                run(f, "cmdSid_SaveFile");
                run(f, "cmdSid_Size");
                if (tool == "cmdSid_OpenFile") user.written = QStringLiteral("Z"), run(f, "cmdSid_Name");
                run(f, "cmdByGroups");
                if (tool == "cmdGroup_Remove") select(*f.lvGroups, {QStringLiteral("Üres")});
                QTimer editor;
                editor.callOnTimeout([] {
                    if (auto *const e = qobject_cast<frmEditSid *>(QApplication::activeModalWidget()))
                        e->txtFullName->setText(QString()), emit e->txtFullName->textEdited({}), e->cmdOk->click();
                });
                editor.start(0);
                faulty.log.calls.clear();
                faulty.log.failAt = failAt;
                if (tool == "cmdOk") click(f, "cmdOk");
                else run(f, tool.constData());
                if (failAt < 0) calls = int(faulty.log.calls.size());
                faulty.log.failAt = -1;
                if (f.isVisible()) click(f, "cmdCancel");
            };
            QString failed;
            qint16 id = 1;
            try {
                open(faulty, MODE_EDIT, act, id);
            } catch (const tests::HostError &e) {
                failed = QString::fromStdString(e.what());
            }
            const bool isTold = tool == "cmdGroup_Remove" && failAt == 0;
            QCOMPARE(failed.isEmpty(), failAt < 0 || isTold);
            QVERIFY(calls > 0);
            QVERIFY2(!m_doc->changeScopes()->changesOpen(TableKind::Symbols), qPrintable(failed));
        }
    }
};

QVDC_TEST(tst_frmSupSid)
#include "tst_frmSupSid.moc"
