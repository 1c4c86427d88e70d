#include "controls/usSiInfo.h"

#include "controls/symbol/SymbolSurface.h"
#include "kit/forms/PropertyBag.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr BagRow kOwn[] = {{"ShowEnabled", "ShowEnabled", true}}; // beside those that it shares

} // namespace

bool usSiInfo::ShowEnabled() const { return !surface().greyed; }
void usSiInfo::setShowEnabled(bool on)
{
    surface().greyed = !on;
    redraw();
}

WId usSiInfo::hWnd() { return surface().winId(); }

QVariantMap usSiInfo::propertyBag() const
{
    QVariantMap bag = SymbolPreview::propertyBag();
    bag.insert(bagOf(*this, kOwn));
    return bag;
}

void usSiInfo::setPropertyBag(const QVariantMap &bag)
{
    SymbolPreview::setPropertyBag(bag);
    readBag(*this, kOwn, bag);
}

} // namespace QV_DOC_CONTROLS
