#include "grids/layer/LayerEdits.h"

#include "facade/services/Services.h"
#include "grids/frame/GroupRows.h"
#include "grids/frame/RecordWork.h"
#include "rules/LayerGroupRules.h"
#include "rules/LayerRules.h"

#include <QHash>
#include <QSet>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

/// Whose attributes a new layer takes: the current layer, or else that of the current row.
tLay modelIn(const tLayArr &all, qint16 currentLayer, LayerDesk &desk)
{
    const auto row = desk.currentRecord();
    for (const qint16 id : {currentLayer, row ? row->LayId : desk.doc().layers().currentId()})
        if (const auto found = std::ranges::find(all, id, &tLay::LayId); found != all.end()) return *found;
    return all.front();
}

/// What the first layer of a document is like: it refers to what there is.
tLay firstLayer(ZOLW_Doc &doc)
{
    tLay lay;
    const LayerNames names = LayerTable::namesOf(doc);
    lay.PenStyleId = names.lineTypes.firstId();
    lay.TxdId = names.textTypes.firstId();
    return lay;
}

/// The copies that there can be of the selected layers, each with its model; says why another has none.
struct Copies {
    tLayArr copies;
    std::vector<qint16> models;
};
Copies copiesOf(const tLayArr &chosen, int growth, TakenLayers taken, LayerDesk &desk)
{
    Copies out;
    for (const tLay &l : chosen) {
        const auto copy = copyOf(l, growth, taken);
        if (const auto *const why = std::get_if<QString>(&copy)) {
            desk.tell({Icon::Information, productName(), *why});
            continue;
        }
        out.copies.push_back(std::get<tLay>(copy));
        out.models.push_back(l.LayId);
        taken.add(out.copies.back());
    }
    return out;
}

/// What the copies with these identifiers are members of: what their models are.
std::vector<tLayMember> membersLike(const std::vector<qint16> &models, const std::vector<qint16> &ids,
                                    const std::vector<tLayMember> &members)
{
    QHash<qint16, qint16> copyOf;
    for (size_t i = 0; i < ids.size(); ++i) copyOf.insert(models[i], ids[i]);
    std::vector<tLayMember> more;
    for (const tLayMember &m : members)
        if (const auto copy = copyOf.constFind(m.LayId); copy != copyOf.constEnd())
            more.push_back({m.GroupId, *copy});
    return more;
}

} // namespace

std::optional<qint16> LayerEdits::addNew(qint16 currentLayer)
{
    const QString title = txt(Text{21700, u"Új réteg"});
    const tLayArr all = m_desk.doc().layers().readAll();
    if (all.empty()) m_desk.tell({Icon::Information, productName(), txt(Text{3298, u"Ez az első réteg!"})});
    const auto lay =
        newLayer(all, all.empty() ? firstLayer(m_desk.doc()) : modelIn(all, currentLayer, m_desk));
    if (!lay) {
        m_desk.tell(
            {Icon::Exclamation, title,
             txt(Text{21702, u"A legnagyobb rétegsorszám már 32767, ezért nem készíthető új réteg. "
                             u"Számozza át a rétegeket!"})});
        return {};
    }
    qint16 id = -1;
    m_desk.write(title, [&] {
        LayerRole &layers = m_desk.doc().layers();
        id = layers.add(*lay);
        if (m_desk.chosenGroup() != GroupRows::kAll)
            layers.writeMembers(joined(layers.members(), {&id, 1}, m_desk.chosenGroup()));
    });
    return id;
}

void LayerEdits::copy()
{
    const QString title = txt(Text{3337, u"Réteg másolás"});
    const tLayArr all = m_desk.doc().layers().readAll();
    const tLayArr chosen = asNow(m_desk.selected(), all, &tLay::LayId);
    const TakenLayers taken(all);
    const auto growth = prompts().numbers(
        {title, txt(Text{3338, u"Milyen értékkel akarod megnövelni a másolt rétegek sorszámát?"}),
         {{.label = txt(Text{3339, u"növekmény"}),
           .preset = double(proposedGrowth(chosen, taken)),
           .min = -kHighestCopyNumber,
           .max = kHighestCopyNumber}}},
        m_desk.asker());
    m_desk.relay().checkpoint();
    if (!growth) return;
    const Copies made = copiesOf(chosen, int(growth->front()), taken, m_desk);
    if (made.copies.empty()) return;
    m_desk.write(title, [&] {
        LayerRole &layers = m_desk.doc().layers();
        std::vector<qint16> ids;
        layers.addAll(made.copies, ids);
        auto members = layers.members();
        const auto more = membersLike(made.models, ids, members);
        QSet<qint16> placed; // a document may have put the copies into a group of its own choice
        for (const tLayMember &m : more) placed.insert(m.LayId);
        std::erase_if(members, [&](const tLayMember &m) { return placed.contains(m.LayId); });
        layers.writeMembers(withMembers(std::move(members), more));
    });
}

void LayerEdits::renumber()
{
    const QString title = txt(Text{3342, u"Átsorszámozás"});
    tLayArr all = m_desk.doc().layers().readAll();
    const tLayArr chosen = asNow(m_desk.selected(), all, &tLay::LayId);
    if (chosen.empty()) return;
    const auto answer = prompts().numbers(
        {title, txt(Text{3341, u"A kiválasztott rétegek átsorszámozása"}),
         {{.label = txt(Text{3340, u"Kezdő sorszám"}),
           .preset = double(chosen.front().gNr),
           .min = 1,
           .max = kHighestLayerNumber},
          {.label = txt(Text{3419, u"Növekmény"}),
           .preset = 1,
           .min = -kHighestLayerNumber,
           .max = kHighestLayerNumber}}},
        m_desk.asker());
    m_desk.relay().checkpoint();
    if (!answer) return;
    const auto numbered = renumbered(chosen, int(answer->at(0)), int(answer->at(1)), all);
    if (!numbered) return m_desk.tell(messageOf(*LayerTable::columns[LayerTable::numberColumn].taken));
    if (*numbered == chosen) return;
    QHash<qint16, qint16> numberOf;
    for (const tLay &l : *numbered) numberOf.insert(l.LayId, l.gNr);
    for (tLay &l : all) l.gNr = numberOf.value(l.LayId, l.gNr);
    // The whole table at once: numbers may change places, which no order of single writes allows.
    m_desk.write(title, [&] { m_desk.doc().layers().writeAll(all); });
}

void LayerEdits::remove(bool asksForEach)
{
    const tLayArr all = m_desk.doc().layers().readAll();
    const tLayArr chosen = asNow(m_desk.selected(), all, &tLay::LayId);
    std::vector<qint16> ids;
    for (const tLay &l : chosen) ids.push_back(l.LayId);
    const std::vector<int> uses = m_desk.doc().layers().usesAll(ids);
    std::vector<Doomed> doomed;
    for (size_t i = 0; i < chosen.size(); ++i)
        doomed.push_back({ids[i], chosen[i].gNr, chosen[i].Name, uses[i] > 0});
    const DeleteQuestions questions{LayerTable::deletion, asksForEach, int(all.size())};
    const std::vector<qint16> going = questions.ask(doomed, m_desk.relay(), m_desk.asker());
    if (going.empty()) return;
    const bool alsoOrphans =
        m_desk.yesNo({Icon::Exclamation, txt(Text{21703, u"Érintett pontok törlése"}),
                      txt(Text{21704, u"Kéred a keletkezett önálló pontok törlését is?"})});
    m_desk.write(txt(LayerTable::deletion.title), [&] {
        int done = 0;
        m_desk.doc().layers().removeAll(going, alsoOrphans, done);
    });
}

} // namespace QV_DOC_CONTROLS
