#include "support/Registry.h"

#include "kit/grid/RowEngine.h"

#include <cmath>

using namespace QV_DOC_CONTROLS;

/// Columns: 0 texts, 1 numbers ("" = none).
struct Cells : RowCells {
    std::vector<QStringList> rows;
    int cellRows() const override { return int(rows.size()); }
    bool sortsByNumber(int column) const override { return column == 1; }
    double number(int row, int column) const override
    {
        const QString shown = text(row, column);
        return shown.isEmpty() ? std::nan("") : shown.toDouble();
    }
    QString text(int row, int column) const override { return rows[size_t(row)].value(column); }
};

/// What a grid cannot be brought to show in the test that walks it: languages, missing numbers, many rows.
class tst_RowEngine : public QObject {
    Q_OBJECT
private:
    static QString texts(const Cells &cells, QLocale::Language language, SortKey by)
    {
        RowEngine engine(cells);
        engine.setLocale(QLocale(language));
        engine.setKeys({}, std::vector{by});
        QStringList out;
        for (const int row : engine.shownRows()) out << cells.text(row, 0);
        return out.join(u' ');
    }
private slots:
    void textsAreOrderedAsTheLanguageDoes()
    {
        Cells cells;
        for (const char *word : {"zs", "csap", "z", "cukor", "ő", "đa", "dzsem", "Dana"})
            cells.rows.push_back({word});
        // Hungarian takes "cs" for a letter after c, Vietnamese đ for one after d.
        QCOMPARE(texts(cells, QLocale::Hungarian, {0}), "cukor csap đa Dana dzsem ő z zs");
        QCOMPARE(texts(cells, QLocale::Vietnamese, {0}), "csap cukor Dana dzsem đa ő z zs");
    }
    void rowsWithoutANumberGoFirst()
    {
        Cells cells;
        cells.rows = {{"b10", "3"}, {"b2", "-7"}, {"A", "1"}, {"c", ""}, {"a", "3"}};
        QCOMPARE(texts(cells, QLocale::Hungarian, {1}), "c b2 A b10 a");
        QCOMPARE(texts(cells, QLocale::Hungarian, {1, SortOrder::Descending}), "b10 a A b2 c");
        QCOMPARE(texts(cells, QLocale::Hungarian, {0}), "a A b2 b10 c");
    }
    void ranksBuiltInStepsAreThoseBuiltAtOnce()
    {
        Cells cells;
        for (int i = 0; i < 5000; ++i) cells.rows.push_back({QString("L %1").arg(i * 3571 % 5000 / 2)});
        RowEngine engine(cells);
        engine.setLocale(QLocale(QLocale::Hungarian));
        int steps = 1;
        while (!engine.prepare(0)) ++steps;
        QVERIFY(steps > 4);
        engine.setKeys({}, std::vector<SortKey>{{0}});
        for (int line = 1; line < engine.lines(); ++line) {
            const int before = engine.rowAt(line - 1), row = engine.rowAt(line);
            const int a = cells.text(before, 0).mid(2).toInt(), b = cells.text(row, 0).mid(2).toInt();
            QVERIFY(a < b || (a == b && before < row));
        }
    }
};

QVDC_TEST(tst_RowEngine)
#include "tst_RowEngine.moc"
