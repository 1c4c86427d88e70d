#include "rules/ListViewColumns.h"
#include "support/MemoryStore.h"
#include "support/Registry.h"

#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::MemoryStore;

Q_DECLARE_METATYPE(QV_DOC_CONTROLS::ListViewColumns)

class tst_ListViewColumns : public QObject {
    Q_OBJECT
private:
    const QString m_app = QStringLiteral("ZolWOp"), m_key = QStringLiteral("Pens");
    static QString dump(const ListViewColumns &list)
    {
        QStringList out{QString::number(list.viewMode)};
        for (const auto &c : list.columns) out << c.caption + u':' + QString::number(c.width);
        return out.join(u' ');
    }

private slots:
    void savingWritesThePublishedNames()
    {
        MemoryStore store;
        saveListViewColumns(store, m_app, m_key,
                            {3, {{QStringLiteral("Szám"), 900}, {QStringLiteral("Név"), 2400}}});
        QCOMPARE(store.dump(),
                 QStringList({"ZolWOp/Settings/ColumnCountPens=2", "ZolWOp/Settings/Pens1=900",
                              "ZolWOp/Settings/Pens2=2400", "ZolWOp/Settings/TextPens1=Szám",
                              "ZolWOp/Settings/TextPens2=Név", "ZolWOp/Settings/ViewModePens=3"}));
    }

    void columnsThatAreNoMoreDisappear_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<bool>("gone");
        QTest::newRow("counted") << "3" << true;
        QTest::newRow("damaged count") << "three" << false; // nothing says what there is to delete
        QTest::newRow("absurd count") << "2000000000" << true;
    }
    void columnsThatAreNoMoreDisappear()
    {
        QFETCH(QString, count);
        QFETCH(bool, gone);
        MemoryStore store;
        store.write(m_app, QStringLiteral("Settings"), QStringLiteral("ColumnCountPens"), count);
        store.write(m_app, QStringLiteral("Settings"), QStringLiteral("Pens3"), QStringLiteral("700"));
        store.write(m_app, QStringLiteral("Settings"), QStringLiteral("TextPens3"), QStringLiteral("Old"));
        saveListViewColumns(store, m_app, m_key, {0, {{QStringLiteral("Szám"), 900}}});
        QCOMPARE(store.values.contains(QStringLiteral("ZolWOp/Settings/Pens3")), !gone);
        QCOMPARE(store.values.contains(QStringLiteral("ZolWOp/Settings/TextPens3")), !gone);
        QCOMPARE(store.values.value(QStringLiteral("ZolWOp/Settings/ColumnCountPens")), QStringLiteral("1"));
        QCOMPARE(store.values.value(QStringLiteral("ZolWOp/Settings/ViewModePens")), QStringLiteral("0"));
    }

    void aWidthComesBackOnlyUnderItsCaption_data()
    {
        QTest::addColumn<ListViewColumns>("list");
        QTest::addColumn<QString>("dumped");
        const auto list = [](const char *a, const char *b) {
            return ListViewColumns{7, {{QString::fromUtf8(a), 100}, {QString::fromUtf8(b), 200}}};
        };
        QTest::newRow("same columns") << list("Szám", "Név") << "7 Szám:900 Név:2400";
        QTest::newRow("one was renamed") << list("Szám", "Name") << "7 Szám:900 Name:200";
        QTest::newRow("other order") << list("Név", "Szám") << "7 Név:100 Szám:200";
        QTest::newRow("a column more") << ListViewColumns{7,
                                                          {{QStringLiteral("Szám"), 100},
                                                           {QStringLiteral("Név"), 200},
                                                           {QStringLiteral("Szín"), 300}}}
                                       << "7 Szám:900 Név:2400 Szín:300";
        QTest::newRow("a column less") << ListViewColumns{7, {{QStringLiteral("Szám"), 100}}} << "7 Szám:900";
    }
    void aWidthComesBackOnlyUnderItsCaption()
    {
        QFETCH(ListViewColumns, list);
        MemoryStore store;
        saveListViewColumns(store, m_app, m_key,
                            {3, {{QStringLiteral("Szám"), 900}, {QStringLiteral("Név"), 2400}}});
        loadListViewColumns(store, m_app, m_key, list);
        QTEST(dump(list), "dumped");
    }

    void onlyNumbersAreWidths_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("width");
        QTest::newRow("whole") << "900" << 900;
        QTest::newRow("with a part") << "899.6" << 900;
        QTest::newRow("nothing") << "" << 100;
        QTest::newRow("text") << "wide" << 100;
        QTest::newRow("below nothing") << "-5" << 100;
        QTest::newRow("no number") << "nan" << 100;
        QTest::newRow("wider than any screen") << "1e30" << 144000;
    }
    void onlyNumbersAreWidths()
    {
        QFETCH(QString, stored);
        MemoryStore store;
        ListViewColumns list{0, {{QStringLiteral("Szám"), 100}}};
        saveListViewColumns(store, m_app, m_key, list);
        store.write(m_app, QStringLiteral("Settings"), QStringLiteral("Pens1"), stored);
        loadListViewColumns(store, m_app, m_key, list);
        QTEST(list.columns[0].width, "width");
    }

    void withoutApplicationOrCountNothingHappens()
    {
        MemoryStore store;
        const ListViewColumns list{0, {{QStringLiteral("Szám"), 100}}};
        saveListViewColumns(store, {}, m_key, list);
        QVERIFY(store.values.isEmpty());
        saveListViewColumns(store, m_app, m_key, {0, {{QStringLiteral("Szám"), 900}}});
        ListViewColumns loaded = list;
        loadListViewColumns(store, {}, m_key, loaded);
        QCOMPARE(loaded, list);
        store.remove(m_app, QStringLiteral("Settings"), QStringLiteral("ColumnCountPens"));
        loadListViewColumns(store, m_app, m_key, loaded);
        QCOMPARE(loaded, list);
    }
};
QVDC_TEST(tst_ListViewColumns)
#include "tst_ListViewColumns.moc"
