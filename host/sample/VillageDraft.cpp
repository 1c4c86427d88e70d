#include "sample/VillageDraft.h"

namespace refhost::village {
namespace {

constexpr double kBulgeLess = 0;
constexpr int kBaseline = 24;

template <class At> std::vector<Spot> sampled(At at, double from, double to, double offset, double step)
{
    const int n = std::max(1, int(std::ceil(std::abs(to - from) / step)));
    std::vector<Spot> course;
    for (int i = 0; i <= n; ++i) {
        const double t = from + (to - from) * i / n;
        const double ahead = to > from ? 0.5 : -0.5;
        course.push_back(at(t) + leftOf(unit(at(t + ahead) - at(t - ahead))) * offset);
    }
    return course;
}

} // namespace

std::vector<Spot> along(Course c, double from, double to, double offset, double step)
{
    return sampled([c](double u) { return Spot{u, c(u)}; }, from, to, offset, step);
}

std::vector<Spot> across(Course c, double from, double to, double offset, double step)
{
    return sampled([c](double v) { return Spot{c(v), v}; }, from, to, offset, step);
}

Element &Draft::begin(ElementKind kind, qint16 layer)
{
    Element &e = elements.emplace_back();
    e.kind = kind;
    e.layId = m_numbers.layers.value(layer, -1);
    return e;
}

Element &Draft::line(qint16 layer, const std::vector<Spot> &course, bool closed)
{
    std::vector<Place> places;
    for (const Spot &s : course) places.push_back(placeOf(s));
    return lineAt(layer, places, closed);
}

Element &Draft::lineAt(qint16 layer, const std::vector<Place> &course, bool closed)
{
    Element &e = begin(ElementKind::Line, layer);
    for (const Place &p : course) e.vertices.push_back({p.x, p.y, kBulgeLess});
    e.closed = closed;
    return e;
}

Element &Draft::arc(qint16 layer, Spot from, Spot to, double bulge)
{
    Element &e = line(layer, {from, to});
    e.vertices.front().bulge = bulge;
    return e;
}

Element &Draft::fill(qint16 layer, const std::vector<Spot> &ring)
{
    Element &e = line(layer, ring);
    e.kind = ElementKind::Fill;
    return e;
}

Element &Draft::text(qint16 layer, qint16 type, Spot at, const QString &text, Spot direction)
{
    return textAt(layer, type, placeOf(at), text, upright(direction));
}

Element &Draft::textAt(qint16 layer, qint16 type, Place at, const QString &text, double rotation)
{
    Element &e = begin(ElementKind::Text, layer);
    e.vertices = {{at.x, at.y}};
    e.text = text;
    e.rotation = rotation;
    e.txdId = m_numbers.textTypes.value(type, -1);
    e.align =
        kBaseline + (type == 8 || type == 9 ? 0 : 6); // heights and point numbers stand right of their point
    return e;
}

Element &Draft::symbol(qint16 layer, qint16 number, Spot at, double rotation, double scale)
{
    return symbolAt(layer, number, placeOf(at), rotation, scale);
}

Element &Draft::symbolAt(qint16 layer, qint16 number, Place at, double rotation, double scale)
{
    Element &e = begin(ElementKind::Symbol, layer);
    e.vertices = {{at.x, at.y}};
    e.sidId = m_numbers.symbols.value(number, -1);
    e.rotation = rotation;
    e.scale = scale;
    return e;
}

void Draft::point(qint16 layer, const QString &name, Spot at)
{
    const Place p = placeOf(at);
    const double height = std::round(heightAt(p) * 100) / 100;
    points.push_back(
        {.Name = name, .X = p.x, .Y = p.y, .Z = height, .LayId = m_numbers.layers.value(layer, -1)});
}

double Draft::upright(Spot direction)
{
    double turn = std::remainder(turnOf(direction), 360);
    if (turn > 90.5) turn -= 180;
    else if (turn < -89.5) turn += 180;
    return std::round(turn * 100) / 100;
}

} // namespace refhost::village
