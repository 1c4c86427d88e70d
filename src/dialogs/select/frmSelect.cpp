#include "dialogs/select/frmSelect.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "grids/clsJs_Layer.h"
#include "kit/forms/Buttons.h"
#include "kit/forms/WindowSize.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

frmSelect::frmSelect() : m_page(new GridPage(m_relay, this)), m_buttons(okCancelButtons(*this))
{
    setObjectName(QStringLiteral("frmSelect"));
    auto *const column = new QVBoxLayout(this);
    column->addWidget(m_page, 1);
    column->addWidget(m_buttons);
    connect(m_page->gridItems, &Grid::rowActivated, this, &frmSelect::accept);
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            &frmSelect::ml_RuntimeSupport_LanguageChanged);
}

frmSelect::~frmSelect() { TearDown(); }

void frmSelect::TearDown()
{
    m_page->TearDown();
    jsLayer = nullptr;
}

void frmSelect::ml_RuntimeSupport_LanguageChanged()
{
    setWindowTitle(txt(resourceKind(m_mode).selectCaption));
    retranslate(*m_buttons);
    m_page->retranslate();
}

void frmSelect::buildFrame(int mode, QWidget *owner)
{
    m_mode = mode;
    m_ok = false;
    setWindowTitle(txt(resourceKind(mode).selectCaption));
    if (QWidget *const over = owner ? owner->window() : QApplication::activeWindow())
        setParent(over, windowFlags());
    restoreSize(*this, QStringLiteral("frmSelect"));
}

bool frmSelect::bDoSelect_Lay(ZOLW_Doc &oDoc, tLay &lay, QWidget *owner)
{
    m_lay = lay;
    buildFrame(0, owner);
    jsLayer = &m_page->open<clsJs_Layer>(m_mode);
    connect(jsLayer, &clsJs_Layer::CurrentChanced, this, &frmSelect::jsLayer_CurrentChanced);
    connect(jsLayer, &clsJs_Layer::SelectedChanched, this, &frmSelect::jsLayer_SelectedChanched);
    connect(jsLayer, &clsJs_Layer::GroupChanged, this, &frmSelect::jsLayer_GroupChanged);
    connect(jsLayer, &clsJs_Layer::GridView, this, &frmSelect::jsLayer_GridView);
    jsLayer->init(oDoc, *m_page->gridItems, m_page->gridGroups, true);
    if (jsLayer->selectById(lay.LayId)) jsLayer->setCurrentLayer(lay.LayId);
    const bool ok = run();
    TearDown();
    if (!ok) return false;
    oDoc.layers().makeCurrent(
        m_lay); // before the caller's record changes, which an error here leaves as it was
    lay = m_lay;
    return true;
}

bool frmSelect::run()
{
    m_page->setFocus();
    m_relay.exec(*this);
    keepSizeOf(*this, QStringLiteral("frmSelect"));
    return m_ok;
}

void frmSelect::jsLayer_CurrentChanced(tLay &lay) { m_lay = lay; }
void frmSelect::jsLayer_SelectedChanched(qint32 &, const tLay &) {
} // one layer is picked: nothing follows the count

void frmSelect::jsLayer_GroupChanged(bool &) { m_page->ab1->refresh(); }
void frmSelect::jsLayer_GridView(qint16 &js_View) { m_page->showView(js_View); }

void frmSelect::accept()
{
    m_relay.guard([this] { confirmLayer(); });
}

void frmSelect::reject()
{
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
        const QString question =
            join(first.gNr, QStringLiteral(" "), Text{20019, u"Kikapcsolt réteget választott!"},
                 QStringLiteral("\n"), Text{20020, u"Megerősíti?"});
        const bool confirmed = prompts().yesNo({Icon::Question, appTitle(), question}, this);
        m_relay.checkpoint();
        m_ok = confirmed;
        if (!confirmed) return;
    }
    m_lay = first;
    jsLayer->setCurrentLayer(first.LayId);
    QDialog::accept();
}

} // namespace QV_DOC_CONTROLS
