#include "Figures.h"

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <exception>

namespace benchmarks {

std::vector<Figure> &figures()
{
    static std::vector<Figure> all;
    return all;
}

bool figure(std::string name, std::string unit, Bound bound, std::function<double()> measure)
{
    figures().push_back({std::move(name), std::move(unit), bound, std::move(measure)});
    return true;
}

bool Bound::holds(double measured) const
{
    if (kind == Kind::None) return true;
    return kind == Kind::AtMost ? measured <= value : measured >= value;
}

double medianOf(const std::function<double()> &once)
{
    std::array<double, kRuns> values;
    for (double &v : values) v = once();
    std::ranges::nth_element(values, values.begin() + kRuns / 2);
    return values[kRuns / 2];
}

namespace {

/// Prints name, value, unit, bound and verdict, separated by tabs; returns whether the bound holds.
bool print(const Figure &f)
{
    const double measured = f.measure();
    const bool holds = f.bound.holds(measured);
    std::string bound = "-", verdict = "-";
    if (f.bound.kind != Bound::Kind::None) {
        std::array<char, 32> number;
        std::snprintf(number.data(), number.size(), "%.6g", f.bound.value);
        bound = (f.bound.kind == Bound::Kind::AtMost ? "<=" : ">=") + std::string(number.data());
        verdict = holds ? "holds" : "falls short";
    }
    std::printf("%s\t%.4g\t%s\t%s\t%s\n", f.name.c_str(), measured, f.unit.c_str(), bound.c_str(),
                verdict.c_str());
    std::fflush(stdout);
    return holds;
}

int printMatching(const std::string &word)
{
    int printed = 0, fallenShort = 0;
    for (const Figure &f : figures()) {
        if (f.name.find(word) == std::string::npos) continue;
        ++printed;
        if (!print(f)) ++fallenShort;
    }
    if (printed > 0) return fallenShort > 0 ? 1 : 0;
    std::fprintf(stderr, "No figure's name contains \"%s\". There are:\n", word.c_str());
    for (const Figure &f : figures()) std::fprintf(stderr, "  %s\n", f.name.c_str());
    return 2;
}

} // namespace
} // namespace benchmarks

/// What the offscreen platform says of itself at every window is no news.
static void tellWhatMatters(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

int main(int argc, char **argv)
{
    qInstallMessageHandler(tellWhatMatters);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir home; // the settings of the user who measures play no part
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QApplication app(argc, argv);
    std::ranges::stable_sort(benchmarks::figures(), {}, &benchmarks::Figure::name);
    try {
        return benchmarks::printMatching(argc > 1 ? argv[1] : "");
    } catch (const std::exception &e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
}
