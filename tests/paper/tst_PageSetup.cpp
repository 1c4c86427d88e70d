#include "kit/paper/PageSetupDialog.h"

#include "facade/services/Services.h"
#include "kit/paper/PageSetup.h"
#include "support/Modal.h"
#include "support/Registry.h"

#include <QDoubleSpinBox>

using namespace tests;

namespace {

constexpr auto kPortrait = QPageLayout::Portrait, kLandscape = QPageLayout::Landscape;

QString dump(const QPageLayout &layout)
{
    const QMarginsF m = layout.margins(QPageLayout::Millimeter);
    return QString("%1 %2").arg(layout.pageSize().key(), layout.orientation() == kLandscape ? "L" : "P")
           + QString(" %1 %2 %3 %4").arg(m.left()).arg(m.top()).arg(m.right()).arg(m.bottom());
}

} // namespace

class tst_PageSetup : public QObject {
    Q_OBJECT
private slots:
    void init() { storePageSetup(pageLayoutOf(QPageSize::A4, kPortrait, {15, 15, 15, 15})); }

    void marginsMustLeaveRoom()
    {
        const std::tuple<const char *, QPageLayout, const char *> rows[] = {
            {"just enough", pageLayoutOf(QPageSize::A4, kPortrait, {80, 0, 80, 0}), ""},
            {"too wide", pageLayoutOf(QPageSize::A4, kPortrait, {80, 0, 81, 0}), "49 × 297"},
            {"turned", pageLayoutOf(QPageSize::A4, kLandscape, {80, 0, 81, 0}), ""},
            {"too high", pageLayoutOf(QPageSize::A5, kLandscape, {0, 50, 0, 60}), "210 × 38"},
            {"more than there is", pageLayoutOf(QPageSize::A5, kPortrait, {100, 0, 100, 0}), "0 × 210"}};
        for (const auto &[name, layout, left] : rows) {
            const QString refusal = refusalFor(layout);
            QVERIFY2(refusal.isEmpty() ? !*left : *left && refusal.contains(left), name);
        }
    }
    void whatIsStoredIsUsedUnlessItIsNoPaper()
    {
        const QString usual = "A4 P 15 15 15 15";
        const std::tuple<const char *, QString, QString> rows[] = {
            {"PageMarginTop", "22.5", "A3 L 10 22.5 10 10"}, {"PagePaper", "Papyrus", usual},
            {"PagePaper", "", usual},                        {"PageMarginLeft", "-1", usual},
            {"PageMarginLeft", "100.1", usual},              {"PageMarginLeft", "nan", usual}};
        for (const auto &[key, value, page] : rows) {
            storePageSetup(pageLayoutOf(QPageSize::A3, kLandscape, {10, 10, 10, 10}));
            settingsStore().write("ZolWOp", "Settings", key, value);
            same(key, dump(storedPageSetup()), page);
        }
    }
    void aPrinterRaisesMarginsBelowItsReach()
    {
        QPageLayout layout(QPageSize(QPageSize::A4), kPortrait, {2, 20, 20, 20}, QPageLayout::Millimeter);
        layout.setMinimumMargins({5, 5, 5, 12});
        layout.setMode(QPageLayout::FullPageMode);
        layout.setMargins({2, 20, 20, 3});
        QCOMPARE(dump(withinReach(layout)), "A4 P 5 20 20 12");
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
        QCOMPARE(dump(storedPageSetup()), "Legal L 15 15 30.5 15");
    }
    void impossibleMarginsAreToldInPlaceAndHoldOk()
    {
        PageSetupDialog dialog(pageLayoutOf(QPageSize::A5, kPortrait, {10, 10, 10, 10}), nullptr);
        auto &left = child<QDoubleSpinBox>(dialog, "spinLeft");
        const auto &refusal = child<QLabel>(dialog, "lblRefusal");
        auto &ok = child<QPushButton>(dialog, "cmdOk");
        left.setValue(99);
        QVERIFY(refusal.text().contains("39 × 190") && !ok.isEnabled());
        dialog.accept();                            // the Enter key
        left.setValue(20);
        QVERIFY(refusal.text().isEmpty() && ok.isEnabled());
        child<QPushButton>(dialog, "cmdCancel").click();
        QCOMPARE(dump(storedPageSetup()), "A4 P 15 15 15 15");
    }
};
QVDC_TEST(tst_PageSetup)
#include "tst_PageSetup.moc"
