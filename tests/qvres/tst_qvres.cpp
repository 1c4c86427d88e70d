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

    void putWhatIsRefused()
    {
        put("deep.json", "[{\"a\":" + QByteArray(300000, '['));
        put("huge.json", R"([{"a": 1e999}])");
        put("twice.json", R"([{"a": 1, "a": 2}])");
        put("twice.csv", "b,a,b\n1,2,3\n");
        put("capitals.json", R"([{"a": 1, "A": 2}])");
        put("nameless.json", R"([{"a": 1, "": 2}])");
        QByteArray spread;
        for (int n = 0; n < 4000; ++n) spread += (n ? ",{\"" : "[{\"") + QByteArray::number(n) + "\":1}";
        put("spread.json", spread + ']');
        std::vector<Recordset::Column> columns;
        for (int n = 0; n < 4000; ++n) columns.push_back({u'k' + QString::number(n), {}, 1});
        std::vector<RecordsetField> fields = Recordset::made(columns).fields();
        std::ranges::transform(fields, fields.begin(), nullable);
        Recordset wide(std::move(fields));
        for (int n = 0; n < 4000; ++n) wide.addRow(Recordset::RowState::Unchanged);
        put("wide.rst", bytesOf(wide));
        if (QFileInfo::exists(m_folder.filePath("kept.csv"))) return;
        put("kept.csv", "");
        QFile::setPermissions(m_folder.filePath("kept.csv"), QFile::ReadOwner);
        QFile::link("loop.csv", m_folder.filePath("loop.csv"));
        QCOMPARE(run({"pipe.csv"}, "mkfifo").code, 0);
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
    void namesThatAreNoXmlNamesComeBack()
    {
        put("names.json", R"([{"a:b": 1, "c0": 2, "x y": 3, "<&>": "q", "a/b": 5, " x": null, "é": 7,
                              "rs:forcenull": 8, "xmlns": 9, "1a": 10, "Név": 11, "a-b": 12}])");
        QCOMPARE(run({"convert", "names.json", "names.rst"}).err, QByteArray());
        const Run same = run({"diff", "names.json", "names.rst"});
        QVERIFY2(same.code == 0 && same.out.isEmpty() && same.err.isEmpty(), same.out + same.err);
        QCOMPARE(get("names.rst").count(" rs:name='"), 10);
    }
    void numbersKeepWhatTheirWritingSays()
    {
        put("codes.csv", "a,b,c,d,e\n007, 3.50,+5,18446744073709551615,123456789012345678901\n");
        const QByteArray shown = run({"show", "codes.csv", "--json"}).out.simplified();
        QCOMPARE(shown, QByteArray(R"([ { "a": "007", "b": 3.5, "c": "+5", "d": 18446744073709551615, )"
                                   R"("e": "123456789012345678901" } ])"));
    }
    void aLinkIsWrittenThrough()
    {
        put("far.csv", "");
        const QString link = m_folder.filePath("near.csv");
        QVERIFY(QFile::link("far.csv", link));
        QCOMPARE(run({"convert", "set.rst", "near.csv"}).err, QByteArray());
        QVERIFY(QFileInfo(link).isSymLink() && get("far.csv").contains("ShortName"));
    }
    void aClosedOutputIsAnError()
    {
        for (const char *words :
             {"--version", "--help", "show set.rst", "show set.rst --json", "check set.rst"}) {
            const Run closed = run({"-c", QStringLiteral("'%1' %2 >&-").arg(QVRES, words)}, "sh");
            QVERIFY2(closed.code == 2 && closed.err.contains("could not be written out"), words);
        }
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
        row("nested deep", {"show", "deep.json"}, "deep.json: A value of the table");
        row("number too large", {"show", "huge.json"},
            "huge.json: A number of the JSON file is too large: 1e999");
        row("key twice", {"show", "twice.json"}, "more than once: a");
        row("column twice", {"show", "twice.csv"}, "twice.csv: A column name is there more than once: b");
        row("but for capitals", {"convert", "capitals.json", "x.rst"}, "more than once: A");
        row("without a name", {"convert", "nameless.json", "x.rst"}, "Column: 2");
        row("too large JSON", {"check", "spread.json"}, "at most: 10000000");
        row("too large set", {"show", "wide.rst"}, "wide.rst: The table is too large");
        row("no model", {"convert", "set.rst", "x.csv", "--like", "none.rst"}, "none.rst: No such file");
        row("onto a pipe", {"convert", "set.rst", "pipe.csv"}, "pipe.csv: what is there is not an ordinary");
        row("onto a link to itself", {"convert", "set.rst", "loop.csv"}, "loop.csv: what is there");
        row("onto a protected file", {"convert", "set.rst", "kept.csv"},
            "kept.csv: the file is write-protected");
    }
    void errorsGoToStandardErrorWithCodeTwo()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, said);
        put("all.qvd", "not a drawing");
        putWhatIsRefused();
        const Run failed = run(words);
        QCOMPARE(failed.code, 2);
        QCOMPARE(failed.out, QByteArray());
        QVERIFY2(failed.err.contains(said), failed.err);
    }
};

QVDC_TEST(tst_qvres)
#include "tst_qvres.moc"
