#include "kit/ask/PrinterChoice.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace QV_DOC_CONTROLS {

bool hasPrinter() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

std::unique_ptr<QPrinter> choosePrinter(const QPageLayout &paper, int pages, QWidget *asker)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(paper);
    QPrintDialog dialog(printer.get(), asker);
    dialog.setMinMax(1, pages);
    dialog.setFromTo(1, pages);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (dialog.exec() != QDialog::Accepted) return {};
    return printer;
}

} // namespace QV_DOC_CONTROLS
