#pragma once

#include "facade/services/Text.h"

#include <QSize>

#include <span>

class QWidget;

namespace QV_DOC_CONTROLS {

/// A control as the designer's widget box offers it.
struct ControlRow {
    const char *name;                           ///< of the class, without its namespace
    const char *header;                         ///< as a program includes it
    Text toolTip;
    const char *icon;                           ///< row of the icon table
    QSize size;                                 ///< when dropped on a form
    const char *data = "";                      ///< string properties, by blanks, that no translator sees
    QWidget *(*make)(QWidget *parent);
};
std::span<const ControlRow> controlRows();

} // namespace QV_DOC_CONTROLS
