#pragma once

#include "kit/tools/Icons.h"

#include <QApplication>
#include <QIcon>
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
/// As large as icons are in lists, and legible on a selected row; null = no such key.
inline QIcon managerImage(const char *key)
{
    QIcon image;
    const int side = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
    for (const ManagerImage &row : kManagerImages) {
        if (std::strcmp(row.key, key) != 0) continue;
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
            image.addPixmap(toolIcon(row.icon).pixmap({side, side}, qApp->devicePixelRatio(), mode), mode);
    }
    return image;
}

} // namespace QV_DOC_CONTROLS
