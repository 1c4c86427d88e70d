#include "kit/ask/ErrorRelay.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"

#include <QApplication>
#include <QDialog>

#include <utility>

namespace QV_DOC_CONTROLS {
namespace {

/// Closes the modal windows from the innermost to `last`, message boxes included.
void closeDownTo(QDialog *last)
{
    while (last && last->isVisible()) {
        auto *const inner = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QDialog *const victim = inner ? inner : last;
        victim->QDialog::done(QDialog::Rejected); // not through an override that could ask or refuse
        if (victim == last) break;
    }
}

} // namespace

int ErrorRelay::exec(QDialog &dialog)
{
    m_dialog = &dialog;
    const int result = failed() ? int(QDialog::Rejected) : dialog.exec();
    m_dialog = nullptr;
    if (m_error) std::rethrow_exception(std::exchange(m_error, {}));
    return result;
}

void ErrorRelay::keep(std::exception_ptr error) noexcept
{
    if (m_sink) return m_sink(error);
    m_error = error;
    closeDownTo(m_dialog);
}

ErrorRelay &ErrorRelay::reporting()
{
    static ErrorRelay relay([](std::exception_ptr error) {
        prompts().tell({Icon::Exclamation, appTitle(), messageOf(error)});
    });
    return relay;
}

QString messageOf(std::exception_ptr error)
{
    try {
        std::rethrow_exception(error);
    } catch (const std::exception &e) {
        return QString::fromUtf8(e.what());
    } catch (...) {
        return txt(Text{20173, u"Ismeretlen hiba a rajzban."});
    }
}

} // namespace QV_DOC_CONTROLS
