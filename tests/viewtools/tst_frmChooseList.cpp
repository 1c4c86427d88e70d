#include "dialogs/viewtools/frmChooseList.h"
#include "support/Modal.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

namespace {
struct Names final : EntrySource {
    QStringList names;
    explicit Names(const QStringList &n) : names(n) {}
    QStringList entries() const override { return names; }
};
} // namespace

class tst_frmChooseList : public QObject {
    Q_OBJECT
private slots:
    void theIndexIsThatOfTheChosenEntry()
    {
        using Act = std::function<void(frmChooseList &)>;
        const QStringList three{"kereszt", "kör", "kör"};
        const Act ok = [](frmChooseList &d) { d.cmdOk->click(); };
        const Act byKeys = [](frmChooseList &d) {
            QTest::keyClick(d.focusWidget(), Qt::Key_Down);
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
        };
        const Act byMouse = [](frmChooseList &d) {
            const QPoint at = d.lstKh->visualItemRect(d.lstKh->item(1)).center();
            QTest::mouseClick(d.lstKh->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(d.lstKh->viewport(), Qt::LeftButton, {}, at);
        };
        const std::tuple<const char *, QStringList, Act, int> rows[] = {
            {"first at once", three, ok, 0}, {"by keys", three, byKeys, 1},
            {"double click", three, byMouse, 1},
            {"last, the same text", three, [=](auto &d) { d.lstKh->setCurrentRow(2), ok(d); }, 2},
            {"cancel", three, [](auto &d) { d.cmdCancel->click(); }, -1},
            {"escape", three, [](auto &d) { QTest::keyClick(&d, Qt::Key_Escape); }, -1},
            {"nothing to choose from", {}, [=](auto &d) { ok(d), d.reject(); }, -1}};
        for (const auto &[name, names, act, index] : rows) {
            qint32 chosen = 99;
            const auto watch = tests::whileModal<frmChooseList>(act);
            tests::same(name, frmChooseList().getIndex(Names(names), chosen), index >= 0);
            tests::same(name, chosen, index);
        }
    }
};
QVDC_TEST(tst_frmChooseList)
#include "tst_frmChooseList.moc"
