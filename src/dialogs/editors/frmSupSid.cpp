#include "dialogs/editors/frmSupSid.h"

#include "controls/usSiInfo.h"
#include "dialogs/editors/GroupListModel.h"
#include "dialogs/editors/SymbolListModel.h"
#include "dialogs/editors/SymbolManagerTools.h"
#include "dialogs/editors/SymbolPictures.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "kit/forms/Buttons.h"
#include "kit/tools/ToolSet.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QSplitter>
#include <QTreeView>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr SymbolRemovalTexts kRemoval{{20076, u"Jelkulcs típus törlése"},
                                      {20075, u"Az utolsó jelkulcs nem törölhető!"},
                                      {20071, u"A(z) '"},
                                      {20077, u"' nevű jelkulcs típus nem törölhető!"}};
constexpr Text kFromFile{3061, u"Fájlból"};

} // namespace

frmSupSid::frmSupSid(QWidget *owner)
    : QDialog(owner ? owner->window() : QApplication::activeWindow()), lvGroups(new QTreeView(this)),
      lvSids(new ItemList(m_relay, this)), usSiItem(new usSiInfo(this)),
      m_pictures(new SymbolPictures(*usSiItem, m_relay)), m_symbols(new SymbolListModel(*m_pictures)),
      m_groups(new GroupListModel), m_removal(*this, kRemoval), m_files(*this, m_groupWork, kFromFile),
      m_tools(new ToolSet(kSymbolManagerTools, m_relay, this)), m_splitter(new QSplitter(this)),
      m_hint(new QLabel(this)), m_buttons(okCancelButtons(*this))
{
    m_symbols->setParent(this);
    m_groups->setParent(this);
    setObjectName(QStringLiteral("frmSupSid"));
    build();
    connectParts();
    ml_RuntimeSupport_LanguageChanged();
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &frmSupSid::ml_RuntimeSupport_LanguageChanged);
}

frmSupSid::~frmSupSid() { TearDown(); }

void frmSupSid::TearDown()
{
    m_pictures->forget();
    usSiItem->TearDown();
    m_span.reset(); // what is open stays
    m_doc = nullptr;
}

bool frmSupSid::bDoModal(ZOLW_Doc &oDoc, enumSetupMode mode, qint16 &SidId)
{
    const Trace trace("frmSupSid", "bDoModal");
    TearDown();
    m_doc = &oDoc;
    m_span.emplace(oDoc, TableKind::Symbols);
    m_edit = m_toEdit = mode == MODE_EDIT;
    m_editForbidden = mode == MODE_SELECT_ONLY;
    m_ok = false;
    m_chosen.reset();
    usSiItem->SetDoc(&oDoc);
    m_symbols->setMarked(SidId);
    fill();
    selectById(SidId);
    restoreView();
    showMode();
    lvSids->setFocus();
    {
        const auto keeping = qScopeGuard([this] { keepView(); });
        m_relay.exec(*this);
    }
    if (m_ok && m_chosen) SidId = *m_chosen;
    return m_ok;
}

// --- what is listed

/// The chosen group stays; when it is gone, the first one is chosen.
void frmSupSid::fill()
{
    auto all = doc().symbols().readAll();
    auto names = SymbolTable::namesOf(doc());
    const auto groups = doc().symbols().groups().readAll();
    showGroups(all, groups);
    lvSids->rearrange([&] { m_symbols->setSymbols(std::move(all), std::move(names), shownGroup()); });
}

/// Groups that symbols name and that are not there are listed behind the others.
void frmSupSid::showGroups(const std::vector<tSid> &all, const std::vector<tGroup> &groups)
{
    QHash<qint16, int> counts;
    for (const tSid &s : all) ++counts[s.GroupId];
    std::vector<GroupListModel::Group> listed;
    for (const tGroup &g : groups) listed.push_back({g.GroupId, g.GroupName, counts.take(g.GroupId)});
    for (const auto &[id, count] : counts.asKeyValueRange())
        listed.push_back({id, txt(Text{3204, u"HIBÁS CSOPORT"}), count});
    const QSignalBlocker quiet(lvGroups->selectionModel());
    m_groups->setGroups(std::move(listed));
    if (m_groups->rowOf(m_group) < 0) m_group = m_groups->rowCount() > 0 ? m_groups->groups()[0].id : -1;
    m_groups->setChosen(m_group);
    lvGroups->setCurrentIndex(m_groups->index(m_groups->rowOf(m_group), 0));
    lvGroups->viewport()->update();
}

std::optional<qint16> frmSupSid::shownGroup() const
{
    return m_byGroups && m_groups->rowCount() > 0 ? std::optional(m_group) : std::nullopt;
}

void frmSupSid::chooseGroup(int row)
{
    if (row < 0 || m_groups->groups()[size_t(row)].id == m_group) return;
    m_group = m_groups->groups()[size_t(row)].id;
    m_groups->setChosen(m_group);
    lvSids->rearrange([this] { m_symbols->showGroup(shownGroup()); });
}

void frmSupSid::toggleGroups()
{
    m_byGroups = !m_byGroups;
    lvGroups->setVisible(m_byGroups);
    lvSids->rearrange([this] { m_symbols->showGroup(shownGroup()); });
}

// --- the desk

qint16 frmSupSid::chosenGroup() const { return shownGroup().value_or(GroupRows::kAll); }

void frmSupSid::write(const QString &command, const std::function<void()> &body)
{
    m_span->begin();
    m_span->note();
    inCommand(doc(), command, body);
    fill();
}

void frmSupSid::refillAfter(const std::function<void()> &body)
{
    const auto before = m_symbols->all();
    m_span->begin();
    body();
    fill();
    if (m_symbols->all() != before) m_span->note();
}

bool frmSupSid::selectById(qint16 id)
{
    const auto found = std::ranges::find(m_symbols->all(), id, &tSid::SidId);
    if (found == m_symbols->all().end()) return false;
    if (m_byGroups) lvGroups->setCurrentIndex(m_groups->index(m_groups->rowOf(found->GroupId), 0));
    lvSids->setCurrentRow(m_symbols->rowOf(id));
    return true;
}

std::vector<tSid> frmSupSid::selected() const
{
    std::vector<tSid> out;
    for (const int row : lvSids->selectedRows()) out.push_back(m_symbols->at(row));
    return out;
}

std::optional<tSid> frmSupSid::currentRecord() const
{
    const int row = lvSids->currentRow();
    return row < 0 ? std::nullopt : std::optional(m_symbols->at(row));
}

// --- modes

void frmSupSid::toggleMode()
{
    if (m_edit) {
        settleChanges();
        setEditMode(false);
    } else if (m_editForbidden) {
        tell({Icon::Exclamation, appTitle(), txt(Text{20088, u"A szerkesztő mód nem választható !"})});
    } else {
        setEditMode(true);
    }
}

void frmSupSid::settleChanges()
{
    const bool asks = m_span && m_span->isChanged() && m_span->canDiscard();
    const Message question{Icon::Question, txt(Text{20087, u"Változások rögzítése"}),
                           txt(Text{20086, u"Akarod rögzíteni a változtatásokat ?"})};
    const bool keeps = !asks || yesNo(question);
    if (!m_span) return;                        // let go of, perhaps while the question stood
    if (keeps) return m_span->commit();
    m_span->discard();
    if (m_doc) fill();
}

/// The form is as wide as its user left it in that mode.
void frmSupSid::setEditMode(bool on)
{
    keepView();
    m_edit = on;
    restoreView();
    showMode();
}

void frmSupSid::showMode()
{
    lvSids->setDragOut(m_edit);
    lvGroups->setAcceptDrops(m_edit);
    ml_RuntimeSupport_LanguageChanged(); // the title says which it is
    m_tools->refresh();
    showHint();
}

void frmSupSid::accept()
{
    m_relay.guard([this] {
        if (!m_doc) return QDialog::reject();   // nothing to choose from any more
        const auto current = currentRecord();
        if (!m_toEdit && !current) return;      // opened to choose, in whatever mode it is now
        if (m_edit) m_span->commit();
        if (current) m_chosen = current->SidId;
        m_ok = true;
        QDialog::accept();
    });
}

void frmSupSid::reject()
{
    m_relay.guard([this] {
        if (m_edit) settleChanges();
        m_ok = m_toEdit && m_span && m_span->isKept(); // who was to choose has not
        if (const auto current = currentRecord()) m_chosen = current->SidId;
        QDialog::reject();
    });
}

} // namespace QV_DOC_CONTROLS
