#pragma once

#include <functional>
#include <map>
#include <string>

namespace benchmarks {

/// What a user does to a table, by name; a way of showing tables has the steps that it can do at all.
struct Step {
    std::function<void()> run;                  ///< until it is painted
    std::function<void()> before = [] {};       ///< puts things back, not measured
};
using Steps = std::map<std::string, Step>;

Steps ownGrid(int rows);
Steps tableWidget(int rows);
Steps itemModelAndProxy(int rows);

double openFirst(int rows);                     ///< milliseconds, once in a process
double megabytesOf(int rows); ///< what a grid with its rows holds, sorted, grouped and filtered

} // namespace benchmarks
