#include "kit/ask/ErrorRelay.h"

#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "kit/ask/runModal.h"

#include <QDialog>

#include <utility>

namespace QV_DOC_CONTROLS {

int ErrorRelay::exec(QDialog &dialog)
{
    int result = QDialog::Rejected;
    if (!failed())
        result = runModal(dialog, [&] {
            m_dialog = &dialog;
            if (failed()) closeDownTo(dialog);
        });
    m_dialog = nullptr;
    if (m_error) std::rethrow_exception(std::exchange(m_error, {}));
    return result;
}

void ErrorRelay::keep(std::exception_ptr error) noexcept
{
    if (m_sink) return m_sink(error);
    m_error = error;
    if (m_dialog) closeDownTo(*m_dialog);
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
