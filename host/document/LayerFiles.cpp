#include "document/Layers.h"
#include "document/TextFile.h"

#include <QHash>
#include <QSet>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tLay;

namespace refhost {
namespace {

constexpr Text kNameExpected{30084, u"sorszámot és nevet várok."};
constexpr Text kNumberExpected{30085, u"régi és új sorszámot várok (0–32767)."};
constexpr Text kUnknown{30086, u"nincs ilyen sorszámú réteg."};
constexpr Text kTwice{30087, u"ez a sorszám már szerepelt."};
constexpr Text kNameTaken{30088, u"ez a név már foglalt."};
constexpr Text kNumberTaken{30089, u"ez a sorszám már foglalt."};

/// The layers by number, with what a file changes in them; whatever stays open is found before anything is
/// written.
class Renaming {
public:
    explicit Renaming(const std::vector<tLay> &all) : m_layers(all)
    {
        for (size_t i = 0; i < all.size(); ++i) m_byNumber.insert(all[i].gNr, i);
    }
    /// The layer of a line; throws when there is none or the file named it before.
    tLay &at(const TextFile &file, const ListLine &line)
    {
        const auto found = m_byNumber.constFind(line.number);
        if (found == m_byNumber.constEnd()) file.fail(line, kUnknown);
        if (m_lineOf.contains(m_layers[*found].LayId)) file.fail(line, kTwice);
        m_lineOf.insert(m_layers[*found].LayId, line);
        return m_layers[*found];
    }
    /// Throws at the later of two lines, or at the one line, that gives a value which another layer has.
    template <class T> void requireDistinct(const TextFile &file, T tLay::*member, Text taken) const
    {
        QHash<T, ListLine> seen;
        for (const tLay &l : m_layers) {
            const ListLine mine = m_lineOf.value(l.LayId);
            const auto other = seen.constFind(l.*member);
            if (other != seen.constEnd()) file.fail(other->line > mine.line ? *other : mine, taken);
            seen.insert(l.*member, mine);
        }
    }
    std::vector<tLay> changed() const
    {
        std::vector<tLay> all;
        for (const tLay &l : m_layers)
            if (m_lineOf.contains(l.LayId)) all.push_back(l);
        return all;
    }
private:
    std::vector<tLay> m_layers;
    QHash<qint16, size_t> m_byNumber;
    QHash<qint16, ListLine> m_lineOf;
};

} // namespace

void Layers::renameFromFile(const QString &path)
{
    const TextFile file(path, kNameExpected);
    Renaming layers(readAll());
    for (const ListLine &line : file.lines()) layers.at(file, line).Name = line.rest;
    layers.requireDistinct(file, &tLay::Name, kNameTaken);
    writeAll(layers.changed());
}

void Layers::renumberFromFile(const QString &path)
{
    const TextFile file(path, kNumberExpected);
    Renaming layers(readAll());
    for (const ListLine &line : file.lines()) layers.at(file, line).gNr = file.restAsNumber(line);
    layers.requireDistinct(file, &tLay::gNr, kNumberTaken);
    writeAll(layers.changed());
}

void Layers::addFromFile(const QString &path)
{
    const TextFile file(path, kNameExpected);
    QSet<qint16> numbers;
    QSet<QString> names;
    for (const tLay &l : readAll()) numbers.insert(l.gNr), names.insert(l.Name);
    std::vector<tLay> all;
    const tLay pattern = find(currentId()).value_or(tLay{});
    for (const ListLine &line : file.lines()) {
        if (numbers.contains(line.number)) file.fail(line, kNumberTaken);
        if (names.contains(line.rest)) file.fail(line, kNameTaken);
        numbers.insert(line.number), names.insert(line.rest);
        tLay layer = pattern;
        layer.LayId = -1, layer.gNr = line.number, layer.Name = line.rest, layer.Visible = true;
        all.push_back(layer);
    }
    Write whole(m_db);                          // all of the file or nothing, also when the table is full
    std::vector<qint16> ids;
    addAll(all, ids);
    whole.keep();
}

} // namespace refhost
