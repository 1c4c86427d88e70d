#include "sample/VillageTables.h"

#include <QStringList>

#include <cmath>
#include <numbers>

namespace refhost::village {
namespace {

using ZolWDoc::Placement;

const PenRow kPens[] = {
    {0xFFFFFF, 0x000000}, // 1 foreground
    {0xFF0000, 0xC00000}, // 2 red
    {0xA5694F, 0x7F3F1F}, // 3 brown
    {0x00A000, 0x006000}, // 4 green
    {0x3F7FFF, 0x0000BF}, // 5 blue
    {0x00A5A5, 0x007F7F}, // 6 teal
    {0xC000C0, 0x7F007F}, // 7 magenta
    {0x808080, 0x606060}, // 8 grey
    {0xFF7F00, 0xC05F00}, // 9 orange
    {0x5FA55F, 0x3F7F3F}, // 10 leaves
    {0xA5A5A5, 0xA5A5A5}, // 11 light grey
    {0xBFA500, 0xA58F00}, // 12 gas
    {0x7F5F3F, 0x5F3F1F}, // 13 sewer
    {0x5F9FDF, 0x3F7FBF}, // 14 water
    {0xC8C8C8, 0xD8D8D8}, // 15 dwelling
    {0xFFBF7F, 0xFFDF9F}, // 16 public building
};

constexpr const char16_t *kLayerGroups[] = {
    u"Földrészletek", u"Épületek",          u"Közlekedés", u"Vízrajz, domborzat, növényzet",
    u"Közművek",      u"Alappontok, keret",
};
constexpr const char16_t *kSymbolGroups[] = {u"Alappontok", u"Növényzet", u"Közművek", u"Vonaljelek",
                                             u"Egyéb jelek"};
constexpr const char16_t *kTextGroups[] = {u"Földrészletek", u"Megírások", u"Magasságok"};

constexpr LayerRow kLayers[] = {
    {101, u"Földrészlet határ", 0, 2, 1, 1},
    {102, u"Helyrajzi szám", 0, 1, 1, 1},
    {103, u"Alrészlet határ", 0, 6, 4, 2},
    {104, u"Alrészlet jel, művelési ág", 0, 1, 4, 2},
    {105, u"Határpont", 0, 3, 1, 1},
    {106, u"Földrészlet – külterület", 0, 5, 1, 1},
    {201, u"Lakóépület", 1, 2, 2, 3},
    {202, u"Melléképület", 1, 3, 8, 3},
    {203, u"Középület", 1, 2, 7, 6},
    {204, u"Házszám", 1, 1, 2, 3},
    {205, u"Épület kitöltés", 1, 1, 15, 3},
    {206, u"Kerítés", 1, 9, 8, 3},
    {207, u"Kút", 1, 3, 5, 3},
    {301, u"Útburkolat széle", 2, 1, 8, 4},
    {302, u"Út tengelyvonal", 2, 7, 2, 4, false},
    {303, u"Járda", 2, 4, 8, 4},
    {304, u"Szegélykő", 2, 3, 11, 4, false},
    {305, u"Utcanév", 2, 1, 1, 4},
    {306, u"Híd, áteresz", 2, 2, 1, 6},
    {401, u"Patak, árok", 3, 17, 5, 5},
    {402, u"Víznév", 3, 1, 5, 5},
    {403, u"Fa, bokor", 3, 3, 10, 6},
    {404, u"Főszintvonal", 3, 15, 3, 7},
    {405, u"Alapszintvonal", 3, 3, 3, 7},
    {406, u"Szintvonal felirat", 3, 1, 3, 7},
    {407, u"Magassági pont", 3, 1, 3, 8},
    {408, u"Rézsű", 3, 16, 3, 8},
    {501, u"Vezeték – gáz", 4, 10, 12, 6},
    {502, u"Vezeték – víz", 4, 11, 14, 6},
    {503, u"Vezeték – szennyvíz", 4, 12, 13, 6},
    {504, u"Vezeték – villamos", 4, 13, 2, 6},
    {505, u"Vezeték – távközlés", 4, 14, 4, 6, false},
    {506, u"Akna", 4, 1, 13, 6},
    {507, u"Szerelvény (tűzcsap, elzáró)", 4, 1, 14, 6},
    {508, u"Oszlop, lámpa", 4, 1, 2, 6},
    {601, u"Vízszintes alappont", 5, 1, 2, 9},
    {602, u"Magassági alappont", 5, 1, 2, 9},
    {603, u"Alappont szám", 5, 1, 2, 9},
    {604, u"Térképkeret, hálózat", 5, 1, 1, 10},
    {605, u"Feliratok", 5, 2, 1, 11},
};

const LineTypeRow kLineTypes[] = {
    {1, u"Folytonos", 0.18f, {}},
    {2, u"Folytonos közepes", 0.25f, {}},
    {3, u"Folytonos vékony", 0.13f, {}},
    {4, u"Szaggatott", 0.18f, {2, 1}},
    {5, u"Hosszú szaggatott", 0.35f, {6, 1.5}},
    {6, u"Pontozott", 0.25f, {0.4, 1}},
    {7, u"Pontvonal (tengely)", 0.13f, {8, 1, 0.5, 1}},
    {8, u"Közigazgatási határ", 0.5f, {6, 1.5, 0.5, 1.5, 0.5, 1.5}},
    {9, u"Kerítés", 0.13f, {}, 1},
    {10, u"Gázvezeték", 0.25f, {12, 4}, 2},
    {11, u"Vízvezeték", 0.25f, {12, 4}, 3},
    {12, u"Szennyvízvezeték", 0.3f, {15, 5}, 4},
    {13, u"Villamos légvezeték", 0.18f, {}, 5},
    {14, u"Távközlési kábel", 0.18f, {4, 1, 0.4, 1}, 8},
    {15, u"Főszintvonal", 0.3f, {}},
    {16, u"Rézsűvonal", 0.13f, {}, 6},
    {17, u"Vízfolyás", 0.25f, {}, 7},
};

const SymbolizationRow kSymbolizations[] = {
    {1, u"Kerítés vonás", 31, Placement::DistrByLength, 5},
    {2, u"Gáz betűjel", 32, Placement::DistrByLength, 16, -2},
    {3, u"Víz betűjel", 33, Placement::DistrByLength, 16, -2},
    {4, u"Szennyvíz betűjel", 34, Placement::DistrByLength, 20, -2.5},
    {5, u"Villám jel", 35, Placement::MidPoint},
    {6, u"Rézsű vonás", 36, Placement::DistrByLength, 2.5},
    {7, u"Folyásirány", 37, Placement::MidPoint, 0, 0, 2.5},
    {8, u"Kábelvég", 38, Placement::EndPoints},
};

constexpr SymbolRow kSymbols[] = {
    {1, u"VAP", u"Vízszintes alappont", 0, 3.0f, 20, 601, "0,58 -50,-29 50,-29 0,58;c 0,0 6"},
    {2, u"MAP", u"Magassági alappont", 0, 2.4f, 20, 602, "c 0,0 50;-50,0 50,0;0,-50 0,50"},
    {3, u"FAP", u"Felmérési alappont", 0, 2.0f, 18, 601, "-50,-50 50,-50 50,50 -50,50 -50,-50;c 0,0 8"},
    {4, u"Határpont", u"Állandósított határpont", 0, 1.0f, 13, 105, "c 0,0 50"},
    {5, u"Magasság", u"Magassági pont", 0, 0.7f, 20, 407, "-50,0 50,0;0,-50 0,50"},
    {11, u"Lombos fa", u"Lombos fa", 1, 3.0f, 13, 403,
     "c 0,0 8;-15,42 5,50 25,40 30,38 46,25 50,5 42,-12 40,-15 30,-40 10,-46 8,-46 -12,-50 -35,-38 -36,-36 "
     "-50,-14 "
     "-46,6 -46,8 -42,28 -15,42"},
    {12, u"Fenyőfa", u"Tűlevelű fa", 1, 3.0f, 13, 403,
     "0,50 -30,10 -12,14 -42,-24 42,-24 12,14 30,10 0,50;0,-24 0,-50;-10,-50 10,-50"},
    {13, u"Gyümölcsfa", u"Gyümölcsfa", 1, 2.0f, 13, 403, "c 0,14 36;0,-22 0,-50;-14,-50 20,-50"},
    {14, u"Bokor", u"Bokor", 1, 1.4f, 13, 403, "c -24,-14 24;c 24,-14 24;c 0,24 24"},
    {15, u"Rét", u"Rét, legelő", 1, 1.6f, 13, 403, "-40,-30 -40,20;0,-40 0,40;40,-30 40,20"},
    {16, u"Szőlő", u"Szőlőművelés", 1, 1.6f, 13, 403,
     "0,-50 0,50;0,-20 20,-10 22,14 0,30;0,-36 -18,-28 -20,-6 0,8"},
    {21, u"Szennyvízakna", u"Szennyvíz akna", 2, 2.0f, 18, 506, "c 0,0 50;-35,-35 35,35;-35,35 35,-35"},
    {22, u"Vízakna", u"Víz akna", 2, 2.0f, 18, 506, "c 0,0 50;-30,25 0,-30 30,25"},
    {23, u"Tűzcsap", u"Föld feletti tűzcsap", 2, 2.0f, 20, 507,
     "c 0,0 30;0,30 0,50;-50,0 -30,0;30,0 50,0;-20,50 20,50"},
    {24, u"Elzáró", u"Elzáró szerelvény", 2, 1.8f, 18, 507, "-50,-30 50,30 50,-30 -50,30 -50,-30"},
    {25, u"Oszlop", u"Villanyoszlop", 2, 1.6f, 20, 508, "c 0,0 50;c 0,0 8"},
    {26, u"Lámpa", u"Közvilágítási lámpa", 2, 2.2f, 18, 508,
     "c 0,0 22;-50,0 -22,0;22,0 50,0;0,22 0,50;0,-50 0,-22"},
    {27, u"Kút", u"Ásott kút", 2, 2.0f, 18, 207, "c 0,0 50;c 0,0 26"},
    {31, u"Kerítésvonás", u"Kerítés vonás", 3, 1.0f, 13, 206, "0,0 0,70"},
    {32, u"G betű", u"Gáz betűjel", 3, 2.2f, 20, 501,
     "34,28 20,46 -6,50 -30,34 -38,0 -30,-34 -6,-50 20,-46 36,-28 36,-4 6,-4"},
    {33, u"V betű", u"Víz betűjel", 3, 2.2f, 20, 502, "-36,50 0,-50 36,50"},
    {34, u"SZ betű", u"Szennyvíz betűjel", 3, 2.2f, 20, 503,
     "-18,34 -34,50 -60,50 -74,34 -70,12 -24,-10 -16,-32 -34,-50 -62,-50 -78,-32;10,20 64,20 6,-50 68,-50"},
    {35, u"Villám", u"Villám jel", 3, 3.0f, 18, 504, "-50,22 8,-6 -8,6 50,-22;30,-28 50,-22 38,-4"},
    {36, u"Rézsűvonás", u"Rézsű vonás", 3, 1.6f, 13, 408, "0,0 0,-100"},
    {37, u"Folyásirány", u"Folyásirány nyíl", 3, 6.0f, 18, 401, "-50,0 50,0;32,10 50,0 32,-10"},
    {38, u"Kábelvég", u"Kábelvég jel", 3, 1.0f, 18, 505, "c 0,0 50"},
    {41, u"Északjel", u"Északi irány jele", 4, 24.0f, 35, 605,
     "0,50 -14,-40 0,-26 14,-40 0,50;0,50 0,-26;-10,56 -10,76 10,56 10,76"},
    {42, u"Őrkereszt", u"Hálózati kereszt", 4, 8.0f, 13, 604, "-50,0 50,0;0,-50 0,50"},
    {43, u"Templom", u"Templom jele", 4, 4.0f, 35, 203, "0,-50 0,50;-24,20 24,20"},
    {44, u"Emlékmű", u"Emlékmű, szobor", 4, 2.6f, 20, 203,
     "-40,-50 40,-50;-24,-50 -24,-20 24,-20 24,-50;0,-20 0,50"},
};

constexpr const char16_t *kSans = u"DejaVu Sans", *kNarrow = u"DejaVu Sans Condensed",
                         *kSerif = u"DejaVu Serif";
constexpr TextTypeRow kTextTypes[] = {
    {1, u"Helyrajzi szám", 0, kNarrow, 1.8f, 400, false, 6, 102},
    {2, u"Alrészlet jel", 0, kNarrow, 1.5f, 400, false, 6, 104},
    {3, u"Házszám", 0, kNarrow, 1.5f, 700, false, 6, 204},
    {4, u"Utcanév", 1, kSans, 2.4f, 400, true, 6, 305},
    {5, u"Víznév", 1, kSerif, 2.4f, 400, true, 6, 402},
    {6, u"Megírás", 1, kNarrow, 2.0f, 400, false, 6, 203},
    {7, u"Szintvonal magasság", 2, kNarrow, 1.5f, 400, false, 6, 406},
    {8, u"Magassági szám", 2, kNarrow, 1.2f, 400, false, 0, 407},
    {9, u"Alappont szám", 1, kSans, 1.8f, 400, false, 0, 603},
    {10, u"Keret koordináta", 1, kNarrow, 2.2f, 400, false, 6, 604},
    {11, u"Cím", 1, kSans, 3.5f, 400, false, 6, 605},
    {12, u"Településnév", 1, kSerif, 9.0f, 700, false, 6, 605},
};

ZolWDoc::PointMm pointFrom(const QString &pair)
{
    const QStringList xy = pair.split(u',');
    return {xy.at(0).toDouble() / 100, xy.at(1).toDouble() / 100};
}

std::vector<ZolWDoc::PointMm> circle(ZolWDoc::PointMm centre, double radius)
{
    constexpr int pieces = 24;
    std::vector<ZolWDoc::PointMm> points;
    for (int i = 0; i <= pieces; ++i) {
        const double a = 2 * std::numbers::pi * (i % pieces) / pieces;
        points.push_back({centre.x + radius * std::cos(a), centre.y + radius * std::sin(a)});
    }
    return points;
}

} // namespace

std::span<const PenRow> pens() { return kPens; }
std::span<const char16_t *const> layerGroups() { return kLayerGroups; }
std::span<const char16_t *const> symbolGroups() { return kSymbolGroups; }
std::span<const char16_t *const> textGroups() { return kTextGroups; }
std::span<const LayerRow> layers() { return kLayers; }
std::span<const LineTypeRow> lineTypes() { return kLineTypes; }
std::span<const SymbolizationRow> symbolizations() { return kSymbolizations; }
std::span<const SymbolRow> symbols() { return kSymbols; }
std::span<const TextTypeRow> textTypes() { return kTextTypes; }

ZolWDoc::Glyph glyphFrom(const char *strokes)
{
    ZolWDoc::Glyph glyph;
    glyph.advance = 1;
    for (const QString &stroke : QString::fromLatin1(strokes).split(u';')) {
        const QStringList parts = stroke.split(u' ', Qt::SkipEmptyParts);
        if (parts.front() == u"c") {
            glyph.strokes.push_back(circle(pointFrom(parts.at(1)), parts.at(2).toDouble() / 100));
            continue;
        }
        auto &points = glyph.strokes.emplace_back();
        for (const QString &pair : parts) points.push_back(pointFrom(pair));
    }
    return glyph;
}

} // namespace refhost::village
