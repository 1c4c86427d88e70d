#include "window/WindowActions.h"

using QV_DOC_CONTROLS::Text;

namespace refhost {
namespace {

using A = WindowActions;
using Tool = DrawingView::Tool;
using W = MainWindow;
constexpr double kZoomStep = 1.25;
constexpr bool kSeparated = true;

constexpr Text kMenus[] = {
    {30400, u"&Fájl"},        {30401, u"&Nézet"}, {30402, u"&Rajzolás"},
    {30403, u"&Párbeszédek"}, {30517, u"&Beállítások"}, {30404, u"N&yelv"},
};

constexpr Text kHints[] = {
    // by Tool
    {30500, u"Kattints egy elemre, vagy húzz ablakot: jobbra csak a teljesen benne lévőket, balra az "
            u"érintetteket is "
            u"kijelöli."},
    {30501, u"Kattints oda, ahová a pont kerül."},
    {30502, u"Kattints a töréspontokra; Enter vagy dupla kattintás fejezi be, Backspace visszalép."},
    {30503, u"Kattints oda, ahol a felirat kezdődik, írd be a szöveget, és nyomj Entert!"},
    {30504, u"Húzz ablakot a nagyítandó rész köré."},
    {30900, u"Kattints oda, ahová a jelkulcs kerül."},
};

// name, menu, text, sign, keys, act or tool
const A::Row kRows[] = {
    {"new", A::File, {30410, u"Ú&j"}, Sign::New, "Ctrl+N", [](W &w, bool) { w.files().newDrawing(); }},
    {"open", A::File, {30411, u"&Megnyitás…"}, Sign::Open, "Ctrl+O", [](W &w, bool) { w.files().open(); }},
    {"import",
     A::File,
     {30412, u"DXF &importálása…"},
     Sign::Import,
     "Ctrl+I",
     [](W &w, bool) { w.files().import(); }},
    {"saveAs",
     A::File,
     {30413, u"Mentés má&sként…"},
     Sign::Save,
     "Ctrl+Shift+S",
     [](W &w, bool) { w.files().saveAs(); }},
    {"close",
     A::File,
     {30515, u"&Bezárás"},
     {},
     "Ctrl+W",
     [](W &w, bool) { w.files().close(w.tabs().currentIndex()); }},
    {"sample",
     A::File,
     {30415, u"Min&tarajz"},
     Sign::Sample,
     "",
     [](W &w, bool) { w.files().openSample(); },
     A::Plain,
     kSeparated},
    {"exit",
     A::File,
     {30416, u"&Kilépés"},
     {},
     "Ctrl+Q",
     [](W &w, bool) { w.close(); },
     A::Plain,
     kSeparated},

    {"fit", A::View, {30420, u"Teljes &rajz"}, Sign::Fit, "F", [](W &w, bool) { w.view().fit(); }},
    {"zoomIn",
     A::View,
     {30421, u"&Nagyítás"},
     Sign::ZoomIn,
     "+;=;Ctrl++",
     [](W &w, bool) { w.view().zoomBy(kZoomStep); }},
    {"zoomOut",
     A::View,
     {30422, u"&Kicsinyítés"},
     Sign::ZoomOut,
     "-;Ctrl+-",
     [](W &w, bool) { w.view().zoomBy(1 / kZoomStep); }},
    {"zoomWindow", A::View, {30423, u"Nagyítás &ablakkal"}, Sign::ZoomWindow, "Z", Tool::ZoomWindow},
    {"dark",
     A::View,
     {30424, u"&Sötét háttér"},
     Sign::Dark,
     "",
     [](W &w, bool on) { w.setDark(on); },
     A::Switch,
     kSeparated},
    {"printColors",
     A::View,
     {30425, u"Nyomtatási s&zínek"},
     {},
     "",
     [](W &w, bool on) { w.setColors(on ? Colors::Print : Colors::Screen); },
     A::Switch},
    {"newElement",
     A::View,
     {30632, u"Új &elem tulajdonságai"},
     Sign::NewElement,
     "F4",
     [](W &w, bool on) { w.showNewElement(on); },
     A::Switch},

    {"select", A::Draw, {30430, u"&Kijelölés"}, Sign::Select, "", Tool::Select},
    {"point", A::Draw, {30431, u"&Pont"}, Sign::Point, "", Tool::Point},
    {"line", A::Draw, {30432, u"&Vonal"}, Sign::Line, "", Tool::Line},
    {"symbol", A::Draw, {30901, u"&Jelkulcs"}, Sign::Symbol, "", Tool::Symbol},
    {"text", A::Draw, {30433, u"&Felirat"}, Sign::Lettering, "", Tool::Text},
    {"selectAll",
     A::Draw,
     {30435, u"Mi&nd kijelölése"},
     {},
     "Ctrl+A",
     [](W &w, bool) { w.page().edits().selectAll(); },
     A::Plain,
     kSeparated},
    {"delete",
     A::Draw,
     {30434, u"&Törlés"},
     Sign::Delete,
     "Del",
     [](W &w, bool) { w.page().edits().deleteSelected(); }},

    {"warn",
     A::Settings,
     {30528, u"&Figyelmeztetés kikapcsolt aktuális rétegre"},
     {},
     "",
     [](W &w, bool on) { w.setWarning(on); },
     A::Switch},
    {"oldStyle", A::Settings, {30950, u"&Régi táblázatkezelő ablakok"}, {}, "",
     [](W &w, bool on) { w.setOldStyle(on); },
     A::Switch},
};

} // namespace

std::span<const Text> WindowActions::menus() { return kMenus; }
Text WindowActions::hintOf(Tool tool) { return kHints[size_t(tool)]; }
std::span<const A::Row> WindowActions::rows() { return kRows; }

} // namespace refhost
