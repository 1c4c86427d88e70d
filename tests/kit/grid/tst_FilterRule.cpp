#include "support/Registry.h"

#include "kit/grid/FilterRule.h"
#include "kit/grid/RowFilter.h"

#include <QTest>

using namespace QV_DOC_CONTROLS;

class tst_FilterRule : public QObject {
    Q_OBJECT
private slots:
    void wordsChooseRows_data();
    void wordsChooseRows();
    void editedRowIsLookedAtAgain();
};

/// Columns Sorszám, Név, Vonaltípus, Látható; a check box is quiet: only "caption:word" finds it.
static const QString kCaptions[] = {"Sorszám", "Név", "Vonaltípus", "Látható"};
static const char *const kRows[][4] = {{"5", "Földút kerítés", "folytonos", "igen"},
                                       {"79", "Fold 5", "szaggatott", "nem"},
                                       {"790", "Đường ế", "folytonos", "igen"},
                                       {"8", "a:b x*y", "pont vonal", "nem"}};

void tst_FilterRule::wordsChooseRows_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("rows");
    const std::pair<const char *, const char *> cases[] = {
        {"", "0123"},
        {"   ", "0123"},
        {"79", "12"},
        {"79 fo", "12"}, // AND over all columns
        {"FÖLD", "0"},
        {"fold", "01"}, // accents count when typed, case never
        {"duong e", "2"},
        {"ế", "2"},
        {"ê", ""},
        {"-79", "03"},
        {"-", "0123"},
        {"fo -79", "0"},
        {"név:5", "1"},
        {"nev:5", "1"},
        {"N:5", "1"}, // a unique beginning of a caption
        {"s:79", "12"},
        {"név:", "0123"},
        {"-név:fold", "23"},
        {"a:b", "3"},
        {"x:y", ""}, // no such caption: looked for as it is
        {"\"pont vonal\"", "3"},
        {"\"vonal pont\"", ""},
        {"\"Vonaltípus\":pont", "3"},
        {"?", "03"},
        {"7?", "1"},
        {"7*", "12"},
        {"*út*", "0"},
        {"?ường*", "2"},
        {"-*0", "013"},
        {"\"x*y\"", "3"},
        {"igen", ""},
        {"látható:igen", "02"},
        {"l:ne", "13"},
        {"fo szaggatott 79", "1"}};
    for (const auto &[typed, rows] : cases)
        QTest::newRow(*typed ? typed : "nothing") << QString(typed) << QString(rows);
}

void tst_FilterRule::wordsChooseRows()
{
    QFETCH(QString, typed);
    QFETCH(QString, rows);
    const FilterRule rule(typed, kCaptions);
    RowFilter filter;
    filter.reset(4, [](int row, FilterRule::RowFolder &folder) {
        for (int c = 0; c < 4; ++c) folder.add(QString(kRows[row][c]), c == 3);
    });
    QString fitting;
    const std::vector<bool> fit = filter.fitting(rule);
    for (int r = 0; r < 4; ++r) {
        if (fit.empty() || fit[size_t(r)]) fitting += QString::number(r);
        QCOMPARE(filter.fits(r, rule), fit.empty() || fit[size_t(r)]);
    }
    QCOMPARE(fitting, rows);
}

void tst_FilterRule::editedRowIsLookedAtAgain()
{
    std::vector<QString> names(200, "alma");
    RowFilter filter;
    filter.reset(200, [&](int row, FilterRule::RowFolder &folder) { folder.add(names[size_t(row)]); });
    const FilterRule rule(u"körte", std::span(kCaptions).first(1));
    QCOMPARE(std::ranges::count(filter.fitting(rule), true), 0);
    for (int r = 0; r < 150; ++r) {                     // more than are kept apart
        names[size_t(r)] = "körte";
        filter.rowEdited(r);
        QVERIFY(filter.fits(r, rule));
        QCOMPARE(std::ranges::count(filter.fitting(rule), true), r + 1);
    }
}

QVDC_TEST(tst_FilterRule)
#include "tst_FilterRule.moc"
