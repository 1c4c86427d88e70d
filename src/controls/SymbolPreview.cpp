#include "controls/SymbolPreview.h"

#include "controls/symbol/SymbolSurface.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/GroupRole.h"
#include "kit/forms/KeyCodes.h"
#include "kit/tools/Icons.h"

#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace QV_DOC_CONTROLS {

using ZolWDoc::tSid;

namespace {

constexpr float kClickStep = 0.5f, kHeldStep = 0.1f;
constexpr int kFirstInterval = 500, kInterval = 10; // milliseconds, while a button is held

} // namespace

SymbolPreview::SymbolPreview(const char *type, QWidget *parent)
    : QWidget(parent), cmdZoomIn(new QToolButton(this)), cmdZoomOut(new QToolButton(this)), m_identity(type),
      m_surface(new SymbolSurface(this)), m_repeat(new QTimer(this))
{
    announceAsGroup<SymbolPreview>();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_surface->installEventFilter(this);
    m_surface->lower();
    cmdZoomIn->setObjectName(QStringLiteral("cmdZoomIn"));
    cmdZoomOut->setObjectName(QStringLiteral("cmdZoomOut"));
    cmdZoomIn->setIcon(toolIcon("zoomOut"));    // shows what it does, not what it is called
    cmdZoomOut->setIcon(toolIcon("zoomIn"));
    connectButton(*cmdZoomIn, -1);
    connectButton(*cmdZoomOut, +1);
    setTabOrder(cmdZoomOut, cmdZoomIn);
    connect(m_repeat, &QTimer::timeout, this, &SymbolPreview::repeat);
    colorSurface();
    reloadCaptions();
}

SymbolPreview::~SymbolPreview() = default;

void SymbolPreview::SetDoc(ZolWDoc::ZOLW_Doc *oDoc)
{
    m_doc = oDoc;
    if (!m_doc) return TearDown();
    if (m_let) ShowSid();
    else setSidId(m_sidId);
}

void SymbolPreview::TearDown()
{
    m_repeat->stop();
    m_doc = nullptr;
    m_surface->drawing.record.reset();
    describe();
    m_surface->update();
}

void SymbolPreview::ShowSid()
{
    if (m_doc) take(m_record);
}

void SymbolPreview::setSidId(qint16 id)
{
    m_sidId = id;
    m_let = false;
    m_record.reset();                           // not that of another number, whatever happens now
    m_surface->drawing.record.reset();
    m_surface->update();
    if (m_doc) take(id == -1 ? tSid() : m_doc->symbols().find(id));
}

void SymbolPreview::loadSidId(int id)
{
    ErrorRelay::reporting().guard([&] { setSidId(qint16(std::clamp<int>(id, -32768, 32767))); });
}

void SymbolPreview::LetSidRec(const tSid &tNew_SidRec)
{
    m_sidId = tNew_SidRec.SidId;
    m_let = true;
    m_record = tNew_SidRec;
    ShowSid();
}

/// Shows it, with what its font has for it at hand.
void SymbolPreview::take(std::optional<tSid> record)
{
    m_surface->drawing.record.reset();
    m_surface->drawing.glyph = record ? vectorGlyphOf(*record, m_doc) : std::nullopt;
    m_surface->drawing.record = m_record = std::move(record);
    describe();
    redraw();
}

void SymbolPreview::describe()
{
    const auto &shown = m_surface->drawing.record;
    QString text;
    if (shown) {
        const QString name = shown->FullName.isEmpty() ? shown->ShortName : shown->FullName;
        text = shown->SidId == -1 ? name : join(shown->SidId, QStringLiteral(" "), name).trimmed();
    }
    if (text.isEmpty()) text = txt(Text{22400, u"Nincs jelkulcs"});
    m_surface->setAccessibleName(text);
    setAccessibleDescription(text);
}

void SymbolPreview::reloadCaptions()
{
    setAccessibleName(txt(Text{2843, u"Jelkulcs"}));
    for (const auto &[button, caption] : {std::pair(cmdZoomIn, Text{22401, u"Kicsinyítés"}),
                                          std::pair(cmdZoomOut, Text{22402, u"Nagyítás"})}) {
        button->setToolTip(txt(caption));
        button->setAccessibleName(txt(caption));
    }
    describe();
}

QPixmap SymbolPreview::GetSiPicture() const
{
    arrange();                                  // as it will be when it is first shown
    return m_surface->picture();
}

void SymbolPreview::redraw() { m_surface->repaint(); }

void SymbolPreview::connectButton(QToolButton &button, float sign)
{
    ErrorRelay &user = ErrorRelay::reporting();
    connect(&button, &QToolButton::pressed, this, [this, sign] {
        m_step = sign * kHeldStep;
        m_stepped = false;
        m_repeat->start(kFirstInterval);
    });
    connect(&button, &QToolButton::released, m_repeat, &QTimer::stop);
    connect(&button, &QToolButton::clicked, this, [this, sign, &user] {
        if (!m_stepped) user.guard([&] { zoomBy(sign * kClickStep); });
    });
}

void SymbolPreview::repeat()
{
    m_stepped = true;
    m_repeat->setInterval(kInterval);
    ErrorRelay::reporting().guard([this] { zoomBy(m_step); });
}

void SymbolPreview::zoomBy(float step)
{
    const float zoom = m_zoom + step;
    if (zoom < kLeastZoom || zoom > kMostZoom) m_repeat->stop();
    zoomTo(std::clamp(zoom, kLeastZoom, kMostZoom));
}

void SymbolPreview::zoomTo(float zoom)
{
    m_zoom = zoom;
    m_surface->drawing.zoom = double(m_zoom);
    const QPointer<SymbolPreview> alive(this);
    emit OnZoom(m_zoom);
    if (alive) redraw();
}

bool SymbolPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_surface)
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            ErrorRelay::reporting().guard([&] { raiseMouse(*static_cast<QMouseEvent *>(event)); });
            return true;
        default: break;
        }
    return QWidget::eventFilter(watched, event);
}

void SymbolPreview::raiseMouse(const QMouseEvent &event)
{
    const double x = event.position().x() * 1440 / logicalDpiX();
    const double y = event.position().y() * 1440 / logicalDpiY();
    const qint16 button = buttonsOf(event.button()), shift = shiftOf(event.modifiers());
    switch (event.type()) {
    case QEvent::MouseMove: return emit MouseMove(buttonsOf(event.buttons()), shift, x, y);
    case QEvent::MouseButtonRelease: break;
    default: return emit MouseDown(button, shift, x, y);
    }
    const bool clicked = button == 1 && m_surface->rect().contains(event.position().toPoint());
    const QPointer<SymbolPreview> alive(this);
    emit MouseUp(button, shift, x, y);
    if (alive && clicked) emit Click();
}

/// What hides it or stands before it must not leave a button held.
bool SymbolPreview::event(QEvent *event)
{
    const auto type = event->type();
    if (type == QEvent::Hide || type == QEvent::WindowBlocked || type == QEvent::EnabledChange)
        m_repeat->stop();
    return QWidget::event(event);
}

void SymbolPreview::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) colorSurface(), m_surface->update();
    if (event->type() == QEvent::StyleChange) arrange(), updateGeometry();
}

void SymbolPreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void SymbolPreview::showEvent(QShowEvent *event)
{
    reloadCaptions();                           // the language may have changed meanwhile
    QWidget::showEvent(event);
}

} // namespace QV_DOC_CONTROLS
