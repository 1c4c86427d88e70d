#include "controls/LayerSetControl.h"

#include "controls/DesignMode.h"
#include "controls/PropertyError.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/PropertyBag.h"
#include "kit/forms/Twips.h"

#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>

namespace QV_DOC_CONTROLS {
namespace {

constexpr BagRow kBag[] = {
    {"BackColor", "Backcolor", kWindowBackground},
    {"SingleLine", "SingleLine", false},
    {"WidthDiferent", "WidthDiferent", 0.0}, // published spelling
    {"sLays", "sLays", u""},
    {"sLayGroup", "sLayGroup", LayerSetControl::kFirstEntry},
    {"CollectionLays", "CollectionLays"},
    {"Font", "Font", ContainerFont{}},
};

} // namespace

void LayerSetControl::setSingleLine(bool on)
{
    m_singleLine = on;
    orderTabs();
    arrange();
}

/// As one reads.
void LayerSetControl::orderTabs()
{
    QWidget *const first = m_singleLine ? static_cast<QWidget *>(txtLays) : cboLays;
    setTabOrder(first, m_singleLine ? static_cast<QWidget *>(cboLays) : txtLays);
    setFocusProxy(first);
}

/// An order among two is none until the form's other fields are there.
void LayerSetControl::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    orderTabs();
}

void LayerSetControl::setWidthDiferent(double twips)
{
    constexpr double most = std::numeric_limits<float>::max();
    m_widthDiferent = std::isnan(twips) ? 0 : float(std::clamp(twips, -most, most));
    arrange();
}

void LayerSetControl::setBackcolor(const QColor &color)
{
    m_backcolor = systemColor(color);
    colorBox();
}

/// A colour of its own gets black or white letters; a desktop's follows the palette.
void LayerSetControl::colorBox()
{
    QPalette colors;
    if (m_backcolor != kWindowBackground) {
        const QColor back = shownColor(m_backcolor, palette());
        colors.setColor(QPalette::Base, back);
        QColor ink = back.lightness() > 127 ? Qt::black : Qt::white;
        colors.setColor(QPalette::Text, ink);
        ink.setAlphaF(0.5f);
        colors.setColor(QPalette::PlaceholderText, ink);
    }
    txtLays->setPalette(colors);
}

QVariantMap LayerSetControl::propertyBag() const { return bagOf(*this, kBag); }

void LayerSetControl::setPropertyBag(const QVariantMap &bag)
{
    if (!m_arrived) m_set = {};
    m_loading = true;
    readBag(*this, kBag, bag);
    m_loading = false;
    if (m_arrived) chooseNamed(m_sLayGroup);
}

void LayerSetControl::setCollectionLays(const LayerSet &) const
{
    throw PropertyError(isDesigned(*this) ? PropertyError::SetNotSupported
                                          : PropertyError::SetNotSupportedAtRunTime,
                        "CollectionLays");
}

template <class Set> void LayerSetControl::load(const char *property, Set set)
{
    ErrorRelay::reporting().guard([&] { setQuietly(m_type, property, set); });
}

void LayerSetControl::loadsLays(const QString &text)
{
    if (m_loading || (!m_arrived && !isDesigned(*this))) m_sLays = text;
    else load("sLays", [&] { setsLays(text); });
}

void LayerSetControl::loadsLayGroup(const QString &caption)
{
    if (m_loading || (!m_arrived && !isDesigned(*this))) m_sLayGroup = caption;
    else load("sLayGroup", [&] { setsLayGroup(caption); });
}

void LayerSetControl::loadCollectionLays(const QVariant &set)
{
    if (m_loading && !m_arrived) m_set = set.value<LayerSet>();
    else if (!m_loading) load("CollectionLays", [&] { setCollectionLays(set.value<LayerSet>()); });
}

QVariant LayerSetControl::keptLayers() const
{
    return m_set.count() > 0 ? QVariant::fromValue(m_set) : QVariant();
}

int LayerSetControl::lineHeight() const
{
    return std::max(txtLays->sizeHint().height(), cboLays->sizeHint().height());
}

QSize LayerSetControl::sizeHint() const
{
    const QSize text = txtLays->sizeHint(), list = cboLays->sizeHint();
    const int width = m_singleLine ? text.width() + list.width() : std::max(text.width(), list.width());
    return {width, height()};
}

QSize LayerSetControl::minimumSizeHint() const
{
    const int field = txtLays->minimumSizeHint().width() + cboLays->fontMetrics().averageCharWidth() * 4;
    return {m_singleLine ? 2 * field : field, height()};
}

void LayerSetControl::arrange()
{
    const int line = lineHeight(), across = width();
    setFixedHeight(m_singleLine ? line : 2 * line);
    if (m_singleLine) {
        const int moved = pixelsOf(int(std::clamp(m_widthDiferent, -1e6f, 1e6f)), *this);
        const int split = std::clamp(across / 2 + moved, 0, across);
        txtLays->setGeometry(0, 0, split, line);
        cboLays->setGeometry(split, 0, across - split, line);
    } else {
        cboLays->setGeometry(0, 0, across, line);
        txtLays->setGeometry(0, line, across, line);
    }
    updateGeometry();
}

void LayerSetControl::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void LayerSetControl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) mFont_FontChanged();
    if (event->type() == QEvent::StyleChange) arrange();
    if (event->type() == QEvent::PaletteChange) colorBox();
}

} // namespace QV_DOC_CONTROLS
