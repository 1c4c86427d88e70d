#pragma once

#include <memory>

class QPageLayout;
class QPrinter;
class QWidget;

namespace QV_DOC_CONTROLS {

bool hasPrinter();                              ///< asks the system, which may take a moment
/// The printer, pages and copies that the user chose, proposing that paper; null = cancelled.
std::unique_ptr<QPrinter> choosePrinter(const QPageLayout &paper, int pages, QWidget *asker);

} // namespace QV_DOC_CONTROLS
