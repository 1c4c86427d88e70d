#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/grid/Grid.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/LayerForm.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAbstractItemView>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;

class tst_clsJs_Layer : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }
    static bool type(Grid &grid, int row, const char *key, const QVariant &value)
    {
        const auto *const column = std::ranges::find(LayerTable::columns, std::string_view(key),
                                                     [](const auto &c) { return std::string_view(c.key); });
        QAbstractItemModel &model = *grid.table()->model();
        return model.setData(model.index(row, int(column - std::begin(LayerTable::columns))), value);
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::layerDoc("1 A, -2 B, 3 C");
    }

    void editsAreCheckedThenWritten_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QVariant>("typed");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("after");
        const QString same = QStringLiteral("1 A, 2 B, 3 C");
        QTest::newRow("free name") << QByteArray("Name") << QVariant("Út") << "" << "" << "1 Út, 2 B, 3 C";
        QTest::newRow("taken name") << QByteArray("Name") << QVariant("B") << "Rétegnév"
                                    << "Létező rétegnév !" << same;
        QTest::newRow("own name again") << QByteArray("Name") << QVariant("A") << "" << "" << same;
        QTest::newRow("free number") << QByteArray("gNr") << QVariant("32767") << ""
                                     << ""
                                     << "32767 A, 2 B, 3 C";
        QTest::newRow("taken number") << QByteArray("gNr") << QVariant("3") << "Rétegsorszám"
                                      << "Létező rétegsorszám !" << same;
        const auto notTaken = [&](const char *name, const char *key, const char *typed, const char *why) {
            const bool isPen = QByteArray(key) == "ScrColor";
            QTest::newRow(name) << QByteArray(key) << QVariant(typed) << (isPen ? "Képernyő szín" : "Sorszám")
                                << QStringLiteral("Réteg: 1/A\nNem fogadható el: %1\n\n%2\nMegengedett: %3")
                                       .arg(typed, why, isPen ? "0\u00a0–\u00a0255" : "1\u00a0–\u00a032767")
                                << same;
        };
        notTaken("no number", "gNr", "tíz", "Írj be egy számot!");
        notTaken("no whole number", "gNr", "2.5", "Egész számot írj be!");
        notTaken("no layer number", "gNr", "0", "A szám túl kicsi.");
        notTaken("beyond 16 bits", "gNr", "32768", "A szám túl nagy.");
        notTaken("no such pen", "ScrColor", "256", "A szám túl nagy.");
        QTest::newRow("empty name") << QByteArray("Name") << QVariant("  ") << "" << "" << same;
    }
    void editsAreCheckedThenWritten()
    {
        QFETCH(QByteArray, key);
        QFETCH(QVariant, typed);
        QFETCH(QString, title);
        QFETCH(QString, message);
        QFETCH(QString, after);
        std::vector<ScriptedPrompts::Step> boxes;
        const Icon icon = message.startsWith(u"Réteg:") ? Icon::Exclamation : Icon::Information;
        if (!message.isEmpty()) boxes.push_back({"tell", title, message, {}, icon});
        ScriptedPrompts user(boxes);
        Grid grid;
        clsJs_Layer js;
        js.setAllowEdit(true);
        js.init(*m_doc, grid, nullptr, true);
        QCOMPARE(type(grid, 0, key.constData(), typed), after != QStringLiteral("1 A, 2 B, 3 C"));
        QCOMPARE(tests::dump(*m_doc), after);
    }
    void nothingIsEditedUnlessAllowed()
    {
        Grid grid;
        clsJs_Layer js;
        js.init(*m_doc, grid, nullptr, true);
        QVERIFY(!js.AllowEdit());
        QVERIFY(!type(grid, 0, "Name", QStringLiteral("X")));
        QCOMPARE(tests::dump(*m_doc), QStringLiteral("1 A, 2 B, 3 C"));
    }

    void previousLayerFollowsUntilItIsDeleted()
    {
        Grid grid;
        clsJs_Layer js;
        js.init(*m_doc, grid, nullptr, true);
        QCOMPARE(js.currentLayer(), qint16(-1));
        const qint16 a = layer(1).LayId, b = layer(2).LayId;
        js.setCurrentLayer(a);
        js.setCurrentLayer(a);
        js.setCurrentLayer(b);
        QCOMPARE(js.previousLayer(), a);
        QCOMPARE(grid.currentRow(), 1);                 // automatic item selection
        m_doc->layers().remove(a, true);
        QCOMPARE(js.numberOf(a), qint16(-1));
        QCOMPARE(js.previousLayer(), b);
        js.setAutomaticItemSelection(false);
        js.setCurrentLayer(layer(3).LayId);
        QCOMPARE(grid.currentRow(), 1);
    }

    void rowsCarryTheirColoursAndTheirVisibility()
    {
        PenColorTable pens = m_doc->penColors().read();
        pens.pen(7).ScrColor = 1;
        m_doc->penColors().write(pens);
        tLay a = layer(1);
        a.ScrColor = 7, a.PrnColor = 0;
        m_doc->layers().update(a);
        Grid grid;
        clsJs_Layer js;
        js.init(*m_doc, grid, nullptr, true);
        const GridStyles &styles = grid.formatStyles();
        QCOMPARE(styles.find(QStringLiteral("7ColorId")).background.rgb() & 0xFFFFFF,
                 m_doc->penColors().palette()[1]);
        QCOMPARE(styles.find(QStringLiteral("0ColorId")).background, QColor(0, 0, 0));
        QCOMPARE(styles.find(QStringLiteral("0ColorId")).text, QColor(255, 255, 255));
        QVERIFY(styles.contains(QStringLiteral("255ColorId")) &&
                !styles.contains(QStringLiteral("256ColorId")));
        QCOMPARE(LayerTable::styles(layer(1)).row, QStringLiteral("OddRow"));
        QCOMPARE(LayerTable::styles(layer(2)).row, QStringLiteral("Grayed"));
        QCOMPARE(LayerTable::styles(layer(1)).cells, (QHash<int, QString>{{4, "7ColorId"}, {5, "0ColorId"}}));
    }

    void pensAreChosenByTheirColour()
    {
        tests::LayerForm form(*m_doc);
        form.select({1});
        QAbstractItemView &table = *form.grid.table();
        for (const int c : {columnOf<LayerTable>("ScrColor"), columnOf<LayerTable>("PrnColor"),
                            columnOf<LayerTable>("PenColorId")}) {
            table.setCurrentIndex(table.currentIndex().siblingAtColumn(c));
            const QString asked = QStringLiteral("Válassz tollat! Réteg: 1/A|") + form.cellOf(0, c);
            ScriptedPrompts user({{"colorIndex", txt(LayerTable::columns[c].caption), asked, 9}});
            QTest::keyClick(&table, Qt::Key_Down, Qt::AltModifier);
            QCOMPARE(LayerTable::columns[c].get(layer(1)).toInt(), 9);
        }
    }

    void aLayerThatItsGroupLeavesOutIsNotReplaced()
    {
        Grid grid, groups;
        clsJs_Layer js;
        js.init(*m_doc, grid, &groups, true);
        js.selectById(layer(3).LayId);
        std::vector<int> counts;
        connect(&js, &clsJs_Layer::SelectedChanched, this, [&](qint32 &count) { counts.push_back(count); });
        groups.setCurrentRow(2);                        // "Utak": even numbers
        QVERIFY(js.selectedLayers().empty() && !js.currentRecord());
        groups.setCurrentRow(0);
        QCOMPARE(js.selectedLayers(), tLayArr{layer(3)});
        QCOMPARE(counts, (std::vector<int>{0, 1}));
    }

    void aRefillKeepsCurrentRowAndSelectionWithTheirLayers()
    {
        Grid grid;
        clsJs_Layer js;
        js.init(*m_doc, grid, nullptr, false);
        const int rows[] = {1, 2};
        grid.setCurrentRow(2);
        grid.selectRows(rows);
        int raised = 0;
        connect(&js, &clsJs_Layer::CurrentChanced, this, [&] { ++raised; });
        m_doc->layers().remove(layer(1).LayId, true);
        js.fill();
        QCOMPARE(raised, 1);
        QCOMPARE(js.selectedLayers(), (tLayArr{layer(2), layer(3)}));
        QCOMPARE(js.currentRecord()->gNr, qint16(3));
    }

    void tooltipsAreTheHostsToSwitchOn()
    {
        for (const bool on : {false, true}) {
            struct Host final : HostServices, SettingsService {
                bool on;
                explicit Host(bool o) : on(o) {}
                SettingsService *settings() override { return this; }
                int version() const override { return 4; }
                bool readBool(const QString &section, const QString &key, bool fallback) const override
                {
                    const bool asked =
                        section == QLatin1String("setup") && key == QLatin1String("ShowTooltipsOnGrid");
                    return asked ? on : fallback;
                }
            } host(on);
            setHostServices(&host);
            Grid grid, groups;
            clsJs_Layer js;
            js.init(*m_doc, grid, &groups, true);
            setHostServices(nullptr);
            for (const auto &[of, text] : {std::pair(&grid, "A"), {&groups, "MIND"}}) {
                const QModelIndex cell = of->table()->model()->index(0, of == &grid ? 1 : 0);
                QCOMPARE(cell.data(Qt::ToolTipRole).toString(), QString(on ? text : ""));
            }
        }
    }
    void aHostErrorInAGroupedGridLeavesItAsItWas()
    {
        tests::FaultyDoc faulty(*m_doc);
        ScriptedPrompts user({{"tell", appTitle(), QStringLiteral("layers.update"), {}, Icon::Exclamation}});
        Grid grid;
        clsJs_Layer js;
        js.setAllowEdit(true);
        js.init(faulty, grid, nullptr, true);
        const SortKey byVisible[] = {{2, SortOrder::Descending}};
        grid.setGroupLevels(byVisible);
        QAbstractItemModel &model = *grid.table()->model();
        const auto lines = [&] {
            QStringList out;
            for (int line = 0; line < model.rowCount(); ++line) out << model.index(line, 1).data().toString();
            return out;
        };
        const QStringList before = lines();
        faulty.log.failNext = QStringLiteral("layers.update");
        QVERIFY(
            !model.setData(model.index(1, 2), Qt::Unchecked, Qt::CheckStateRole)); // would change its band
        QCOMPARE(lines(), before);
        QVERIFY(model.setData(model.index(1, 2), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(lines() != before);
    }
    void aHandlerMayTearItDown()
    {
        Grid grid;
        clsJs_Layer js;
        js.init(*m_doc, grid, nullptr, false);
        connect(&js, &clsJs_Layer::SelectedChanched, &js, &clsJs_Layer::TearDown);
        grid.selectAll();
        QCOMPARE(grid.table()->model()->rowCount(), 0);
    }
    void afterTearDownItIsInert()
    {
        Grid grid;
        clsJs_Layer js;
        js.init(*m_doc, grid, nullptr, true);
        js.TearDown();
        js.TearDown();
        js.fill();
        QVERIFY(!js.selectById(layer(1).LayId));
        QVERIFY(js.selectedLayers().empty() && !js.currentRecord());
        QCOMPARE(grid.table()->model()->rowCount(), 0);
    }
};

QVDC_TEST(tst_clsJs_Layer)
#include "tst_clsJs_Layer.moc"
