#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/Trace.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/ask/StepRun.h"
#include "kit/grid/SheetSource.h"
#include "rules/GridLayoutFile.h"

#include <QObject>
#include <QStringList>

namespace QV_DOC_CONTROLS {

class Grid;
class GridSource;

/// What a printed table says around and above its columns.
struct Paper {
    SheetTitles titles;
    QStringList captions; ///< by column of the source; empty list = as in the grid
};

/// The members that every grid manager has, whatever its table.
///
/// Owned by the form that shows the grid; usable between init() of the concrete manager and TearDown(), inert
/// after. A handler of its signals, and the host in a call of it, may tear it down, but delete it only by
/// deleteLater(). Host errors of edits and commands go to the relay; those of init(), fill() and other direct
/// calls to the caller.
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

    virtual bool isOpen() const = 0;                         ///< between init() and TearDown()
    bool canEditTable() const { return isOpen() && AllowEdit(); }
    /// Reads the whole table again; current row and selection stay with their records. Throws the host's
    /// error.
    virtual void fill() = 0;
    bool isBusy() const { return m_busy; }                   ///< while a refill runs
    /// While a refill runs, tells the user to wait and is true. Whoever works on the table asks it first.
    bool refusesNow() const;

protected:
    /// Runs a command: refused while a refill runs; an error goes to the relay. Nothing without a document.
    /// What is being typed into a cell is written first.
    template <class Body> void command(Body &&body)
    {
        guarded([&] {
            endEditing();
            relay().checkpoint();
            if (isOpen()) body();
        });
    }
    template <class Body> void guarded(Body &&body)     ///< as a command, but for what is being typed
    {
        if (!isOpen()) return;
        relay().guard([&] {
            if (!refusesNow()) body();
        });
    }
    /// What `body` answers, guarded; `otherwise` when it does not come to an answer.
    template <class Answer, class Body> Answer guardedOr(Answer otherwise, Body &&body)
    {
        guarded([&] { otherwise = body(); });
        return otherwise;
    }
    /// Runs `body`, which writes, then fills; after an error too, so that the grid agrees with what had been
    /// written by then.
    void runAndFill(const std::function<void()> &body);
    /// Runs the steps of a refill, the last of which shows what the others read. A refill that takes long
    /// shows its progress; one that is asked for meanwhile begins when this one ends. False = given up:
    /// the form closes, or has torn the manager down. Throws what a step throws.
    bool refillBy(const StepRun::Steps &steps, QWidget *grid);
    virtual void endEditing() = 0;                      ///< writes what an open cell editor holds
    virtual void raiseView(qint16 view) = 0;                 ///< emits the table's own GridView
    /// Emits the table's own GroupChanged: the user's grouping, not that of a layout file.
    virtual void raiseGrouped(bool grouped) { Q_UNUSED(grouped) }
    static void readTooltips(Grid &grid);                    ///< shown or not, as the user's setting says
    void followView(Grid &grid);                             ///< raises both, and follows the language
    void unfollow(Grid &grid);                               ///< hears nothing of either any more
    void loadLayout(Grid &grid, const LayoutName &layout); ///< of the language, if there is one
    explicit GridManager(const char *type) : m_identity(type) {}
    ErrorRelay &relay() const { return *m_relay; }

private:
    DebugIdentity m_identity;
    ErrorRelay *m_relay = &ErrorRelay::reporting();
    bool m_allowEdit = false;
    bool m_showGroups = true;
    bool m_busy = false, m_again = false;
    bool m_isSlow = false;                                   ///< the last refill took long
    bool m_loading = false;                                  ///< a layout
};

} // namespace QV_DOC_CONTROLS
