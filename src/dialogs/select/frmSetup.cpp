#include "dialogs/select/frmSetup.h"

#include "dialogs/select/AllDocuments.h"
#include "dialogs/select/InvisibleLayer.h"
#include "dialogs/select/SymbolSide.h"
#include "facade/services/Language.h"
#include "facade/services/Prompts.h"
#include "grids/layer/LayerCommands.h"
#include "grids/symbol/SymbolCommands.h"
#include "kit/forms/Buttons.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr const char *kPageKeys[kKinds] = {"Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "Ctrl+5", "Ctrl+6"};
constexpr int kLayers = 0, kSymbols = 3;        ///< pages
constexpr QSize kUsualLetters(160, 36);

QLabel *labelIn(QWidget *owner, const char *name)
{
    auto *const label = new QLabel(owner);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

const frmSetup::Opener frmSetup::kOpeners[kKinds] = {
    &frmSetup::openLayers, nullptr, nullptr, &frmSetup::openSymbols}; // null = there is no such page yet

frmSetup::frmSetup()
    : cmdOkAllDocument(new QPushButton(this)), m_tools(new ToolSet(tools(), m_relay, this)),
      m_stack(new QStackedWidget(this)), m_hint(labelIn(this, "lblHint")),
      m_current(labelIn(this, "lblCurrentLayer")), m_parts(new QPushButton(this)),
      m_buttons(okCancelButtons(*this))
{
    setObjectName(QStringLiteral("frmSetup"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_tools->setObjectName(QStringLiteral("tools"));
    cmdOkAllDocument->setObjectName(QStringLiteral("cmdOkAllDocument"));
    m_parts->setObjectName(QStringLiteral("cmdAllDocMode"));
    build();
    connectTools();
    ml_RuntimeSupport_LanguageChanged();
    connect(cmdOkAllDocument, &QPushButton::clicked, this,
            [this] { m_relay.guard([this] { confirmInAllDocuments(); }); });
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &frmSetup::ml_RuntimeSupport_LanguageChanged);
}

frmSetup::~frmSetup() { TearDown(); }

void frmSetup::build()
{
    QToolBar *const pages = m_tools->toolBar("mnuPages", {21803, u"Táblák"});
    pages->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_hint->setAlignment(Qt::AlignCenter);
    m_stack->addWidget(m_hint);
    m_current->setTextFormat(Qt::PlainText);
    m_current->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_current->hide();
    m_parts->setMenu(m_tools->popUp("bndPopup_AllDocMode"));
    auto *const below = new QHBoxLayout;
    below->addWidget(m_parts);
    below->addWidget(cmdOkAllDocument);
    below->addWidget(m_buttons, 1);
    auto *const column = new QVBoxLayout(this);
    column->addWidget(pages);
    column->addWidget(m_stack, 1);
    column->addWidget(m_current);
    column->addLayout(below);
}

/// The tools that select the pages there are, and the check marks of what goes to all documents.
ToolSet::Tables frmSetup::tools()
{
    for (int page = 0; page < kKinds; ++page) {
        const ResourceKind &kind = kResourceKinds[page];
        if (kOpeners[page])
            m_pageTools.push_back(
                {"mnuPages", kind.menuTool, kind.pageCaption, kind.icon, kPageKeys[page], Check::OneOf});
    }
    return {m_pageTools, kAllDocumentsTools};
}

void frmSetup::connectTools()
{
    for (int page = 0; page < kKinds; ++page)
        if (kOpeners[page])
            m_tools->on(kResourceKinds[page].menuTool,
                        {[this, page] { showPage(page); }, {}, [this, page] { return m_page == page; }});
    for (const AllDocumentsPart &p : kAllDocumentsParts)
        m_tools->on(p.tool, {[this] { offerAllDocuments(); }});
    m_tools->setChecked(kAllDocumentsParts[0].tool, true);
}

void frmSetup::TearDown()
{
    for (GridPage *page : m_pages)
        if (page) page->TearDown();
    if (m_side) m_side->TearDown();
    jsLayer = nullptr, jsSid = nullptr;
    m_doc = nullptr;
    m_docList = nullptr;
}

void frmSetup::ml_RuntimeSupport_LanguageChanged()
{
    const QString title = txt(Text{21800, u"Rajzbeállítás"});
    setWindowTitle(m_page < 0 ? title
                              : title + QStringLiteral(" –") + txt(kResourceKinds[m_page].pageCaption));
    m_hint->setText(txt(Text{21804, u"Válasszon táblát a felső sorban!"}));
    m_parts->setText(txt(Text{21808, u"Átvitt tulajdonságok"}));
    cmdOkAllDocument->setText(txt(Text{21807, u"OK minden rajzban"}));
    cmdOkAllDocument->setToolTip(
        txt(Text{21809, u"Átviszi a rétegek kiválasztott tulajdonságait a többi nyitott rajz azonos sorszámú "
                        u"rétegeire"}));
    m_current->setToolTip(
        txt(Text{21813, u"Aktuális réteg választása: dupla kattintás vagy Ctrl+Enter a során"}));
    retranslate(*m_buttons);
    m_tools->retranslate();
    for (GridPage *page : m_pages)
        if (page) page->retranslate();
    showCurrentLayer();
}

bool frmSetup::bDoShow(ZOLW_Doc &oDoc, qint16 iType, bool edit)
{
    m_doc = &oDoc;
    m_ok = false;
    m_sizeKeys.width = edit ? "-Width4Edit" : "-Width4Select";
    if (QWidget *const over = QApplication::activeWindow()) setParent(over, windowFlags());
    restoreSize(*this, objectName(), sizeOfLetters(*this, kUsualLetters.width(), kUsualLetters.height()),
                m_sizeKeys);
    selectPage(iType);
    m_relay.guard([this] { offerAllDocuments(); });
    return run();
}

/// By its menu tool; there is none for a page that is not there.
void frmSetup::selectPage(int page)
{
    if (page < 0 || page >= kKinds) return;
    if (QAction *const tool = m_tools->tool(kResourceKinds[page].menuTool)) tool->trigger();
}

void frmSetup::showPage(int page)
{
    if (isBusy() || page == m_page) return;
    const bool isNew = !m_pages[size_t(page)];
    GridPage *&shown = m_pages[size_t(page)];
    if (isNew) {
        shown = new GridPage(kResourceKinds[page], GridPage::In::Setup, m_relay, this);
        m_stack->addWidget(shown);
    }
    m_page = page;
    m_stack->setCurrentWidget(shown);
    if (isNew) (this->*kOpeners[page])(*shown);
    shown->setFocus();
    ml_RuntimeSupport_LanguageChanged();
}

void frmSetup::openLayers(GridPage &page)
{
    jsLayer = &page.open<clsJs_Layer>(
        kLayerCommands, *this,
        {&frmSetup::jsLayer_CurrentChanced, &frmSetup::jsLayer_GroupChanged, &frmSetup::jsLayer_GridView});
    connect(jsLayer, &clsJs_Layer::currentLayerMoved, this, &frmSetup::showCurrentLayer);
    connect(jsLayer, &clsJs_Layer::currentLayerMoved, page.ab1, &ToolSet::refresh);
    const auto makes = [this] { makeCurrent(); };
    page.ab1->on("cmdLays_MakeCurrent", {makes, [this] { return canMakeCurrent(); }, {}, jsLayer});
    page.gridItems->setEditStart(Grid::EditStart::SecondClick); // a double click makes current
    connect(page.gridItems, &Grid::rowActivated, jsLayer, [this, makes] { m_relay.guard(makes); });
    jsLayer->setAutomaticItemSelection(m_automatic);
    jsLayer->init(*m_doc, *page.gridItems, page.gridGroups, false);
    page.follow();
    jsLayer->setCurrentLayer(m_doc->layers().currentId());
}

void frmSetup::openSymbols(GridPage &page)
{
    jsSid = &page.open<clsJS_Sid>(
        kSymbolCommands, *this,
        {&frmSetup::jsSid_CurrentChanced, &frmSetup::jsSid_GroupChanged, &frmSetup::jsSid_GridView});
    connect(jsSid, &clsJS_Sid::FillSample, this, &frmSetup::jsSid_FillSample);
    connect(jsSid, &clsJS_Sid::RefreshSample, this, &frmSetup::jsSid_RefreshSample);
    connect(page.gridItems, &Grid::rowActivated, jsSid, &clsJS_Sid::editSymbol);
    m_side = new SymbolSide(page, *jsSid, *m_doc, m_relay);
    jsSid->init(*m_doc, *page.gridItems, page.gridGroups, false);
    page.gridItems->goToFirst();
    page.follow();
}

void frmSetup::jsSid_CurrentChanced(tSid &symbol)
{
    m_side->show(symbol);
    m_pages[kSymbols]->ab1->refresh();
}

void frmSetup::jsSid_GroupChanged(bool &) { m_pages[kSymbols]->ab1->refresh(); }
void frmSetup::jsSid_GridView(qint16 &js_View) { m_pages[kSymbols]->showView(js_View); }
void frmSetup::jsSid_FillSample(qint32 &, std::vector<tSid> &symbols) { m_side->fill(symbols); }
void frmSetup::jsSid_RefreshSample(const tSid &symbol) { m_side->refresh(symbol); }

void frmSetup::jsLayer_CurrentChanced(tLay &) { m_pages[kLayers]->ab1->refresh(); }
void frmSetup::jsLayer_GroupChanged(bool &) { m_pages[kLayers]->ab1->refresh(); }
void frmSetup::jsLayer_GridView(qint16 &js_View) { m_pages[kLayers]->showView(js_View); }

bool frmSetup::canMakeCurrent() const
{
    const auto row = jsLayer ? jsLayer->currentRecord() : std::nullopt;
    return row && row->LayId != jsLayer->currentLayer();
}

/// The layer of the current row. After No the layer that was current stays so, and the grid goes back to it.
void frmSetup::makeCurrent()
{
    if (isBusy() || !canMakeCurrent()) return;
    const tLay lay = *jsLayer->currentRecord();
    if (m_warnInvisible && !lay.Visible) {
        const bool confirmed = isInvisibleMeant({}, this);
        m_relay.checkpoint();
        if (!jsLayer) return;                   // torn down meanwhile
        if (!confirmed) {
            jsLayer->selectById(jsLayer->currentLayer());
            return;
        }
    }
    ZOLW_Doc &doc = *m_doc;
    inCommand(doc, txt(Text{21820, u"Legyen aktuális"}), [&] { doc.layers().makeCurrent(lay); });
    if (jsLayer) jsLayer->setCurrentLayer(lay.LayId);
}

void frmSetup::showCurrentLayer()
{
    const auto lay = jsLayer ? jsLayer->currentLayerAsRead() : std::nullopt;
    m_current->setVisible(jsLayer && m_page == kLayers);
    m_current->setText(lay ? join(Text{21805, u"Aktuális réteg: "}, lay->gNr, QStringLiteral(" "), lay->Name)
                           : txt(Text{21806, u"Nincs aktuális réteg."}));
    setAccessibleDescription(m_current->isHidden() ? QString() : m_current->text());
}

std::vector<bool tLay::*> frmSetup::chosenParts() const
{
    std::vector<bool tLay::*> parts;
    for (const AllDocumentsPart &p : kAllDocumentsParts)
        if (m_tools->tool(p.tool)->isChecked()) parts.push_back(p.part);
    return parts;
}

void frmSetup::offerAllDocuments()
{
    const bool offered = m_docList && m_docList->count() >= 2;
    for (QWidget *w : {m_parts, cmdOkAllDocument}) w->setVisible(offered);
    cmdOkAllDocument->setEnabled(!chosenParts().empty());
}

void frmSetup::confirmInAllDocuments()
{
    if (isBusy()) return;
    copyToAllDocuments(*m_doc, *m_docList, chosenParts(), this);
    m_ok = true;
    QDialog::accept();
}

bool frmSetup::run()
{
    const auto keeping = qScopeGuard([this] { keepView(); });
    m_relay.exec(*this);
    return m_ok;
}

void frmSetup::keepView()
{
    for (const GridPage *page : m_pages)
        if (page && page->manager()) page->manager()->saveLayout();
    keepSizeOf(*this, objectName(), m_sizeKeys);
}

bool frmSetup::isBusy() const
{
    const GridPage *const page = m_page < 0 ? nullptr : m_pages[size_t(m_page)];
    return page && page->manager() && page->manager()->refusesNow();
}

void frmSetup::accept()
{
    m_relay.guard([this] {
        if (isBusy()) return;
        m_ok = true;
        QDialog::accept();
    });
}

void frmSetup::reject()
{
    m_relay.guard([this] {
        if (isBusy()) return;
        m_ok = false;
        QDialog::reject();
    });
}

} // namespace QV_DOC_CONTROLS
