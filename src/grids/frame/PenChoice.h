#pragma once

#include "grids/frame/Desk.h"

#include <QVariant>

namespace QV_DOC_CONTROLS {

/// Asks which pen a cell of that column and record is to have; empty = cancelled.
std::optional<QVariant> choosePen(Desk &desk, const QString &column, const QString &record,
                                  const QVariant &now);

} // namespace QV_DOC_CONTROLS
