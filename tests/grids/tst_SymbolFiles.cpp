#include "facade/services/Language.h"
#include "rules/SymbolSet.h"
#include "rules/recordset/RecordsetXml.h"
#include "support/FaultyDoc.h"
#include "support/FullDisk.h"
#include "support/NotingPrompts.h"
#include "support/OwnStore.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/SymbolForm.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using tests::symbol;
using tests::warned;
using Step = ScriptedPrompts::Step;

namespace {

// What the commands say, to the letter.
const QString kSave = QStringLiteral("Jelkulcsok mentése"), kLoad = QStringLiteral("Jelkulcsok beolvasása"),
              kFilter = QStringLiteral("Jelkulcsok (*.rst)|*.rst");
Step saveAsked(const QString &path) { return {"saveFile", kSave, kFilter, path}; }
Step loadAsked(const QString &path) { return {"openFile", kLoad, kFilter, path}; }
Step known(const char *name)
{
    return {"tell", QStringLiteral("Létező jelkulcstípus név"),
            QString::fromUtf8(name) + QStringLiteral(" nevű jelkulcstípus már van!"), {}, Icon::Information};
}

} // namespace

class tst_SymbolFiles : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    std::unique_ptr<tests::OwnStore> m_store;
    QTemporaryDir m_folder;
    QString path() const { return m_folder.filePath(QStringLiteral("a.rst")); }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &bytes) const
    {
        QFile file(path());
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
    }
    void write(const std::vector<tSid> &symbols) const
    {
        write(bytesOf(std::get<Recordset>(symbolSetOf(symbols))));
    }
    void run(const char *tool, const std::vector<int> &selected, std::vector<Step> script,
             const char *group = "MIND")
    {
        tests::SymbolForm form(*m_doc);
        form.chooseGroup(QString::fromUtf8(group));
        form.select(selected);
        ScriptedPrompts user(std::move(script));
        form.run(tool);
        QVERIFY(!form.error);
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_store = std::make_unique<tests::OwnStore>();
        m_doc = tests::symbolDoc({symbol(1, "A"), symbol(2, "B"), symbol(3, "C", "Kettő")});
        QFile::remove(path());
    }
    void cleanup() { m_store.reset(); }

    void theSelectedAreSaved()
    {
        const std::pair<const char *, std::vector<int>> rows[] = {{"miSave2XML", {1, 3}},
                                                                  {"miSaveXML", {}}}; // the columns only
        for (const auto &[tool, selected] : rows) {
            run(tool, selected, {saveAsked(path())});
            std::vector<tSid> expected;
            for (const int n : selected) expected.push_back(*m_doc->symbols().find(qint16(n)));
            QCOMPARE(content(), bytesOf(std::get<Recordset>(symbolSetOf(expected))));
        }
        QVERIFY(m_store->kept.values.values().contains(m_folder.path())); // proposed the next time
    }

    void whatDoesNotFitStopsTheSaving()
    {
        tSid wide = *m_doc->symbols().find(3);
        wide.Code = 40000;
        m_doc->symbols().update(wide);
        write(QByteArray("old"));
        run("miSave2XML", {1, 3},
            {saveAsked(path()),
             warned(kSave,
                     QStringLiteral("A(z) 'C' jelkulcs nem fér a készletfájlba, ezért semmi sem lett "
                                    "elmentve. Túl hosszú vagy túl nagy az adata, javítsd ki: Code"))});
        QCOMPARE(content(), QByteArray("old"));
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("symbols");
        QTest::newRow("written at once") << 300;
        QTest::newRow("kept back until the end") << 3;
    }
    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(int, symbols);
        if (!tests::FullDisk::isPossible) QSKIP("needs a limit on the size of files");
        std::vector<tSid> all;
        for (int n = 1; n <= symbols; ++n)
            all.push_back(symbol(qint16(n), QByteArray::number(n).constData()));
        m_doc = tests::symbolDoc(all);
        write(QByteArray("old"));
        tests::SymbolForm form(*m_doc);
        tests::NotingPrompts user;
        user.path = path();
        form.grid.selectAll();
        {
            const tests::FullDisk full;
            form.run("miSave2XML");
        }
        QVERIFY(user.told.join(u'|').startsWith(
            QStringLiteral("A(z) '%1' fájl nem menthető; ha volt ilyen fájl, a régi tartalma megmaradt.")
                .arg(path())));
        QCOMPARE(content(), QByteArray("old"));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files), QStringList("a.rst"));
        form.run("miSave2XML");
        QCOMPARE(content(), bytesOf(std::get<Recordset>(symbolSetOf(m_doc->symbols().readAll()))));
    }

    void aSetGoesToTheCurrentGroup()
    {
        tSid vector = symbol(1, "V");
        vector.Type = kVectorFont, vector.XwFact = 2.5f, vector.LayId = 77;
        write({vector, symbol(2, "A"), symbol(3, "W")});
        run("moLoadXML", {}, {loadAsked(path()), known("A")}, "Kettő");
        tSid stored = vector;
        stored.SidId = 4, stored.XwFact = 1;
        stored.GroupId = m_doc->symbols().find(3)->GroupId, stored.GroupName = QStringLiteral("Kettő");
        QVERIFY(m_doc->symbols().find(4) == stored);
        QCOMPARE(m_doc->symbols().find(5)->ShortName, QStringLiteral("W"));
        run("miLoadXML", {}, {loadAsked(path()), known("V"), known("A"), known("W")});
        QCOMPARE(m_doc->symbols().count(), 5);
    }

    void numbersRunOut()
    {
        std::vector<tSid> all;
        for (int n = 4; n <= 32766; ++n) all.push_back(symbol(qint16(n), qPrintable(QString::number(n))));
        std::vector<qint16> ids;
        for (tSid &s : all) s.GroupId = m_doc->symbols().find(1)->GroupId;
        m_doc->symbols().addAll(all, ids);
        write({symbol(1, "V"), symbol(2, "W")});
        run("moLoadXML", {},
            {loadAsked(path()), warned(kLoad, QStringLiteral("Nincs hely több jelkulcs számára."))});
        QCOMPARE(m_doc->symbols().find(32767)->ShortName, QStringLiteral("V"));
        run("miAddNew", {},
            {{"text", QStringLiteral("Jelkulcs típus"), QStringLiteral("Az új jelkulcs típus megnevezése|"),
              QStringLiteral("W")},
             warned(QStringLiteral("Jelkulcs típus"), QStringLiteral("Nincs hely több jelkulcs számára."))});
        QCOMPARE(m_doc->symbols().count(), 32767);
    }

    void aWrongFileAddsNothingOrWhatStandsBeforeTheFault_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QString>("says");
        QTest::addColumn<int>("added");
        QTest::newRow("not there") << QByteArray() << QByteArray() << "' fájl nem olvasható" << 0;
        QTest::newRow("no markup") << QByteArray("<") << QByteArray("x") << "készletként. " << 0;
        QTest::newRow("a field is missing") << QByteArray("ShortName") << QByteArray("Shortname2")
                                            << "Hiányzó mező: ShortName" << 0;
        QTest::newRow("a value does not fit") << QByteArray("DspZoom='11'") << QByteArray("DspZoom='300'")
            << "Hibás mező és a jelkulcs sorszáma a fájlban: DspZoom, 2" << 1;
    }
    void aWrongFileAddsNothingOrWhatStandsBeforeTheFault()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QString, says);
        QFETCH(int, added);
        tSid second = symbol(2, "W");
        second.DspZoom = 11;
        write({symbol(1, "V"), second});
        QByteArray bytes = content();
        QVERIFY(bytes.contains(from));
        if (from.isEmpty()) QVERIFY(QFile::remove(path()));
        else write(bytes.replace(from, to));
        tests::SymbolForm form(*m_doc);
        tests::NotingPrompts user;
        user.path = path();
        form.run("moLoadXML");
        QVERIFY2(user.told.size() == 1 && user.told.front().contains(says), qPrintable(user.told.join(u'|')));
        QCOMPARE(m_doc->symbols().count(), 3 + added);
    }

    void whatTheDocumentRefusesStopsTheLoading()
    {
        write({symbol(1, "V"), symbol(2, "W"), symbol(3, "X")});
        tests::FaultyDoc doc(*m_doc);
        tests::SymbolForm form(doc);
        tests::NotingPrompts user;
        user.path = path();
        const QString add = QStringLiteral("symbols.add");
        doc.log.meanwhile = [&](const QString &) {
            if (doc.log.calls.count(add) == 2) doc.log.failNext = add;
        };
        doc.log.calls.clear();
        form.run("moLoadXML");
        QVERIFY_THROWS_EXCEPTION(tests::HostError, std::rethrow_exception(form.error));
        QCOMPARE(m_doc->symbols().readAll().back().ShortName, QStringLiteral("V"));
        QCOMPARE(form.rows(), m_doc->symbols().readAll());
        QCOMPARE(doc.log.calls.filter(QStringLiteral("scopes")),        // one step back for the user
                 (QStringList{"scopes.begin", "scopes.end"}));
    }
};

QVDC_TEST(tst_SymbolFiles)
#include "tst_SymbolFiles.moc"
