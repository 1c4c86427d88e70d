#include "support/Registry.h"

#include "kit/grid/FilterRule.h"
#include "kit/grid/RowFilter.h"

using namespace QV_DOC_CONTROLS;

namespace {

/// Columns Sorszám, Név, Vonaltípus, Látható; a check box is quiet: only "caption:word" finds it.
const QString kCaptions[] = {"Sorszám", "Név", "Vonaltípus", "Látható"};
const char *const kRows[][4] = {{"5", "Földút kerítés", "folytonos", "igen"},
                                {"79", "Fold 5", "szaggatott", "nem"},
                                {"790", "Đường ế", "folytonos", "igen"},
                                {"8", "a:b x*y", "pont vonal", "nem"}};
const std::pair<const char *, const char *> kTyped[] = {
    {"   ", "0123"},  {"79", "12"},          {"79 fo", "12"}, // AND over all columns
    {"FÖLD", "0"},    {"fold", "01"}, // accents count when typed, case never
    {"duong e", "2"}, {"ế", "2"},            {"ê", ""},
    {"-79", "03"},    {"-", "0123"},         {"fo -79", "0"},
    {"név:5", "1"},   {"nev:5", "1"},        {"N:5", "1"}, // a unique beginning of a caption
    {"s:79", "12"},   {"név:", "0123"},      {"-név:fold", "23"},
    {"a:b", "3"},     {"x:y", ""}, // no such caption: looked for as it is
    {"?", "03"},      {"7?", "1"},           {"7*", "12"},
    {"*út*", "0"},    {"?ường*", "2"},       {"-*0", "013"},
    {"\"x*y\"", "3"}, {"\"pont vonal\"", "3"}, {"\"vonal pont\"", ""},
    {"igen", ""},     {"látható:igen", "02"}, {"\"Vonaltípus\":pont", "3"},
    {"l:ne", "13"},   {"fo szaggatott 79", "1"}};

} // namespace

class tst_FilterRule : public QObject {
    Q_OBJECT
private slots:
    void wordsChooseRows()
    {
        RowFilter filter;
        filter.reset(4, [](int row, FilterRule::RowFolder &folder) {
            for (int c = 0; c < 4; ++c) folder.add(QString(kRows[row][c]), c == 3);
        });
        for (const auto &[typed, rows] : kTyped) {
            const FilterRule rule(QString(typed), kCaptions);
            QString all, each;
            const std::vector<bool> fit = filter.fitting(rule);
            for (int r = 0; r < 4; ++r) {
                if (fit.empty() || fit[size_t(r)]) all += QString::number(r);
                if (filter.fits(r, rule)) each += QString::number(r);
            }
            tests::same(typed, all, rows);
            tests::same(typed, each, rows);
        }
    }
    void editedRowIsLookedAtAgain()
    {
        std::vector<QString> names(200, "alma");
        RowFilter filter;
        filter.reset(200, [&](int row, FilterRule::RowFolder &folder) { folder.add(names[size_t(row)]); });
        const FilterRule rule(u"körte", std::span(kCaptions).first(1));
        for (int r = 0; r < 150; ++r) {                     // more than are kept apart
            QCOMPARE(std::ranges::count(filter.fitting(rule), true), r);
            names[size_t(r)] = "körte";
            filter.rowEdited(r);
            QVERIFY(filter.fits(r, rule));
        }
    }
};

QVDC_TEST(tst_FilterRule)
#include "tst_FilterRule.moc"
