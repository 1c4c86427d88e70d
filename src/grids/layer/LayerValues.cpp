#include "grids/layer/LayerValues.h"

#include "grids/frame/GroupRows.h"
#include "grids/frame/RecordWork.h"
#include "kit/ask/UniqueNumber.h"
#include "rules/LayerRules.h"

#include <QSet>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

struct Flag {
    bool tLay::*member;
    Text name;
};
constexpr Flag kFlags[] = {{&tLay::Visible, {3307, u"Látható"}},
                           {&tLay::ElByLayer, {3304, u"Vonalak réteg szerint"}},
                           {&tLay::TxByLayer, {3303, u"Felirat/jk. réteg szerint"}}};
struct Reference {
    TableKind kind;
    qint16 tLay::*member;
    Text name;
};
constexpr Reference kReferences[] = {{TableKind::TextTypes, &tLay::TxdId, {15, u"Felirattípus"}},
                                     {TableKind::LineTypes, &tLay::PenStyleId, {3305, u"Vonaltípus"}},
                                     {TableKind::PenColors, &tLay::PenColorId, {3168, u"Toll"}}};

void report(const ShorterNames &names, const QString &title, LayerDesk &desk)
{
    const int changed = int(names.lines.size());
    QString text = changed == 0 ? txt(Text{21705, u"Egyik kijelölt réteg neve sem változott."})
                                : join(Text{21706, u"Megváltozott rétegnevek: "}, changed);
    if (names.taken > 0)
        text +=
            u'\n' + join(Text{21707, u"Régi nevükön maradtak, mert az új név már foglalt: "}, names.taken);
    if (changed == 0) prompts().tell({Icon::Information, title, text}, desk.asker());
    else prompts().show({title, text, names.lines}, desk.asker());
    desk.relay().checkpoint();
}

} // namespace

void LayerValues::setFlag(bool tLay::*flag, bool on)
{
    change(m_desk, txt(std::ranges::find(kFlags, flag, &Flag::member)->name), selectedNow(m_desk),
           [&](tLay &l) { l.*flag = on; });
}

void LayerValues::setAllVisible(bool on)
{
    change(m_desk, txt(Text{3307, u"Látható"}), m_desk.doc().layers().readAll(),
           [&](tLay &l) { l.Visible = on; });
}

void LayerValues::setGroupVisible(bool on)
{
    const qint16 group = m_desk.chosenGroup();
    if (group == GroupRows::kAll) return setAllVisible(on);
    QSet<qint16> inGroup;
    for (const tLayMember &m : m_desk.doc().layers().members())
        if (m.GroupId == group) inGroup.insert(m.LayId);
    change(m_desk, txt(Text{3307, u"Látható"}), m_desk.doc().layers().readAll(), [&](tLay &l) {
        if (inGroup.contains(l.LayId)) l.Visible = on;
    });
}

void LayerValues::pick(TableKind kind)
{
    const Reference &value = *std::ranges::find(kReferences, kind, &Reference::kind);
    pickForSelected(m_desk, txt(value.name), kind, value.member);
}

void LayerValues::rename()
{
    const tLayArr all = m_desk.doc().layers().readAll();
    const auto now = currentNow(m_desk, all);
    if (!now) return;
    const TextQuestion question{txt(Text{21708, u"Réteg átnevezése"}), txt(Text{21709, u"A réteg új neve:"}),
                                now->Name, {}};
    if (const auto name = askForName(m_desk, question, *now, all))
        change(m_desk, txt(LayerTable::columns[LayerTable::nameColumn].caption), {*now},
               [&](tLay &l) { l.Name = *name; });
}

void LayerValues::number()
{
    constexpr int column = LayerTable::numberColumn;
    const tLayArr all = m_desk.doc().layers().readAll();
    const auto now = currentNow(m_desk, all);
    if (!now) return;
    const auto refusalFor = [&](double nr) -> std::optional<Message> {
        tLay numbered = *now;
        numbered.gNr = qint16(nr);
        const Refusal *const why = refusalOf<LayerTable>(*now, numbered, column, all);
        return why ? std::optional(messageOf(*why)) : std::nullopt;
    };
    const NumberQuestion question{txt(Text{3300, u"Rétegsorszám"}),
                                  join(Text{21710, u"Új sorszám ehhez a réteghez: "}, now->Name),
                                  {{.label = txt(Text{3411, u"Sorszám"}),
                                    .preset = double(now->gNr),
                                    .min = 1,
                                    .max = kHighestLayerNumber}}};
    if (const auto nr = uniqueNumber(m_desk.relay(), question, refusalFor, m_desk.asker()))
        change(m_desk, txt(LayerTable::columns[column].caption), {*now},
               [&](tLay &l) { l.gNr = qint16(*nr); });
}

void LayerValues::trimNames()
{
    const QString title = txt(Text{3325, u"Rétegnév módosítás"});
    const auto onlyNumbers = prompts().yesNoCancel(
        {Icon::Question, title, txt(Text{3326, u"A '-' karakter előtti rész csak szám lehet?"})},
        m_desk.asker());
    m_desk.relay().checkpoint();
    if (!onlyNumbers) return;
    const tLayArr all = m_desk.doc().layers().readAll();
    const ShorterNames names =
        withoutPrefixes(asNow(m_desk.selected(), all, &tLay::LayId), *onlyNumbers, TakenLayers(all));
    if (!names.changed.empty())
        m_desk.write(title, [&] {
            int written = 0;
            m_desk.doc().layers().updateAll(names.changed, written);
        });
    report(names, title, m_desk);
}

} // namespace QV_DOC_CONTROLS
