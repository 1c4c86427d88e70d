#pragma once

#include "facade/services/Text.h"
#include "kit/forms/SystemColor.h"

#include <QVariantMap>

#include <span>
#include <variant>

class QWidget;

namespace QV_DOC_CONTROLS {

struct ContainerFont {};                        ///< the default of a font: that of the widget around

/// A published property of a control and its place in the bag.
struct BagRow {
    /// Nothing = no default: the property is kept when it has a value, and left alone when the bag has none.
    using Default = std::variant<std::monostate, bool, int, double, const char16_t *, Text, SystemColor,
                                 ContainerFont>;
    const char *key;                            ///< in the bag
    const char *property;                       ///< the control's Q_PROPERTY; mostly spelt the same
    Default fallback{};
};

/// The design-time values of a control that differ from their defaults, by bag key. Colours are stored as
/// their published numbers (quint32), fonts as QFont, the others as the property has them.
QVariantMap bagOf(const QWidget &control, std::span<const BagRow> rows);

/// Gives every row's property its value from the bag, in the rows' order; what is missing or of a wrong type
/// gets its default. Keys of no row are passed over.
void readBag(QWidget &control, std::span<const BagRow> rows, const QVariantMap &bag);

} // namespace QV_DOC_CONTROLS
