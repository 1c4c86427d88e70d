#include "dialogs/select/frmSetup.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/layer/LayerCommands.h"
#include "support/Documents.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/OwnStore.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/WillingPrompts.h"

#include <QAction>
#include <QPushButton>
#include <QTemporaryDir>

using namespace QV_DOC_CONTROLS;
using tests::child;

/// A document that fails in the middle of a command ends the dialog, and its error reaches the caller.
class tst_SetupFaults : public QObject {
    Q_OBJECT
private slots:
    void anErrorOfAnyCommandEndsTheDialog_data()
    {
        QTest::addColumn<QByteArray>("tool");
        const QByteArrayList withoutDocument{"cmdLay_GroupAllLay", "cmdLay_ShowGroups", "cmdLay_HideGroups",
                                             "cmdLay_ShowVisible", "miGroupCollapse", "cmdLays_TxdId",
                                             "cmdLays_PenStyle", "cmdLays_PenColorId"};
        for (const auto &c : kLayerCommands)
            if (!withoutDocument.contains(c.tool)) QTest::newRow(c.tool) << QByteArray(c.tool);
    }
    void anErrorOfAnyCommandEndsTheDialog()
    {
        QFETCH(QByteArray, tool);
        setLanguage(Hungarian, {});
        const tests::OwnStore store;
        const QTemporaryDir folder;
        tests::WillingPrompts user;
        user.path = folder.filePath(QStringLiteral("layers"));
        const auto real = tests::layerDoc("1 1-A, 2 2-B, 3 C");
        tests::FaultyDoc faulty(*real);
        frmSetup dialog;
        const auto watch = tests::whileModal<frmSetup>([&](frmSetup &d) {
            child<Grid>(d, "gridItems").selectRows(std::vector<int>{0, 1});
            if (!tool.startsWith("cmdLays")) child<Grid>(d, "gridGroups").setCurrentRow(2);
            child<Grid>(d, "gridItems").selectAll();
            if (tool == "cmdLays_VisibleUseFile") QVERIFY(d.jsLayer->OpLay_Save2File(user.path));
            faulty.log.calls.clear();
            faulty.log.failAt = 0;
            child<QAction>(d, tool.constData()).trigger();
            QVERIFY(!d.isVisible());
        });
        QVERIFY_EXCEPTION_THROWN(dialog.bDoShow(faulty, 0), tests::HostError);
    }

    void theOneOfAllDocumentsThatFailsIsNamed()
    {
        setLanguage(Hungarian, {});
        const auto first = tests::layerDoc("-12 A"), second = tests::layerDoc("12 A"),
                   third = tests::layerDoc("12 A");
        tests::FaultyDoc faulty(*second);
        tests::Documents list({{first.get(), "a.qvd"}, {&faulty, "b.qvd"}, {third.get(), "c.qvd"}});
        faulty.log.failNext = QStringLiteral("layers.update");
        tests::ScriptedPrompts user({tests::warned(
            appTitle(), "Nem sikerült átvinni a rétegek tulajdonságait ebbe a rajzba: b.qvd\n"
                        "layers.update\nA sorrendben utána következő rajzok nem változtak.")});
        frmSetup dialog;
        dialog.setoDocList(&list);
        const auto watch = tests::whileModal<frmSetup>([](frmSetup &d) { d.cmdOkAllDocument->click(); });
        QVERIFY_THROWS_EXCEPTION(tests::HostError, dialog.bDoShow(*first, 0));
        QVERIFY(third->layers().findByNumber(12)->Visible);
    }
};

QVDC_TEST(tst_SetupFaults)
#include "tst_SetupFaults.moc"
