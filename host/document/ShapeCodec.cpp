#include "document/ShapeCodec.h"

#include <QtEndian>

#include <cstring>

namespace refhost {
namespace {

enum Flag : quint16 {
    Closed = 1,
    Bulges = 2,
    Rings = 4,
    Arc = 8,
    Rotated = 16,
    Sized = 32,
    Scaled = 64,
    Aligned = 128,
    Shaped = 255
};

class Writer {
public:
    template <class T> void put(T v)
    {
        const T little = qToLittleEndian(v);
        m_bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
    }
    void real(double v)
    {
        quint64 bits;
        std::memcpy(&bits, &v, sizeof bits);
        put(bits);
    }
    void reserve(size_t n) { m_bytes.reserve(qsizetype(n)); }
    QByteArray bytes() const { return m_bytes; }
private:
    QByteArray m_bytes;
};

/// Reads zeros beyond the end and remembers that it did.
class Reader {
public:
    explicit Reader(const QByteArray &bytes) : m_at(bytes.constData()), m_left(size_t(bytes.size())) {}
    template <class T> T get()
    {
        if (m_left < sizeof(T)) return m_good = false, m_left = 0, T(0);
        const T v = qFromLittleEndian<T>(m_at);
        m_at += sizeof(T), m_left -= sizeof(T);
        return v;
    }
    double real()
    {
        const quint64 bits = get<quint64>();
        double v;
        std::memcpy(&v, &bits, sizeof v);
        return v;
    }
    /// A count of things of at least `size` bytes each; 0 when they cannot be there.
    size_t count(size_t size)
    {
        const quint32 n = get<quint32>();
        if (n > m_left / size) return m_good = false, 0;
        return n;
    }
    bool ended() const { return m_good && m_left == 0; }
private:
    const char *m_at;
    size_t m_left;
    bool m_good = true;
};

quint16 flagsOf(const Element &e)
{
    const bool bulged = std::ranges::any_of(e.vertices, [](const Vertex &v) { return v.bulge != 0; });
    const Element plain;
    return quint16((e.closed ? Closed : 0) | (bulged ? Bulges : 0) | (e.rings.empty() ? 0 : Rings)
                   | (e.ratio != plain.ratio || e.from != 0 || e.to != 0 ? Arc : 0)
                   | (e.rotation != 0 ? Rotated : 0) | (e.size != 0 ? Sized : 0)
                   | (e.scale != plain.scale ? Scaled : 0) | (e.align != 0 ? Aligned : 0));
}

} // namespace

QByteArray shapeBytes(const Element &e)
{
    const quint16 flags = flagsOf(e);
    Writer w;
    w.reserve(64 + e.vertices.size() * (flags & Bulges ? 24 : 16) + e.rings.size() * 4);
    w.put(flags);
    w.put(quint32(e.vertices.size()));
    for (const Vertex &v : e.vertices) {
        w.real(v.x), w.real(v.y);
        if (flags & Bulges) w.real(v.bulge);
    }
    if (flags & Rings) {
        w.put(quint32(e.rings.size()));
        for (int r : e.rings) w.put(qint32(r));
    }
    if (flags & Arc) w.real(e.ratio), w.real(e.from), w.real(e.to);
    if (flags & Rotated) w.real(e.rotation);
    if (flags & Sized) w.real(e.size);
    if (flags & Scaled) w.real(e.scale);
    if (flags & Aligned) w.put(qint32(e.align));
    return w.bytes();
}

bool readShape(const QByteArray &bytes, Element &e)
{
    Reader r(bytes);
    const auto flags = r.get<quint16>();
    e.closed = flags & Closed;
    e.vertices.resize(r.count(flags & Bulges ? 24 : 16));
    for (Vertex &v : e.vertices) {
        v.x = r.real(), v.y = r.real();
        if (flags & Bulges) v.bulge = r.real();
    }
    if (flags & Rings) {
        e.rings.resize(r.count(4));
        for (int &ring : e.rings) ring = r.get<qint32>();
    }
    if (flags & Arc) e.ratio = r.real(), e.from = r.real(), e.to = r.real();
    if (flags & Rotated) e.rotation = r.real();
    if (flags & Sized) e.size = r.real();
    if (flags & Scaled) e.scale = r.real();
    if (flags & Aligned) e.align = r.get<qint32>();
    return r.ended() && flags <= Shaped;
}

QByteArray strokeBytes(const ZolWDoc::Glyph &g)
{
    Writer w;
    w.put(quint32(g.strokes.size()));
    for (const auto &stroke : g.strokes) {
        w.put(quint32(stroke.size()));
        for (const auto &p : stroke) w.real(p.x), w.real(p.y);
    }
    return w.bytes();
}

bool readStrokes(const QByteArray &bytes, ZolWDoc::Glyph &g)
{
    Reader r(bytes);
    g.strokes.resize(r.count(4));
    for (auto &stroke : g.strokes) {
        stroke.resize(r.count(16));
        for (auto &p : stroke) p.x = r.real(), p.y = r.real();
    }
    return r.ended();
}

} // namespace refhost
