#include "controls/usSiInfo.h"
#include "facade/clsDocDlgs.h"
#include "facade/contract/ResourcePicker.h"
#include "support/FaultyDoc.h"
#include "support/ManagerForm.h"
#include "support/Registry.h"
#include "support/StrokeFont.h"
#include "support/WillingPrompts.h"

#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QSplitter>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::click;
using tests::keepAsked;
using tests::kSizeAsked;
using tests::run;
using tests::ScriptedPrompts;
using tests::select;
using tests::told;
using tests::warned;
using tests::whileModal;
using Act = tests::ManagerAct;
using Steps = tests::PromptSteps;

namespace {

QString listed(frmSupSid &form, int column = 0)
{
    QStringList all;
    const QAbstractItemModel &rows = *form.lvSids->report()->model();
    for (int row = 0; row < rows.rowCount(); ++row) all << rows.index(row, column).data().toString();
    return all.join(u' ');
}

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
    std::unique_ptr<tests::ManagerForm> m_form;

private slots:
    void init() { m_form = std::make_unique<tests::ManagerForm>(); }
    void cleanup() { m_form.reset(); }

    void changesAreKeptOrDropped_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<Act>("act");
        QTest::addColumn<Steps>("asked");
        QTest::addColumn<QString>("result"); // returned, symbol chosen, sizes of all
        const auto row = [](const char *name, enumSetupMode mode, Act act, Steps asked, const char *result) {
            QTest::newRow(name) << int(mode) << act << asked << QString::fromUtf8(result);
        };
        const Act resize = [](frmSupSid &f) { select(f, 2), run(f, "cmdSid_Size"); };
        const auto then = [](Act first, const char *what) -> Act {
            return [=](frmSupSid &f) {
                first(f);
                if (qstrncmp(what, "cmdE", 4) == 0)
                    run(f, what), click(f, "cmdCancel");
                else
                    click(f, what);
            };
        };
        const Act two = [](frmSupSid &f) { select(f, 2); };
        row("picked", MODE_SELECT, then(two, "cmdOk"), {}, "1 2 5 5 5");
        row("not picked", MODE_SELECT, then(two, "cmdCancel"), {}, "0 30 5 5 5");
        row(
            "picked by Enter", MODE_SELECT,
            [=](frmSupSid &f) {
                two(f);
                QTest::keyClick(f.lvSids->report(), Qt::Key_Return);
            },
            {}, "1 2 5 5 5");
        row("edited", MODE_EDIT, then(resize, "cmdOk"), {kSizeAsked}, "1 2 5 7 5");
        row("closed, kept", MODE_EDIT, then(resize, "cmdCancel"), {kSizeAsked, keepAsked(true)}, "1 2 5 7 5");
        row("closed, dropped", MODE_EDIT, then(resize, "cmdCancel"), {kSizeAsked, keepAsked(false)},
            "0 30 5 5 5");
        row("nothing changed", MODE_EDIT, then(two, "cmdCancel"), {}, "0 30 5 5 5");
        row("mode left, dropped", MODE_EDIT, then(resize, "cmdEditMode"), {kSizeAsked, keepAsked(false)},
            "0 30 5 5 5");
        row("mode left, kept", MODE_EDIT, then(resize, "cmdEditMode"), {kSizeAsked, keepAsked(true)},
            "1 2 5 7 5");
        row(
            "not picked, edited", MODE_SELECT,
            [=](frmSupSid &f) {
                run(f, "cmdEditMode");
                resize(f);
                click(f, "cmdCancel");
            },
            {kSizeAsked, keepAsked(true)}, "0 30 5 7 5");
        row(
            "mode entered", MODE_SELECT,
            [=](frmSupSid &f) {
                resize(f); // nothing is edited yet
                run(f, "cmdEditMode");
                resize(f);
                click(f, "cmdOk");
            },
            {kSizeAsked}, "1 2 5 7 5");
        row(
            "mode refused", MODE_SELECT_ONLY,
            [=](frmSupSid &f) {
                run(f, "cmdEditMode");
                resize(f);
                QVERIFY(!f.isEditMode() && !child<QAction>(f, "cmdEditMode").isChecked());
                click(f, "cmdCancel");
            },
            {warned(appTitle(), QStringLiteral("A szerkesztő mód nem választható !"))},
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
            QCOMPARE(listed(f), QStringLiteral("30")); // its group
            run(f, "cmdByGroups");
            act(f);
        };
        QStringList got{QString::number(m_form->open(*m_form->doc, enumSetupMode(mode), all, id)),
                        QString::number(id)};
        for (const tSid &s : m_form->doc->symbols().readAll()) got << QString::number(s.Size_mm);
        QCOMPARE(got.join(u' '), result);
        QVERIFY(!m_form->isSpanOpen());
    }

    void whatWasRefusedIsNeverCommitted()
    {
        ScriptedPrompts user({kSizeAsked, keepAsked(false)});
        tests::FaultyDoc faulty(*m_form->doc);
        const Act act = [&](frmSupSid &f) {
            run(f, "cmdByGroups"), select(f, 2), run(f, "cmdSid_Size");
            faulty.log.failNext = QStringLiteral("changes.discard");
            click(f, "cmdCancel");
        };
        qint16 id = 1;
        QVERIFY_THROWS_EXCEPTION(tests::HostError, m_form->open(faulty, MODE_EDIT, act, id));
        QVERIFY(!faulty.log.calls.contains(QStringLiteral("changes.commit")) && m_form->isSpanOpen());
    }

    void withoutDocumentItJustCloses()
    {
        for (const char *last : {"cmdOk", "cmdCancel", "cmdEditMode"})
            for (const bool behindQuestion : {false, true}) {
                init();
                frmSupSid *form = nullptr;
                std::vector<ScriptedPrompts::Step> steps{kSizeAsked};
                if (behindQuestion) {
                    steps.push_back(keepAsked(false));
                    steps.back().meanwhile = [&] { form->TearDown(); };
                }
                ScriptedPrompts user(steps);
                const Act act = [&](frmSupSid &f) {
                    form = &f;
                    run(f, "cmdByGroups"), select(f, 2), run(f, "cmdSid_Size");
                    if (behindQuestion) run(f, "cmdEditMode");
                    else f.TearDown();
                    m_form->doc.reset();
                    if (qstrcmp(last, "cmdEditMode") == 0) run(f, last);
                    click(f, qstrcmp(last, "cmdOk") == 0 ? last : "cmdCancel");
                };
                qint16 id = 1;
                QVERIFY(!m_form->open(MODE_EDIT, act, id));
            }
    }

    /// Pictures, looks and words.
    void theListIsWorkedWith()
    {
        m_form->open(
            MODE_SELECT,
            [&](frmSupSid &f) {
                auto &hint = child<QLabel>(f, "lblHint");
                QVERIFY(hint.text().startsWith(QStringLiteral(" 2 ")));
                f.lvSids->setCurrentRow(-1);
                QCOMPARE(hint.text(), QStringLiteral(" Válassz jelkulcsot! "));
                QVERIFY(!child<QPushButton>(f, "cmdOk").isEnabled());
                QHeaderView &header = *f.lvSids->report()->header();
                QStringList hints;
                for (int c = 0; c < header.count(); ++c) {
                    const QPointF over(header.sectionViewportPosition(c) + 4, 4);
                    QMouseEvent move(QEvent::MouseMove, over, header.viewport()->mapToGlobal(over),
                                     Qt::NoButton, Qt::NoButton, {});
                    QApplication::sendEvent(header.viewport(), &move);
                    hints << hint.text();
                }
                QCOMPARE(hints, (QStringList{" Sorszám ", " Név ", " Nagyság ", " Vonalvastagság ",
                                             " TrueType/ZOL-2.5 font ", " Karakterkészlet ", " Cél réteg "}));
                run(f, "cmdByGroups");
                select(f, 2);
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
            },
            2);
    }

    void onlyWhatIsSeenIsDrawn()
    {
        const tests::StrokeFontHost host;
        std::vector<tSid> many;
        for (int i = 100; i < 3100; ++i) {
            many.push_back(tests::symbol(qint16(i), QByteArray::number(i).constData()));
            many.back().Type = 1, many.back().Facename = host.name(), many.back().Code = 'N';
            many.back().Size_mm = float(i) / 100; // what looks alike is drawn once
        }
        m_form->doc = tests::symbolDoc(many);
        m_form->open(
            MODE_SELECT,
            [&](frmSupSid &f) {
                QTRY_VERIFY(host.asked > 3);
                for (const char *view : {"miView_Icons", "miView_SmallIcon", "miView_List"}) {
                    run(f, view);
                    f.grab();
                    QCoreApplication::sendPostedEvents();
                }
                QVERIFY(host.asked < 1500);
                QCOMPARE(f.lvSids->currentRow(), 1900);
                click(f, "cmdCancel");
            },
            2000);
    }

    /// Kept through the switches of the mode and for the next run, where the columns are still called the
    /// same.
    void eachModeHasItsWidths()
    {
        using Widths = QList<int>;
        Widths left[2]; // by mode
        const auto widths = [](frmSupSid &f) {
            const QHeaderView &header = *f.lvSids->report()->header();
            return Widths{f.width(), header.sectionSize(1), header.sectionSize(6)};
        };
        int groups = 0;
        const Act arrange = [&](frmSupSid &f) {
            QHeaderView &header = *f.lvSids->report()->header();
            for (Widths &of : left) {
                const int wide = &of == left ? 700 : 780;
                f.resize(wide, 500);
                header.resizeSection(1, wide / 4), header.resizeSection(6, wide / 3);
                child<QSplitter>(f, "").setSizes({wide / 3, wide / 2});
                of = widths(f);
                run(f, "cmdEditMode");
            }
            for (const Widths &of : left) {
                QCOMPARE(widths(f), of);
                run(f, "cmdEditMode");
            }
            groups = f.lvGroups->width();
            click(f, "cmdCancel");
        };
        m_form->open(MODE_SELECT, arrange, 2);
        const auto &kept = m_form->store.kept.values;
        for (const char *key :
             {"ZolWOpfrmSupSid-Groups", "ZolWOpfrmSupSid-Sids", "ZolWOpfrmSupSid-Width4Edit",
              "ZolWOpfrmSupSid-Width4Select", "ZolWOpfrmSupSid-Height", "lvSidsSelectMode7"})
            QVERIFY2(kept.value(QStringLiteral("ZolWOp/Settings/") + QLatin1String(key)).toInt() > 0, key);
        QCOMPARE(kept.value(QStringLiteral("ZolWOp/Settings/ViewModelvSidsEditMode")), QStringLiteral("3"));
        for (const enumSetupMode mode : {MODE_SELECT, MODE_EDIT}) {
            const auto again = [&](frmSupSid &f) {
                QCOMPARE(widths(f), left[mode == MODE_EDIT]);
                if (mode == MODE_SELECT) QCOMPARE(f.lvGroups->width(), groups);
                run(f, "cmdEditMode");
                QCOMPARE(widths(f), left[mode != MODE_EDIT]);
                click(f, "cmdCancel");
            };
            m_form->open(mode, again, 2);
        }
    }

    void whatIsAsItWasIsNotWrittenAgain()
    {
        const Act look = [](frmSupSid &f) { click(f, "cmdCancel"); };
        const Act widen = [](frmSupSid &f) {
            f.lvSids->report()->header()->resizeSection(1, 333);
            click(f, "cmdCancel");
        };
        const auto writes = [&](const Act &act) {
            const int before = m_form->store.kept.written;
            m_form->open(MODE_SELECT, act, 2);
            return m_form->store.kept.written - before;
        };
        writes(look);
        QCOMPARE(writes(look), 0);
        QCOMPARE(writes(widen), 1);
        setLanguage(English, {}); // the columns are called otherwise: they have widths of their own
        writes([](frmSupSid &f) {
            QVERIFY(f.lvSids->report()->header()->sectionSize(1) != 333);
            click(f, "cmdCancel");
        });
    }

    void aFreeNumberIsAskedFor()
    {
        const QString title = QStringLiteral("Sorszám");
        const QString text = QStringLiteral("Egyedi sorszám|Jelkulcstípus száma|%1");
        ScriptedPrompts user{{{"numbers", title, text.arg(1), QVariantList{2.0}},
                              told("Egyedi sorszám", "Létező sorszám !"),
                              {"numbers", title, text.arg(2), QVariantList{5.0}},
                              {"numbers", title, text.arg(5)}}};
        m_form->open(
            MODE_SELECT,
            [](frmSupSid &f) {
                qint16 number = 1;
                QVERIFY(f.bGetSidId(number) && number == 5);
                QVERIFY(!f.bGetSidId(number) && number == 5);
                click(f, "cmdCancel");
            },
            1);
    }

    void theSettingOpensTheManager()
    {
        const ManagerHost host;
        clsDocDlgs dialogs;
        tSid picked = *m_form->doc->symbols().find(30);
        {
            const auto user = whileModal<frmSupSid>([](frmSupSid &f) {
                QVERIFY(!f.isEditMode());
                run(f, "cmdByGroups");
                select(f, 1);
                click(f, "cmdOk");
            });
            QVERIFY(dialogs.bSelect_Sid(*m_form->doc, picked));
        }
        QVERIFY(picked == *m_form->doc->symbols().find(1));
        for (const bool renumbers : {false, true}) {    // which Cancel cannot take back
            const tests::WillingPrompts willing;        // answers 1000
            const auto user = whileModal<frmSupSid>([&](frmSupSid &f) {
                QVERIFY(f.isEditMode());
                select(f, 1);
                if (renumbers) run(f, "cmdSid_Nr");
                click(f, "cmdCancel");
            });
            QCOMPARE(dialogs.bEdit_Sids(*m_form->doc), renumbers);
        }
        const auto user = whileModal<frmSupSid>([](frmSupSid &f) {
            const ScriptedPrompts refusal{
                {tests::warned(appTitle(), QStringLiteral("A szerkesztő mód nem választható !"))}};
            run(f, "cmdEditMode");
            click(f, "cmdCancel");
        });
        QVERIFY(!resourcePicker()->pick(TableKind::Symbols, *m_form->doc, 1, nullptr));
    }
};

QVDC_TEST(tst_frmSupSid)
#include "tst_frmSupSid.moc"
