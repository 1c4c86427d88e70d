#include "kit/tools/Icons.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

class tst_Icons : public QObject {
    Q_OBJECT
private:
    static bool isInked(const QImage &image, int x, int y) { return image.pixelColor(x, y).alpha() > 127; }
    static QImage drawn(const char *name, int side)
    {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        toolIcon(name).paint(&painter, image.rect());
        return image;
    }
    static double likeness(const QImage &a, const QImage &b)
    {
        int both = 0, any = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x) {
                both += isInked(a, x, y) && isInked(b, x, y);
                any += isInked(a, x, y) || isInked(b, x, y);
            }
        return double(both) / any;
    }

private slots:
    void everyRowIsAPictureWithinItsSquare()
    {
        for (const IconRow &row : iconRows()) {
            const QImage image = drawn(row.name, 64);
            int ink = 0, atBorder = 0;
            for (int i = 0; i < 64 * 64; ++i) {
                const int x = i % 64, y = i / 64;
                ink += isInked(image, x, y);
                atBorder += isInked(image, x, y) && (x % 63 == 0 || y % 63 == 0);
            }
            QVERIFY2(ink > 64 * 64 / 25 && ink < 64 * 64 * 3 / 5 && atBorder == 0, row.name);
        }
        QVERIFY(toolIcon("no such idea").isNull());
    }
    void noTwoIdeasLookTheSame()
    {
        for (const IconRow &a : iconRows())
            for (const IconRow &b : iconRows())
                if (&a < &b && likeness(drawn(a.name, 32), drawn(b.name, 32)) >= 0.95)
                    QFAIL(qPrintable(QString("%1 and %2").arg(a.name, b.name)));
    }
    void picturesFollowThePaletteAndTheMode()
    {
        const QPalette before = QApplication::palette();
        const QIcon icon = toolIcon("save"); // made before the palette changes
        QPalette dark = before;
        dark.setColor(QPalette::Active, QPalette::WindowText, 0xf0f1f2);
        dark.setColor(QPalette::Disabled, QPalette::WindowText, 0x505152);
        dark.setColor(QPalette::Active, QPalette::HighlightedText, 0x101112);
        QApplication::setPalette(dark);
        QStringList seen;
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected})
            seen << icon.pixmap(64, 64, mode).toImage().pixelColor(32, 58).name();
        QApplication::setPalette(before);
        QCOMPARE(seen, QStringList({"#f0f1f2", "#505152", "#101112"}));
    }
};
QVDC_TEST(tst_Icons)
#include "tst_Icons.moc"
