#include "controls/SymbolPreview.h"

#include "controls/symbol/SymbolSurface.h"
#include "kit/forms/PropertyBag.h"

#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

constexpr BagRow kBag[] = {
    {"BackColor", "BackColor", SystemColor{0x000000}},
    {"BorderStyle", "BorderStyle", 0},
    {"Zoom", "Zoom", 3.0},
    {"SidId", "SidId", -1},
    {"SiColor", "SiColor", SystemColor{0xffffff}},
    {"VisibleGrid", "VisibleGrid", false},
    {"VisibleZoom", "VisibleZoom", true},
    {"Appearance", "Appearance", 0},
    {"VisibleProt", "VisibleProt", false},
    {"VisibleFrame", "VisibleFrame", false},
    {"ToolTipSid", "ToolTipSid", u""},
};

} // namespace

QVariantMap SymbolPreview::propertyBag() const { return bagOf(*this, kBag); }
void SymbolPreview::setPropertyBag(const QVariantMap &bag) { readBag(*this, kBag, bag); }

void SymbolPreview::colorSurface()
{
    m_surface->drawing.background = shownColor(m_backColor, palette());
    m_surface->drawing.color = shownColor(m_siColor, palette());
}

void SymbolPreview::setBackColor(const QColor &color)
{
    m_backColor = systemColor(color);
    colorSurface();
    redraw();
}

void SymbolPreview::setSiColor(const QColor &color)
{
    m_siColor = systemColor(color);
    colorSurface();
    redraw();
}

void SymbolPreview::setShort(int &property, int value)
{
    property = std::clamp<int>(value, -32768, 32767);
    m_surface->setBorder(m_borderStyle, m_appearance);
    redraw();
}

void SymbolPreview::setBorderStyle(int style) { setShort(m_borderStyle, style); }
void SymbolPreview::setAppearance(int appearance) { setShort(m_appearance, appearance); }

double SymbolPreview::Zoom() const
{
    return QString::number(double(m_zoom), 'g', 7).toDouble(); // 3.1 is read as 3.1
}

void SymbolPreview::setZoom(double zoom)
{
    if (std::isnan(zoom)) return redraw();
    const float wanted = float(std::clamp<double>(zoom, kLeastZoom, kMostZoom));
    if (wanted == m_zoom) redraw();
    else zoomTo(wanted);
}

bool SymbolPreview::VisibleGrid() const { return m_surface->drawing.grid; }
void SymbolPreview::setVisibleGrid(bool on)
{
    m_surface->drawing.grid = on;
    redraw();
}

void SymbolPreview::setVisibleZoom(bool on)
{
    m_visibleZoom = on;
    arrange();
    updateGeometry();
    redraw();
}

bool SymbolPreview::VisibleProt() const { return m_surface->drawing.marker; }
void SymbolPreview::setVisibleProt(bool on)
{
    m_surface->drawing.marker = on;
    redraw();
}

bool SymbolPreview::VisibleFrame() const { return m_surface->drawing.frame; }
void SymbolPreview::setVisibleFrame(bool on)
{
    m_surface->drawing.frame = on;
    redraw();
}

QString SymbolPreview::ToolTipSid() const { return m_surface->toolTip(); }
void SymbolPreview::setToolTipSid(const QString &text)
{
    m_surface->setToolTip(text);
    redraw();
}

QSize SymbolPreview::sizeHint() const
{
    const int side = 8 * fontMetrics().height();
    return {side + (m_visibleZoom ? cmdZoomIn->sizeHint().width() : 0), side};
}

QSize SymbolPreview::minimumSizeHint() const
{
    const QSize button = m_visibleZoom ? cmdZoomIn->sizeHint() : QSize();
    const int side = 2 * fontMetrics().height();
    return {side + std::max(0, button.width()), std::max(side, 2 * button.height())};
}

/// The buttons stand one above the other beside the surface, the one that enlarges on top.
void SymbolPreview::arrange() const
{
    const int icon = fontMetrics().height();
    for (QToolButton *button : {cmdZoomIn, cmdZoomOut}) {
        button->setIconSize({icon, icon});
        button->setVisible(m_visibleZoom);
    }
    const QSize button = cmdZoomIn->sizeHint();
    const int beside = m_visibleZoom ? std::min(button.width(), width() / 2) : 0;
    const int high = std::min(button.height(), height() / 2), left = width() - beside;
    m_surface->setGeometry(0, 0, left, height());
    cmdZoomOut->setGeometry(left, height() - 2 * high, beside, high);
    cmdZoomIn->setGeometry(left, height() - high, beside, high);
}

} // namespace QV_DOC_CONTROLS
