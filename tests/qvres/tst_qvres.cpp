#include "rules/LayerFile.h"
#include "rules/SymbolSet.h"
#include "rules/recordset/RecordsetXml.h"
#include "support/Registry.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace QV_DOC_CONTROLS;

/// The programs as a script runs them, without a display.
class tst_qvres : public QObject {
    Q_OBJECT
private:
    QTemporaryDir m_folder;
    struct Run {
        int code = -1;
        QByteArray out, err;
    };
    Run run(const QStringList &words, const char *program = QVRES)
    {
        QProcess tool;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        for (const char *display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(display));
        tool.setProcessEnvironment(environment);
        tool.setWorkingDirectory(m_folder.path());
        tool.start(QString::fromUtf8(program), words);
        if (!tool.waitForFinished()) return {};
        return {tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1,
                tool.readAllStandardOutput(), tool.readAllStandardError()};
    }
    void put(const char *name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray get(const char *name)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init()
    {
        const ZolWDoc::tSid symbols[] = {
            {.SidId = 1, .ShortName = QStringLiteral("Fa, \"öreg\""), .Size_mm = 3.3f},
            {.SidId = 2, .ShortName = QStringLiteral("12"), .ProtXmm = 0.1, .Checked = true}};
        put("set.rst", bytesOf(std::get<Recordset>(symbolSetOf(symbols))));
        put("layers.z3l",
            std::get<QByteArray>(bytesOf(LayerFile{1,
                                                   {{.LayId = 4, .gNr = 7, .Name = QStringLiteral("Ár")}},
                                                   {{2, QStringLiteral("G")}},
                                                   {{2, 4}}},
                                         QStringLiteral("windows-1250"))));
        put("bad.rst", "<xml><oops>");
        put("all.json", R"([{"n": 1, "t": "a", "b": true}, {"n": 2.5, "t": null}])");
    }

    void rowsAreShownAsOneJsonArray()
    {
        const Run shown = run({"show", "set.rst", "--json"});
        QCOMPARE(shown.code, 0);
        const QJsonArray rows = QJsonDocument::fromJson(shown.out).array();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].toObject()["ShortName"], QJsonValue(QStringLiteral("Fa, \"öreg\"")));
        QCOMPARE(rows[0].toObject()["Size_mm"], QJsonValue(3.3));
        QCOMPARE(rows[1].toObject()["Checked"], QJsonValue(true));
        const Run layers = run({"show", "layers.z3l", "--json", "--code-page", "windows-1250"});
        QCOMPARE(QJsonDocument::fromJson(layers.out).array()[0].toObject()["Name"],
                 QJsonValue(QStringLiteral("Ár")));
        QVERIFY(run({"show", "set.rst"}).out.contains("ShortName"));
    }
    void aSetConvertsToItselfAndComesBackFromEveryKind_data()
    {
        QTest::addColumn<QString>("over");
        for (const char *over : {"copy.rst", "copy.json", "copy.csv"}) QTest::newRow(over) << over;
    }
    void aSetConvertsToItselfAndComesBackFromEveryKind()
    {
        QFETCH(QString, over);
        QCOMPARE(run({"convert", "set.rst", over}).err, QByteArray());
        QCOMPARE(run({"convert", over, "back.rst"}).err, QByteArray());
        QCOMPARE(get("back.rst"), get("set.rst"));
        QCOMPARE(run({"diff", "set.rst", over}).code, 0);
    }
    void nullsComeBackFromEveryKind()
    {
        put("gaps.csv", "k,i,r,t,b,n\r\n1,,1.5,\"\",true,\r\n2,7,,,,\r\n");
        for (const char *name : {"gaps.rst", "gaps.json"}) {
            QCOMPARE(run({"convert", "gaps.csv", name}).err, QByteArray());
            QCOMPARE(run({"convert", name, "back.csv"}).err, QByteArray());
            QCOMPARE(get("back.csv"), get("gaps.csv").replace("k,i,r,t,b,n", R"("k","i","r","t","b","n")"));
        }
        QCOMPARE(get("gaps.rst").count("rs:nullable='true'"), 5);
        QVERIFY(run({"convert", "set.rst", "a.csv"}).code == 0 && get("a.csv").contains(",3.3,"));
        put("a.csv", get("a.csv").replace(",3.3,", ",,"));
        QCOMPARE(run({"convert", "a.csv", "a.rst"}).err, QByteArray());
        QCOMPARE(run({"diff", "a.csv", "a.rst"}).code, 0);
        QVERIFY(run({"convert", "a.csv", "b.rst", "--like", "set.rst"}).err.contains("value: (empty)"));
    }
    void numbersThatOnlySetFilesWriteSoAreReadAsNumbers()
    {
        put("odd.rst", get("set.rst")
                           .replace("Size_mm='3.3", "Size_mm='&#x26;H10' Was='3.3")
                           .replace("ProtXmm='0.1", "ProtXmm='1,000.5' Was='"));
        const QJsonArray rows = QJsonDocument::fromJson(run({"show", "odd.rst", "--json"}).out).array();
        QCOMPARE(rows[0].toObject()["Size_mm"], QJsonValue(16));
        QCOMPARE(rows[1].toObject()["ProtXmm"], QJsonValue(1000.5));
        QCOMPARE(run({"convert", "odd.rst", "odd.csv"}).code, 0);
        QCOMPARE(run({"diff", "odd.rst", "odd.csv"}).code, 0);
    }
    void columnsAreAsWideAsTheValuesNeed()
    {
        put("odd.json",
            R"([{"n": 1, "t": "abc", "b": true, "r": 1}, {"n": 2, "t": "", "b": false, "r": 0.5}])");
        QCOMPARE(run({"convert", "odd.json", "odd.rst"}).code, 0);
        const Recordset set = std::get<Recordset>(recordsetOf(get("odd.rst")));
        QStringList columns;
        for (const RecordsetField &f : set.fields())
            columns << f.name + u' ' + f.datatype[0].value + u' ' + QString::number(f.maxLength);
        QCOMPARE(columns, QStringList({"n int -1", "t string 3", "b boolean -1", "r float -1"}));
        QCOMPARE(run({"diff", "odd.json", "odd.rst"}).code, 0);
        put("more.json", R"([{"n": 9, "t": "abcd", "b": true, "r": 1}])");
        const Run narrow = run({"convert", "more.json", "more.rst", "--like", "odd.rst"});
        QCOMPARE(narrow.code, 2);
        QVERIFY(narrow.err.contains("column: t") && narrow.err.contains("more.rst"));
    }
    void differencesAreNamedAndCounted()
    {
        QCOMPARE(run({"convert", "set.rst", "a.csv"}).code, 0);
        QByteArray csv = get("a.csv");
        put("b.csv", csv.replace("3.3,", "3.5,"));
        const Run changed = run({"diff", "a.csv", "b.csv"});
        QCOMPARE(changed.code, 1);
        QCOMPARE(changed.out, QByteArray("~ 1 Size_mm: 3.3 -> 3.5\n"));
        put("c.csv", csv.left(csv.indexOf("\r\n2,") + 2));
        const Run gone = run({"diff", "b.csv", "c.csv"});
        QVERIFY(gone.code == 1 && gone.out.startsWith("- 2 | ") && gone.out.count('\n') == 1);
        put("bare.json", "[{}]");
        QCOMPARE(run({"diff", "bare.json", "bare.json"}).code, 0);
        put("turned.json", R"([{"t": "a", "b": true, "n": 1}, {"t": null, "b": null, "n": 2.5}])");
        QCOMPARE(run({"diff", "all.json", "turned.json"}).out, QByteArray());
        put("turned.json", R"([{"t": "z", "n": 1, "b": true}, {"t": null, "n": 2.5}])");
        QCOMPARE(run({"diff", "all.json", "turned.json"}).out, QByteArray("~ 1 t: a -> z\n"));
    }
    void checkingSaysRowsOrWhatIsWrong()
    {
        const Run good = run({"check", "set.rst"});
        QCOMPARE(good.code, 0);
        QCOMPARE(good.out, QByteArray("set.rst: in order, number of rows: 2\n"));
        put("low.rst", get("set.rst").replace("Align='0'", "Align='-1'"));
        QVERIFY(run({"check", "low.rst"}).err.contains("column: Align"));
    }
    void helpAndVersionNeedNoDisplay_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QByteArray>("said");
        for (const char *program : {QVRES, QVDRAW}) {
            const QByteArray name = QFileInfo(QString::fromUtf8(program)).fileName().toUtf8();
            for (const auto &[word, said] :
                 {std::pair("--help", name + " [options]"), {"--version", name + " 0."}})
                QTest::addRow("%s %s", name.data(), word) << QByteArray(program) << word << said;
        }
    }
    void helpAndVersionNeedNoDisplay()
    {
        QFETCH(QByteArray, program);
        QFETCH(QString, word);
        QFETCH(QByteArray, said);
        const Run ended = run({word}, program.data());
        QCOMPARE(ended.code, 0);
        QVERIFY2(ended.out.contains(said), ended.out);
    }
    void errorsGoToStandardErrorWithCodeTwo_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QByteArray>("said");
        const auto row = [](const char *name, const QStringList &words, const char *said) {
            QTest::newRow(name) << words << QByteArray(said);
        };
        row("malformed", {"show", "bad.rst"}, "bad.rst");
        row("missing", {"check", "none.rst"}, "none.rst");
        row("unknown kind", {"show", "x.txt"}, ".rst, .json");
        row("not writable", {"convert", "set.rst", "x.z3l"}, "x.z3l");
        row("several tables", {"convert", "layers.z3l", "x.csv", "--code-page", "windows-1250"},
            "several tables");
        row("no command", {}, "--help");
        row("too few files", {"diff", "set.rst"}, "--help");
        row("unknown option", {"show", "set.rst", "--what"}, "what");
        row("not a drawing", {"show", "all.qvd"}, "all.qvd");
    }
    void errorsGoToStandardErrorWithCodeTwo()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, said);
        put("all.qvd", "not a drawing");
        const Run failed = run(words);
        QCOMPARE(failed.code, 2);
        QCOMPARE(failed.out, QByteArray());
        QVERIFY2(failed.err.contains(said), failed.err);
    }
};

QVDC_TEST(tst_qvres)
#include "tst_qvres.moc"
