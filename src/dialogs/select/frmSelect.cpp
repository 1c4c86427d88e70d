#include "dialogs/select/frmSelect.h"

#include "dialogs/select/InvisibleLayer.h"
#include "dialogs/select/SymbolSide.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "grids/layer/LayerCommands.h"
#include "grids/symbol/SymbolCommands.h"
#include "kit/forms/Buttons.h"
#include "kit/forms/WindowSize.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

frmSelect::frmSelect() : m_buttons(okCancelButtons(*this))
{
    setObjectName(QStringLiteral("frmSelect"));
    auto *const column = new QVBoxLayout(this);
    column->addWidget(m_buttons);
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &frmSelect::ml_RuntimeSupport_LanguageChanged);
}

frmSelect::~frmSelect() { TearDown(); }

void frmSelect::TearDown()
{
    if (m_page) m_page->TearDown();
    if (m_side) m_side->TearDown();
    jsLayer = nullptr, jsSid = nullptr;
}

void frmSelect::ml_RuntimeSupport_LanguageChanged()
{
    setWindowTitle(txt(resourceKind(m_mode).selectCaption));
    retranslate(*m_buttons);
    if (m_page) m_page->retranslate();
}

void frmSelect::buildFrame(int mode, QWidget *owner)
{
    const ResourceKind &kind = resourceKind(mode);
    TearDown();
    delete m_page;
    m_side = nullptr;
    m_page = new GridPage(kind, GridPage::In::Selection, m_relay, this);
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, m_page, 1);
    m_page->gridItems->setEditStart(Grid::EditStart::KeyOnly);  // a double click picks
    connect(m_page->gridItems, &Grid::rowActivated, this, &frmSelect::accept);
    m_mode = mode;
    m_ok = false;
    setWindowTitle(txt(kind.selectCaption));
    if (QWidget *const over = owner ? owner->window() : QApplication::activeWindow())
        setParent(over, windowFlags());
    restoreSize(*this, objectName());
}

void frmSelect::openLayers(ZOLW_Doc &doc, bool single)
{
    m_confirm = single ? &frmSelect::confirmLayer : &frmSelect::confirmLayers;
    jsLayer = &m_page->open<clsJs_Layer>(
        kLayerCommands, *this,
        {&frmSelect::jsLayer_CurrentChanced, &frmSelect::jsLayer_GroupChanged, &frmSelect::jsLayer_GridView});
    connect(jsLayer, &clsJs_Layer::SelectedChanched, this, &frmSelect::jsLayer_SelectedChanched);
    jsLayer->init(doc, *m_page->gridItems, m_page->gridGroups, single);
    m_page->follow();
}

void frmSelect::openSymbols(ZOLW_Doc &doc)
{
    m_confirm = &frmSelect::confirmSymbol;
    jsSid = &m_page->open<clsJS_Sid>(
        kSymbolCommands, *this,
        {&frmSelect::jsSid_CurrentChanced, &frmSelect::jsSid_GroupChanged, &frmSelect::jsSid_GridView});
    connect(jsSid, &clsJS_Sid::FillSample, this, &frmSelect::jsSid_FillSample);
    connect(jsSid, &clsJS_Sid::RefreshSample, this, &frmSelect::jsSid_RefreshSample);
    m_side = new SymbolSide(*m_page, *jsSid, doc, m_relay);
    jsSid->init(doc, *m_page->gridItems, m_page->gridGroups, true);
    m_page->follow();
}

bool frmSelect::bDoSelect_Lay(ZOLW_Doc &oDoc, tLay &lay, QWidget *owner)
{
    m_lay = lay;
    buildFrame(0, owner);
    openLayers(oDoc, true);
    if (jsLayer->selectById(lay.LayId)) jsLayer->setCurrentLayer(lay.LayId);
    const bool ok = run();
    TearDown();
    if (!ok) return false;
    oDoc.layers().makeCurrent(
        m_lay); // before the caller's record changes, which an error here leaves as it was
    lay = m_lay;
    return true;
}

bool frmSelect::bDoSelect_LayArr(ZOLW_Doc &oDoc, tLayArr &layers, QWidget *owner)
{
    m_layers = layers;
    buildFrame(0, owner);
    openLayers(oDoc, false);
    std::vector<qint16> ids;
    for (const tLay &l : layers) ids.push_back(l.LayId);
    jsLayer->selectByIds(ids);
    const bool ok = run();
    TearDown();
    if (ok) layers = m_layers;
    return ok;
}

bool frmSelect::bDoSelect_Sid(ZOLW_Doc &oDoc, tSid &symbol, QWidget *owner)
{
    m_symbol = symbol;
    buildFrame(3, owner);
    openSymbols(oDoc);
    jsSid->selectById(symbol.SidId);
    const bool ok = run();
    TearDown();
    if (ok) symbol = m_symbol;
    return ok;
}

bool frmSelect::run()
{
    m_page->setFocus();
    m_relay.exec(*this);
    keepSizeOf(*this, objectName());
    return m_ok;
}

void frmSelect::jsLayer_CurrentChanced(tLay &lay)
{
    m_lay = lay;
    m_page->ab1->refresh();
}

void frmSelect::jsLayer_SelectedChanched(qint32 &, const tLay &) { m_page->ab1->refresh(); }
void frmSelect::jsLayer_GroupChanged(bool &) { m_page->ab1->refresh(); }
void frmSelect::jsLayer_GridView(qint16 &js_View) { m_page->showView(js_View); }

void frmSelect::jsSid_CurrentChanced(tSid &symbol)
{
    m_symbol = symbol;
    m_side->show(symbol);
    m_page->ab1->refresh();
}

void frmSelect::jsSid_GroupChanged(bool &) { m_page->ab1->refresh(); }
void frmSelect::jsSid_GridView(qint16 &js_View) { m_page->showView(js_View); }
void frmSelect::jsSid_FillSample(qint32 &, std::vector<tSid> &symbols) { m_side->fill(symbols); }
void frmSelect::jsSid_RefreshSample(const tSid &symbol) { m_side->refresh(symbol); }

bool frmSelect::isBusy() const { return m_page && m_page->manager() && m_page->manager()->refusesNow(); }

void frmSelect::accept()
{
    m_relay.guard([this] {
        if (isBusy()) return;
        if (!m_page->manager()) return reject(); // torn down: there is nothing to choose any more
        (this->*m_confirm)();
    });
}

void frmSelect::reject()
{
    if (isBusy()) return;
    m_ok = false;
    QDialog::reject();
}

void frmSelect::confirmLayer()
{
    m_ok = true;
    const tLayArr chosen = jsLayer->selectedLayers();
    if (chosen.empty()) return reject();
    const tLay &first = chosen.front();
    if (m_warnInvisible && !first.Visible) {
        const bool confirmed = isInvisibleMeant(QString::number(first.gNr) + u' ', this);
        m_relay.checkpoint();
        m_ok = confirmed && jsLayer;
        if (!m_ok) return;
    }
    m_lay = first;
    jsLayer->setCurrentLayer(first.LayId);
    QDialog::accept();
}

void frmSelect::confirmLayers()
{
    m_layers = jsLayer->selectedLayers();
    if (m_layers.empty()) return reject();
    m_ok = true;
    jsLayer->setCurrentLayer(m_layers.front().LayId);
    QDialog::accept();
}

/// The grid's current one.
void frmSelect::confirmSymbol()
{
    const auto chosen = jsSid->currentRecord();
    if (!chosen) return reject();
    m_symbol = *chosen;
    m_ok = true;
    QDialog::accept();
}

} // namespace QV_DOC_CONTROLS
