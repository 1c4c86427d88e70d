#pragma once

#include "facade/services/Trace.h"
#include "kit/ask/ErrorRelay.h"

#include <QObject>

namespace QV_DOC_CONTROLS {

class Grid;

/// The members that every grid manager has, whatever its table.
///
/// Owned by the form that shows the grid; usable between init() of the concrete manager and TearDown(), inert
/// after. Host errors of edits and commands go to the relay; those of init(), fill() and other direct calls
/// to the caller.
class GridManager : public QObject {
public:
    qint32 lDebugId() const { return m_identity; }
    bool AllowEdit() const { return m_allowEdit; }
    virtual void setAllowEdit(bool on) { m_allowEdit = on; } ///< whether cells can be edited in place
    void setRelay(ErrorRelay &relay) { m_relay = &relay; }   ///< of the form; outlives the manager
    virtual void TearDown() = 0; ///< releases grids and document; harmless when repeated
    virtual void ml_RuntimeSupport_LanguageChanged() = 0; ///< reads every caption again; published spelling

protected:
    explicit GridManager(const char *type) : m_identity(type) {}
    ErrorRelay &relay() const { return *m_relay; }

private:
    DebugIdentity m_identity;
    ErrorRelay *m_relay = &ErrorRelay::reporting();
    bool m_allowEdit = false;
};

} // namespace QV_DOC_CONTROLS
