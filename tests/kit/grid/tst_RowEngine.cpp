#include "support/Registry.h"

#include "kit/grid/RowEngine.h"

#include <QTest>

#include <cmath>

using namespace QV_DOC_CONTROLS;

/// Columns: 0 texts, 1 numbers ("" = none), 2 texts.
struct Cells : RowCells {
    std::vector<QStringList> rows;
    int cellRows() const override { return int(rows.size()); }
    bool sortsByNumber(int column) const override { return column == 1; }
    double number(int row, int column) const override
    {
        bool ok = false;
        const double n = rows[size_t(row)][column].toDouble(&ok);
        return ok ? n : std::nan("");
    }
    QString text(int row, int column) const override { return rows[size_t(row)][column]; }
};

/// "+0" ascending by column 0, "-1" descending by column 1.
static std::vector<SortKey> keys(const QString &text)
{
    std::vector<SortKey> out;
    for (const QString &key : text.split(u' ', Qt::SkipEmptyParts))
        out.push_back({key.mid(1).toInt(), key[0] == u'-' ? SortOrder::Descending : SortOrder::Ascending});
    return out;
}

static QString dump(const RowEngine &engine, const Cells &cells)
{
    QStringList lines;
    for (int line = 0; line < engine.lines(); ++line) {
        const int row = engine.rowAt(line), b = engine.bandAt(line);
        if (row >= 0) { lines << cells.text(row, 0); continue; }
        const int column = engine.groupLevels()[size_t(engine.band(b).level)].column;
        lines << QStringLiteral("[%1:%2%3]")
                     .arg(cells.text(engine.firstRowOf(b), column))
                     .arg(engine.band(b).count)
                     .arg(engine.band(b).expanded ? "" : "-");
    }
    return lines.join(u' ');
}

class tst_RowEngine : public QObject {
    Q_OBJECT
private slots:
    void keysOrderRows_data();
    void keysOrderRows();
    void textsAreOrderedAsTheLanguageDoes_data();
    void textsAreOrderedAsTheLanguageDoes();
    void statesOfBandsOutliveSortEditAndRefill();
    void editedRowMovesAsARebuildWouldPlaceIt();
    void ranksBuiltInStepsAreThoseBuiltAtOnce();
};

void tst_RowEngine::keysOrderRows_data()
{
    QTest::addColumn<QString>("groups");
    QTest::addColumn<QString>("sorts");
    QTest::addColumn<QString>("lines");
    QTest::newRow("as they come") << "" << "" << "b10 b2 A c a";
    QTest::newRow("natural, case last") << "" << "+0" << "a A b2 b10 c";
    QTest::newRow("descending") << "" << "-0" << "c b10 b2 A a";
    QTest::newRow("numbers, none first") << "" << "+1" << "c A b10 a b2";
    QTest::newRow("equal ones stay") << "" << "-1" << "b2 b10 a A c";
    QTest::newRow("two keys") << "" << "+1 -0" << "c A b10 a b2";
    QTest::newRow("groups") << "+2" << "+0" << "[x:3] a A b2 [y:2] b10 c";
    QTest::newRow("groups backward") << "-2" << "" << "[y:2] b10 c [x:3] b2 A a";
    QTest::newRow("two levels") << "+2 -1" << "" << "[x:3] [7:1] b2 [3:1] a [1:1] A [y:2] [3:1] b10 [:1] c";
}

static Cells sample()
{
    Cells cells;
    cells.rows = {{"b10", "3", "y"}, {"b2", "7", "x"}, {"A", "1", "x"}, {"c", "", "y"}, {"a", "3", "x"}};
    return cells;
}

void tst_RowEngine::keysOrderRows()
{
    QFETCH(QString, groups);
    QFETCH(QString, sorts);
    QFETCH(QString, lines);
    const Cells cells = sample();
    RowEngine engine(cells);
    engine.setLocale(QLocale(QLocale::Hungarian));
    engine.setKeys(keys(groups), keys(sorts));
    QCOMPARE(dump(engine, cells), lines);
}

void tst_RowEngine::textsAreOrderedAsTheLanguageDoes_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("lines");
    QTest::newRow("hu") << QLocale(QLocale::Hungarian) << "cukor csap đa Dana dzsem ő z zs";
    QTest::newRow("vi") << QLocale(QLocale::Vietnamese) << "csap cukor Dana dzsem đa ő z zs";
}

/// Hungarian takes "cs" for a letter after c, Vietnamese đ for one after d.
void tst_RowEngine::textsAreOrderedAsTheLanguageDoes()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, lines);
    Cells cells;
    for (const char *word : {"zs", "csap", "z", "cukor", "ő", "đa", "dzsem", "Dana"})
        cells.rows.push_back({word, "", ""});
    RowEngine engine(cells);
    engine.setLocale(locale);
    engine.setKeys({}, keys("+0"));
    QCOMPARE(dump(engine, cells), lines);
}

void tst_RowEngine::statesOfBandsOutliveSortEditAndRefill()
{
    Cells cells = sample();
    RowEngine engine(cells);
    engine.setKeys(keys("+2"), {});
    engine.toggle(0);
    QCOMPARE(dump(engine, cells), "[x:3-] [y:2] b10 c");
    engine.setKeys(keys("-2"), keys("+1"));
    QCOMPARE(dump(engine, cells), "[y:2] c b10 [x:3-]");
    cells.rows[0][2] = "x";
    engine.rowEdited(0, true);
    QVERIFY(!engine.targetOf(0));                       // bands change: no plain move
    engine.rebuild();
    QCOMPARE(dump(engine, cells), "[y:1] c [x:4-]");
    engine.setFitting({false, false, false, true, false});
    QCOMPARE(dump(engine, cells), "[y:1] c");           // no row of x
    cells.rows.push_back({"new", "0", "x"});
    engine.refill({}, engine.groupLevels(), engine.sortKeys());
    QCOMPARE(dump(engine, cells), "[y:1] c [x:5-]");
    QCOMPARE(engine.shownCount(), 6);                   // collapsed rows are shown rows
    QCOMPARE(engine.lineOf(5), -1);
    engine.toggle(1);
    QCOMPARE(dump(engine, cells), "[y:1] c [x:5] new A b10 a b2");
    engine.setAllExpanded(false);
    engine.rebuild();
    QCOMPARE(dump(engine, cells), "[y:1-] [x:5-]");
}

void tst_RowEngine::editedRowMovesAsARebuildWouldPlaceIt()
{
    Cells cells = sample();
    RowEngine engine(cells);
    engine.setKeys({}, keys("+1 +0"));
    const QStringList names{"b2", "zz", "", "A", "b9"}, numbers{"7", "", "3", "100", "-1"};
    for (int i = 0; i < 200; ++i) {
        const int row = i * 7 % 5;
        cells.rows[size_t(row)][i % 2] = i % 2 ? numbers[i / 2 % 5] : names[i / 3 % 5];
        engine.rowEdited(row, true);
        const auto target = engine.targetOf(row);
        QVERIFY(target);
        if (target->from != target->to) engine.place(row, *target);
        QCOMPARE(engine.rowAt(target->to), row);
        RowEngine fresh(cells);
        fresh.setKeys({}, keys("+1 +0"));
        QCOMPARE(engine.shownRows(), fresh.shownRows());
    }
}

void tst_RowEngine::ranksBuiltInStepsAreThoseBuiltAtOnce()
{
    Cells cells;
    for (int i = 0; i < 5000; ++i)
        cells.rows.push_back({QStringLiteral("L %1").arg(i * 3571 % 5000 / 2), "", ""});
    RowEngine engine(cells);
    engine.setLocale(QLocale(QLocale::Hungarian));
    int steps = 1;
    while (!engine.prepare(0)) ++steps;
    QVERIFY(steps > 4);
    engine.setKeys({}, keys("+0"));
    for (int line = 1; line < engine.lines(); ++line) {
        const int before = engine.rowAt(line - 1), row = engine.rowAt(line);
        const int a = cells.text(before, 0).mid(2).toInt(), b = cells.text(row, 0).mid(2).toInt();
        QVERIFY(a < b || (a == b && before < row));
    }
}

QVDC_TEST(tst_RowEngine)
#include "tst_RowEngine.moc"
