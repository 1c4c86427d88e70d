#include "kit/tools/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <cstring>

namespace QV_DOC_CONTROLS {
namespace {

QColor colorOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled: return palette.color(QPalette::Disabled, QPalette::WindowText);
    case QIcon::Selected: return palette.color(QPalette::Active, QPalette::HighlightedText);
    default: return palette.color(QPalette::Active, QPalette::WindowText);
    }
}

QByteArray pictureOf(const IconRow &row, const QColor &color)
{
    const QByteArray ink = color.name().toLatin1();
    const QByteArray stroke = "stroke-width='1.2' stroke-linecap='round' stroke-linejoin='round'";
    return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>"
           "<path stroke='none' fill='" + ink + "' d='" + row.areas + "'/>"
           "<path fill='none' stroke='" + ink + "' " + stroke + " d='" + row.lines + "'/></svg>";
}

/// Draws a row anew for every size, scale and colour asked for: it follows the palette without being told.
class PathIconEngine final : public QIconEngine {
public:
    explicit PathIconEngine(const IconRow &row) : m_row(row) {}
    QIconEngine *clone() const override { return new PathIconEngine(m_row); }
    QString iconName() override { return QString::fromLatin1(m_row.name); }
    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override { return size; }
    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State) override
    {
        QSvgRenderer picture(pictureOf(m_row, colorOf(mode)));
        const int side = std::min(place.width(), place.height());
        QRect square({}, QSize(side, side));
        square.moveCenter(place.center());
        painter->setRenderHint(QPainter::Antialiasing);
        picture.render(painter, square);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap out(size);
        out.fill(Qt::transparent);
        QPainter painter(&out);
        paint(&painter, QRect({}, size), mode, state);
        return out;
    }
private:
    const IconRow &m_row;                       // a row of the table
};

} // namespace

QIcon toolIcon(const char *name)
{
    for (const IconRow &row : iconRows())
        if (std::strcmp(row.name, name) == 0) return QIcon(new PathIconEngine(row));
    return {};
}

} // namespace QV_DOC_CONTROLS
