#include "import/DxfImport.h"

#include "import/DxfScan.h"

#include <algorithm>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr LengthUnit kUnits[] = {
    {{30312, u"méter"}, 1, 6},          {{30313, u"milliméter"}, 0.001, 4}, {{30314, u"centiméter"}, 0.01, 5},
    {{30315, u"deciméter"}, 0.1, 14},   {{30316, u"kilométer"}, 1000, 7},   {{30317, u"hüvelyk"}, 0.0254, 1},
    {{30318, u"láb"}, 0.3048, 2},       {{30319, u"amerikai földmérőláb"}, 1200 / 3937.0, 21},
    {{30320, u"yard"}, 0.9144, 10},     {{30321, u"mérföld"}, 1609.344, 3},
};
constexpr int kScales[] = {100, 200, 250, 500, 1000, 2000, 2500, 5000, 10000, 25000};
constexpr double kLongSide = 1.189, kShortSide = 0.841;     // of an A0 sheet, metres
constexpr double kFarAway = 100'000;                        // map coordinates have six digits and more

int unitOfCode(int code)
{
    const auto found = std::ranges::find(kUnits, code, &LengthUnit::code);
    return found == std::end(kUnits) ? -1 : int(found - kUnits);
}

/// Nobody draws something this far from the origin unless the coordinates are those of a map.
bool looksLikeMap(const DxfScan &scan)
{
    const double width = scan.high().x - scan.low().x, height = scan.high().y - scan.low().y;
    const double away = std::max(std::abs(scan.low().x), std::abs(scan.low().y));
    return away > kFarAway && away > 20 * std::max(width, height);
}

int guessedUnit(const DxfScan &scan, QString &note)
{
    const int named = unitOfCode(wholeOf(scan.headerNumber("$INSUNITS", 0)));
    const bool small = named >= 0 && kUnits[named].metres < 0.5;
    if (looksLikeMap(scan)) {
        if (small)
            note = join(Text{30322, u"A fájl feje szerint az egység "}, kUnits[named].name,
                        Text{30323, u", de a koordináták térképi (méter) koordinátának látszanak."});
        if (named < 0 || small) return 0;
    }
    if (named >= 0) return named;
    const double size = std::max(scan.high().x - scan.low().x, scan.high().y - scan.low().y);
    const QByteArray measurement = scan.headerText("$MEASUREMENT");
    if (measurement == "0") return unitOfCode(1);
    // Metric without a unit: a plan of a hundred kilometres in metres is drawn in millimetres.
    return measurement == "1" && size > kFarAway ? unitOfCode(4) : 0;
}

double guessedScale(double width, double height)
{
    const double longer = std::max(width, height), shorter = std::min(width, height);
    for (int scale : kScales)
        if (longer / scale <= kLongSide && shorter / scale <= kShortSide) return scale;
    return kScales[std::size(kScales) - 1];
}

} // namespace

std::span<const LengthUnit> lengthUnits() { return kUnits; }
std::span<const int> usualScales() { return kScales; }

ImportGuess DxfImport::guessOf(const QString &path)
{
    DxfScan scan(path);
    scan.run({});
    ImportGuess guess;
    guess.version = QString::fromLatin1(scan.headerText("$ACADVER"));
    guess.codePage = QString::fromLatin1(scan.headerText("$DWGCODEPAGE"));
    guess.width = std::max(scan.high().x - scan.low().x, 0.0);
    guess.height = std::max(scan.high().y - scan.low().y, 0.0);
    for (const auto &[kind, count] : scan.kinds()) guess.objects += count.total;
    guess.unit = guessedUnit(scan, guess.note);
    const double metres = kUnits[guess.unit].metres;
    guess.scale = guessedScale(guess.width * metres, guess.height * metres);
    return guess;
}

} // namespace refhost
