#include "dialogs/values/ColorBox.h"

#include "dialogs/values/ColorGrid.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

using namespace tests;

namespace {

using Act = std::function<void(ColorBox &)>;
using Answer = std::optional<int>;

/// Index i is the colour 0x00ii40, so that no two are the same.
std::vector<quint32> palette(size_t count)
{
    std::vector<quint32> colors;
    for (quint32 i = 0; i < count; ++i) colors.push_back(i << 8 | 0x40);
    return colors;
}

ColorIndexQuestion asking(int preset, size_t count = 256)
{
    return {"Képernyő szín", "Melyik szín?", preset, palette(count)};
}

Act typed(const char *keys)
{
    return [=](ColorBox &box) { type(box, keys); };
}

QPoint centreOf(const ColorGrid &grid, int index)
{
    return grid.visualRect(grid.model()->index(index / 16, index % 16)).center();
}

ColorGrid &gridOf(ColorBox &box) { return child<ColorGrid>(box, "grdColors"); }

} // namespace

class tst_ColorBox : public QObject {
    Q_OBJECT
private slots:
    void keysWalkThePalette()
    {
        constexpr auto ctrl = Qt::ControlModifier;
        const std::tuple<int, size_t, Qt::Key, int, Qt::KeyboardModifiers> rows[] = { // of so many colours
            {47, 256, Qt::Key_Right, 48, {}}, {255, 256, Qt::Key_Right, 255, {}},
            {48, 256, Qt::Key_Left, 47, {}}, {0, 256, Qt::Key_Left, 0, {}}, {37, 256, Qt::Key_Up, 21, {}},
            {5, 256, Qt::Key_Up, 5, {}}, {37, 256, Qt::Key_Down, 53, {}}, {37, 256, Qt::Key_Home, 32, {}},
            {5, 20, Qt::Key_Down, 5, {}}, // where the last line is shorter
            {37, 256, Qt::Key_End, 47, {}}, {17, 20, Qt::Key_End, 19, {}}, {37, 256, Qt::Key_Home, 0, ctrl},
            {3, 20, Qt::Key_End, 19, ctrl}, {37, 256, Qt::Key_PageUp, 5, {}},
            {37, 256, Qt::Key_PageDown, 245, {}}, {5, 20, Qt::Key_PageDown, 5, {}}};
        for (const auto &[from, count, key, to, with] : rows) {
            const auto watch = whileModal<ColorBox>([key = key, with = with, to = to](ColorBox &box) {
                QCOMPARE(box.focusWidget(), &gridOf(box));
                QTest::keyClick(box.focusWidget(), key, with);
                QCOMPARE(child<QComboBox>(box, "txtCombo").currentText(), QString::number(to));
                QCOMPARE(child<QLabel>(box, "lblRgb").text(), QStringLiteral("RGB 0, %1, 64").arg(to));
                type(box, "\r");
            });
            QCOMPARE(prompts().colorIndex(asking(from, count)).value_or(-1), to);
        }
    }
    void anIndexIsPickedOrTyped()
    {
        const std::pair<Act, Answer> rows[] = {
            {typed("\r"), 37}, {typed("104\r"), 104}, {typed("x\r"), 37}, {typed("\t5\r"), 5},
            {typed("256\r255\r"), 255}, {typed("5\x1b"), {}},
            {[](ColorBox &box) {
                 QTest::keyClick(&box, Qt::Key_S, Qt::AltModifier); // the label's key
                 type(box, "6\r");
             }, 6},
            {[](ColorBox &box) {
                 QTest::mouseClick(gridOf(box).viewport(), Qt::LeftButton, {}, centreOf(gridOf(box), 18));
                 child<QPushButton>(box, "cmdOk").click();
             }, 18},
            {[](ColorBox &box) {
                 QWidget &swatches = *gridOf(box).viewport();
                 QTest::mouseClick(&swatches, Qt::LeftButton, {}, centreOf(gridOf(box), 19));
                 QTest::mouseDClick(&swatches, Qt::LeftButton, {}, centreOf(gridOf(box), 19));
             }, 19},
            {[](ColorBox &box) {
                 type(box, "100");
                 gridOf(box).setFocus();
                 QTest::keyClick(&gridOf(box), Qt::Key_Right); // walks from there
                 type(box, "\r");
             }, 101}};
        for (const auto &[act, answer] : rows) {
            const auto watch = whileModal<ColorBox>(act);
            QCOMPARE(prompts().colorIndex(asking(37)), answer);
        }
    }
    void anIndexOutsideThePaletteIsShownAndRefused()
    {
        const auto watch = whileModal<ColorBox>([](ColorBox &box) {
            QCOMPARE(child<QComboBox>(box, "txtCombo").currentText(), "20");
            QCOMPARE(gridOf(box).current(), -1);
            QCOMPARE(child<QLabel>(box, "lblRgb").text(), QString());
            type(box, "\r");
            QVERIFY(box.isVisible());
            gridOf(box).setFocus();
            QCOMPARE(gridOf(box).current(), -1);    // looking is not choosing
            QTest::keyClick(&gridOf(box), Qt::Key_Right);
            type(box, "\r");
        });
        QCOMPARE(prompts().colorIndex(asking(20, 20)).value_or(-1), 0);
    }
    void everySwatchSaysItsIndexAndColour()
    {
        ColorGrid grid(palette(20), nullptr);
        const QString said = "17 – RGB 0, 17, 64";
        QCOMPARE(grid.model()->index(1, 1).data(Qt::ToolTipRole).toString(), said);
        QAccessibleTableInterface *const table =
            QAccessible::queryAccessibleInterface(&grid)->tableInterface();
        QCOMPARE(table->cellAt(1, 1)->text(QAccessible::Name), said);
        QVERIFY(!(grid.model()->index(1, 4).flags() & Qt::ItemIsEnabled)); // index 20 is none
    }
};
QVDC_TEST(tst_ColorBox)
#include "tst_ColorBox.moc"
