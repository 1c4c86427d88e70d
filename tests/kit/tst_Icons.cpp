#include "kit/tools/Icons.h"
#include "support/Registry.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;

namespace {

QImage drawn(const char *name, int side, QIcon::Mode mode = QIcon::Normal)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    toolIcon(name).paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

/// Share of the picture that is inked, in percent, and whether ink touches the border.
int inkOf(const QImage &image, bool *touchesBorder = nullptr)
{
    int inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() < 128) continue;
            ++inked;
            const bool atBorder = x == 0 || y == 0 || x == image.width() - 1 || y == image.height() - 1;
            if (touchesBorder && atBorder) *touchesBorder = true;
        }
    return 100 * inked / (image.width() * image.height());
}

double likeness(const QImage &a, const QImage &b)
{
    int both = 0, any = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const bool inA = a.pixelColor(x, y).alpha() > 127, inB = b.pixelColor(x, y).alpha() > 127;
            both += inA && inB, any += inA || inB;
        }
    return any ? double(both) / any : 1;
}

} // namespace

class tst_Icons : public QObject {
    Q_OBJECT
private slots:
    void everyRowIsAPictureWithinItsSquare()
    {
        for (const IconRow &row : iconRows()) {
            bool cut = false;
            const int ink = inkOf(drawn(row.name, 64), &cut);
            QVERIFY2(ink >= 4 && ink <= 60, row.name);
            QVERIFY2(!cut, row.name);
        }
        QVERIFY(toolIcon("no such idea").isNull());
    }

    void noTwoIdeasLookTheSame()
    {
        for (const IconRow &a : iconRows())
            for (const IconRow &b : iconRows())
                if (&a < &b)
                    QVERIFY2(
                        likeness(drawn(a.name, 32), drawn(b.name, 32)) < 0.95,
                        qPrintable(
                            QStringLiteral("%1 and %2").arg(QLatin1String(a.name), QLatin1String(b.name))));
    }

    void picturesFollowThePaletteAndTheMode()
    {
        const QPalette before = QApplication::palette();
        const QIcon icon = toolIcon("save"); // made before the palette changes
        QPalette dark = before;
        dark.setColor(QPalette::Active, QPalette::WindowText, QColor(0xf0, 0xf1, 0xf2));
        dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x50, 0x51, 0x52));
        dark.setColor(QPalette::Active, QPalette::HighlightedText, QColor(0x10, 0x11, 0x12));
        QApplication::setPalette(dark);
        const auto colorOf = [&](QIcon::Mode mode) {
            return icon.pixmap(64, 64, mode).toImage().pixelColor(32, 58).name();
        };
        const QStringList seen{colorOf(QIcon::Normal), colorOf(QIcon::Disabled), colorOf(QIcon::Selected)};
        QApplication::setPalette(before);
        QCOMPARE(seen, QStringList({"#f0f1f2", "#505152", "#101112"}));
    }
};
QVDC_TEST(tst_Icons)
#include "tst_Icons.moc"
