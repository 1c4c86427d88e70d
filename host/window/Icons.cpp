#include "window/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStringList>

namespace refhost {
namespace {

constexpr double kGrid = 24;           // the paths are drawn on a square of 24 units
constexpr double kPen = 1.7;           // units

// M, L, C and Z as usual; O x y r is a circle, D x y r a filled one. In the order of Sign.
constexpr const char *kPaths[] = {
    "M 6 3 L 14 3 L 19 8 L 19 21 L 6 21 Z M 14 3 L 14 8 L 19 8",
    "M 3 19 L 3 5 L 9 5 L 11 8 L 19 8 L 19 11 M 3 19 L 7 11 L 22 11 L 18 19 Z",
    "M 4 13 L 4 21 L 20 21 L 20 13 M 12 3 L 12 16 M 7 11 L 12 16 L 17 11",
    "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 M 7 20 L 7 13 L 17 13 L 17 20",
    "M 4 12 L 12 5 L 20 12 M 6 11 L 6 20 L 18 20 L 18 11 M 10 20 L 10 14 L 14 14 L 14 20",
    "M 3 8 L 3 3 L 8 3 M 16 3 L 21 3 L 21 8 M 21 16 L 21 21 L 16 21 M 8 21 L 3 21 L 3 16 M 8 8 L 16 8 L 16 "
    "16 L 8 16 Z",
    "O 10 10 6.5 M 15 15 L 21 21 M 7 10 L 13 10 M 10 7 L 10 13",
    "O 10 10 6.5 M 15 15 L 21 21 M 7 10 L 13 10",
    "M 3 3 L 14 3 L 14 7 M 7 14 L 3 14 L 3 3 O 14 14 4.5 M 17.5 17.5 L 21.5 21.5",
    "M 15 3.5 C 9 4.5 6 9 7 14 C 8 18 12 20.5 16.5 20 C 13 22 8 21.5 5 18 C 1.5 13.5 3 7.5 7.5 4.8 C 9.8 3.4 "
    "12.5 3 15 3.5 Z",
    "M 6 3 L 18 13 L 12.5 13.8 L 15.5 20 L 12.8 21.2 L 10 15 L 6 18.5 Z",
    "M 12 3 L 12 9 M 12 15 L 12 21 M 3 12 L 9 12 M 15 12 L 21 12 D 12 12 1.7",
    "M 5 18 L 10 8 L 14 15 L 19 6 D 5 18 1.9 D 10 8 1.9 D 14 15 1.9 D 19 6 1.9",
    "M 5 7 L 5 4 L 19 4 L 19 7 M 12 4 L 12 20 M 9 20 L 15 20",
    "M 4 6 L 20 6 M 9 6 L 9 3 L 15 3 L 15 6 M 6 6 L 7 21 L 17 21 L 18 6 M 10 10 L 10.4 17 M 14 10 L 13.6 17",
    "M 12 3 L 21 8 L 12 13 L 3 8 Z M 3 12 L 12 17 L 21 12 M 3 16 L 12 21 L 21 16",
    "M 12 2 L 20 6.5 L 12 11 L 4 6.5 Z M 4 10.5 L 12 15 L 20 10.5 M 7 19.5 L 10.5 22.5 L 17 17",
    "M 10 3 L 18 7.5 L 10 12 L 2 7.5 Z M 2 11.5 L 9 15.5 M 2 15.5 L 8 19 M 12 21.5 L 12.8 18 L 19.5 11.3 L "
    "22.2 14 "
    "L 15.5 20.7 Z",
    "M 3 8 L 21 8 L 21 20 L 3 20 Z M 3 8 L 3 4 L 9 4 L 9 8 M 9 5 L 14.5 5 L 14.5 8 M 7 12 L 17 12 M 7 16 L "
    "14 16",
    "M 3 6 L 21 6 M 3 12 L 21 12 M 3 18 L 21 18 D 8 6 2.4 D 16 12 2.4 D 10 18 2.4",
    "M 12 4 L 20 18 L 4 18 Z D 12 13.5 2",
    "M 9 3 L 15 14 L 3 14 Z M 13 19 L 16 22 L 22 14 D 9 10.5 1.6",
    "M 9 3 L 15 14 L 3 14 Z M 12 21.5 L 12.8 18 L 19.5 11.3 L 22.2 14 L 15.5 20.7 Z D 9 10.5 1.6",
};

struct Drawing {
    QPainterPath strokes, discs;
};

Drawing drawingOf(const char *data)
{
    Drawing d;
    const QStringList words = QString::fromLatin1(data).split(u' ');
    const auto number = [&words](qsizetype i) { return words.at(i).toDouble(); };
    for (qsizetype i = 0; i < words.size();) {
        const QChar command = words.at(i++).at(0);
        const qsizetype a = i;
        switch (command.unicode()) {
        case 'M': d.strokes.moveTo(number(a), number(a + 1)), i += 2; break;
        case 'L': d.strokes.lineTo(number(a), number(a + 1)), i += 2; break;
        case 'C':
            d.strokes.cubicTo(number(a), number(a + 1), number(a + 2), number(a + 3), number(a + 4),
                              number(a + 5));
            i += 6;
            break;
        case 'O':
            d.strokes.addEllipse({number(a), number(a + 1)}, number(a + 2), number(a + 2)), i += 3;
            break;
        case 'D': d.discs.addEllipse({number(a), number(a + 1)}, number(a + 2), number(a + 2)), i += 3; break;
        default: d.strokes.closeSubpath(); break;
        }
    }
    return d;
}

class PathEngine final : public QIconEngine {
public:
    explicit PathEngine(Sign sign) : m_sign(sign) {}
    QIconEngine *clone() const override { return new PathEngine(*this); }
    void paint(QPainter *p, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const double side = std::min(rect.width(), rect.height());
        const QColor color = colorFor(mode);
        const Drawing d = drawingOf(kPaths[size_t(m_sign)]);
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        p->translate(QRectF(rect).center() - QPointF(side, side) / 2);
        p->scale(side / kGrid, side / kGrid);
        p->strokePath(d.strokes, QPen(color, kPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p->fillPath(d.discs, color);
        p->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        paint(&p, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

private:
    static QColor colorFor(QIcon::Mode mode)
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::ButtonText);
        if (mode == QIcon::Selected) return palette.color(QPalette::HighlightedText);
        return palette.color(QPalette::ButtonText);
    }
    Sign m_sign;
};

} // namespace

QIcon iconOf(Sign sign) { return QIcon(new PathEngine(sign)); }

} // namespace refhost
