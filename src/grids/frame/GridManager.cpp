#include "grids/frame/GridManager.h"

#include "facade/services/Language.h"
#include "facade/services/Prompts.h"
#include "facade/services/Services.h"
#include "facade/services/Text.h"
#include "grids/frame/GridLayouts.h"
#include "kit/grid/Grid.h"

#include <QScopedValueRollback>

namespace QV_DOC_CONTROLS {

bool GridManager::refusesNow() const
{
    if (m_busy)
        prompts().tell({Icon::Exclamation, appTitle(),
                        txt(Text{3146, u"Frissítés van folyamatban, kérem várakozzék!"})});
    return m_busy;
}

void GridManager::runAndFill(const std::function<void()> &body)
{
    try {
        body();
        fill();
    } catch (...) {
        ErrorRelay::tryQuietly([this] { fill(); });
        throw;
    }
    relay().checkpoint();
}

void GridManager::readTooltips(Grid &grid)
{
    grid.setTooltips(readBoolSetting(QStringLiteral("setup"), QStringLiteral("ShowTooltipsOnGrid"), false));
}

void GridManager::followView(Grid &grid)
{
    connect(&grid, &Grid::viewChanged, this, [this](GridView view) { raiseView(qint16(view)); });
    connect(&grid, &Grid::groupingChanged, this, [this](bool grouped) {
        if (!m_loading) raiseGrouped(grouped);
    });
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this,
            [this] { ml_RuntimeSupport_LanguageChanged(); });
}

void GridManager::unfollow(Grid &grid)
{
    disconnect(&grid, nullptr, this, nullptr);
    disconnect(&LanguageHub::instance(), nullptr, this, nullptr);
}

void GridManager::loadLayout(Grid &grid, const LayoutName &layout)
{
    const QScopedValueRollback loading(m_loading, true);
    loadGridLayout(grid, layout);
}

bool GridManager::refillBy(const StepRun::Steps &steps, QWidget *grid)
{
    if (m_busy) {
        m_again = true;
        return false;
    }
    StepRun::Steps whileOpen;
    for (const auto &step : steps)
        whileOpen.push_back([this, &step] {
            if (isOpen()) step();
        });
    const QScopedValueRollback busy(m_busy, true);
    bool through = true;
    do {
        m_again = false;
        // What was slow before is announced before it begins: its first step may be the one that takes long.
        StepRun run(txt(Text{21701, u"A táblázat frissítése…"}),
                    m_isSlow ? std::chrono::milliseconds::zero() : StepRun::kSilent);
        through = run.run(whileOpen, grid);
        m_isSlow = run.tookLong();
    } while (through && m_again && isOpen());
    return through && isOpen();
}

} // namespace QV_DOC_CONTROLS
