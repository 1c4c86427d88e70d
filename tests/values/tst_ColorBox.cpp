#include "dialogs/values/ColorBox.h"

#include "dialogs/values/ColorGrid.h"
#include "support/Modal.h"
#include "support/Registry.h"
#include "support/Typing.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace QV_DOC_CONTROLS;
using namespace tests;

using Act = std::function<void(ColorBox &)>;
using Answer = std::optional<int>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Answer)

namespace {

/// Index i is the colour 0x00ii40, so that no two are the same.
std::vector<quint32> palette(size_t count)
{
    std::vector<quint32> colors;
    for (quint32 i = 0; i < count; ++i) colors.push_back(i << 8 | 0x40);
    return colors;
}

ColorIndexQuestion asking(int preset, size_t count = 256)
{
    return {QStringLiteral("Képernyő szín"), QStringLiteral("Melyik szín?"), preset, palette(count)};
}

Act typed(const char *keys)
{
    return [=](ColorBox &box) { type(box, QString::fromUtf8(keys)); };
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
    void keysWalkThePalette_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("control");
        QTest::addColumn<int>("to");
        const auto row = [](const char *name, int from, int count, Qt::Key key, int to, bool ctrl = false) {
            QTest::newRow(name) << from << count << int(key) << ctrl << to;
        };
        row("right", 37, 256, Qt::Key_Right, 38);
        row("right over the end of the line", 47, 256, Qt::Key_Right, 48);
        row("right at the end", 255, 256, Qt::Key_Right, 255);
        row("left over the beginning of the line", 48, 256, Qt::Key_Left, 47);
        row("left at the beginning", 0, 256, Qt::Key_Left, 0);
        row("up", 37, 256, Qt::Key_Up, 21);
        row("up in the first line", 5, 256, Qt::Key_Up, 5);
        row("down", 37, 256, Qt::Key_Down, 53);
        row("down where the last line is shorter", 5, 20, Qt::Key_Down, 5);
        row("home", 37, 256, Qt::Key_Home, 32);
        row("end", 37, 256, Qt::Key_End, 47);
        row("end of a shorter line", 17, 20, Qt::Key_End, 19);
        row("very first", 37, 256, Qt::Key_Home, 0, true);
        row("very last", 3, 20, Qt::Key_End, 19, true);
        row("first line", 37, 256, Qt::Key_PageUp, 5);
        row("last line", 37, 256, Qt::Key_PageDown, 245);
        row("last line that reaches so far", 5, 20, Qt::Key_PageDown, 5);
    }
    void keysWalkThePalette()
    {
        QFETCH(int, from);
        QFETCH(int, count);
        QFETCH(int, key);
        QFETCH(bool, control);
        QFETCH(int, to);
        const auto watch = whileModal<ColorBox>([&](ColorBox &box) {
            QCOMPARE(box.focusWidget(), &gridOf(box));
            QTest::keyClick(box.focusWidget(), Qt::Key(key), control ? Qt::ControlModifier : Qt::NoModifier);
            QCOMPARE(child<QComboBox>(box, "txtCombo").currentText(), QString::number(to));
            QCOMPARE(child<QLabel>(box, "lblRgb").text(), QStringLiteral("RGB 0, %1, 64").arg(to));
            type(box, QStringLiteral("\r"));
        });
        QCOMPARE(prompts().colorIndex(asking(from, size_t(count))).value_or(-1), to);
    }
    void anIndexIsPickedOrTyped_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("as proposed") << typed("\r") << Answer(37);
        QTest::newRow("typed over the swatches") << typed("104\r") << Answer(104);
        QTest::newRow("letters are no index") << typed("x\r") << Answer(37);
        QTest::newRow("typed in its line") << typed("\t5\r") << Answer(5);
        QTest::newRow("by the label's key") << Act([](ColorBox &box) {
            QTest::keyClick(&box, Qt::Key_S, Qt::AltModifier);
            type(box, QStringLiteral("6\r"));
        }) << Answer(6);
        QTest::newRow("refused and typed again") << typed("256\r255\r") << Answer(255);
        QTest::newRow("escape") << typed("5\x1b") << Answer();
        QTest::newRow("clicked") << Act([](ColorBox &box) {
            QTest::mouseClick(gridOf(box).viewport(), Qt::LeftButton, {}, centreOf(gridOf(box), 18));
            child<QPushButton>(box, "cmdOk").click();
        }) << Answer(18);
        QTest::newRow("double click") << Act([](ColorBox &box) {
            QWidget &swatches = *gridOf(box).viewport();
            QTest::mouseClick(&swatches, Qt::LeftButton, {}, centreOf(gridOf(box), 19));
            QTest::mouseDClick(&swatches, Qt::LeftButton, {}, centreOf(gridOf(box), 19));
        }) << Answer(19);
        QTest::newRow("typed, then walked from there") << Act([](ColorBox &box) {
            type(box, QStringLiteral("100"));
            gridOf(box).setFocus();
            QTest::keyClick(&gridOf(box), Qt::Key_Right);
            type(box, QStringLiteral("\r"));
        }) << Answer(101);
    }
    void anIndexIsPickedOrTyped()
    {
        QFETCH(Act, act);
        const auto watch = whileModal<ColorBox>(act);
        QTEST(prompts().colorIndex(asking(37)), "answer");
    }
    void anIndexOutsideThePaletteIsShownAndRefused()
    {
        const auto watch = whileModal<ColorBox>([](ColorBox &box) {
            QCOMPARE(child<QComboBox>(box, "txtCombo").currentText(), QStringLiteral("20"));
            QCOMPARE(gridOf(box).current(), -1);
            QCOMPARE(child<QLabel>(box, "lblRgb").text(), QString());
            type(box, QStringLiteral("\r"));
            QVERIFY(box.isVisible());
            gridOf(box).setFocus();
            QCOMPARE(gridOf(box).current(), -1);    // looking is not choosing
            QTest::keyClick(&gridOf(box), Qt::Key_Right);
            type(box, QStringLiteral("\r"));
        });
        QCOMPARE(prompts().colorIndex(asking(20, 20)).value_or(-1), 0);
    }
    void everySwatchSaysItsIndexAndColour()
    {
        ColorGrid grid(palette(20), nullptr);
        const QString said = QStringLiteral("17 – RGB 0, 17, 64");
        QCOMPARE(grid.model()->index(1, 1).data(Qt::ToolTipRole).toString(), said);
        QAccessibleTableInterface *const table =
            QAccessible::queryAccessibleInterface(&grid)->tableInterface();
        QCOMPARE(table->cellAt(1, 1)->text(QAccessible::Name), said);
        QVERIFY(!(grid.model()->index(1, 4).flags() & Qt::ItemIsEnabled)); // index 20 is none
    }
    void theChosenSwatchIsFramedOnAnyPalette_data()
    {
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<QColor>("text");
        QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
        QTest::newRow("dark") << QColor(35, 35, 35) << QColor(Qt::white);
    }
    void theChosenSwatchIsFramedOnAnyPalette()
    {
        QFETCH(QColor, ground);
        QFETCH(QColor, text);
        const std::vector<quint32> colors{0x000000, 0xffffff, 0x232323};
        ColorGrid grid(colors, nullptr);
        QPalette look = grid.palette();
        look.setColor(QPalette::Base, ground);
        look.setColor(QPalette::Text, text);
        grid.setPalette(look);
        for (int chosen = 0; chosen < 3; ++chosen) {
            grid.setCurrent(chosen);
            const QImage picture = grid.viewport()->grab().toImage();
            for (int i = 0; i < 3; ++i) {
                const QRect cell = grid.visualRect(grid.model()->index(0, i));
                QCOMPARE(picture.pixelColor(cell.topLeft()), i == chosen ? text : ground);
                QCOMPARE(picture.pixelColor(cell.center()), QColor(QRgb(colors[size_t(i)])));
            }
        }
    }
};
QVDC_TEST(tst_ColorBox)
#include "tst_ColorBox.moc"
