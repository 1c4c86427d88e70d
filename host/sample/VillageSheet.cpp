#include "sample/VillageSheet.h"

#include "sample/VillageDraft.h"

namespace refhost::village {
namespace {

constexpr double kGrid = 100;            // metres between the crosses
constexpr double kRim = 9;               // metres between the frame's two lines

std::vector<Place> rectangle(double out)
{
    return {{kSheet.west - out, kSheet.south - out}, {kSheet.east + out, kSheet.south - out},
            {kSheet.east + out, kSheet.north + out}, {kSheet.west - out, kSheet.north + out}};
}

void grid(Draft &d)
{
    const double middle = kRim / 2 - 1;
    for (double x = kSheet.west; x <= kSheet.east; x += kGrid) {
        d.textAt(604, 10, {x, kSheet.south - kRim + middle - 1}, QString::number(x, 'f', 0));
        d.textAt(604, 10, {x, kSheet.north + middle - 1}, QString::number(x, 'f', 0));
        for (double y = kSheet.south + 50; y < kSheet.north; y += kGrid)
            if (x > kSheet.west && x < kSheet.east) d.symbolAt(604, 42, {x, y});
    }
    for (double y = kSheet.south + 50; y < kSheet.north; y += kGrid) {
        d.textAt(604, 10, {kSheet.west - middle + 1, y}, QString::number(y, 'f', 0), 90);
        d.textAt(604, 10, {kSheet.east + kRim - middle + 1, y}, QString::number(y, 'f', 0), 90);
    }
}

} // namespace

void draftSheet(Draft &d)
{
    d.lineAt(604, rectangle(0), true);
    d.lineAt(604, rectangle(kRim), true);
    grid(d);
    const double middle = (kSheet.west + kSheet.east) / 2;
    d.textAt(605, 12, {middle, kSheet.north + 32}, QStringLiteral("ALMÁSKÚT"));
    d.textAt(605, 11, {middle, kSheet.north + 21}, QStringLiteral("belterületi földmérési alaptérkép"));
    d.textAt(605, 11, {middle, kSheet.south - 20}, QStringLiteral("M = 1 : 1000"));
    d.textAt(605, 11, {kSheet.west + 90, kSheet.south - 20}, QStringLiteral("Vetületi rendszer: EOV"));
    d.textAt(605, 11, {kSheet.east - 110, kSheet.south - 20}, QStringLiteral("Magasságok: Balti alapszint"));
    d.symbolAt(605, 41, {kSheet.east - 25, kSheet.north - 85});
}

void draftControl(Draft &d)
{
    struct Control {
        qint16 layer, symbol;
        const char16_t *name;
        Spot at;
    };
    const Control all[] = {
        {601, 1, u"65-3241", {-338, 214}},
        {601, 1, u"65-3242", {322, -316}},
        {601, 1, u"65-3307", {342, 246}},
        {601, 3, u"1001", {-230, mainStreet(-230) - 4.4}},
        {601, 3, u"1002", {-52, mainStreet(-52) + 4.6}},
        {601, 3, u"1003", {110, mainStreet(110) + 4.6}},
        {601, 3, u"1004", {290, mainStreet(290) - 4.4}},
        {601, 3, u"1005", {-205, upperStreet(-205) - 3}},
        {601, 3, u"1006", {40, upperStreet(40) + 3}},
        {601, 3, u"1007", {-140, lowerStreet(-140) + 3}},
        {601, 3, u"1008", {108, lowerStreet(108) - 3}},
        {601, 3, u"1009", {300, lowerStreet(300) + 3}},
        {602, 2, u"MAP 217", {-33, mainStreet(-33) + 12.6}},
        {602, 2, u"MAP 218", {157, mainStreet(157) - 16}},
    };
    for (const Control &c : all) {
        d.symbol(c.layer, c.symbol, c.at);
        const Place p = placeOf(c.at);
        d.textAt(603, 9, {p.x + 2.2, p.y + 1.1}, QString::fromUtf16(c.name));
        d.point(c.layer, QString::fromUtf16(c.name), c.at);
    }
}

} // namespace refhost::village
