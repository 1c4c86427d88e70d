#include "dialogs/viewtools/frmChooseList.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QListWidget>
#include <QPushButton>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::whileModal;

using Act = std::function<void(frmChooseList &)>;
Q_DECLARE_METATYPE(Act)

class tst_frmChooseList : public QObject {
    Q_OBJECT
private:
    struct Names final : EntrySource {
        QStringList names;
        explicit Names(QStringList n) : names(std::move(n)) {}
        QStringList entries() const override { return names; }
    };
private slots:
    void theIndexIsThatOfTheChosenEntry_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("index");
        const QStringList three{QStringLiteral("kereszt"), QStringLiteral("kör"), QStringLiteral("kör")};
        QTest::newRow("first at once") << three << Act([](frmChooseList &d) { d.cmdOk->click(); }) << 0;
        QTest::newRow("last, the same text as another") << three << Act([](frmChooseList &d) {
            d.lstKh->setCurrentRow(2);
            d.cmdOk->click();
        }) << 2;
        QTest::newRow("by keys") << three << Act([](frmChooseList &d) {
            QTest::keyClick(d.focusWidget(), Qt::Key_Down);
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
        }) << 1;
        QTest::newRow("double click") << three << Act([](frmChooseList &d) {
            const QPoint at = d.lstKh->visualItemRect(d.lstKh->item(1)).center();
            QTest::mouseClick(d.lstKh->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(d.lstKh->viewport(), Qt::LeftButton, {}, at);
        }) << 1;
        QTest::newRow("cancel") << three << Act([](frmChooseList &d) { d.cmdCancel->click(); }) << -1;
        QTest::newRow("escape") << three << Act([](frmChooseList &d) { QTest::keyClick(&d, Qt::Key_Escape); })
                                << -1;
        QTest::newRow("nothing to choose from") << QStringList() << Act([](frmChooseList &d) {
            d.cmdOk->click(); // disabled
            d.reject();
        }) << -1;
    }
    void theIndexIsThatOfTheChosenEntry()
    {
        QFETCH(QStringList, names);
        QFETCH(Act, act);
        QFETCH(int, index);
        qint32 chosen = 99;
        const auto watch = whileModal<frmChooseList>(act);
        QCOMPARE(frmChooseList().getIndex(Names(names), chosen), index >= 0);
        QCOMPARE(chosen, index);
    }
};
QVDC_TEST(tst_frmChooseList)
#include "tst_frmChooseList.moc"
