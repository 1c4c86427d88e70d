#pragma once

#include "dialogs/select/ResourceKinds.h"
#include "dialogs/viewtools/ViewCommands.h"
#include "grids/frame/GridManager.h"
#include "kit/grid/Grid.h"
#include "kit/tools/ToolSet.h"

#include <QSplitter>

class QHBoxLayout;

namespace QV_DOC_CONTROLS {

/// One table as the user works with it: its tools, its grid, the group list left of it, and the manager that
/// runs them.
///
/// Belongs to a dialog and knows none; the page owns its manager. TearDown() may be repeated.
class GridPage final : public QWidget {
    Q_OBJECT
public:
    enum class In { Selection, Setup };         ///< the dialog: in the setup dialog the page has a menu bar
    GridPage(const ResourceKind &kind, In dialog, ErrorRelay &relay, QWidget *parent);
    ~GridPage() override;

    /// The published handlers that a dialog has for the events of a table's manager.
    template <class Form, class Manager> struct Handlers {
        void (Form::*current)(typename Manager::Record &);
        void (Form::*grouped)(bool &);
        void (Form::*view)(qint16 &);
    };
    /// Makes the manager of the page, hands it the tools of its table and its events to the form. To be
    /// followed by its init() and by follow().
    template <class Manager, class Form>
    Manager &open(std::span<const std::type_identity_t<ToolCommand<Manager>>> commands, Form &form,
                  const std::type_identity_t<Handlers<Form, Manager>> &handlers)
    {
        TearDown();
        auto manager = std::make_unique<Manager>();
        Manager &made = *manager;
        m_manager = std::move(manager);
        made.setRelay(m_relay);
        made.setAllowEdit(true);
        ab1->connectTools(made, commands);
        connect(&made, &Manager::CurrentChanced, &form, handlers.current);
        connect(&made, &Manager::GroupChanged, &form, handlers.grouped);
        connect(&made, &Manager::GridView, &form, handlers.view);
        return made;
    }
    void addBeside(QWidget *side);              ///< right of the grid; the page's from then on
    void follow();                              ///< once the manager has its grids: the tools follow them
    GridManager *manager() const;               ///< null before its init() and after TearDown()
    /// Tears the manager down, which goes with the page only: a command of it may be the one that runs.
    void TearDown();
    void retranslate();
    void showView(qint16 view);                 ///< checks the view tool that matches

    QSplitter *const imgSplitter;               // published names
    Grid *const gridGroups;
    Grid *const gridItems;
    ToolSet *const ab1;

protected:
    void resizeEvent(QResizeEvent *) override;

private:
    void arrange(In dialog);
    void setPaneWidth(int twips);
    void connectTools();
    void connectGrids();
    void popUp(const char *band, int column, QPoint where);
    void find();
    void print();
    void copy();
    const ResourceKind &m_kind;                 ///< a row of the table of kinds
    ErrorRelay &m_relay;
    ViewCommands m_view;
    QHBoxLayout *m_row;                         ///< the splitter, and what stands beside it
    std::unique_ptr<GridManager> m_manager;
    int m_column = -1; ///< under the mouse when the menu came; -1 = the current cell's
    int m_paneTwips = 0;                        ///< wanted until the splitter has a size of its own
};

} // namespace QV_DOC_CONTROLS
