#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/LayerWork.h"
#include "support/Registry.h"
#include "support/WillingPrompts.h"

#include <QTemporaryDir>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

constexpr char kCellEdit[] = "a cell edit";

/// Picks the record with identifier 1 of any table.
struct AnyPicker final : ResourcePicker {
    ResourcePicker *before = setResourcePicker(this);
    ~AnyPicker() override { setResourcePicker(before); }
    bool canPick(TableKind) const override { return true; }
    std::optional<qint16> pick(TableKind, ZOLW_Doc &doc, qint16, QObject *) override
    {
        doc.textTypes().count();                        // a dialog reads, too
        return qint16(1);
    }
};

/// Picks the second of several things: another group than the one that all layers are in.
struct Picking final : tests::WillingPrompts {
    std::optional<int> choose(const Choice &, QObject *) override { return 1; }
};

/// Runs a tool on the first three of four layers, the host failing at one call of it; counts the calls.
struct Run {
    std::unique_ptr<refhost::SqliteDoc> doc = tests::layerDoc("1 1-A, 2 2-B, 3 3-C, 4 D");
    QTemporaryDir folder;
    tests::FaultyDoc faulty{*doc};
    tests::LayerForm form{faulty};
    Picking user;
    explicit Run(const char *tool, int failAt)
    {
        form.js.setCurrentLayer(doc->layers().findByNumber(1)->LayId);
        form.select({1, 2, 3});
        const std::vector<refhost::Element> line{{.layId = form.js.currentLayer()}};
        doc->addElements(line);
        user.path = folder.filePath(QStringLiteral("layers"));
        tests::prepare(tool, form, faulty, user.path);
        faulty.log.calls.clear();
        faulty.log.failAt = failAt;
        if (std::strcmp(tool, kCellEdit) == 0) editCell();
        else form.run(tool);
        faulty.log.failAt = -1;
        form.groups.setCurrentRow(0);                   // all layers are listed
    }
    void editCell()
    {
        QAbstractItemModel &cells = *form.grid.table()->model();
        cells.setData(cells.index(1, LayerTable::nameColumn), QStringLiteral("Út"));
    }
    int calls() const { return int(faulty.log.calls.size()); }
};

} // namespace

class tst_LayerFaults : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void everyCallOfEveryCommandMayFail_data()
    {
        QTest::addColumn<QByteArray>("tool");
        QTest::newRow(kCellEdit) << QByteArray(kCellEdit);
        for (const auto &c : kLayerCommands) QTest::newRow(c.tool) << QByteArray(c.tool);
    }
    void everyCallOfEveryCommandMayFail()
    {
        QFETCH(QByteArray, tool);
        const AnyPicker picker;
        const Run undisturbed(tool.constData(), -1);
        QVERIFY(!undisturbed.form.error);
        const QByteArrayList onlyShow{"cmdLay_GroupAllLay", "cmdLay_ShowGroups", "cmdLay_HideGroups",
                                      "cmdLay_ShowVisible", "miGroupCollapse"};
        QCOMPARE(undisturbed.calls() > 0, !onlyShow.contains(tool));
        for (int at = 0; at < undisturbed.calls(); ++at) {
            Run run(tool.constData(), at);
            const QString call = run.faulty.log.calls.value(at);
            QVERIFY2(run.form.failed() == call, qPrintable(call));
            QVERIFY2(run.form.rows() == run.doc->layers().readAll(), qPrintable(call));
            run.form.js.setbShowVisibleItems(false);
            QVERIFY2(run.form.groupsListed() == tests::dumpGroups(*run.doc), qPrintable(call));
            QVERIFY(!run.form.js.isBusy());
        }
    }

    void whatWasWrittenBeforeTheErrorStays()
    {
        Run run("cmdLays_Copy", -1);                    // 1001, 1002, 1003
        run.user.typed = {2000};
        run.faulty.log.calls.clear();
        run.form.select({1, 2, 3});
        run.faulty.log.meanwhile = [&](const QString &call) {
            if (call == QStringLiteral("layers.add") && run.faulty.log.calls.count(call) == 2)
                run.faulty.log.failNext = call;
        };
        run.form.run("cmdLays_Copy");
        QCOMPARE(run.form.failed(), QStringLiteral("layers.add"));
        QVERIFY(run.doc->layers().findByNumber(2001) && !run.doc->layers().findByNumber(2002));
        QCOMPARE(run.faulty.log.calls.count(QStringLiteral("layers.add")), 2); // the rest was not tried
        QCOMPARE(run.form.rows(), run.doc->layers().readAll());
    }
};

QVDC_TEST(tst_LayerFaults)
#include "tst_LayerFaults.moc"
