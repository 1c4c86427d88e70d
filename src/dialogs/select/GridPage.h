#pragma once

#include "dialogs/select/ResourceKinds.h"
#include "grids/frame/GridManager.h"
#include "kit/grid/Grid.h"

#include <QSplitter>

namespace QV_DOC_CONTROLS {

/// One table as the user works with it: its grid, the group list left of it, and the manager that runs both.
///
/// Belongs to a dialog and knows none; the page owns its manager. TearDown() may be repeated.
class GridPage final : public QWidget {
    Q_OBJECT
public:
    GridPage(ErrorRelay &relay, QWidget *parent);
    ~GridPage() override;

    /// Builds the page for a kind and makes its manager; throws std::out_of_range for a mode outside 0..5.
    template <class Manager> Manager &open(int mode)
    {
        arrange(resourceKind(mode));
        TearDown();
        auto manager = std::make_unique<Manager>();
        manager->setRelay(m_relay);
        Manager &made = *manager;
        m_manager = std::move(manager);
        return made;
    }
    void TearDown();                            ///< tears the manager down and drops it
    void retranslate();

    QSplitter *const imgSplitter;               // published names
    Grid *const gridGroups;
    Grid *const gridItems;

protected:
    void resizeEvent(QResizeEvent *) override;

private:
    void arrange(const ResourceKind &kind);
    void setPaneWidth(int twips);
    ErrorRelay &m_relay;
    std::unique_ptr<GridManager> m_manager;
    int m_paneTwips = 0;                        ///< wanted until the splitter has a size of its own
};

} // namespace QV_DOC_CONTROLS
