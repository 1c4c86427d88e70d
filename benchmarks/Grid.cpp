#include "Figures.h"
#include "GridWays.h"

#include <QCoreApplication>

#include <utility>

// What each step costs in the grid, in milliseconds, and how many times longer the toolkit's own tables take
// for it.
namespace benchmarks {
namespace {

constexpr int kSizes[] = {400, 5000, 32767};
constexpr double kFrame = 16;                           ///< milliseconds of one picture on the screen

double millisecondsOf(const Step &step)
{
    return medianOf([&] {
        step.before();
        const auto start = Clock::now();
        step.run();
        return nanosecondsSince(start) / 1e6;
    });
}

/// Each way of each size is built once, when a figure first asks for it, and measured once for each step.
double measured(const char *way, Steps (*make)(int), int rows, const std::string &step)
{
    static std::string present;
    static Steps steps;
    static std::map<std::string, double> known;
    static const bool clearsInTime =
        (qAddPostRoutine([] { steps.clear(); }), true); // widgets go before the application
    keep(clearsInTime);
    const std::string name = way + std::to_string(rows);
    const auto [found, isNew] = known.try_emplace(name + step);
    if (!isNew) return found->second;
    if (std::exchange(present, name) != name) steps.clear(), steps = make(rows);
    return found->second = millisecondsOf(steps.at(step));
}

void enterStep(const char *step, bool isTenfold, std::initializer_list<const char *> others)
{
    for (int rows : kSizes) {
        const bool bounded = rows == kSizes[2];
        const std::string name = "grid." + std::to_string(rows) + '.', what = step;
        const double limit = what == "open" ? kFrame / 2 : kFrame;
        figure(name + "own." + what, "ms", bounded ? atMost(limit) : unbounded(), [=] {
            return measured("own", ownGrid, rows, what);
        });
        for (const char *other : others)
            figure(name + other + '.' + what, "times longer",
                   bounded ? atLeast(isTenfold ? 10 : 1) : unbounded(), [=] {
                       const double own = measured("own", ownGrid, rows, what);
                       return measured(other,
                                       other == std::string("tableWidget") ? tableWidget : itemModelAndProxy,
                                       rows, what)
                              / own;
                   });
    }
}

bool enterAll()
{
    for (const char *step : {"open", "sort.two", "filter.first", "filter.second", "filter.clear"})
        enterStep(step, true, {"proxy", "tableWidget"});
    for (const char *step : {"group.one", "group.four"}) enterStep(step, true, {"proxy"});
    for (const char *step : {"collapse.band", "collapse.all", "expand.all"})
        enterStep(step, false, {"proxy"});
    for (const char *step : {"find.miss", "select.all", "toggle", "page"})
        enterStep(step, false, {"proxy", "tableWidget"});
    enterStep("sort.edited", true, {"proxy", "tableWidget"});
    enterStep("view", false, {"proxy"});        // a table widget's items show as a table only
    figure("grid.0.first.open", "ms", atMost(30), [] { return openFirst(32767); });
    figure("grid.0.memory", "MB", atMost(16), [] { return megabytesOf(32767); });
    return true;
}
const bool s_entered = enterAll();

} // namespace
} // namespace benchmarks
