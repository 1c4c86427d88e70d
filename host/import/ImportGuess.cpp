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
// What is drawn at its own size on a sheet is drawn 1:1; plans of the field begin at 1:100.
constexpr int kScales[] = {1, 2, 5, 10, 20, 50, 100, 200, 250, 500, 1000, 2000, 2500, 5000, 10000, 25000};
constexpr int kFieldScale = 100;
constexpr double kLongSide = 1.189, kShortSide = 0.841;     // of an A0 sheet, metres
constexpr double kLeastLetter = 0.001;                      // on paper, metres: what can still be read
constexpr double kFarAway = 100'000;                        // map coordinates have six digits and more
constexpr double kLeastDrawing = 1, kGreatestDrawing = 2e6; // metres: whatever is surveyed lies between
constexpr double kSheetTolerance = 0.02;                    // share of a sheet's side
constexpr int kMetre = 0, kMillimetre = 1, kInch = 5;       // rows of kUnits

struct Sheet {
    const char16_t *name;
    double longer, shorter;                                 // millimetres
};
constexpr Sheet kSheets[] = {
    {u"A4", 297, 210}, {u"A3", 420, 297}, {u"A2", 594, 420}, {u"A1", 841, 594}, {u"A0", 1189, 841}};

/// What can be seen of a drawing without knowing its unit.
struct Clues {
    explicit Clues(const DxfScan &scan)
        : width(std::max(scan.high().x - scan.low().x, 0.0)),
          height(std::max(scan.high().y - scan.low().y, 0.0)),
          away(std::max(std::abs(scan.low().x), std::abs(scan.low().y))),
          letter(scan.lettering().usualHeight()),
          measurement(scan.headerText("$MEASUREMENT"))
    {
        const auto named = std::ranges::find(kUnits, wholeOf(scan.headerNumber("$INSUNITS", 0)),
                                             &LengthUnit::code);
        unit = named == std::end(kUnits) ? -1 : int(named - kUnits);
        const int display = wholeOf(scan.headerNumber("$LUNITS", 0));
        const bool feetAndInches = display == 3 || display == 4; // such programs count in inches
        inches = feetAndInches || scan.lettering().givesFeetAndInches();
        // An empty drawing of a program set to inches is 12 x 9 large, and nobody sets that by hand.
        inchSheet = scan.headerNumber("$LIMMAX", 0) == 12 && scan.headerNumber("$LIMMAX/y", 0) == 9;
    }
    double longer() const { return std::max(width, height); }
    double shorter() const { return std::min(width, height); }
    /// Nobody draws something this far from the origin unless the coordinates are those of a map.
    bool map() const { return away > kFarAway && away > 20 * longer(); }
    const Sheet *sheet() const
    {
        const auto near = [](double a, double b) { return std::abs(a - b) <= kSheetTolerance * b; };
        const auto found = std::ranges::find_if(kSheets, [&](const Sheet &s) {
            return near(longer(), s.longer) && near(shorter(), s.shorter);
        });
        return found == std::end(kSheets) ? nullptr : found;
    }

    double width, height, away;     ///< drawing units
    double letter;                  ///< usual letter height, drawing units, 0 = no texts
    QByteArray measurement;         ///< "0" imperial, "1" metric, else not said
    int unit = -1;                  ///< that the head names, -1 = none
    bool inches = false, inchSheet = false;
};

struct Proposal {
    int unit = kMetre;
    QString note;                   ///< why it is not the one that the head says, or why to look twice
};

QString headSays(int unit, Text but)
{
    return join(Text{30322, u"A fájl feje szerint az egység "}, kUnits[unit].name, but);
}

Proposal ofMap(const Clues &c)
{
    if (c.unit >= 0 && kUnits[c.unit].metres > 0.3) return {c.unit, {}}; // there are maps in feet
    if (c.unit < 0) return {kMetre, {}};
    return {kMetre,
            headSays(c.unit, {30323, u", de a koordináták térképi (méter) koordinátának látszanak."})};
}

Proposal ofInches(const Clues &c)
{
    if (c.unit < 0 || c.unit == kInch) return {kInch, {}};
    return {kInch, headSays(c.unit, {30600, u", de a rajz láb és hüvelyk méreteket ad meg, ezért hüvelykben "
                                            u"készült."})};
}

Proposal asNamed(const Clues &c)
{
    const double size = c.longer() * kUnits[c.unit].metres;
    if (size == 0 || (size >= kLeastDrawing && size <= kGreatestDrawing) || c.sheet()) return {c.unit, {}};
    return {c.unit,
            headSays(c.unit, {30601, u", de akkor a rajz szokatlanul kicsi vagy nagy lenne. Nézd meg a "
                                     u"méretét!"})};
}

Proposal unnamed(const Clues &c)
{
    if (c.measurement == "0" || (c.measurement != "1" && c.inchSheet)) return {kInch, {}};
    if (const Sheet *const sheet = c.sheet())
        return {kMillimetre, join(Text{30602, u"A rajz akkora, mint egy "}, QString::fromUtf16(sheet->name),
                                  Text{30603, u" lap milliméterben, ezért papíron készültnek látszik."})};
    // Metric without a unit: a plan of a hundred kilometres in metres is drawn in millimetres.
    return {c.measurement == "1" && c.longer() > kFarAway ? kMillimetre : kMetre, {}};
}

Proposal proposalFor(const Clues &c)
{
    if (c.map()) return ofMap(c);
    // A plan in feet or metres may give single lengths in feet and inches; its head is believed.
    if (c.inches && (c.unit < 0 || kUnits[c.unit].metres < 0.1)) return ofInches(c);
    return c.unit >= 0 ? asNamed(c) : unnamed(c);
}

/// The largest scale at which the drawing goes on a sheet; larger than that of the field only where its
/// letters ask for it.
double guessedScale(const Clues &c, double metres)
{
    const auto fits = [&](int scale) {
        return c.longer() * metres / scale <= kLongSide && c.shorter() * metres / scale <= kShortSide;
    };
    auto scale = std::ranges::find_if(kScales, [&](int s) { return s >= kFieldScale && fits(s); });
    if (metres == kUnits[kMillimetre].metres && c.sheet()) return 1;
    if (scale == std::end(kScales)) return *std::prev(scale);
    const auto readable = [&](int s) { return c.letter == 0 || c.letter * metres / s >= kLeastLetter; };
    if (*scale == kFieldScale)
        while (scale != std::begin(kScales) && !readable(*scale) && fits(*std::prev(scale))) --scale;
    return *scale;
}

} // namespace

std::span<const LengthUnit> lengthUnits() { return kUnits; }

ImportGuess DxfImport::guessOf(const QString &path)
{
    DxfScan scan(path);
    scan.run({});
    ImportGuess guess;
    guess.version = QString::fromLatin1(scan.headerText("$ACADVER"));
    guess.codePage = QString::fromLatin1(scan.headerText("$DWGCODEPAGE"));
    for (const auto &[kind, count] : scan.kinds()) guess.objects += count.total;
    const Clues clues(scan);
    Proposal proposal = proposalFor(clues);
    guess.width = clues.width, guess.height = clues.height;
    guess.unit = proposal.unit;
    guess.note = std::move(proposal.note);
    guess.scale = guessedScale(clues, kUnits[guess.unit].metres);
    return guess;
}

} // namespace refhost
