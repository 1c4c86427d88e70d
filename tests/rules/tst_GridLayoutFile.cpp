#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "rules/GridLayoutFile.h"
#include "support/Registry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;

class tst_GridLayoutFile : public QObject {
    Q_OBJECT
private:
    using Columns = std::vector<GridState::Column>;
    const QString m_table = QStringLiteral("jsLayer");
    const Columns m_builtIn{{QStringLiteral("gNr"), 800},
                            {QStringLiteral("Name"), 3000},
                            {QStringLiteral("Visible"), 0},
                            {QStringLiteral("ColS"), 600, false}};
    const GridState m_state{{{QStringLiteral("Name"), 2500}, {QStringLiteral("gNr"), 810, false},
                             {QStringLiteral("ColS"), 600}, {QStringLiteral("Visible"), 400}},
                            {{QStringLiteral("gNr"), true}, {QStringLiteral("Name"), false}},
                            {{QStringLiteral("Visible"), false}},
                            2};
    static QString dump(const std::optional<GridState> &state)
    {
        if (!state) return QStringLiteral("refused");
        QString out;
        for (const auto &c : state->columns)
            out += QStringLiteral("%1%2:%3 ")
                       .arg(c.visible ? QString() : QStringLiteral("!"), c.key)
                       .arg(c.width);
        for (const auto &l : state->sort)
            out += QStringLiteral("sort %1%2 ").arg(l.descending ? u"-" : u"+", l.key);
        for (const auto &l : state->groups)
            out += QStringLiteral("group %1%2 ").arg(l.descending ? u"-" : u"+", l.key);
        return out + QStringLiteral("view %1").arg(state->view);
    }
    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

private slots:
    void whatWasSavedComesBack()
    {
        QCOMPARE(layoutFrom(layoutBytes(m_table, m_state), m_table, m_builtIn), std::optional(m_state));
    }

    void anotherColumnSetTakesWhatItKnows_data()
    {
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<QString>("state");
        QTest::newRow("a column is new, between two")
            << QStringList{"gNr", "New", "Name", "Visible", "ColS"}
            << "Name:2500 !gNr:810 New:0 ColS:600 Visible:400 sort -gNr sort +Name group +Visible view 2";
        QTest::newRow("columns are new, first and last")
            << QStringList{"New", "gNr", "Name", "Visible", "ColS", "Last"}
            << "New:0 Name:2500 !gNr:810 ColS:600 Last:0 Visible:400 sort -gNr sort +Name group +Visible "
               "view 2";
        QTest::newRow("columns are gone, one a sort key, one a group")
            << QStringList{"Name", "ColS"} << "Name:2500 ColS:600 sort +Name view 2";
        QTest::newRow("no column is left") << QStringList{} << "view 2";
    }
    void anotherColumnSetTakesWhatItKnows()
    {
        QFETCH(QStringList, columns);
        Columns builtIn;
        for (const QString &key : columns) builtIn.push_back({key});
        QTEST(dump(layoutFrom(layoutBytes(m_table, m_state), m_table, builtIn)), "state");
    }

    void aColumnTheFileDoesNotKnowIsAsBuiltIn()
    {
        GridState part = m_state;
        part.columns = {{QStringLiteral("Name"), 2500}};
        QCOMPARE(dump(layoutFrom(layoutBytes(m_table, part), m_table, m_builtIn)),
                 QStringLiteral(
                     "gNr:800 Name:2500 Visible:0 !ColS:600 sort -gNr sort +Name group +Visible view 2"));
    }

    void aFileCutAnywhereIsRefused()
    {
        const QByteArray whole = layoutBytes(m_table, m_state);
        QVERIFY(whole.endsWith("}\n"));
        for (qsizetype n = 0; n < whole.size() - 1; ++n)
            if (layoutFrom(whole.left(n), m_table, m_builtIn))
                QFAIL(qPrintable(QStringLiteral("taken with %1 bytes").arg(n)));
    }

    /// A byte of another file or a bad disk: refused, or a layout that could have been saved, never anything
    /// between.
    void aFileWithAnyByteReplacedIsRefusedOrSound()
    {
        const QByteArray whole = layoutBytes(m_table, m_state);
        for (qsizetype n = 0; n < whole.size(); ++n)
            for (const char c : {'\0', '9', '-', '"', '{', '\xff'}) {
                QByteArray bytes = whole;
                bytes[n] = c;
                const auto state = layoutFrom(bytes, m_table, m_builtIn);
                if (state) QCOMPARE(layoutFrom(layoutBytes(m_table, *state), m_table, m_builtIn), state);
                if (state) QCOMPARE(state->columns.size(), m_builtIn.size());
            }
    }

    void whatIsNotToBeTrustedIsRefused_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::newRow("another table") << QByteArray("jsLayer") << QByteArray("jsTxd");
        QTest::newRow("another form")
            << QByteArray("qv-doc-controls grid layout") << QByteArray("some other thing");
        QTest::newRow("newer version") << QByteArray("\"version\": 1") << QByteArray("\"version\": 2");
        QTest::newRow("no version") << QByteArray("\"version\": 1") << QByteArray("\"vers\": 1");
        QTest::newRow("version zero") << QByteArray("\"version\": 1") << QByteArray("\"version\": 0");
        QTest::newRow("unknown view") << QByteArray("\"view\": 2") << QByteArray("\"view\": 3");
        QTest::newRow("view as text") << QByteArray("\"view\": 2") << QByteArray("\"view\": \"2\"");
        QTest::newRow("width below zero") << QByteArray("\"width\": 2500") << QByteArray("\"width\": -1");
        QTest::newRow("width beyond reason")
            << QByteArray("\"width\": 2500") << QByteArray("\"width\": 2500000");
        QTest::newRow("broken width") << QByteArray("\"width\": 2500") << QByteArray("\"width\": 2.5");
        QTest::newRow("column without key") << QByteArray("\"key\": \"ColS\"") << QByteArray("\"key\": \"\"");
        QTest::newRow("column twice") << QByteArray("\"key\": \"ColS\"") << QByteArray("\"key\": \"Name\"");
        QTest::newRow("no columns") << QByteArray("\"columns\"") << QByteArray("\"rows\"");
        QTest::newRow("no groups") << QByteArray("\"groups\"") << QByteArray("\"rows\"");
        QTest::newRow("too large") << QByteArray("\n}\n") << QByteArray("\n}") + QByteArray(300 * 1024, '\n');
        QTest::newRow("text of another program") << QByteArray() << QByteArray("[layout]\r\ncolumns=4\r\n");
        QTest::newRow("binary") << QByteArray() << QByteArray::fromHex("d0cf11e0a1b11ae1000000");
        QTest::newRow("deep") << QByteArray() << QByteArray(100000, '[');
    }
    void whatIsNotToBeTrustedIsRefused()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QByteArray bytes = layoutBytes(m_table, m_state);
        QVERIFY(from.isEmpty() || bytes.contains(from));
        bytes = from.isEmpty() ? to : bytes.replace(from, to);
        QCOMPARE(dump(layoutFrom(bytes, m_table, m_builtIn)), QStringLiteral("refused"));
    }

    void moreThanFourLevelsAreRefused()
    {
        GridState state;
        for (const char *key : {"a", "b", "c", "d"}) state.sort.push_back({QLatin1String(key)});
        QVERIFY(layoutFrom(layoutBytes(m_table, state), m_table, m_builtIn));
        state.sort.push_back({QStringLiteral("e")});
        QVERIFY(!layoutFrom(layoutBytes(m_table, state), m_table, m_builtIn));
    }

    void eachLanguageHasAFileOfItsOwn_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("name");
        QTest::newRow("Hungarian") << int(Hungarian) << "/jsLayer-hun.jgl";
        QTest::newRow("Romanian") << int(Romanian) << "/jsLayer-ro.jgl";
        QTest::newRow("Vietnamese") << int(Vietnamese) << "/jsLayer-vi.jgl";
        QTest::newRow("English") << int(English) << "/jsLayer-en.jgl";
    }
    void eachLanguageHasAFileOfItsOwn()
    {
        QFETCH(int, language);
        QFETCH(QString, name);
        setLanguage(language, {});
        QCOMPARE(layoutFileName({"jsLayer"}), settingsFolder() + name);
        const LayoutName own{"jsX", {2802, u"OK"}};     // a text of the table's own ends the name
        QCOMPARE(layoutFileName(own), settingsFolder() + QStringLiteral("/jsXOK.jgl"));
        setLanguage(Hungarian, {});
    }

    void savingReplacesTheOldFileWhole()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("jsLayer-hun.jgl"));
        QVERIFY(!loadLayout(path, m_table, m_builtIn));
        saveLayout(path, m_table, m_state);
        GridState other = m_state;
        other.view = 0;
        other.groups.clear();
        saveLayout(path, m_table, other);
        QCOMPARE(loadLayout(path, m_table, m_builtIn), std::optional(other));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList{"jsLayer-hun.jgl"}); // nothing half-written
    }

    void aSaveThatFailsKeepsTheOldFileAndSaysNothing()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("jsLayer-hun.jgl"));
        saveLayout(path, m_table, m_state);
        const QByteArray before = contentOf(path);
        saveLayout(path + QStringLiteral("/below/a/file.jgl"), m_table, {}); // cannot be made
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("taken.jgl")));
        saveLayout(folder.filePath(QStringLiteral("taken.jgl")), m_table, {}); // a folder bears the name
        QCOMPARE(contentOf(path), before);
        QVERIFY(!loadLayout(folder.filePath(QStringLiteral("taken.jgl")), m_table, m_builtIn));
    }

    void aDamagedFileIsLoadedAsNone()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("jsLayer-hun.jgl"));
        saveLayout(path, m_table, m_state);
        QVERIFY(QFile::resize(path, QFile(path).size() / 2));
        QVERIFY(!loadLayout(path, m_table, m_builtIn));
    }
};
QVDC_TEST(tst_GridLayoutFile)
#include "tst_GridLayoutFile.moc"
