#include "grids/symbol/SymbolEdits.h"

#include "facade/contract/FontPicker.h"
#include "facade/contract/RecordEditors.h"
#include "fonts/VectorFonts.h"
#include "rules/FreeNumbers.h"

#include <QHash>
#include <QSet>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr Text kNoRoom{20014, u"Nincs hely több jelkulcs számára."};
constexpr Text kFont{20062, u"Karakterkészlet..."};
constexpr Text kFromFont{22306, u"Jelkulcsok vektoros készletből"};
const std::vector<double> kSizes{1.0, 1.5, 2.0, 2.5, 3.0, 3.5, 4.0, 5.0, 7.0, 10.0}; // offered, millimetres

/// Gives names out that no symbol has. A name is tried on from the number it came to: a whole font may have
/// one name for all its characters.
class FreeNames {
public:
    explicit FreeNames(const std::vector<tSid> &symbols)
    {
        for (const tSid &s : symbols) m_taken.insert(s.ShortName);
    }
    QString take(const QString &wanted)
    {
        QString name = wanted;
        for (int &n = m_lastNumber[wanted]; m_taken.contains(name);) {
            n = std::max(n + 1, 2);
            name = wanted + u'_' + QString::number(n);
        }
        m_taken.insert(name);
        return name;
    }

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_lastNumber; ///< of a wanted name; 0 = none yet
};

QString fontCommand() { return txt(kFont).remove(QStringLiteral("...")); }

} // namespace

/// Gives the symbols their numbers and adds them; without room for all of them, none.
void SymbolEdits::addAll(const QString &command, std::vector<tSid> symbols)
{
    std::vector<qint16> used;
    for (const tSid &s : m_desk.doc().symbols().readAll()) used.push_back(s.SidId);
    const std::vector<qint16> numbers = freeNumbers(used, symbols.size());
    if (numbers.size() < symbols.size()) return m_desk.tell({Icon::Exclamation, command, txt(kNoRoom)});
    for (size_t i = 0; i < symbols.size(); ++i) symbols[i].SidId = numbers[i];
    std::vector<qint16> ids;
    m_desk.write(command, [&] { m_desk.doc().symbols().addAll(symbols, ids); });
    if (!ids.empty()) m_desk.selectById(ids.front());
}

void SymbolEdits::addNew()
{
    const QString title = txt(Text{3075, u"Jelkulcs típus"});
    const auto all = m_desk.doc().symbols().readAll();
    const TextQuestion question{title, txt(Text{3077, u"Az új jelkulcs típus megnevezése"}), {}, {}};
    if (const auto name = askForName(m_desk, question, tSid(), all))
        addAll(title, {newSymbol(*name, m_groups.groupForNew().value_or(tGroup()))});
}

std::vector<VectorFont::Entry> SymbolEdits::allOf(const VectorFont &font)
{
    auto entries = font.entries();
    const QString question = join(Text{22307, u"A készlet karaktereiből ennyi jelkulcs készül: "},
                                  int(entries.size()), QStringLiteral("\n"), Text{20081, u"Folytatja?"});
    if (!entries.empty() && !m_desk.yesNo({Icon::Question, txt(kFromFont), question})) entries.clear();
    return entries;
}

void SymbolEdits::addFromVectorFont(const CharacterChoice &choose)
{
    const auto face = fontPicker()->pickVector(&m_desk.doc(), {}, m_desk.asker());
    m_desk.relay().checkpoint();
    const VectorFont *const font = face ? vectorFont(&m_desk.doc(), *face) : nullptr;
    if (!font) return;
    const auto entries = choose ? choose(*font) : allOf(*font);
    m_desk.relay().checkpoint();
    if (entries.empty()) return;
    FreeNames names(m_desk.doc().symbols().readAll());
    const tGroup group = m_groups.groupForNew().value_or(tGroup());
    std::vector<tSid> symbols;
    for (const VectorFont::Entry &e : entries) {
        const QString name = e.name.trimmed().isEmpty() ? *face + u'_' + QString::number(e.code) : e.name;
        tSid s = newSymbol(names.take(name), group);
        s.Code = e.code, s.Facename = *face, s.Type = kVectorFont;
        symbols.push_back(std::move(s));
    }
    addAll(txt(kFromFont), std::move(symbols));
}

void SymbolEdits::rename()
{
    const auto all = m_desk.doc().symbols().readAll();
    const auto now = currentNow(m_desk, all);
    if (!now) return;
    const TextQuestion question{txt(Text{20061, u"Jelkulcs típus"}),
                                txt(Text{20060, u"A jelkulcs típus megnevezése"}), now->ShortName, {}};
    if (const auto name = askForName(m_desk, question, *now, all))
        change(m_desk, txt(Text{20059, u"Átnevezés"}), {*now}, [&](tSid &s) { s.ShortName = *name; });
}

bool SymbolEdits::canEdit() { return recordEditors() && recordEditors()->canEdit(TableKind::Symbols); }

/// The editor writes by itself.
void SymbolEdits::edit()
{
    const auto row = m_desk.currentRecord();
    if (!row || !canEdit()) return;
    m_desk.refillAfter([&] {
        recordEditors()->edit(TableKind::Symbols, m_desk.doc(), row->SidId, m_desk.asker());
        m_desk.relay().checkpoint();
    });
}

std::optional<double> SymbolEdits::askForNumber(const QString &title, const QString &text,
                                                const NumberField &field)
{
    const auto typed = prompts().numbers({title, text, {field}}, m_desk.asker());
    m_desk.relay().checkpoint();
    return typed ? std::optional(typed->front()) : std::nullopt;
}

void SymbolEdits::setSize()
{
    const auto chosen = m_desk.selected();
    if (chosen.empty()) return;
    const QString title = txt(Text{3371, u"Betűnagyság"});
    const auto size = askForNumber(title, txt(Text{3372, u"A jelkulcstípus betűnagysága mm-ben"}),
                                   {.label = txt(Text{3373, u"Nagyság="}),
                                    .preset = chosen.front().Size_mm,
                                    .min = kLeastSymbolSize,
                                    .max = kMostSymbolSize,
                                    .decimals = 2,
                                    .unit = QStringLiteral("mm"),
                                    .presets = kSizes});
    if (size) change(m_desk, title, selectedNow(m_desk), [&](tSid &s) { s.Size_mm = float(*size); });
}

void SymbolEdits::setThickness()
{
    const auto chosen = m_desk.selected();
    if (chosen.empty()) return;
    const QString title = txt(Text{3237, u"Vastagság"});
    const QString text =
        join(Text{3374, u"A jelkulcstípus vonalvastagsága"}, QStringLiteral(" "),
             Text{20006, u"(csak az ZOL-2.5 jelkulcsokra érvényes)"});
    const auto width = askForNumber(title, text,
                                    {.label = txt(Text{3449, u"Vastagság="}),
                                     .preset = chosen.front().Weight / 100.0,
                                     .max = kHighestWeight / 100.0,
                                     .decimals = 2,
                                     .unit = QStringLiteral("mm")});
    if (width) change(m_desk, title, selectedNow(m_desk), [&](tSid &s) { s.Weight = weightOf(*width); });
}

void SymbolEdits::setLayer()
{
    pickForSelected(m_desk, txt(Text{2887, u"Cél réteg"}), TableKind::Layers, &tSid::LayId);
}

void SymbolEdits::setTrueType()
{
    const auto chosen = m_desk.selected();
    if (chosen.empty() || !fontPicker()) return;
    const tSid &first = chosen.front();
    const auto face = fontPicker()->pickTrueType({first.Facename, first.CharSet}, m_desk.asker());
    m_desk.relay().checkpoint();
    if (face)
        change(m_desk, fontCommand(), selectedNow(m_desk), [&](tSid &s) {
            s.Facename = face->face, s.CharSet = face->charSet, s.Type = 0;
        });
}

void SymbolEdits::setVectorFont()
{
    const auto chosen = m_desk.selected();
    if (chosen.empty() || !fontPicker()) return;
    const auto face = fontPicker()->pickVector(&m_desk.doc(), chosen.front().Facename, m_desk.asker());
    m_desk.relay().checkpoint();
    if (face)
        change(m_desk, fontCommand(), selectedNow(m_desk),
               [&](tSid &s) { s.Facename = *face, s.Type = kVectorFont; });
}

} // namespace QV_DOC_CONTROLS
