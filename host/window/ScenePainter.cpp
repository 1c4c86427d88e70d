#include "window/ScenePainter.h"

#include "window/LineMarks.h"

#include <QPaintDevice>
#include <QPainter>

namespace refhost {
namespace {

constexpr double kLeastDash = 2;       // pixels: shorter dashes are drawn as a line through
constexpr double kLeastSymbol = 2;     // pixels: smaller symbols are left out
constexpr double kPointArm = 3;        // pixels of the crosses that points are
constexpr double kLeastText = 2.6;     // pixels a capital must have
constexpr double kHairline = 1.25;     // device pixels: thinner lines are drawn as one
constexpr double kRoundness = 3;       // device pixels: from here on round joins can be told from cut ones

/// One painting of a scene.
class Run {
public:
    Run(QPainter &p, const Scene &s, const Viewport &v, const PaintStyle &style, const QRectF &clip)
        : m_painter(p), m_scene(s), m_view(v),
          m_colors(screenColorsOn(style.background, s.resources().pens, s.resources().palette, style.colors)),
          m_visible(clip.isNull() ? v.visible() : v.localRect(clip)), m_ratio(p.device()->devicePixelRatioF())
    {
        double widest = 2 / v.pxPerMetre; // lines have a thickness: their boxes have none
        for (const Batch &b : s.batches()) widest = std::max(widest, b.key.width);
        m_visible.adjust(-widest, -widest, widest, widest);
    }
    void paint()
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setTransform(m_view.transform(), true);
        for (const Batch &b : m_scene.batches())
            if (m_scene.shown(b.key.layer)) paintBatch(b);
        for (const TextTile &tile : m_scene.texts())
            if (tile.box.intersects(m_visible)) paintTexts(tile);
    }

private:
    QColor colorOf(int pen) const { return m_colors[size_t(pen)]; }
    bool seen(const QRectF &box, double reach) const
    {
        return box.adjusted(-reach, -reach, reach, reach).intersects(m_visible);
    }
    void setStroke(const QColor &color, double metres, Qt::PenCapStyle cap)
    {
        const double width = metres * m_view.pxPerMetre * m_ratio;
        const Qt::PenJoinStyle join = width < kRoundness ? Qt::BevelJoin : Qt::RoundJoin;
        m_painter.setPen(QPen(color, isHair(metres) ? 0 : metres, Qt::SolidLine, cap, join));
        m_painter.setBrush(Qt::NoBrush);
    }
    bool isHair(double metres) const { return metres * m_view.pxPerMetre * m_ratio < kHairline; }
    /// The chunk with the pen or brush that is set.
    void paintItems(const Chunk &c, bool hair)
    {
        if (hair) return m_painter.drawPath(c.path);
        for (const Item &item : c.items)
            if (item.box.intersects(m_visible)) m_painter.drawPath(item.path);
    }
    void setFill(const QColor &color)
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
    }
    void paintBatch(const Batch &b)
    {
        const ZolWDoc::tPenStyle *type =
            b.key.lineType < 0 ? nullptr : m_scene.resources().lineTypes.find(qint16(b.key.lineType));
        if (type) return paintPatterned(b, *type);
        if (b.key.filled) setFill(colorOf(b.key.pen));
        else setStroke(colorOf(b.key.pen), b.key.width, Qt::RoundCap);
        const double least = b.key.pass == Pass::Symbols ? kLeastSymbol : 0;
        for (const Chunk &c : b.chunks) {
            if (!seen(c.box, b.key.width + kPointArm / m_view.pxPerMetre)) continue;
            const bool large = c.largest * m_view.pxPerMetre >= least;
            if (large) paintItems(c, !b.key.filled && isHair(b.key.width));
            if (!c.points.isEmpty()) paintPoints(c.points);
        }
    }
    void paintPoints(const QList<QPointF> &points)
    {
        const double arm = kPointArm / m_view.pxPerMetre;
        QList<QLineF> crosses;
        for (const QPointF &p : points)
            crosses << QLineF(p.x() - arm, p.y(), p.x() + arm, p.y())
                    << QLineF(p.x(), p.y() - arm, p.x(), p.y() + arm);
        m_painter.drawLines(crosses);
    }
    void paintPatterned(const Batch &b, const ZolWDoc::tPenStyle &type)
    {
        const double pxPerMm = m_scene.resources().metresPerMm * m_view.pxPerMetre;
        const bool dashed = !type.Pattern.empty() && meanDashMm(type) * pxPerMm >= kLeastDash;
        const double reach = reachOf(type, m_scene.resources());
        const bool marked = reach * m_view.pxPerMetre >= kLeastSymbol;
        for (const Chunk &c : b.chunks) {
            if (!seen(c.box, b.key.width + reach)) continue;
            if (type.PenDown && !dashed) {
                setStroke(colorOf(b.key.pen), b.key.width, Qt::RoundCap);
                paintItems(c, isHair(b.key.width));
            }
            if (dashed || marked) paintParts(m_scene.patternOf(c, type), b, {dashed && type.PenDown, marked});
        }
    }
    struct Wanted {
        bool dashes, marks;
    };
    void paintParts(const Pattern &pattern, const Batch &b, Wanted wanted)
    {
        const QColor color = colorOf(b.key.pen);
        for (const PatternPart &part : pattern) {
            if (!(part.isDashes ? wanted.dashes : wanted.marks) || !part.box.intersects(m_visible)) continue;
            if (!part.isDashes && part.extent * m_view.pxPerMetre < kLeastSymbol / 2) continue;
            if (part.filled) setFill(color);
            else if (part.isDashes) setStroke(color, b.key.width, Qt::FlatCap);
            else setStroke(color, part.width, Qt::RoundCap);
            m_painter.drawPath(part.path);
        }
    }
    void paintTexts(const TextTile &tile)
    {
        for (const TextItem &t : tile.items) {
            if (t.height * m_view.pxPerMetre < kLeastText || !m_scene.shown(t.layer)) continue;
            const QRectF box(t.at - QPointF(t.reach, t.reach), t.at + QPointF(t.reach, t.reach));
            if (!box.intersects(m_visible)) continue;
            const QPainterPath &path = m_scene.pathOf(t);
            if (!t.inked.intersects(m_visible)) continue;
            setFill(colorOf(t.pen));
            m_painter.drawPath(path);
        }
    }

    QPainter &m_painter;
    const Scene &m_scene;
    const Viewport &m_view;
    ScreenColors m_colors;
    QRectF m_visible;        ///< local metres
    double m_ratio;          ///< device pixels per pixel
};

} // namespace

void renderTo(QPainter &p, const Scene &scene, const Viewport &view, const PaintStyle &style,
              const QRectF &clip)
{
    const QRectF area = clip.isNull() ? QRectF(QPointF(0, 0), QSizeF(view.size)) : clip;
    p.save();
    p.setClipRect(area);
    p.fillRect(area, style.background);
    Run(p, scene, view, style, clip).paint();
    p.restore();
}

void renderTo(QPainter &p, const Scene &scene, QSize size, double dpi, const PaintStyle &style)
{
    Viewport view;
    view.size = size;
    view.dpi = dpi;
    view.fit(scene.bounds());
    renderTo(p, scene, view, style);
}

} // namespace refhost
