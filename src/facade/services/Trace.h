#pragma once

#include <QString>

#include <string>
#include <vector>

namespace QV_DOC_CONTROLS {

bool callLogOn();
void setCallLog(bool on);
void setLogFileName(const QString &path);
bool debugFlag();
void setDebugFlag(bool on);

void tellDebugger(const char *line);            ///< diagnostic line for who debugs the program; not logged

/// Writes "type.member >>" now, "type.member <n>" at each step and "type.member <<" at its end, while the
/// trace switch is on. Takes literals and builds nothing while the switch is off. The log is opened and
/// closed for every line.
class Trace {
public:
    Trace(const char *type, const char *member) : m_type(type), m_member(member) { mark(">>"); }
    ~Trace() { mark("<<"); }
    Trace(const Trace &) = delete;
    Trace &operator=(const Trace &) = delete;
    void step(int n) { if (callLogOn()) mark(std::to_string(n).c_str()); }
private:
    void mark(const char *what) { if (callLogOn()) write(what); }
    void write(const char *what) const;
    const char *m_type;
    const char *m_member;
};

/// The living forms and grid managers of the library, each with its debug identity: what a host looks through
/// when it suspects that something was not released.
class TraceObjects {
public:
    struct Entry {
        qint32 id;
        const char *type;
    };
    const std::vector<Entry> &entries() const { return m_entries; }
private:
    friend class DebugIdentity; // enters and leaves
    std::vector<Entry> m_entries;
};
TraceObjects &traceObjects();                   ///< shared, created on first use

/// The identity of a form or grid manager: a process-wide counter from 1.
class DebugIdentity {
public:
    explicit DebugIdentity(const char *type);
    ~DebugIdentity();
    DebugIdentity(const DebugIdentity &) = delete;
    DebugIdentity &operator=(const DebugIdentity &) = delete;
    operator qint32() const { return m_id; }
private:
    qint32 m_id;
};

} // namespace QV_DOC_CONTROLS
