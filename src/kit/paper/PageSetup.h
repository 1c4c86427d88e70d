#pragma once

#include <QPageLayout>
#include <QString>

#include <span>

namespace QV_DOC_CONTROLS {

/// Paper that pages can be set up for, beside any other that is set already.
std::span<const QPageSize::PageSizeId> paperSizes();
QString paperName(const QPageSize &paper);          ///< "A4 (210 × 297 mm)"

inline constexpr double kMostMargin = 100;          ///< millimetres
inline constexpr double kLeastPrintable = 50;       ///< millimetres, both ways

/// The paper of that size, turned, with margins in millimetres; no printer has a say.
QPageLayout pageLayoutOf(QPageSize::PageSizeId paper, QPageLayout::Orientation turned,
                         const QMarginsF &margins);
/// Why nothing can be printed so, in the user's language; empty = it can.
QString refusalFor(const QPageLayout &layout);

/// The same paper with margins that a printer's least ones allow, counted from the paper's corner.
QPageLayout withinReach(QPageLayout layout);

/// As the user set it up last, on this user's account; A4 or Letter, as the country has it, when that is not
/// usable.
QPageLayout storedPageSetup();
void storePageSetup(const QPageLayout &layout);     ///< errors are swallowed

} // namespace QV_DOC_CONTROLS
