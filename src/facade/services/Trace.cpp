#include "facade/services/Trace.h"

#include "facade/services/Language.h"
#include "facade/services/clsDebug.h"

#include <QDebug>
#include <QFile>

#include <algorithm>
#include <memory>

namespace QV_DOC_CONTROLS {
namespace {

struct State {
    bool callLog = false;
    bool debug = false;
    QString logFile;
    std::unique_ptr<TraceObjects> objects;
};
State &state()
{
    static State s;
    return s;
}

} // namespace

bool callLogOn() { return state().callLog; }
void setCallLog(bool on) { state().callLog = on; }
void setLogFileName(const QString &path) { state().logFile = path; }
bool debugFlag() { return state().debug; }
void setDebugFlag(bool on) { state().debug = on; }

void tellDebugger(const char *line) { qDebug("%s", line); }

/// One quoted line: inner quotes are doubled, carriage return and line feed end it.
void Trace::write(const char *what) const
{
    QByteArray line = QByteArray(m_type) + '.' + m_member + ' ' + what;
    QFile log(state().logFile);
    if (log.open(QIODevice::Append)) log.write('"' + line.replace("\"", "\"\"") + "\"\r\n");
}

TraceObjects &traceObjects()
{
    if (!state().objects) state().objects = std::make_unique<TraceObjects>();
    return *state().objects;
}

DebugIdentity::DebugIdentity(const char *type)
{
    static qint32 last = 0;
    m_id = ++last;
    traceObjects().m_entries.push_back({m_id, type});
}

DebugIdentity::~DebugIdentity()
{
    std::erase_if(traceObjects().m_entries, [this](const TraceObjects::Entry &e) { return e.id == m_id; });
}

clsDebug::clsDebug() { ensureResourcesLoaded(); }

} // namespace QV_DOC_CONTROLS
