#include "kit/paper/SheetOutput.h"

#include "kit/paper/SheetPainter.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace QV_DOC_CONTROLS {

SheetOutput::SheetOutput(const SheetPainter &sheet, QPagedPaintDevice &device, int first, int last)
    : m_sheet(sheet), m_device(device), m_painter(std::make_unique<QPainter>()), m_first(first),
      m_next(first), m_last(std::min(last, sheet.pageCount() - 1))
{
}

SheetOutput::~SheetOutput() = default;

bool SheetOutput::start()
{
    QPageLayout paper = m_sheet.layout().paper();
    paper.setMode(QPageLayout::FullPageMode); // the layout counts from the paper's corner
    m_device.setPageLayout(paper);
    return m_painter->begin(&m_device);
}

bool SheetOutput::printNext()
{
    if (m_next > m_first && !m_device.newPage()) return false;
    m_painter->save();
    m_painter->scale(double(m_device.logicalDpiX()) / kUnitsPerInch,
                     double(m_device.logicalDpiY()) / kUnitsPerInch);
    m_sheet.paintPage(*m_painter, m_next++);
    m_painter->restore();
    return true;
}

bool SheetOutput::finish() { return m_painter->end(); }

OutputResult runAll(SheetOutput &output)
{
    if (!output.start()) return OutputResult::Failed;
    while (!output.done())
        if (!output.printNext()) return OutputResult::Failed;
    return output.finish() ? OutputResult::Done : OutputResult::Failed;
}

OutputResult savePdf(const SheetPainter &sheet, const QString &path, QString &error, const OutputRun &run)
{
    QSaveFile file(path);
    OutputResult result = OutputResult::Failed;
    if (file.open(QIODevice::WriteOnly)) {
        QPdfWriter writer(&file);
        writer.setResolution(kUnitsPerInch);
        writer.setTitle(sheet.titles().header);
        SheetOutput output(sheet, writer, 0, sheet.pageCount() - 1);
        result = run(output);
    }
    // otherwise it is dropped; the flush of commit() says nothing of a full disk
    if (result == OutputResult::Done && !(file.flush() && file.commit())) result = OutputResult::Failed;
    error = result == OutputResult::Failed ? file.errorString() : QString();
    return result;
}

} // namespace QV_DOC_CONTROLS
