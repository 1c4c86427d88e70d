// The commands that the symbol manager has beside those of the symbol table.
#include "dialogs/editors/GroupListModel.h"
#include "dialogs/editors/SymbolListModel.h"
#include "dialogs/editors/SymbolPictures.h"
#include "dialogs/editors/frmSupSid.h"
#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/contract/FontPicker.h"
#include "kit/ask/UniqueNumber.h"

#include <QTreeView>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr double kZoomStep = 0.2;
constexpr int kHighestNumber = 32767;

/// The characters of a vector font, and before them all of them together.
struct FontEntries final : EntrySource {
    std::vector<VectorFont::Entry> all;
    QStringList entries() const override
    {
        QStringList lines{join(Text{22582, u"Minden karakter: "}, int(all.size()))};
        for (const VectorFont::Entry &e : all)
            lines << QStringLiteral("%1   %2").arg(e.code).arg(e.name.trimmed());
        return lines;
    }
};

} // namespace

bool frmSupSid::canRenumber() const { return canEditCurrent() && m_doc->symbolRenumber(); }
bool frmSupSid::canPickFont() const { return isEditMode() && fontPicker(); }
bool frmSupSid::canPickLayer() const { return canEditSelected() && canPickResource(TableKind::Layers); }
bool frmSupSid::canEditGroup() const { return isEditMode() && m_byGroups && m_groups->rowOf(m_group) >= 0; }

void frmSupSid::sortItems() { frmSort(this).SortGrid(*lvSids); }
void frmSupSid::zoomIn() { m_pictures->zoomBy(kZoomStep); }
void frmSupSid::zoomOut() { m_pictures->zoomBy(-kZoomStep); }

void frmSupSid::addFromFont()
{
    m_edits.addFromVectorFont([this](const VectorFont &font) {
        FontEntries entries;
        entries.all = font.entries();
        qint32 at = -1;
        if (!frmChooseList(this).getIndex(entries, at)) return std::vector<VectorFont::Entry>();
        return at == 0 ? entries.all : std::vector{entries.all[size_t(at - 1)]};
    });
}

/// Empty = cancelled. A number that another symbol than `own` has is refused and asked for again.
std::optional<qint16> frmSupSid::askForNumber(NumberQuestion question, qint16 own)
{
    const auto all = doc().symbols().readAll();
    const auto refusalFor = [&](double number) -> std::optional<Message> {
        const auto has = [&](const tSid &s) { return s.SidId == number && s.SidId != own; };
        if (std::ranges::none_of(all, has)) return {};
        return Message{Icon::Information, txt(Text{20036, u"Egyedi sorszám"}),
                       txt(Text{20038, u"Létező sorszám !"})};
    };
    const auto number = uniqueNumber(m_relay, std::move(question), refusalFor, asker());
    return number ? std::optional(qint16(*number)) : std::nullopt;
}

bool frmSupSid::bGetSidId(qint16 &SidId)
{
    const auto number = askForNumber({txt(Text{20035, u"Sorszám"}),
                                      txt(Text{20036, u"Egyedi sorszám"}),
                                      {{.label = txt(Text{20037, u"Jelkulcstípus száma"}),
                                        .preset = double(SidId),
                                        .min = 1,
                                        .max = kHighestNumber}}},
                                     -1);
    if (number) SidId = *number;
    return number.has_value();
}

/// All that refers to the symbol follows, which could not be dropped with the other changes: they are
/// committed before.
void frmSupSid::renumber()
{
    const auto current = currentRecord();
    if (!current || !canRenumber()) return;
    m_span->commit();
    const QString text =
        join(Text{20073, u"A művelet rögzíti az eddigi változtatásokat is."}, QStringLiteral("\n"),
             Text{20071, u"A(z) '"}, current->ShortName, Text{20072, u"' jelkulcs új sorszáma"});
    const auto number = askForNumber({txt(Text{20069, u"Sorszám módosítás"}),
                                      text,
                                      {{.label = txt(Text{20070, u"Új sorszám:"}),
                                        .preset = double(current->SidId),
                                        .min = 1,
                                        .max = kHighestNumber}}},
                                     current->SidId);
    if (!number || *number == current->SidId) return;
    inCommand(doc(), txt(Text{20074, u"Jk.sorszám módosítása"}),
              [&] { doc().symbolRenumber()->renumber(current->SidId, *number); });
    m_span->note();
    m_span->commit();
    if (m_symbols->marked() == current->SidId) m_symbols->setMarked(*number);
    fill();
    selectById(*number);
}

/// The selected groups without symbols; for each of the others the user is asked whether to go on. Empty
/// also when not.
std::vector<qint16> frmSupSid::removableGroups(const std::vector<tSid> &symbols)
{
    std::vector<qint16> empty;
    QModelIndexList chosen = lvGroups->selectionModel()->selectedRows();
    std::sort(chosen.begin(), chosen.end());
    for (const QModelIndex &index : chosen) {
        const auto &group = m_groups->groups()[size_t(index.row())];
        if (std::ranges::count(symbols, group.id, &tSid::GroupId) == 0) {
            empty.push_back(group.id);
            continue;
        }
        const Message question{Icon::Critical, txt(Text{22304, u"Csoport törlése"}),
                               join(Text{20079, u"A(z) "}, group.name,
                                    Text{20080, u" csoport használatban van, ezért nem törölhető!"},
                                    QStringLiteral(" "), Text{20081, u"Folytatja?"})};
        if (!yesNo(question)) return {};
    }
    return empty;
}

void frmSupSid::removeGroups()
{
    const QString title = txt(Text{22304, u"Csoport törlése"});
    std::vector<tSid> symbols;
    try {
        symbols = doc().symbols().readAll();
    } catch (...) { // told instead of ending the form, on purpose
        return tell(
            {Icon::Critical, title, txt(Text{20078, u"Nem  sikerült lekérdezni a jelkulcs típusokat!"})});
    }
    auto victims = removableGroups(symbols);
    if (victims.empty()) return;
    GroupRole &role = doc().symbols().groups();
    const bool isLast = victims.size() >= role.readAll().size();
    if (isLast) victims.pop_back();
    if (!victims.empty())
        write(title, [&] {
            for (const qint16 id : victims) role.remove(id);
        });
    if (isLast) tell({Icon::Critical, title, txt(Text{20082, u"Az utolsó csoport nem törölhető!"})});
}

} // namespace QV_DOC_CONTROLS
