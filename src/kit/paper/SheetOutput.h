#pragma once

#include <QString>

#include <functional>
#include <memory>

class QPagedPaintDevice;
class QPainter;
class QWidget;

namespace QV_DOC_CONTROLS {

class SheetPainter;

/// Pages on their way to a printer or a file, one at a time, so that a long print can be shown and stopped.
class SheetOutput {
public:
    /// Pages first to last, counted from 0. The device takes the sheet's paper; it is the caller's and stays.
    SheetOutput(const SheetPainter &sheet, QPagedPaintDevice &device, int first, int last);
    ~SheetOutput();
    SheetOutput(const SheetOutput &) = delete;
    SheetOutput &operator=(const SheetOutput &) = delete;

    bool start();                           ///< false = the device refuses
    bool printNext();                       ///< false = the device failed; not after done()
    bool done() const { return m_next > m_last; }
    int printed() const { return m_next - m_first; }
    int pages() const { return m_last - m_first + 1; }
    bool finish();                          ///< closes the document; false = the device failed

private:
    const SheetPainter &m_sheet;
    QPagedPaintDevice &m_device;
    std::unique_ptr<QPainter> m_painter;
    int m_first, m_next, m_last;
};

enum class OutputResult { Done, Stopped, Failed };
OutputResult runAll(SheetOutput &output);   ///< straight through; never Stopped
/// After half a second it shows how far it is and can be stopped. `window` is the asking one.
OutputResult runShown(SheetOutput &output, QWidget *window);

using OutputRun = std::function<OutputResult(SheetOutput &)>;
/// Writes all pages into a PDF file. An older file of that name is replaced when the new one is whole, and
/// not before. `error` says why it failed.
OutputResult savePdf(const SheetPainter &sheet, const QString &path, QString &error,
                     const OutputRun &run = &runAll);

} // namespace QV_DOC_CONTROLS
