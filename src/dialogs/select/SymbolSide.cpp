#include "dialogs/select/SymbolSide.h"

#include "controls/usSiInfo.h"
#include "dialogs/select/GridPage.h"
#include "grids/clsJS_Sid.h"
#include "kit/forms/WindowSize.h"
#include "rules/SymbolRules.h"

#include <QEvent>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr int kMoveCommand = 1001;              // of the first group
constexpr int kSampleLines = 2, kSampleLetters = 8, kPreviewLetters = 26;

} // namespace

SymbolSide::SymbolSide(GridPage &page, clsJS_Sid &manager, ZOLW_Doc &doc, ErrorRelay &relay)
    : m_page(page), m_relay(relay), m_doc(&doc), m_preview(new usSiInfo(this))
{
    setObjectName(QStringLiteral("bndSiInfo"));
    m_preview->setObjectName(QStringLiteral("usSiInfo1"));
    m_preview->setVisibleProt(true);
    m_preview->setVisibleGrid(true);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_preview);
    column->addStretch(1);
    const int width = sizeOfLetters(*this, kPreviewLetters, 0).width();
    m_preview->setFixedHeight(width);
    setFixedWidth(width);
    page.addBeside(this);
    page.gridItems->setPictureSize(sizeOfLetters(page, kSampleLetters, kSampleLines));
    manager.setSampler([this](const tSid &symbol) {
        return m_samples.picture(symbol, sizeOfLetters(m_page, kSampleLetters, kSampleLines),
                                 *m_page.gridItems);
    });
    m_relay.guard([this] { m_preview->SetDoc(m_doc); });
    connectTools(manager);
    connectGroupMove(manager);
}

SymbolSide::~SymbolSide() { TearDown(); }

void SymbolSide::TearDown()
{
    m_preview->TearDown();
    m_doc = nullptr;
}

void SymbolSide::connectTools(clsJS_Sid &manager)
{
    ToolSet &tools = *m_page.ab1;
    const auto on = [&](const char *name, std::function<void()> run, std::function<bool()> enabled = {}) {
        if (tools.tool(name)) tools.on(name, {std::move(run), std::move(enabled), {}, &manager});
    };
    const auto isShown = [&tools] { return tools.tool("miSiInfo")->isChecked(); };
    on("cmdSid_ZoomIn", [this] { m_preview->cmdZoomIn->click(); }, isShown);
    on("cmdSid_ZoomOut", [this] { m_preview->cmdZoomOut->click(); }, isShown);
    m_preview->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_preview, &QWidget::customContextMenuRequested, this, [this, &tools](QPoint at) {
        tools.popUp("bndSid")->popup(m_preview->mapToGlobal(at));
    });
    for (const char *larger : {"cmdSid_ViewIn", "cmdSid_ViewZoomIn"})
        on(larger, [this] { zoomSamples(SymbolSamples::kStep); });
    for (const char *smaller : {"cmdSid_ViewOut", "cmdSid_ViewZoomOut"})
        on(smaller, [this] { zoomSamples(-SymbolSamples::kStep); });
    tools.setChecked("miSiInfo", true);
    on("miSiInfo", [this, isShown] { setVisible(isShown()); });
}

/// One entry for each group, with its place and its command number.
void SymbolSide::connectGroupMove(clsJS_Sid &manager)
{
    QPointer<clsJS_Sid> alive(&manager);
    const auto entries = [alive] {
        std::vector<ToolSet::Entry> list;
        if (!alive) return list;
        for (const tGroup &g : alive->groups()) {
            const int place = int(list.size());
            list.push_back({QString::number(place + 1) + QStringLiteral("cmdSid_GroupMove"), g.GroupName,
                            kMoveCommand + place});
        }
        return list;
    };
    m_page.ab1->list("bndGroups2", entries, [alive](int place) {
        if (alive) alive->moveToGroup(alive->groups()[size_t(place)].GroupId);
    });
    m_page.ab1->on("cmdSid_GroupMove", {[] {}, [alive] { return alive->canGroupSelected(); }, {}, &manager});
}

void SymbolSide::show(const tSid &symbol)
{
    m_relay.guard([&] {
        if (!m_doc) return;
        const auto idAndZoom = [](const tSid &s) { return std::pair(s.SidId, s.DspZoom); };
        const bool isAnother = idAndZoom(symbol) != idAndZoom(m_preview->GetSidRec());
        m_preview->LetSidRec(symbol);
        if (isAnother) m_preview->setZoom(previewZoomOf(symbol));
    });
}

void SymbolSide::fill(std::vector<tSid> &symbols)
{
    m_relay.guard([&] { m_samples.prepare(symbols, m_doc); });
}

void SymbolSide::refresh(const tSid &symbol)
{
    m_relay.guard([&] { m_samples.prepare({&symbol, 1}, m_doc); });
    m_page.gridItems->picturesChanged();
}

void SymbolSide::zoomSamples(double step)
{
    m_samples.zoomBy(step);
    m_page.gridItems->picturesChanged();
}

void SymbolSide::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) m_page.gridItems->picturesChanged();
}

} // namespace QV_DOC_CONTROLS
