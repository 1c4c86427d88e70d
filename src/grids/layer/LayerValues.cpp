#include "grids/layer/LayerValues.h"

#include "facade/contract/ResourcePicker.h"
#include "grids/LayerTable.h"
#include "grids/frame/CellEdit.h"
#include "grids/frame/GroupRows.h"
#include "kit/ask/ErrorRelay.h"
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

/// The layer of the current row, if it is still there.
tLayArr currentNow(const LayerDesk &desk, const tLayArr &all)
{
    const auto row = desk.current();
    return row ? asNow(std::span(&*row, 1), all) : tLayArr{};
}
tLayArr selectedNow(LayerDesk &desk) { return asNow(desk.selected(), desk.doc().layers().readAll()); }

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

/// Writes the layers that differ, in one call.
void LayerValues::store(const QString &command, const tLayArr &before, tLayArr after)
{
    size_t changed = 0;
    for (size_t i = 0; i < after.size(); ++i)
        if (after[i] != before[i]) std::swap(after[changed++], after[i]);
    if (changed == 0) return;
    after.resize(changed);
    m_desk.write(command, [&] {
        int written = 0;
        m_desk.doc().layers().updateAll(after, written);
    });
}

void LayerValues::setFlag(bool tLay::*flag, bool on)
{
    const tLayArr before = selectedNow(m_desk);
    tLayArr after = before;
    for (tLay &l : after) l.*flag = on;
    store(txt(std::ranges::find(kFlags, flag, &Flag::member)->name), before, std::move(after));
}

void LayerValues::setAllVisible(bool on)
{
    const tLayArr before = m_desk.doc().layers().readAll();
    tLayArr after = before;
    for (tLay &l : after) l.Visible = on;
    store(txt(Text{3307, u"Látható"}), before, std::move(after));
}

void LayerValues::setGroupVisible(bool on)
{
    const qint16 group = m_desk.chosenGroup();
    if (group == GroupRows::kAll) return setAllVisible(on);
    QSet<qint16> inGroup;
    for (const tLayMember &m : m_desk.doc().layers().members())
        if (m.GroupId == group) inGroup.insert(m.LayId);
    const tLayArr before = m_desk.doc().layers().readAll();
    tLayArr after = before;
    for (tLay &l : after)
        if (inGroup.contains(l.LayId)) l.Visible = on;
    store(txt(Text{3307, u"Látható"}), before, std::move(after));
}

bool LayerValues::canPick(TableKind kind) { return resourcePicker() && resourcePicker()->canPick(kind); }

void LayerValues::pick(TableKind kind)
{
    const Reference &value = *std::ranges::find(kReferences, kind, &Reference::kind);
    const tLayArr chosen = m_desk.selected();
    if (chosen.empty() || !canPick(kind)) return;
    const auto id =
        resourcePicker()->pick(kind, m_desk.doc(), chosen.front().*value.member, m_desk.asker());
    m_desk.relay().checkpoint();
    if (!id) return;
    const tLayArr before = selectedNow(m_desk);
    tLayArr after = before;
    for (tLay &l : after) l.*value.member = *id;
    store(txt(value.name), before, std::move(after));
}

void LayerValues::rename()
{
    constexpr int column = LayerTable::nameColumn;
    const tLayArr all = m_desk.doc().layers().readAll();
    const tLayArr now = currentNow(m_desk, all);
    if (now.empty()) return;
    QString name = now.front().Name;
    for (;;) {
        const auto typed = prompts().text(
            {txt(Text{21708, u"Réteg átnevezése"}), txt(Text{21709, u"A réteg új neve:"}), name},
            m_desk.asker());
        m_desk.relay().checkpoint();
        const auto edited = typed ? withValue<LayerTable>(now.front(), column, *typed) : std::nullopt;
        if (!edited) return;                            // what is no name is dropped, as in the grid
        const Refusal *const why = refusalOf<LayerTable>(*edited, column, all);
        if (!why) return store(txt(LayerTable::columns[column].caption), now, {*edited});
        tell(*why, m_desk.asker());
        m_desk.relay().checkpoint();
        name = *typed;
    }
}

void LayerValues::number()
{
    constexpr int column = LayerTable::numberColumn;
    const tLayArr all = m_desk.doc().layers().readAll();
    const tLayArr now = currentNow(m_desk, all);
    if (now.empty()) return;
    tLayArr numbered = now;
    const auto refusalFor = [&](double nr) -> std::optional<Message> {
        numbered.front().gNr = qint16(nr);
        const Refusal *const why = refusalOf<LayerTable>(numbered.front(), column, all);
        return why ? std::optional(messageOf(*why)) : std::nullopt;
    };
    const NumberQuestion question{txt(Text{3300, u"Rétegsorszám"}),
                                  join(Text{21710, u"Új sorszám ehhez a réteghez: "}, now.front().Name),
                                  {{.label = txt(Text{3411, u"Sorszám"}),
                                    .preset = double(now.front().gNr),
                                    .min = 1,
                                    .max = kHighestLayerNumber}}};
    if (uniqueNumber(m_desk.relay(), question, refusalFor, m_desk.asker()))
        store(txt(LayerTable::columns[column].caption), now, std::move(numbered));
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
    const ShorterNames names = withoutPrefixes(asNow(m_desk.selected(), all), *onlyNumbers, TakenLayers(all));
    if (!names.changed.empty())
        m_desk.write(title, [&] {
            int written = 0;
            m_desk.doc().layers().updateAll(names.changed, written);
        });
    report(names, title, m_desk);
}

} // namespace QV_DOC_CONTROLS
