#pragma once

#include "kit/paper/SheetOutput.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QProgressBar;

namespace QV_DOC_CONTROLS {

/// Prints what is left of an output, some pages at a time, and shows how far it is. Cancel stops it between
/// two pages.
class OutputProgress final : public QDialog {
    Q_OBJECT
public:
    OutputProgress(SheetOutput &output, QWidget *parent);
    OutputResult run();                         ///< modal
private:
    void printSome();
    SheetOutput &m_output;
    QLabel *m_page;
    QProgressBar *m_bar;
    QTimer m_timer;                             ///< of zero length: between two ticks the window lives
    bool m_failed = false;
};

} // namespace QV_DOC_CONTROLS
