#include "window/WindowActions.h"

#include <QAction>
#include <QActionGroup>

using QV_DOC_CONTROLS::Text;

namespace refhost {
namespace {

using Row = WindowActions::Row;
using Tool = DrawingView::Tool;
constexpr double kZoomStep = 1.25;

constexpr Text kMenus[] = {
    {30400, u"&Fájl"}, {30401, u"&Nézet"}, {30402, u"&Rajzolás"}, {30403, u"&Párbeszédek"}, {30404, u"N&yelv"},
};

constexpr Text kHints[] = { // by Tool
    {30500, u"Kattints egy elemre, vagy húzz ablakot: jobbra csak a teljesen benne lévőket, balra az érintetteket is kijelöli."},
    {30501, u"Kattints oda, ahová a pont kerül."},
    {30502, u"Kattints a töréspontokra; Enter vagy dupla kattintás fejezi be, Backspace visszalép."},
    {30503, u"Kattints oda, ahol a felirat kezdődik, írd be a szöveget, és nyomj Entert!"},
    {30504, u"Húzz ablakot a nagyítandó rész köré."},
};

} // namespace

std::span<const Text> WindowActions::menus() { return kMenus; }
Text WindowActions::hintOf(Tool tool) { return kHints[size_t(tool)]; }

std::span<const Row> WindowActions::rows()
{
    using W = MainWindow;
    static constexpr auto tool = [](W &w, bool) { w.chooseTool(Tool(w.m_tools->checkedAction()->data().toInt())); };
    static const Row all[] = {
        {"new", File, {30410, u"Ú&j"}, Sign::New, "Ctrl+N", [](W &w, bool) { w.m_files.newDrawing(); }},
        {"open", File, {30411, u"&Megnyitás…"}, Sign::Open, "Ctrl+O", [](W &w, bool) { w.m_files.open(); }},
        {"saveAs", File, {30413, u"Mentés má&sként…"}, Sign::Save, "Ctrl+Shift+S", [](W &w, bool) { w.m_files.saveAs(); }},
        {"sample", File, {30415, u"Min&tarajz"}, Sign::Sample, "", [](W &w, bool) { w.m_files.openSample(); }, Row::Plain, true},
        {"exit", File, {30416, u"&Kilépés"}, {}, "Ctrl+Q", [](W &w, bool) { w.close(); }, Row::Plain, true},

        {"fit", View, {30420, u"Teljes &rajz"}, Sign::Fit, "F", [](W &w, bool) { w.m_view->fit(); }},
        {"zoomIn", View, {30421, u"&Nagyítás"}, Sign::ZoomIn, "+;=;Ctrl++", [](W &w, bool) { w.m_view->zoomBy(kZoomStep); }},
        {"zoomOut", View, {30422, u"&Kicsinyítés"}, Sign::ZoomOut, "-;Ctrl+-", [](W &w, bool) { w.m_view->zoomBy(1 / kZoomStep); }},
        {"zoomWindow", View, {30423, u"Nagyítás &ablakkal"}, Sign::ZoomWindow, "Z", tool, Row::ToolChoice, false, Tool::ZoomWindow},
        {"dark", View, {30424, u"&Sötét háttér"}, Sign::Dark, "", [](W &w, bool on) { w.m_view->setDark(on); }, Row::Switch, true},
        {"printColors", View, {30425, u"Nyomtatási s&zínek"}, {}, "",
         [](W &w, bool on) { w.m_view->setColors(on ? Colors::Print : Colors::Screen); }, Row::Switch},

        {"select", Draw, {30430, u"&Kijelölés"}, Sign::Select, "", tool, Row::ToolChoice, false, Tool::Select},
        {"point", Draw, {30431, u"&Pont"}, Sign::Point, "", tool, Row::ToolChoice, false, Tool::Point},
        {"line", Draw, {30432, u"&Vonal"}, Sign::Line, "", tool, Row::ToolChoice, false, Tool::Line},
        {"text", Draw, {30433, u"&Felirat"}, Sign::Lettering, "", tool, Row::ToolChoice, false, Tool::Text},
        {"selectAll", Draw, {30435, u"Mi&nd kijelölése"}, {}, "Ctrl+A", [](W &w, bool) { w.m_edits.selectAll(); }, Row::Plain, true},
        {"delete", Draw, {30434, u"&Törlés"}, Sign::Delete, "Del", [](W &w, bool) { w.m_edits.deleteSelected(); }},
    };
    return all;
}

} // namespace refhost
