#include "kit/forms/SystemColor.h"

#include <QPalette>

#include <algorithm>
#include <iterator>

namespace QV_DOC_CONTROLS {
namespace {

constexpr quint32 kDesktop = 0x80000000;

struct RoleRow {
    quint32 number;
    QPalette::ColorRole role;
    QPalette::ColorGroup group = QPalette::Current;
};
constexpr RoleRow kRoles[] = {
    {4, QPalette::Window},           // menu
    {5, QPalette::Base},             // window background
    {7, QPalette::WindowText},       // menu text
    {8, QPalette::Text},             // window text
    {13, QPalette::Highlight},       {14, QPalette::HighlightedText},
    {15, QPalette::Button},          // button face
    {16, QPalette::Mid},             // button shadow
    {17, QPalette::Text, QPalette::Disabled},
    {18, QPalette::ButtonText},      {20, QPalette::Light},
    {21, QPalette::Dark},            {22, QPalette::Midlight},
    {23, QPalette::ToolTipText},     {24, QPalette::ToolTipBase},
};

} // namespace

QColor shownColor(SystemColor color, const QPalette &palette)
{
    if (!(color.number & kDesktop)) return QColor::fromRgb(QRgb(color.number));
    const auto row = std::ranges::find(kRoles, color.number & ~kDesktop, &RoleRow::number);
    return row == std::end(kRoles) ? palette.color(QPalette::Base) : palette.color(row->group, row->role);
}

QColor propertyColor(SystemColor color)
{
    return color.number & kDesktop ? QColor::fromRgba(color.number) : QColor::fromRgb(QRgb(color.number));
}

SystemColor systemColor(const QColor &property)
{
    const QRgb rgba = property.rgba();
    const bool desktop = qAlpha(rgba) == 0x80 && (rgba & 0xffff00) == 0;
    return {desktop ? rgba : rgba & RGB_MASK};
}

} // namespace QV_DOC_CONTROLS
