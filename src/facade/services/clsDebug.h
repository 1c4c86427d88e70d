#pragma once

#include "facade/services/Trace.h"

namespace QV_DOC_CONTROLS {

/// The switchboard of the library's diagnostics. Creating one makes sure that the texts are loaded.
class clsDebug {
public:
    clsDebug();
    TraceObjects &colTraceObj() const { return traceObjects(); }
    QString sComponentName() const { return QStringLiteral("ZolWOp"); } ///< this name on purpose
    void setbDebug(bool on) { setDebugFlag(on); }
    void setsLogFileName(const QString &path) { setLogFileName(path); }
    void setbCallLog(bool on) { setCallLog(on); }
};

} // namespace QV_DOC_CONTROLS
