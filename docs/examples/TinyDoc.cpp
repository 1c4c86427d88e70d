#include "TinyDoc.h"

#include <QFile>

namespace example {

namespace {

/// The lines of a file whose first of two fields is a number.
std::vector<std::pair<qint16, QString>> numberedLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse("The file cannot be read; check its name and your rights to it.");
    std::vector<std::pair<qint16, QString>> lines;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const auto fields = line.trimmed().split(u'\t');
        bool isNumber = false;
        const qint16 number = fields.size() == 2 ? fields[0].toShort(&isNumber) : qint16(0);
        if (isNumber) lines.emplace_back(number, fields[1]);
    }
    return lines;
}

} // namespace

qint16 TinyLayers::add(const tLay &lay)
{
    const qint16 id = TinyTable::add(lay);
    m_members.push_back({kSystemGroup, id});
    return id;
}

std::optional<tLay> TinyLayers::findByNumber(qint16 gNr) const
{
    const auto found = std::ranges::find(rows, gNr, &tLay::gNr);
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

bool TinyLayers::remove(qint16 id, bool alsoOrphans)
{
    if (onRemove) onRemove(id, alsoOrphans);
    std::erase_if(m_members, [id](const tLayMember &m) { return m.LayId == id; });
    if (m_current == id) m_current = -1;
    return std::erase_if(rows, [id](const tLay &l) { return l.LayId == id; }) > 0;
}

void TinyLayers::writeGroups(std::span<const tGroup> all)
{
    qint16 last = 0;
    for (const tGroup &g : m_groups) last = std::max(last, g.GroupId);
    m_groups.assign(all.begin(), all.end());
    for (tGroup &g : m_groups)
        if (g.GroupId < 0) g.GroupId = ++last;
}

void TinyLayers::writeAll(std::span<const tLay> all)
{
    for (const tLay &l : all) update(l);
}

void TinyLayers::renameFromFile(const QString &path)
{
    for (const auto &[number, name] : numberedLines(path))
        if (const auto lay = findByNumber(number)) at(lay->LayId).Name = name;
}

void TinyLayers::renumberFromFile(const QString &path)
{
    std::vector<tLay> renumbered = rows; // looked up by the old numbers throughout: layers may change places
    for (const auto &[number, to] : numberedLines(path))
        for (size_t i = 0; i < rows.size(); ++i)
            if (rows[i].gNr == number) renumbered[i].gNr = to.toShort();
    rows = renumbered;
}

void TinyTextTypes::renumber(qint16 from, qint16 to)
{
    if (find(to)) refuse("Another text type has this number; choose a free one.");
    at(from).TxdId = to;
    if (onRenumber) onRenumber(from, to);
}

qint16 TinyTextTypes::takeOver(const tTxd &read)
{
    tTxd txd = read;
    txd.TxdId = -1;
    if (m_groups.readAll().empty()) m_groups.add(QStringLiteral("Read"));
    const tGroup group = m_groups.readAll().front();
    txd.GroupId = group.GroupId;
    txd.GroupName = group.GroupName;
    const auto taken = [&] { return std::ranges::count(rows, txd.Name, &tTxd::Name) > 0; };
    for (int n = 1; n == 1 || taken(); ++n) txd.Name = QStringLiteral("Text type %1").arg(n);
    return add(txd);
}

Palette TinyPens::palette() const
{
    Palette colors;
    for (quint32 i = 0; i < colors.size(); ++i)
        colors[i] = (i >> 5) * 0xff / 7 << 16 | (i >> 2 & 7) * 0xff / 7 << 8 | (i & 3) * 0xff / 3;
    return colors;
}

TinyDoc::TinyDoc()
{
    keepUnique();
    linkTables();
}

void TinyDoc::keepUnique()
{
    m_layers.clash = [](const tLay &a, const tLay &b) { return a.gNr == b.gNr || a.Name == b.Name; };
    m_textTypes.clash = [](const tTxd &a, const tTxd &b) { return a.Name == b.Name; };
    m_symbols.clash = [](const tSid &a, const tSid &b) { return a.ShortName == b.ShortName; };
    m_lineTypes.clash = [](const tPenStyle &a, const tPenStyle &b) {
        return a.PenStyleNr == b.PenStyleNr || a.Name == b.Name;
    };
}

// Who refers to whom: what is still referred to cannot be removed.
void TinyDoc::linkTables()
{
    m_layers.references = [this](qint16 id) {
        return int(std::ranges::count(m_points.rows, id, &tPt::LayId));
    };
    m_layers.onRemove = [this](qint16 id, bool alsoOrphans) {
        if (alsoOrphans) std::erase_if(m_points.rows, [id](const tPt &p) { return p.LayId == id; });
        for (tPt &p : m_points.rows)
            if (p.LayId == id) p.LayId = -1;
    };
    m_textTypes.references = [this](qint16 id) {
        return int(std::ranges::count(m_layers.rows, id, &tLay::TxdId));
    };
    m_textTypes.onRenumber = [this](qint16 from, qint16 to) {
        for (tLay &l : m_layers.rows)
            if (l.TxdId == from) l.TxdId = to;
    };
    m_lineTypes.references = [this](qint16 id) {
        return int(std::ranges::count(m_layers.rows, id, &tLay::PenStyleId));
    };
    m_symbols.references = [this](qint16 id) {
        return int(std::ranges::count(m_symbolizations.rows, id, &tPenStyleSi::SidId));
    };
    m_symbolizations.references = [this](qint16 nr) {
        std::ptrdiff_t carried = 0;
        for (const tPenStyle &s : m_lineTypes.rows) carried += std::ranges::count(s.Slots, nr);
        return int(carried);
    };
}

} // namespace example
