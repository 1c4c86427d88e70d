#include "dialogs/viewtools/frmShowfields.h"
#include "facade/services/Language.h"
#include "kit/grid/Grid.h"
#include "kit/grid/SampleRows.h"
#include "support/Modal.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

namespace {

using F = frmShowfields;
using Act = std::function<void(F &)>;

QString dump(const F &d)
{
    QString out;
    for (const QListWidget *list : {d.lstAvail, d.lstVisible}) {
        if (list == d.lstVisible) out += u'|';
        for (int row = 0; row < list->count(); ++row)
            out += (list->item(row) == list->currentItem() ? u'*' : u' ') + list->item(row)->text();
    }
    return out;
}
Act current(QListWidget *const F::*list, int row)
{
    return [=](F &d) { (d.*list)->setCurrentRow(row); };
}
Act click(QPushButton *const F::*button)
{
    return [=](F &d) { (d.*button)->click(); };
}
Act doubleClick(QListWidget *const F::*list, int row)
{
    return [=](F &d) {
        const QPoint at = (d.*list)->visualItemRect((d.*list)->item(row)).center();
        QTest::mouseClick((d.*list)->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick((d.*list)->viewport(), Qt::LeftButton, {}, at);
    };
}
Act key(Qt::Key k)
{
    return [=](F &d) {
        d.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QTest::keyClick(&d, k, Qt::AltModifier);
    };
}

/// A grid of the columns A to F that shows D, A, C.
struct Columns {
    tests::SampleRows rows;
    Grid grid;
    bool confirmed = false;
    Columns()
    {
        for (size_t c = 0; c < rows.cols.size(); ++c) rows.cols[c].caption = QChar(u'A' + ushort(c));
        grid.setSource(&rows);
        grid.showColumns(std::vector{3, 0, 2});
    }
    /// What is shown after that work.
    template <class Work> QString after(const Work &work)
    {
        const auto watch = tests::whileModal<F>(work);
        F().ShowFields(grid, confirmed);
        QString shown;
        for (const int c : grid.shownColumns()) shown += rows.cols[size_t(c)].caption;
        return shown;
    }
};

struct Deed {
    const char *name;
    std::vector<Act> acts;
    const char *listed, *shown;
};
const Deed kDeeds[] = {
    {"as it was", {}, "*B E F|*D A C", "DAC"},
    {"add goes to the end", {click(&F::cmdAdd)}, "*E F| D A C*B", "DACB"},
    {"add all", std::vector<Act>(4, click(&F::cmdAdd)), "| D A C B E*F", "DACBEF"},
    {"double click adds", {doubleClick(&F::lstAvail, 1)}, " B*F| D A C*E", "DACE"},
    {"double click removes", {doubleClick(&F::lstVisible, 0)}, " B E F*D|*A C", "AC"},
    {"remove", {current(&F::lstVisible, 1), click(&F::cmdRemove)}, " B E F*A| D*C", "DC"},
    {"remove all", std::vector<Act>(4, click(&F::cmdRemove)), " B E F D A*C|", ""},
    {"up", {current(&F::lstVisible, 2), click(&F::cmdUp)}, "*B E F| D*C A", "DCA"},
    {"up at the top", {click(&F::cmdUp)}, "*B E F|*D A C", "DAC"},
    {"down to the bottom", std::vector<Act>(3, click(&F::cmdDown)), "*B E F| A C*D", "ACD"},
    {"by keys", {key(Qt::Key_Down), key(Qt::Key_Down), key(Qt::Key_Up)}, "*B E F| A*D C", "ADC"},
};

} // namespace

class tst_frmShowfields : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { QVERIFY2(traceObjects().entries().empty(), "a form was not released"); }

    void listsAreFilledWorkedOnAndWritten()
    {
        for (const Deed &deed : kDeeds) {
            Columns columns;
            const QString shown = columns.after([&](F &d) {
                for (const Act &act : deed.acts) act(d);
                tests::same(deed.name, dump(d), deed.listed);
                d.cmdOk->click();
            });
            QVERIFY(columns.confirmed);
            tests::same(deed.name, shown, deed.shown);
        }
    }
    void cancelSaysSoAndLeavesTheGridAlone()
    {
        Columns columns, none;
        columns.confirmed = true;
        const Act escape = [](F &d) { QTest::keyClick(d.focusWidget(), Qt::Key_Escape); };
        QCOMPARE(columns.after([&](F &d) { d.cmdRemove->click(), escape(d); }), "DAC");
        QVERIFY(!columns.confirmed);
        none.grid.setSource(nullptr);
        none.after([](F &d) {                   // nothing can be moved
            for (const QPushButton *b : {d.cmdAdd, d.cmdRemove, d.cmdUp, d.cmdDown}) QVERIFY(!b->isEnabled());
            d.cmdOk->click();
        });
        QVERIFY(none.confirmed);
    }
    void aLanguageChangeKeepsOrderAndShortcuts()
    {
        Columns columns;
        const QString shown = columns.after([&](F &d) {
            d.cmdDown->click();
            for (auto &c : columns.rows.cols) c.caption = c.caption.toLower();
            setLanguage(English, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(dump(d), "*b e f| a*d c");
            key(Qt::Key_Down)(d);
            d.cmdOk->click();
        });
        QCOMPARE(shown, "acd");
        setLanguage(Hungarian, {});
    }
};
QVDC_TEST(tst_frmShowfields)
#include "tst_frmShowfields.moc"
