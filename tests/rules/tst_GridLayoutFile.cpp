#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "rules/GridLayoutFile.h"
#include "support/Registry.h"

using namespace tests;

namespace {

using Columns = std::vector<GridState::Column>;
const QString kTable = "jsLayer";
const Columns kBuiltIn{{"gNr", 800}, {"Name", 3000}, {"Visible", 0}, {"ColS", 600, false}};
const GridState kState{{{"Name", 2500}, {"gNr", 810, false}, {"ColS", 600}, {"Visible", 400}},
                       {{"gNr", true}, {"Name", false}}, {{"Visible", false}}, 2};
const QByteArray kBytes = layoutBytes(kTable, kState);

QString dump(const std::optional<GridState> &state)
{
    if (!state) return "refused";
    QString out;
    for (const auto &c : state->columns)
        out += QString("%1%2:%3 ").arg(c.visible ? "" : "!", c.key).arg(c.width);
    for (const auto &l : state->sort) out += QString("sort %1%2 ").arg(l.descending ? "-" : "+", l.key);
    for (const auto &l : state->groups) out += QString("group %1%2 ").arg(l.descending ? "-" : "+", l.key);
    return out + QString("view %1").arg(state->view);
}
std::optional<GridState> read(const QByteArray &bytes) { return layoutFrom(bytes, kTable, kBuiltIn); }

/// What a file says instead of what was saved; all of it when nothing is named.
const std::tuple<const char *, QByteArray, QByteArray> kDamages[] = {
    {"another table", "jsLayer", "jsTxd"},
    {"another form", "qv-doc-controls grid layout", "some other thing"},
    {"newer version", "\"version\": 1", "\"version\": 2"},
    {"no version", "\"version\": 1", "\"vers\": 1"},
    {"version zero", "\"version\": 1", "\"version\": 0"},
    {"unknown view", "\"view\": 2", "\"view\": 3"},
    {"view as text", "\"view\": 2", "\"view\": \"2\""},
    {"width below zero", "\"width\": 2500", "\"width\": -1"},
    {"width beyond reason", "\"width\": 2500", "\"width\": 2500000"},
    {"broken width", "\"width\": 2500", "\"width\": 2.5"},
    {"column without key", "\"key\": \"ColS\"", "\"key\": \"\""},
    {"column twice", "\"key\": \"ColS\"", "\"key\": \"Name\""},
    {"no columns", "\"columns\"", "\"rows\""},
    {"no groups", "\"groups\"", "\"rows\""},
    {"too large", "\n}\n", "\n}" + QByteArray(300 * 1024, '\n')},
    {"text of another program", {}, "[layout]\r\ncolumns=4\r\n"},
    {"binary", {}, QByteArray::fromHex("d0cf11e0a1b11ae1000000")},
    {"deep", {}, QByteArray(100000, '[')},
};

} // namespace

class tst_GridLayoutFile : public QObject {
    Q_OBJECT
private slots:
    void anotherColumnSetTakesWhatItKnows()
    {
        const QString rest = "sort -gNr sort +Name group +Visible view 2";
        const std::tuple<const char *, QStringList, QString> rows[] = {
            {"the same",
             {"gNr", "Name", "Visible", "ColS"},
             "Name:2500 !gNr:810 ColS:600 Visible:400 " + rest},
            {"a column is new, between two",
             {"gNr", "New", "Name", "Visible", "ColS"},
             "Name:2500 !gNr:810 New:0 ColS:600 Visible:400 " + rest},
            {"columns are new, first and last",
             {"New", "gNr", "Name", "Visible", "ColS", "Last"},
             "New:0 Name:2500 !gNr:810 ColS:600 Last:0 Visible:400 " + rest},
            {"columns are gone, one a sort key, one a group",
             {"Name", "ColS"},
             "Name:2500 ColS:600 sort +Name view 2"},
            {"no column is left", {}, "view 2"}};
        for (const auto &[name, columns, state] : rows) {
            Columns builtIn;
            for (const QString &key : columns) builtIn.push_back({key});
            same(name, dump(layoutFrom(kBytes, kTable, builtIn)), state);
        }
        GridState part = kState;
        part.columns = {{"Name", 2500}};
        QCOMPARE(dump(read(layoutBytes(kTable, part))), "gNr:800 Name:2500 Visible:0 !ColS:600 " + rest);
    }

    /// A byte of another file or a bad disk: refused, or a layout that could have been saved, never anything
    /// between.
    void aFileCutOrWithAnyByteReplacedIsRefusedOrSound()
    {
        QVERIFY(kBytes.endsWith("}\n"));
        for (qsizetype n = 0; n < kBytes.size(); ++n) {
            QVERIFY2(n == kBytes.size() - 1 || !read(kBytes.left(n)), qPrintable(QString::number(n)));
            for (const char c : {'\0', '9', '-', '"', '{', '\xff'}) {
                QByteArray bytes = kBytes;
                bytes[n] = c;
                const auto state = read(bytes);
                if (!state) continue;
                QCOMPARE(read(layoutBytes(kTable, *state)), state);
                QCOMPARE(state->columns.size(), kBuiltIn.size());
            }
        }
    }

    void whatIsNotToBeTrustedIsRefused()
    {
        for (const auto &[name, from, to] : kDamages) {
            QVERIFY2(kBytes.contains(from), name);
            same(name, dump(read(from.isEmpty() ? to : QByteArray(kBytes).replace(from, to))), "refused");
        }
        GridState state;
        for (const char *key : {"a", "b", "c", "d", "e"}) {
            QVERIFY(read(layoutBytes(kTable, state)));
            state.sort.push_back({key});
        }
        QVERIFY(!read(layoutBytes(kTable, state)));     // more than four levels
    }

    void eachLanguageHasAFileOfItsOwn()
    {
        for (const auto &[language, name] : {std::pair(Romanian, "/jsLayer-ro.jgl"),
                                             {Vietnamese, "/jsLayer-vi.jgl"},
                                             {English, "/jsLayer-en.jgl"},
                                             {Hungarian, "/jsLayer-hun.jgl"}}) {
            setLanguage(language, {});
            QCOMPARE(layoutFileName({"jsLayer"}), settingsFolder() + name);
        }
        const LayoutName own{"jsX", {2802, u"OK"}};     // a text of the table's own ends the name
        QCOMPARE(layoutFileName(own), settingsFolder() + "/jsXOK.jgl");
    }

    void savingReplacesTheOldFileWholeOrFailsInSilence()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("jsLayer-hun.jgl"), taken = folder.filePath("taken.jgl");
        QVERIFY(!loadLayout(path, kTable, kBuiltIn));
        saveLayout(path, kTable, {});
        saveLayout(path, kTable, kState);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList{"jsLayer-hun.jgl"});           // nothing half-written
        saveLayout(path + "/below/a/file.jgl", kTable, {}); // cannot be made
        QVERIFY(QDir().mkdir(taken));
        saveLayout(taken, kTable, {});                      // a folder bears the name
        QVERIFY(!loadLayout(taken, kTable, kBuiltIn));
        QCOMPARE(loadLayout(path, kTable, kBuiltIn), std::optional(kState));
        QVERIFY(QFile::resize(path, kBytes.size() / 2) && !loadLayout(path, kTable, kBuiltIn));
    }
};
QVDC_TEST(tst_GridLayoutFile)
#include "tst_GridLayoutFile.moc"
