#include "kit/paper/PageSetupDialog.h"

#include "facade/services/Services.h"
#include "kit/paper/PageSetup.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace QV_DOC_CONTROLS;
using namespace tests;

namespace {

void store(const char *key, const char *value)
{
    settingsStore().write(QStringLiteral("ZolWOp"), QStringLiteral("Settings"), QLatin1String(key),
                          QLatin1String(value));
}

QString dump(const QPageLayout &layout)
{
    const QMarginsF m = layout.margins(QPageLayout::Millimeter);
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(layout.pageSize().key(),
             layout.orientation() == QPageLayout::Landscape ? QStringLiteral("L") : QStringLiteral("P"))
        .arg(m.left())
        .arg(m.top())
        .arg(m.right())
        .arg(m.bottom());
}

} // namespace

class tst_PageSetup : public QObject {
    Q_OBJECT
private slots:
    void init() { storePageSetup(pageLayoutOf(QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 15})); }
    void marginsMustLeaveRoom_data()
    {
        QTest::addColumn<int>("paper");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QMarginsF>("margins");
        QTest::addColumn<QString>("left");          // empty = fine
        QTest::newRow("no margins") << int(QPageSize::A4) << false << QMarginsF() << QString();
        QTest::newRow("just enough") << int(QPageSize::A4) << false << QMarginsF(80, 0, 80, 0) << QString();
        QTest::newRow("too wide") << int(QPageSize::A4) << false << QMarginsF(80, 0, 81, 0)
                                  << QStringLiteral("49 × 297");
        QTest::newRow("turned") << int(QPageSize::A4) << true << QMarginsF(80, 0, 81, 0) << QString();
        QTest::newRow("too high") << int(QPageSize::A5) << true << QMarginsF(0, 50, 0, 60)
                                  << QStringLiteral("210 × 38");
        QTest::newRow("more than the paper")
            << int(QPageSize::A5) << false << QMarginsF(100, 0, 100, 0) << QStringLiteral("0 × 210");
    }
    void marginsMustLeaveRoom()
    {
        QFETCH(int, paper);
        QFETCH(bool, landscape);
        QFETCH(QMarginsF, margins);
        QFETCH(QString, left);
        const auto turned = landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
        const QString refusal = refusalFor(pageLayoutOf(QPageSize::PageSizeId(paper), turned, margins));
        QCOMPARE(refusal.isEmpty(), left.isEmpty());
        QVERIFY2(refusal.contains(left), qPrintable(refusal));
    }
    void whatIsStoredIsUsedUnlessItIsNoPaper_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("page");
        const QString usual = QStringLiteral("A4 P 15 15 15 15");
        QTest::newRow("a change") << QByteArray("PageMarginTop") << QByteArray("22.5")
                                  << QStringLiteral("A3 L 10 22.5 10 10");
        QTest::newRow("no such paper") << QByteArray("PagePaper") << QByteArray("Papyrus") << usual;
        QTest::newRow("nothing stored") << QByteArray("PagePaper") << QByteArray("") << usual;
        QTest::newRow("below the range") << QByteArray("PageMarginLeft") << QByteArray("-1") << usual;
        QTest::newRow("above the range") << QByteArray("PageMarginLeft") << QByteArray("100.1") << usual;
        QTest::newRow("no number") << QByteArray("PageMarginLeft") << QByteArray("nan") << usual;
    }
    void whatIsStoredIsUsedUnlessItIsNoPaper()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        storePageSetup(pageLayoutOf(QPageSize::A3, QPageLayout::Landscape, {10, 10, 10, 10}));
        store(key, value);
        QTEST(dump(storedPageSetup()), "page");
    }
    void aPrinterRaisesMarginsBelowItsReach()
    {
        QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {2, 20, 20, 20},
                           QPageLayout::Millimeter);
        layout.setMinimumMargins({5, 5, 5, 12});
        layout.setMode(QPageLayout::FullPageMode);
        layout.setMargins({2, 20, 20, 3});
        QCOMPARE(dump(withinReach(layout)), QStringLiteral("A4 P 5 20 20 12"));
    }
    void confirmedSetupIsRemembered()
    {
        PageSetupDialog dialog(storedPageSetup(), nullptr);
        auto &paper = child<QComboBox>(dialog, "cboPaper");
        paper.setCurrentIndex(paper.findData(int(QPageSize::Legal)));
        child<QRadioButton>(dialog, "optLandscape").click();
        child<QDoubleSpinBox>(dialog, "spinRight").setValue(30.5);
        child<QPushButton>(dialog, "cmdOk").click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dump(storedPageSetup()), QStringLiteral("Legal L 15 15 30.5 15"));
    }
    void impossibleMarginsAreToldInPlaceAndHoldOk()
    {
        PageSetupDialog dialog(pageLayoutOf(QPageSize::A5, QPageLayout::Portrait, {10, 10, 10, 10}), nullptr);
        auto &left = child<QDoubleSpinBox>(dialog, "spinLeft");
        left.setValue(99);
        QVERIFY(child<QLabel>(dialog, "lblRefusal").text().contains(QStringLiteral("39 × 190")));
        QVERIFY(!child<QPushButton>(dialog, "cmdOk").isEnabled());
        dialog.accept();                            // the Enter key
        QCOMPARE(dump(storedPageSetup()), QStringLiteral("A4 P 15 15 15 15"));
        left.setValue(20);
        QVERIFY(child<QLabel>(dialog, "lblRefusal").text().isEmpty());
        QVERIFY(child<QPushButton>(dialog, "cmdOk").isEnabled());
        child<QPushButton>(dialog, "cmdCancel").click();
        QCOMPARE(dump(storedPageSetup()), QStringLiteral("A4 P 15 15 15 15"));
    }
};
QVDC_TEST(tst_PageSetup)
#include "tst_PageSetup.moc"
