#include "grids/layer/LayerValues.h"

#include "facade/contract/ResourcePicker.h"
#include "grids/LayerTable.h"
#include "grids/frame/CellEdit.h"
#include "kit/ask/ErrorRelay.h"
#include "rules/LayerRules.h"

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

tLayArr selectedNow(LayerDesk &desk) { return asNow(desk.selected(), desk.doc().layers().readAll()); }

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

/// Asks for a value of the current layer until the table takes it or the user gives up. What is no value of
/// the column is dropped as in the grid.
void LayerValues::askFor(int column, const Ask &ask)
{
    const tLayArr all = m_desk.doc().layers().readAll();
    const auto row = m_desk.current();
    const tLayArr now = asNow(std::span(row ? &*row : nullptr, row ? 1 : 0), all);
    if (now.empty()) return;
    QVariant typed = LayerTable::columns[column].get(now.front());
    for (;;) {
        typed = ask(now.front(), typed);
        m_desk.relay().checkpoint();
        const auto edited = typed.isNull() ? std::nullopt : withValue<LayerTable>(now.front(), column, typed);
        if (!edited) return;
        const Refusal *const why = refusalOf<LayerTable>(*edited, column, all);
        if (!why) return store(txt(LayerTable::columns[column].caption), now, {*edited});
        tell(*why, m_desk.asker());
        m_desk.relay().checkpoint();
    }
}

void LayerValues::rename()
{
    askFor(LayerTable::nameColumn, [this](const tLay &, const QVariant &proposed) -> QVariant {
        const auto name = prompts().text({txt(Text{21708, u"Réteg átnevezése"}),
                                          txt(Text{21709, u"A réteg új neve:"}), proposed.toString()},
                                         m_desk.asker());
        return name ? QVariant(*name) : QVariant();
    });
}

void LayerValues::number()
{
    askFor(LayerTable::numberColumn, [this](const tLay &l, const QVariant &proposed) -> QVariant {
        const auto number =
            prompts().numbers({txt(Text{3300, u"Rétegsorszám"}),
                               join(Text{21710, u"Új sorszám ehhez a réteghez: "}, l.Name),
                               {{.label = txt(Text{3411, u"Sorszám"}),
                                 .preset = proposed.toDouble(),
                                 .min = 1,
                                 .max = kHighestLayerNumber}}},
                              m_desk.asker());
        return number ? QVariant(int(number->front())) : QVariant();
    });
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
    QString text = names.lines.empty()
                       ? txt(Text{21705, u"Egyik kijelölt réteg neve sem változott."})
                       : join(Text{21706, u"Megváltozott rétegnevek: "}, int(names.lines.size()));
    if (names.taken > 0)
        text += join(QStringLiteral("\n"), Text{21707, u"Régi nevükön maradtak, mert az új név már foglalt: "},
                     names.taken);
    if (names.lines.empty()) prompts().tell({Icon::Information, title, text}, m_desk.asker());
    else prompts().show({title, text, names.lines}, m_desk.asker());
    m_desk.relay().checkpoint();
}

} // namespace QV_DOC_CONTROLS
