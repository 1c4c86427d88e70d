#include "rules/ListViewColumns.h"
#include "support/MemoryStore.h"
#include "support/Registry.h"

using namespace tests;

namespace {

const QString kApp = "ZolWOp", kKey = "Pens";
const ListViewColumns kPens{3, {{"Szám", 900}, {"Név", 2400}}};

QString dump(const ListViewColumns &list)
{
    QStringList out{QString::number(list.viewMode)};
    for (const auto &c : list.columns) out << c.caption + u':' + QString::number(c.width);
    return out.join(u' ');
}
/// A store with these columns in it, and one value replaced.
MemoryStore stored(const ListViewColumns &list, const QString &key = {}, const QString &value = {})
{
    MemoryStore store;
    saveListViewColumns(store, kApp, kKey, list);
    if (!key.isEmpty()) store.write(kApp, "Settings", key, value);
    return store;
}

} // namespace

class tst_ListViewColumns : public QObject {
    Q_OBJECT
private slots:
    void savingWritesThePublishedNames()
    {
        QCOMPARE(stored(kPens).dump(),
                 QStringList({"ZolWOp/Settings/ColumnCountPens=2", "ZolWOp/Settings/Pens1=900",
                              "ZolWOp/Settings/Pens2=2400", "ZolWOp/Settings/TextPens1=Szám",
                              "ZolWOp/Settings/TextPens2=Név", "ZolWOp/Settings/ViewModePens=3"}));
    }

    void columnsThatAreNoMoreDisappear()
    {
        const QStringList kept{"ZolWOp/Settings/ColumnCountPens=1", "ZolWOp/Settings/Pens1=900",
                               "ZolWOp/Settings/TextPens1=Szám", "ZolWOp/Settings/ViewModePens=0"};
        for (const char *count : {"2", "three", "2000000000"}) {
            MemoryStore store = stored(kPens, "ColumnCountPens", count);
            saveListViewColumns(store, kApp, kKey, {0, {{"Szám", 900}}});
            if (*count == 't') // nothing says what there is to delete
                for (const char *old : {"Pens2", "TextPens2"})
                    QCOMPARE(store.values.remove(QString("ZolWOp/Settings/") + old), 1);
            same(count, store.dump(), kept);
        }
    }

    void aWidthComesBackOnlyUnderItsCaption()
    {
        const std::tuple<const char *, QStringList, const char *> rows[] = {
            {"same columns", {"Szám", "Név"}, "7 Szám:900 Név:2400"},
            {"one was renamed", {"Szám", "Name"}, "7 Szám:900 Name:100"},
            {"other order", {"Név", "Szám"}, "7 Név:100 Szám:100"},
            {"a column more", {"Szám", "Név", "Szín"}, "7 Szám:900 Név:2400 Szín:100"},
            {"a column less", {"Szám"}, "7 Szám:900"}};
        for (const auto &[name, captions, dumped] : rows) {
            ListViewColumns list{7, {}};
            for (const QString &caption : captions) list.columns.push_back({caption, 100});
            loadListViewColumns(stored(kPens), kApp, kKey, list);
            same(name, dump(list), dumped);
        }
    }

    void onlyNumbersAreWidths()
    {
        for (const auto &[text, width] : {std::pair("900", 900), {"899.6", 900}, {"", 100}, {"wide", 100},
                                          {"-5", 100}, {"nan", 100}, {"1e30", 144000}}) {
            ListViewColumns list{0, {{"Szám", 100}}};
            loadListViewColumns(stored(list, "Pens1", text), kApp, kKey, list);
            same(text, list.columns[0].width, width);
        }
    }

    void withoutApplicationOrCountNothingHappens()
    {
        MemoryStore none;
        saveListViewColumns(none, {}, kKey, kPens);
        QVERIFY(none.values.isEmpty());
        const ListViewColumns list{0, {{"Szám", 100}}};
        ListViewColumns loaded = list;
        loadListViewColumns(stored(kPens), {}, kKey, loaded);
        loadListViewColumns(stored(kPens, "ColumnCountPens", {}), kApp, kKey, loaded);
        QCOMPARE(loaded, list);
    }
};
QVDC_TEST(tst_ListViewColumns)
#include "tst_ListViewColumns.moc"
