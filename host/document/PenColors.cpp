#include "document/PenColors.h"

using namespace ZolWDoc;

namespace refhost {

PenColorTable PenColors::read() const
{
    PenColorTable pens;
    Statement s(m_db, QStringLiteral("SELECT id, screen, print FROM pens WHERE id BETWEEN 1 AND 255"));
    for (s.exec(); s.next();) pens.pen(s.number(0)) = {qint16(s.number(1)), qint16(s.number(2))};
    return pens;
}

void PenColors::write(const PenColorTable &pens)
{
    Write all(m_db);
    for (int n = 1; n <= 255; ++n)
        change(m_db, QStringLiteral("INSERT OR REPLACE INTO pens(id, screen, print) VALUES(?, ?, ?)"), n,
               int(pens.pen(n).ScrColor), int(pens.pen(n).PrnColor));
    m_db.touch(TableKind::PenColors);
    all.keep();
}

Palette PenColors::palette() const
{
    Palette colors{};
    Statement s(m_db, QStringLiteral("SELECT id, rgb FROM palette WHERE id BETWEEN 0 AND 255"));
    for (s.exec(); s.next();) colors[size_t(s.number(0))] = s.value(1).toUInt();
    return colors;
}

void PenColors::replacePalette(const Palette &colors)
{
    Write all(m_db);
    for (int i = 0; i < 256; ++i)
        change(m_db, QStringLiteral("INSERT OR REPLACE INTO palette(id, rgb) VALUES(?, ?)"), i,
               qint64(colors[size_t(i)]));
    m_db.touch(TableKind::PenColors);
    all.keep();
}

std::vector<tKh> KhItems::items(int mode) const
{
    std::vector<tKh> all;
    if (mode != 1 && mode != 2) return all;
    Statement s(m_db, QStringLiteral("SELECT id, text FROM kh_items WHERE modes & ? ORDER BY id"));
    for (s.exec(mode); s.next();) all.push_back({qint16(s.number(0)), s.value(1).toString()});
    return all;
}

} // namespace refhost
