#pragma once

#include <QString>

#include <exception>
#include <functional>

class QDialog;

namespace QV_DOC_CONTROLS {

/// Carries an error of the host past Qt's event loop, which no exception may cross.
///
/// Every command, cell edit and control event that can reach the host runs inside guard(). An error is kept,
/// the relay's dialog and what stands above it are closed, and exec() throws it again to the caller of the
/// entry operation. A relay with a sink has no dialog: it hands the error on at once (a host's own form,
/// say).
class ErrorRelay {
public:
    using Sink = std::function<void(std::exception_ptr)>;
    ErrorRelay() = default;
    explicit ErrorRelay(Sink sink) : m_sink(std::move(sink)) {}
    ErrorRelay(const ErrorRelay &) = delete;
    ErrorRelay &operator=(const ErrorRelay &) = delete;

    /// Runs `body`; false when it failed or an error is already on its way.
    template <class Body> bool guard(Body &&body) noexcept
    {
        if (failed()) return false;
        try {
            body();
        } catch (const Stopped &) { // the error is already kept
        } catch (...) {
            keep(std::current_exception());
            return false;
        }
        return !failed();
    }
    /// To be called after every prompt inside a guarded body: ends the body when an error came in meanwhile.
    void checkpoint() const { if (failed()) stop(); }
    [[noreturn]] static void stop() { throw Stopped{}; } ///< ends the guarded body without an error
    bool failed() const { return bool(m_error); }
    /// For what is put right behind an error, which is the one to tell: an error of `body` is dropped.
    template <class Body> static void tryQuietly(Body &&body) noexcept
    {
        try {
            body();
        } catch (...) {
        }
    }

    int exec(QDialog &dialog);                  ///< runs it modally; throws what was kept
    static ErrorRelay &reporting(); ///< tells the user through prompts(); for controls on a host's form

private:
    struct Stopped {};
    void keep(std::exception_ptr error) noexcept;
    Sink m_sink;
    std::exception_ptr m_error;
    QDialog *m_dialog = nullptr;                ///< while exec() waits; being shown, it cannot be closed yet
};

QString messageOf(std::exception_ptr error);    ///< what() as UTF-8, or a general text

} // namespace QV_DOC_CONTROLS
