#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

/// Figures: what `./bench` measures. A room adds a .cpp of its own beside this file:
///
///   static const bool entered = figure("select.open.400", "x", atMost(3), [] {
///       return ratioOf([] { openWith(400); }, [] { openEmpty(); });
///   });
///
/// A figure that compares is a ratio of two things measured in the same run, so that it holds on any machine.
namespace benchmarks {

struct Bound {
    enum class Kind { None, AtMost, AtLeast } kind = Kind::None;
    double value = 0;
    bool holds(double measured) const;
};
inline Bound atMost(double value) { return {Bound::Kind::AtMost, value}; }
inline Bound atLeast(double value) { return {Bound::Kind::AtLeast, value}; }
inline Bound unbounded() { return {}; }

struct Figure {
    std::string name;                           ///< "room.what.size"; what a WORD is looked for in
    std::string unit;
    Bound bound;
    std::function<double()> measure;            ///< runs with an application; what it throws ends the program
                                                ///< with 1
};
std::vector<Figure> &figures();
bool figure(std::string name, std::string unit, Bound bound, std::function<double()> measure);

constexpr int kRuns = 9;

/// The median of nine values that `once` measures itself, e.g. a duration without its preparation.
double medianOf(const std::function<double()> &once);

using Clock = std::chrono::steady_clock;
inline double nanosecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

/// Makes the compiler believe that the value is needed.
template <class T> void keep(const T &value) { asm volatile("" : : "g"(&value) : "memory"); }

/// Calls of `body` that take at least four milliseconds together: enough for the clock. Also warms it up.
template <class Body> int callsPerRun(Body &body)
{
    constexpr double kEnough = 4e6;
    body();
    const auto start = Clock::now();
    body();
    return int(std::clamp(std::ceil(kEnough / std::max(nanosecondsSince(start), 1.0)), 1.0, 1e7));
}
template <class Body> double nanosecondsPerCall(Body &body, int calls)
{
    const auto start = Clock::now();
    for (int i = 0; i < calls; ++i) body();
    return nanosecondsSince(start) / calls;
}

/// Nanoseconds that one call takes, the median of nine runs.
template <class Body> double nanosecondsOf(Body body)
{
    const int calls = callsPerRun(body);
    return medianOf([&] { return nanosecondsPerCall(body, calls); });
}

/// How many times longer `body` takes than `base`; both are measured in turn, the median of nine such pairs.
template <class Body, class Base> double ratioOf(Body body, Base base)
{
    const int calls = callsPerRun(body), baseCalls = callsPerRun(base);
    return medianOf([&] {
        const double whole = nanosecondsPerCall(base, baseCalls);
        return nanosecondsPerCall(body, calls) / whole;
    });
}

} // namespace benchmarks
