#pragma once

#include "facade/services/Language.h"

#include <QLocale>

namespace QV_DOC_CONTROLS {

/// Order and numbers of the interface's language, whatever the system's.
inline QLocale interfaceLocale()
{
    switch (currentLanguage()) {
    case Romanian: return QLocale(QLocale::Romanian, QLocale::Romania);
    case Vietnamese: return QLocale(QLocale::Vietnamese, QLocale::Vietnam);
    case English: return QLocale(QLocale::English, QLocale::UnitedKingdom);
    default: return QLocale(QLocale::Hungarian, QLocale::Hungary);
    }
}

} // namespace QV_DOC_CONTROLS
