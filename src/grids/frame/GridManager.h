#pragma once

#include "facade/services/Trace.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/grid/SheetSource.h"

#include <QObject>
#include <QStringList>

namespace QV_DOC_CONTROLS {

class GridSource;

/// What a printed table says around and above its columns.
struct Paper {
    SheetTitles titles;
    QStringList captions; ///< by column of the source; empty list = as in the grid
};

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
    bool bShowGroups() const { return m_showGroups; }
    virtual void setbShowGroups(bool on) { m_showGroups = on; } ///< whether the table's group list is shown
    virtual void saveLayout() = 0; ///< in the layout file of the table and the language
    virtual const GridSource &source() const = 0;            ///< what the item grid shows
    virtual Paper paper() const = 0;                         ///< how the table stands on paper
    virtual void TearDown() = 0; ///< releases grids and document; harmless when repeated
    virtual void ml_RuntimeSupport_LanguageChanged() = 0; ///< reads every caption again; published spelling

protected:
    virtual void raiseView(qint16 view) = 0;                 ///< emits the table's own GridView
    virtual void raiseGrouped(bool grouped) { Q_UNUSED(grouped) } ///< emits the table's own GroupChanged
    explicit GridManager(const char *type) : m_identity(type) {}
    ErrorRelay &relay() const { return *m_relay; }

private:
    DebugIdentity m_identity;
    ErrorRelay *m_relay = &ErrorRelay::reporting();
    bool m_allowEdit = false;
    bool m_showGroups = true;
};

} // namespace QV_DOC_CONTROLS
