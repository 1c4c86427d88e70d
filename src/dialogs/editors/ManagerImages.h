#pragma once

#include "kit/tools/Icons.h"

#include <QApplication>
#include <QPixmap>
#include <QStyle>

#include <cstring>

namespace QV_DOC_CONTROLS {

/// The image list of a manager: what its lists mark their items with, by published key.
struct ManagerImage {
    const char *key, *icon; ///< the icon is a row of the icon table
};
inline constexpr ManagerImage kManagerImages[] = {
    {"Open", "groupOpen"}, {"Empty", "groupEmpty"}, {"Current", "currentItem"}, {"Egyéb", "groupOther"},
    {"SortAZ", "sortAZ"},  {"SortZA", "sortZA"},    {"Vector", "vectorFont"},   {"TrueType", "trueType"},
};
/// As large as icons are in lists; null = no such key.
inline QPixmap managerImage(const char *key)
{
    const int side = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
    for (const ManagerImage &image : kManagerImages)
        if (std::strcmp(image.key, key) == 0)
            return toolIcon(image.icon).pixmap(QSize(side, side), qApp->devicePixelRatio());
    return {};
}

} // namespace QV_DOC_CONTROLS
