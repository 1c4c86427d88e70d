#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "facade/clsDocDlgs.h"
#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "facade/services/clsDebug.h"
#include "support/Documents.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Same.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;

namespace {

struct Runtime final : ZolWDoc::LanguageRuntime {
    int language = 0, component = 0;
    int currentLanguage() const override { return language; }
    int componentLanguage(const QString &name) const override
    {
        return name == QLatin1String("QV_DOC_CONTROLS") ? component : 0;
    }
};
struct Host final : ZolWDoc::HostServices {
    Runtime runtime;
    ZolWDoc::LanguageRuntime *language() override { return &runtime; }
};

} // namespace

class tst_clsDocDlgs : public QObject {
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    QStringList traced(const std::function<void()> &act)
    {
        const QString path = m_folder.filePath(QStringLiteral("trace.log"));
        QFile::remove(path);
        clsDebug debug;
        debug.setsLogFileName(path);
        debug.setbCallLog(true);
        act();
        debug.setbCallLog(false);
        QFile log(path);
        const QString all = log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
        return QString(all).remove(u'"').split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    }

private slots:
    void cleanup()
    {
        setHostServices(nullptr);
        setLanguage(Hungarian, {});
        setAppTitle({});
    }

    void constructionIsTracedStepByStep()
    {
        QCOMPARE(traced([] { clsDocDlgs dialogs; }),
                 QStringList({"clsDocDlgs.Class_Initialize >>", "clsDocDlgs.Class_Initialize 1",
                              "clsDocDlgs.Class_Initialize 2", "clsDocDlgs.Class_Initialize <<"}));
    }
    void aCallIsTracedWhateverItsEnd_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("failing");
        QTest::addColumn<QStringList>("marks");
        const QStringList whole{"1", "2", "<<"};
        QTest::newRow("confirmed") << "cmdOk" << QString() << whole;
        QTest::newRow("cancelled") << "cmdCancel" << QString() << whole;
        QTest::newRow("failed") << "cmdOk" << "layers.makeCurrent" << QStringList{"1", "<<"};
    }
    void aCallIsTracedWhateverItsEnd()
    {
        QFETCH(QString, button);
        QFETCH(QString, failing);
        QFETCH(QStringList, marks);
        const auto doc = tests::layerDoc("1 A");
        tests::FaultyDoc faulty(*doc);
        faulty.log.failNext = failing;
        clsDocDlgs dialogs;
        ZolWDoc::tLay lay = doc->layers().readAll().front();
        const auto watch = tests::whileModal<frmSelect>(
            [&](frmSelect &d) { tests::child<QPushButton>(d, qPrintable(button)).click(); });
        bool failed = false;
        const QStringList lines = traced([&] {
            try {
                dialogs.bSelect_Lay(faulty, lay);
            } catch (const tests::HostError &) {
                failed = true;
            }
        });
        QCOMPARE(failed, !failing.isEmpty());
        QStringList expected{QStringLiteral("clsDocDlgs.bSelect_Lay >>")};
        for (const QString &mark : marks) expected << QStringLiteral("clsDocDlgs.bSelect_Lay ") + mark;
        QCOMPARE(lines, expected);
    }

    void thoseBelowTheRoofPickWhereThereIsADialog()
    {
        using ZolWDoc::TableKind;
        ResourcePicker *const picker = resourcePicker();
        QVERIFY(picker && picker->canPick(TableKind::Symbols) && !picker->canPick(TableKind::TextTypes));
        const auto doc = tests::layerDoc("1 A, 2 B");
        const qint16 second = doc->layers().findByNumber(2)->LayId;
        const auto pickBy = [&](const char *button) {
            const auto watch = tests::whileModal<frmSelect>(
                [&](frmSelect &d) { tests::child<QPushButton>(d, button).click(); });
            return picker->pick(TableKind::Layers, *doc, second, nullptr);
        };
        QCOMPARE(pickBy("cmdOk"), std::optional(second));
        QCOMPARE(pickBy("cmdCancel"), std::optional<qint16>());
    }

    /// Any of the calls that open a dialog, cancelled.
    void everyCallIsTraced()
    {
        const auto doc = tests::layerDoc("1 A");
        clsDocDlgs dialogs;
        ZolWDoc::tLayArr layers;
        const std::pair<QString, std::function<bool()>> calls[] = {
            {"bSelect_LayArr", [&] { return dialogs.bSelect_LayArr(*doc, layers); }},
            {"bEdit_Layers", [&] { return dialogs.bEdit_Layers(*doc); }},
            {"bSetupEx", [&] { return dialogs.bSetupEx(*doc, 0, true); }},
            {"bSetup", [&] { return dialogs.bSetup(*doc, 0); }}};
        for (const auto &[name, call] : calls) {
            const auto watch = tests::whileModal<QDialog>([](QDialog &d) { d.reject(); });
            QStringList expected;
            for (const char *mark : {">>", "1", "2", "<<"})
                expected << QStringLiteral("clsDocDlgs.%1 %2").arg(name, QLatin1String(mark));
            QCOMPARE(traced([&, &call = call] { QVERIFY(!call()); }), expected);
        }
    }
    void whatTheSetupDialogIsTold()
    {
        const auto doc = tests::layerDoc("1 A");
        clsDocDlgs dialogs;
        tests::Documents list({{doc.get(), QStringLiteral("a")}});
        dialogs.setWarnInvisibleCurrentLayer(true);
        dialogs.setoDocList(&list);
        const auto told = [&](const std::function<bool()> &call) {
            QString seen;
            const auto watch = tests::whileModal<frmSetup>([&](frmSetup &d) {
                seen = QStringLiteral("%1%2%3").arg(d.WarnInvisibleCurrentLayer())
                           .arg(d.AutomaticItemSelection()).arg(d.oDocList() == &list);
                d.reject();
            });
            call();
            return seen;
        };
        QCOMPARE(told([&] { return dialogs.bSetupEx(*doc, 0, false); }), QStringLiteral("101"));
        QVERIFY(!dialogs.AutomaticItemSelection());
        QCOMPARE(told([&] { return dialogs.bSetup(*doc, 0); }), QStringLiteral("101"));
        QCOMPARE(told([&] { return dialogs.bEdit_Layers(*doc); }), QStringLiteral("010")); // its own defaults
    }

    void titleAndLanguageAreTheLibrarysOwn()
    {
        clsDocDlgs first;
        QCOMPARE(first.sAppTitle(), QStringLiteral("ZOLDocDlgs"));
        first.setsAppTitle(QStringLiteral("Rajz"));
        clsDocDlgs second;
        QCOMPARE(second.sAppTitle(), QStringLiteral("Rajz"));
        QVERIFY(second.AutomaticItemSelection() && !second.WarnInvisibleCurrentLayer() && !second.oDocList());
        second.TearDown();
        second.TearDown();
        QCOMPARE(second.sAppTitle(), QStringLiteral("Rajz"));
    }
    void theHostsLanguageIsTakenAtConstruction()
    {
        struct Row {
            const char *name;
            int current, component, taken;
        };
        for (const auto &[name, current, component, taken] :
             {Row{"the program's", English, 0, English},
              {"the component's own goes first", English, Romanian, Romanian},
              {"undecided keeps what was set", 0, 0, Hungarian},
              {"unknown is hungarian", 1031, 0, Hungarian}}) {
            Host host;
            host.runtime.language = current, host.runtime.component = component;
            setLanguage(Hungarian, {});
            setHostServices(&host);
            const clsDocDlgs dialogs;
            tests::same(name, currentLanguage(), taken);
            setHostServices(nullptr);
        }
    }
};

QVDC_TEST(tst_clsDocDlgs)
#include "tst_clsDocDlgs.moc"
