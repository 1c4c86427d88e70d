#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/LayerForm.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/WillingPrompts.h"

#include <QApplication>
#include <QTimer>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;

namespace {

struct OnePicker final : ResourcePicker {
    TableKind kind;
    std::optional<qint16> answer;
    qint16 first = -2;
    ResourcePicker *before = setResourcePicker(this);
    OnePicker(TableKind k, std::optional<qint16> a) : kind(k), answer(a) {}
    ~OnePicker() override { setResourcePicker(before); }
    bool canPick(TableKind k) const override { return k == kind; }
    std::optional<qint16> pick(TableKind, ZOLW_Doc &, qint16 offered, QObject *) override
    {
        first = offered;
        return answer;
    }
};

/// "number name" of the layers that have it.
QString with(ZOLW_Doc &doc, bool tLay::*flag)
{
    QStringList out;
    for (const tLay &l : doc.layers().readAll())
        if (l.*flag) out << QString::number(l.gNr);
    return out.join(u' ');
}

} // namespace

class tst_LayerCommands : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::threeLayers();
    }

    void flagsOfAllSelectedRows_data()
    {
        QTest::addColumn<QByteArray>("tool");
        QTest::addColumn<QString>("visible");
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("texts");
        QTest::addColumn<int>("written");
        QTest::newRow("on") << QByteArray("cmdLays_SetVisibleOn") << "1 2 3" << "3" << "" << 1;
        QTest::newRow("off") << QByteArray("cmdLays_SetVisibleOff") << "3" << "3" << "" << 1;
        QTest::newRow("lines on") << QByteArray("cmdLays_ElByLayerOn") << "1 3" << "1 2 3" << "" << 2;
        QTest::newRow("lines off") << QByteArray("cmdLays_ElByLayerOff") << "1 3" << "3" << "" << 0;
        QTest::newRow("texts on") << QByteArray("cmdLays_TxByLayerOn") << "1 3" << "3" << "1 2" << 2;
        QTest::newRow("texts off") << QByteArray("cmdLays_TxByLayerOff") << "1 3" << "3" << "" << 0;
        QTest::newRow("all on") << QByteArray("cmdVisibleAllOn") << "1 2 3" << "3" << "" << 1;
        QTest::newRow("all off") << QByteArray("cmdVisibleAllOff") << "" << "3" << "" << 2;
    }
    void flagsOfAllSelectedRows()
    {
        QFETCH(QByteArray, tool);
        tests::FaultyDoc counted(*m_doc);
        tests::LayerForm form(counted);
        form.select({1, 2});
        counted.log.calls.clear();
        form.run(tool.constData());
        QTEST(with(*m_doc, &tLay::Visible), "visible");
        QTEST(with(*m_doc, &tLay::ElByLayer), "lines");
        QTEST(with(*m_doc, &tLay::TxByLayer), "texts");
        QCOMPARE(form.selection(), QStringLiteral("1* 2"));
        QTEST(int(counted.log.calls.count(QStringLiteral("layers.update"))), "written");
        const int wrote = int(counted.log.calls.contains(QStringLiteral("layers.update"))); // else no refill
        QCOMPARE(counted.log.bulkUpdates, wrote);
        QCOMPARE(counted.log.calls.count(QStringLiteral("scopes.begin")), wrote);
        QCOMPARE(counted.log.calls.count(QStringLiteral("layers.readAll")), 1 + wrote);
    }

    void referencesComeFromTheirSelectionDialogs()
    {
        const std::pair<TableKind, const char *> tools[] = {{TableKind::TextTypes, "cmdLays_TxdId"},
                                                            {TableKind::LineTypes, "cmdLays_PenStyle"},
                                                            {TableKind::PenColors, "cmdLays_PenColorId"}};
        tests::LayerForm form(*m_doc);
        form.select({1, 2});
        for (const auto &[kind, tool] : tools) {
            form.run(tool);                             // there is no such dialog: nothing happens
            OnePicker cancelled(kind, std::nullopt);
            form.run(tool);
            QCOMPARE(layer(2).PenColorId, qint16(kind == TableKind::PenColors ? 0 : layer(2).PenColorId));
            OnePicker picker(kind, qint16(1));
            form.run(tool);
            QCOMPARE(picker.first, qint16(kind == TableKind::PenColors ? 0 : 1));
        }
        for (const int nr : {1, 2}) {
            const tLay l = layer(qint16(nr));
            QVERIFY(l.TxdId == 1 && l.PenStyleId == 1 && l.PenColorId == 1);
        }
        QCOMPARE(layer(3).PenColorId, qint16(0));
    }

    void toolsAreEnabledWhenTheyCanWork()
    {
        const auto enabled = [](tests::LayerForm &form) {
            QStringList out;
            for (const auto &c : kLayerCommands)
                if (!c.enabled || (form.js.*c.enabled)()) out << QLatin1String(c.tool);
            return out.join(u' ');
        };
        const QString none =
            QStringLiteral("cmdLays_Save miSave2File cmdLay_HideGroups cmdLay_ShowVisible");
        const QString unselected = QStringLiteral(
            "miAddNew cmdVisibleAllOn cmdVisibleAllOff cmdLays_Save miSave2File cmdLays_VisibleUseFile "
            "cmdLays_FileAddNew cmdLays_FileRename cmdLays_FileRenum miAddNewGroup cmdLay_GroupVisibleOn "
            "cmdLay_GroupVisibleOff cmdGroupVisibleOn cmdGroupVisibleOff cmdLay_HideGroups "
            "cmdLay_ShowVisible");
        tests::LayerForm form(*m_doc);
        form.grid.selectRows({});
        form.js.setAllowEdit(false);
        QCOMPARE(enabled(form), none);
        form.js.setAllowEdit(true);
        QCOMPARE(enabled(form), unselected);
        form.select({1});
        OnePicker picker(TableKind::LineTypes, {});
        const QStringList all = enabled(form).split(u' ');
        QVERIFY(all.contains(QStringLiteral("cmdLays_PenStyle")) &&
                !all.contains(QStringLiteral("cmdLays_TxdId")));
        // Not without their dialogs, while all layers are shown, without bands, while the groups are shown.
        const QStringList lacking = {"cmdLays_TxdId", "cmdLays_PenColorId", "miGroupRename", "miGroupRemove",
                                     "cmdLay_GroupName", "cmdLay_GroupAllLay", "miGroupCollapse",
                                     "cmdLay_ShowGroups"};
        for (const QString &tool : lacking) QVERIFY2(!all.contains(tool), qPrintable(tool));
        QCOMPARE(all.size() + lacking.size(), qsizetype(std::size(kLayerCommands)));
        form.groups.setCurrentRow(2);
        for (const char *tool : {"miGroupRename", "miGroupRemove", "cmdLay_GroupName", "cmdLay_GroupAllLay"})
            QVERIFY2(enabled(form).contains(QLatin1String(tool)), tool);
        form.js.TearDown();
        QCOMPARE(enabled(form), QString());
    }

    void onlyVisibleLayersAreListedOnDemand()
    {
        tests::LayerForm form(*m_doc);
        form.run("cmdLay_ShowVisible");
        QCOMPARE(form.rows(), (tLayArr{layer(1), layer(3)}));
        form.run("cmdLay_ShowVisible");
        QCOMPARE(form.rows().size(), size_t(3));
    }

    void aDeletedCurrentLayerGivesWayToTheDocuments()
    {
        tests::LayerForm form(*m_doc);
        form.js.setCurrentLayer(layer(1).LayId);
        const tests::WillingPrompts user;
        form.run("cmdLays_Delete");
        QCOMPARE(form.js.currentLayer(), m_doc->layers().currentId());
        QCOMPARE(form.js.numberOf(form.js.currentLayer()), qint16(2));
    }

    void aFormTornDownBehindAPromptEndsTheCommand()
    {
        tests::LayerForm form(*m_doc);
        form.select({1});
        ScriptedPrompts user({{"yesNoCancel", QStringLiteral("Rétegnév módosítás"),
                               QStringLiteral("A '-' karakter előtti rész csak szám lehet?"), true,
                               Icon::Question, [&] { form.js.TearDown(); }}});
        form.run("cmdLays_TrimLeftName");
        QVERIFY(!form.error);
    }

    void aLongRefillShowsItselfAndRefusesCommands()
    {
        tests::FaultyDoc slow(*m_doc);
        tests::LayerForm form(slow);
        form.select({1});
        const ScriptedPrompts::Step refusal = {"tell", appTitle(),
                              QStringLiteral("Frissítés van folyamatban, kérem várakozzék!"), {},
                              Icon::Exclamation};
        ScriptedPrompts user({refusal, refusal, refusal});
        bool met = false;
        const auto interfere = [&] {
            met = form.js.isBusy() && QApplication::activeModalWidget();
            form.run("cmdLays_Copy");
            QTest::keyClick(form.grid.table(), Qt::Key_Delete);
            QVERIFY(!form.grid.table()->model()->setData(form.grid.table()->model()->index(0, 1),
                                                         QStringLiteral("X")));
        };
        slow.log.meanwhile = [&](const QString &call) {
            if (call != QStringLiteral("layers.readAll") || !form.js.isBusy()) return;
            QElapsedTimer host;                         // a host that takes its time
            for (host.start(); host.elapsed() < StepRun::kSilent.count();) {}
            QTimer::singleShot(0, this, interfere);
            slow.log.meanwhile = {};
        };
        form.run("cmdLays_SetVisibleOff");
        QVERIFY(met && !form.js.isBusy());
        QCOMPARE(with(*m_doc, &tLay::Visible), QStringLiteral("3"));
        QCOMPARE(form.rows(), m_doc->layers().readAll());
    }
};

QVDC_TEST(tst_LayerCommands)
#include "tst_LayerCommands.moc"
