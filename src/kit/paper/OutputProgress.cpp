#include "kit/paper/OutputProgress.h"

#include "facade/services/Text.h"
#include "kit/ask/runModal.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kSilentMs = 400;      ///< shorter prints show nothing
constexpr int kTickMs = 30;         ///< pages between two looks at the user's events

/// Prints pages for so long; false = the device failed.
bool printFor(SheetOutput &output, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!output.done() && clock.elapsed() < milliseconds)
        if (!output.printNext()) return false;
    return true;
}

} // namespace

OutputProgress::OutputProgress(SheetOutput &output, QWidget *parent)
    : QDialog(parent), m_output(output), m_page(new QLabel(this)), m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("OutputProgress"));
    setWindowTitle(txt(Text{3346, u"Nyomtatás"}));
    m_bar->setRange(0, output.pages());
    m_bar->setAccessibleName(windowTitle());
    m_bar->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const cancel = buttons->addButton(txt(Text{2801, u"Mégse"}), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    auto *const column = new QVBoxLayout(this);
    column->addWidget(m_page);
    column->addWidget(m_bar);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&m_timer, &QTimer::timeout, this, &OutputProgress::printSome);
}

OutputResult OutputProgress::run()
{
    m_timer.start(0);
    const bool through = runModal(*this) == QDialog::Accepted;
    if (m_failed) return OutputResult::Failed;
    return through ? OutputResult::Done : OutputResult::Stopped;
}

void OutputProgress::printSome()
{
    m_failed = !printFor(m_output, kTickMs);
    m_bar->setValue(m_output.printed());
    m_page->setText(join(Text{21403, u"Oldal:"}, QStringLiteral(" "), m_output.printed(), QStringLiteral("/"),
                         m_output.pages()));
    if (!m_failed && !m_output.done()) return;
    m_timer.stop();
    if (m_failed) reject();
    else accept();
}

OutputResult runShown(SheetOutput &output, QWidget *window)
{
    if (!output.start() || !printFor(output, kSilentMs)) return OutputResult::Failed;
    if (!output.done()) {
        const OutputResult result = OutputProgress(output, window).run();
        if (result != OutputResult::Done) return result;
    }
    return output.finish() ? OutputResult::Done : OutputResult::Failed;
}

} // namespace QV_DOC_CONTROLS
