#include "facade/services/Language.h"
#include "facade/services/LayerFileCodePage.h"
#include "facade/services/Trace.h"
#include "import/DxfImport.h"
#include "rules/LayerFile.h"
#include "support/FaultyDoc.h"
#include "support/FileDesk.h"
#include "support/FullDisk.h"
#include "support/LayerForm.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/NotingPrompts.h"

#include <QDir>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using tests::warned;
using Step = ScriptedPrompts::Step;

namespace {

// What the commands say, to the letter.
const QString kSave = QStringLiteral("Rétegek mentése"),
              kLoad = QStringLiteral("Rétegek láthatóságok betöltése");
Step saveAsked(const QString &path) { return {"saveFile", kSave, QStringLiteral("*.z3l|*.z3l"), path}; }
Step loadAsked(const QString &path) { return {"openFile", kLoad, QStringLiteral("*.z3l|*.z3l"), path}; }
Step matchAsked(const QVariant &answer)
{
    return {"choose", QStringLiteral("Réteg azonosítás"),
            QStringLiteral("A réteg azonosítás történhet sorszám, vagy név alapján"), answer};
}
const QString kForeign = QStringLiteral("A(z) '%1' fájl sérült, vagy nem rétegmentés. Mentsd el újra a "
                                        "rétegeket, vagy válassz másik fájlt!");
const QString kCut = QStringLiteral("A(z) '%1' rétegmentés csonka: hamarabb véget ér, mint a tartalma. "
                                    "Mentsd el újra a rétegeket, vagy válassz másik fájlt!");
const QString kUnreadable = QStringLiteral("A(z) '%1' fájl nem olvasható. Ellenőrizd, hogy megvan-e, és "
                                           "van-e hozzá jogosultságod! Részletek: ");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
}

} // namespace

class tst_LayerFiles : public QObject, private tests::FileDesk {
    Q_OBJECT
private:
    QString visible() const
    {
        QStringList out;
        for (const tLay &l : m_doc->layers().readAll())
            if (l.Visible) out << l.Name;
        return out.join(u' ');
    }
    QByteArray saved() const
    {
        const LayerRole &layers = m_doc->layers();
        const LayerFile file{layers.fileVersion(), layers.readAll(), layers.groups(), layers.members()};
        return std::get<QByteArray>(bytesOf(file, layerFileCodePage()));
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        layOut();
    }
    void cleanup()
    {
        setCallLog(false);
        m_store.reset();                                // before there is another
        setLanguage(Hungarian, {});
    }

    void everythingIsSaved()
    {
        setLayerFileCodePage(QStringLiteral("windows-1250"));
        tests::FaultyDoc counted(*m_doc);
        tests::LayerForm form(counted);
        form.js.setAllowEdit(false);                    // a copy on file changes nothing
        form.chooseGroup(QStringLiteral("Utak"));       // nor does it matter what is shown
        counted.log.calls.clear();
        {
            ScriptedPrompts user({saveAsked(at("a.z3l"))});
            form.run("cmdLays_Save");
        }
        QVERIFY(counted.log.writes().isEmpty());
        const LayerFile expected{m_doc->layers().fileVersion(), m_doc->layers().readAll(),
                                 m_doc->layers().groups(), m_doc->layers().members()};
        const QByteArray bytes = contentOf(at("a.z3l"));
        QVERIFY(std::get<LayerFile>(layerFileOf(bytes, QStringLiteral("windows-1250"))) == expected);
        QVERIFY(bytes.contains("Erd\xf5"));
        {
            ScriptedPrompts user({saveAsked({})});      // cancelled
            form.run("miSave2File");
        }
        QCOMPARE(m_store->kept.values.value(QStringLiteral("ZolWOp/Settings/LayerFileFolder")),
                 m_folder->path());
    }

    void bothCommandsLeaveTheirTraces()
    {
        setLogFileName(at("trace.txt"));
        setCallLog(true);
        tests::LayerForm form(*m_doc);
        ScriptedPrompts user({saveAsked({}), loadAsked({})});
        form.run("cmdLays_Save");
        form.run("cmdLays_VisibleUseFile");
        QVERIFY(form.js.OpLay_Save2File(at("b.z3l")));  // without a trace
        QCOMPARE(contentOf(at("trace.txt")), QByteArray("\"clsJS_Layer.OpLay_Save >>\"\r\n"
                                                        "\"clsJS_Layer.OpLay_Save <<\"\r\n"
                                                        "\"jslayer.OpLay_VisibleUseFile >>\"\r\n"
                                                        "\"jslayer.OpLay_VisibleUseFile <<\"\r\n"));
    }

    void aFileIsReplacedWholeOrNotAtAll_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("layer");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("message");
        QTest::newRow("a layer's letter is lacking")
            << "windows-1252" << "Erdő" << "Utak"
            << "A(z) 'Erdő' rétegnév egyik betűje hiányzik a beállított kódlapból. Nevezd át a réteget, vagy "
               "állíts be másik kódlapot!";
        QTest::newRow("a group's letter is lacking")
            << "windows-1252" << "Erd" << "Fő utak"
            << "A(z) 'Fő utak' csoportnév egyik betűje hiányzik a beállított kódlapból. Nevezd át a "
               "csoportot, vagy állíts be másik kódlapot!";
        QTest::newRow("there is no such code page")
            << "windows-9" << "Erd" << "Utak"
            << "A(z) 'windows-9' kódlap ismeretlen. Állíts be másik kódlapot, például: windows-1250";
        QTest::newRow("a name too long") << "windows-1250" << QString(70000, u'a') << "Utak"
                                         << "A(z) '" + QString(70000, u'a') +
                                                "' név túl hosszú a rétegmentéshez. Adj rövidebb nevet!";
    }
    void aFileIsReplacedWholeOrNotAtAll()
    {
        QFETCH(QString, page);
        QFETCH(QString, layer);
        QFETCH(QString, group);
        QFETCH(QString, message);
        tLayArr all = m_doc->layers().readAll();
        all[1].Name = layer;
        m_doc->layers().writeAll(all);
        auto groups = m_doc->layers().groups();
        groups.back().GroupName = group;
        m_doc->layers().writeGroups(groups);
        setLayerFileCodePage(page);
        written("a.z3l", "before");
        tests::LayerForm form(*m_doc);
        ScriptedPrompts user({saveAsked(at("a.z3l")), warned(kSave, message), warned(kSave, message)});
        form.run("cmdLays_Save");
        QVERIFY(!form.js.OpLay_Save2File(at("a.z3l")) && !form.error);
        QCOMPARE(contentOf(at("a.z3l")), QByteArray("before"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("a.z3l"));
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("letters");
        QTest::newRow("written at once") << 60000;
        QTest::newRow("kept back until the end") << 1000;
    }
    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(int, letters);
        if (!tests::FullDisk::isPossible) QSKIP("needs a limit on the size of files");
        tLayArr all = m_doc->layers().readAll();
        all[0].Name = QString(letters, u'a');
        m_doc->layers().writeAll(all);
        const QString path = written("a.z3l", "before");
        tests::LayerForm form(*m_doc);
        tests::NotingPrompts user;
        {
            const tests::FullDisk full;
            QVERIFY(!form.js.OpLay_Save2File(path));
        }
        QVERIFY(user.told.join(u'|').startsWith(
            QStringLiteral("A(z) '%1' fájl nem menthető; ha volt ilyen fájl, a régi tartalma megmaradt.")
                .arg(path)));
        QCOMPARE(contentOf(path), QByteArray("before"));
        QVERIFY(form.js.OpLay_Save2File(path) && contentOf(path).size() > letters);
    }

    void aDamagedFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        init();
        const QByteArray good = saved();
        cleanup();
        QByteArray claims = good, other = good;
        claims.replace(4, 4, QByteArray::fromHex("ffffff7f"));
        other[0] = char(other[0] + 1);
        QTest::newRow("empty") << QByteArray("") << kCut;
        QTest::newRow("cut in a table") << good.chopped(1) << kForeign;
        QTest::newRow("cut in a name") << good.first(80) << kCut;
        QTest::newRow("two thousand million layers") << claims << kForeign;
        QTest::newRow("goes on") << good + 'x' << kForeign;
        QTest::newRow("of another version") << other << QString();
        QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n") << QString();
        QTest::newRow("not there") << QByteArray() << kUnreadable + "No such file or directory";
    }
    void aDamagedFileIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        const QString path = bytes.isNull() ? at("b.z3l") : written("b.z3l", bytes);
        tests::FaultyDoc counted(*m_doc);
        tests::LayerForm form(counted);
        form.select({2, 3});
        counted.log.calls.clear();
        const Step version = {"tell", QStringLiteral("ZOL"),
                              QStringLiteral("Nem használható!\nHibás verziószámú mentés!"), {},
                              Icon::Information};
        ScriptedPrompts user({loadAsked(path), message.isEmpty() ? version
                                                                 : warned(kLoad, message.arg(path))});
        form.run("cmdLays_VisibleUseFile");
        QVERIFY(counted.log.writes().isEmpty() && !form.error);
        QCOMPARE(form.selection(), QStringLiteral("2* 3"));
    }

    void visibilitiesComeFromAnotherMachine()
    {
        setLayerFileCodePage(QStringLiteral("windows-1250"));
        const QString path = written("a.z3l", saved());
        tLayArr all = m_doc->layers().readAll();
        for (tLay &l : all) l.Visible = l.gNr != 1;
        all[2].gNr = 33;
        m_doc->layers().writeAll(all);
        tests::LayerForm form(*m_doc);
        form.select({2, 33});
        const auto load = [&](const QVariant &match, std::vector<Step> told = {}) {
            std::vector<Step> steps{loadAsked(path), matchAsked(match)};
            steps.insert(steps.end(), told.begin(), told.end());
            ScriptedPrompts user(steps);
            form.run("cmdLays_VisibleUseFile");
            return visible();
        };
        QCOMPARE(load({}), QStringLiteral("Erdő Árok")); // cancelled
        setLayerFileCodePage(QStringLiteral("windows-1251"));
        const Step none{"tell",
                        kLoad,
                        QStringLiteral(
                            "A fájl egyik rétege sem található a rajzban, ezért semmi nem változott."),
                        {},
                        Icon::Information};
        QCOMPARE(load(1, {none}), QStringLiteral("Erdő Árok")); // no name reads right
        QCOMPARE(load(0), QStringLiteral("Út Árok"));    // the third number is another one
        setLayerFileCodePage(QStringLiteral("windows-1250"));
        all[1].Visible = true;
        m_doc->layers().writeAll(all);
        QCOMPARE(load(1), QStringLiteral("Út Árok"));
        QCOMPARE(form.selection(), QStringLiteral("2* 33"));
        QCOMPARE(form.rows(), m_doc->layers().readAll());
        setLayerFileCodePage(QStringLiteral("windows-9"));
        const Step unknown = warned(kLoad, QStringLiteral("A(z) 'windows-9' kódlap ismeretlen. Állíts be "
                                                           "másik kódlapot, például: windows-1250"));
        ScriptedPrompts user({loadAsked(path), unknown});
        form.run("cmdLays_VisibleUseFile");
    }

    void aRealMapGetsItsVisibilitiesBack_data()
    {
        QTest::addColumn<bool>("byName");
        QTest::newRow("by number") << false;
        QTest::newRow("by name") << true;
    }
    /// The layers keep what they are found by; the other is changed in all of them before the load.
    void aRealMapGetsItsVisibilitiesBack()
    {
        QFETCH(bool, byName);
        const QString samples = qEnvironmentVariable("QVDC_SAMPLES");
        if (samples.isEmpty()) QSKIP("QVDC_SAMPLES does not name a folder of drawings");
        refhost::ImportReport report;
        const auto map = refhost::DxfImport::into(
            QStringLiteral(":memory:"), samples + QStringLiteral("/dxf/orienteering_map_r12.dxf"), {1, 10000},
            report);
        tLayArr all = map->layers().readAll();
        QCOMPARE(all.size(), size_t(183));
        QHash<qint16, bool> wanted;
        for (size_t i = 0; i < all.size(); ++i)
            wanted.insert(all[i].LayId, all[i].Visible = i % 3 != 0 && i % 7 != 2);
        map->layers().writeAll(all);

        tests::LayerForm form(*map);
        const qint16 current = all[100].LayId;
        form.js.selectById(current);
        const QString path = at("map.z3l");
        ScriptedPrompts user({saveAsked(path), loadAsked(path), matchAsked(byName ? 1 : 0)});
        form.run("cmdLays_Save");
        for (tLay &l : all) {
            if (byName) l.gNr = qint16(1000 - l.gNr);
            else l.Name = u'x' + l.Name;
            l.Visible = l.gNr % 2 == 0;
        }
        map->layers().writeAll(all);
        form.js.fill();
        form.run("cmdLays_VisibleUseFile");
        for (tLay &l : all) l.Visible = wanted[l.LayId];
        QCOMPARE(map->layers().readAll(), all);         // and nothing but the visibilities
        QCOMPARE(form.js.currentRecord()->LayId, current);
        QCOMPARE(form.rows(), all);
    }

    void aHostThatFailsLeavesTheFileAsItWas()
    {
        tests::FaultyDoc faulty(*m_doc);
        tests::LayerForm form(faulty);
        const QString path = written("a.z3l", "before");
        for (const char *call : {"layers.fileVersion", "layers.readAll", "layers.groups", "layers.members"}) {
            faulty.log.failNext = QLatin1String(call);
            QVERIFY_THROWS_EXCEPTION(tests::HostError, form.js.OpLay_Save2File(path));
            QCOMPARE(contentOf(path), QByteArray("before"));
        }
        form.js.TearDown();
        QVERIFY(!form.js.OpLay_Save2File(path));
    }
};

QVDC_TEST(tst_LayerFiles)
#include "tst_LayerFiles.moc"
