#include "kit/tools/Icons.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr IconRow kIcons[] = {
    // finding and narrowing
    {"find", "M2 6.5a4.5 4.5 0 1 0 9 0a4.5 4.5 0 1 0 -9 0M9.8 9.8L14.5 14.5"},
    {"zoomIn", "M2 6.5a4.5 4.5 0 1 0 9 0a4.5 4.5 0 1 0 -9 0M9.8 9.8L14.5 14.5M4.5 6.5h4M6.5 4.5v4"},
    {"zoomOut", "M2 6.5a4.5 4.5 0 1 0 9 0a4.5 4.5 0 1 0 -9 0M9.8 9.8L14.5 14.5M4.5 6.5h4"},
    {"filter", "M1.5 2.5h13l-5 6v4.5l-3 1.5v-6z"},
    {"sort", "M1.5 3.5h8M1.5 7.5h5.5M1.5 11.5h3M12 2.5v11M9.5 11l2.5 2.5l2.5 -2.5"},
    // groups
    {"collapseAll", "M1.5 5.5h9v9h-9zM4.5 5.5v-4h10v10h-4M3.5 10h5"},
    {"expandAll", "M1.5 5.5h9v9h-9zM4.5 5.5v-4h10v10h-4M3.5 10h5M6 7.5v5"},
    {"groupBy", "M3.5 5.5v8h11M3.5 9.5h11", "M1.5 2h13v3.5h-13z"},
    {"showGroups", "M1.5 2.5h13v11h-13zM5.5 2.5v11M8 8h4.5M10.5 6l2 2l-2 2", "M1.5 2.5h4v11h-4z"},
    {"hideGroups", "M1.5 2.5h13v11h-13zM5.5 2.5v11M12.5 8h-4.5M10 6l-2 2l2 2"},
    // views
    {"viewTable", "M1.5 2.5h13v11h-13zM1.5 6.5h13M1.5 10h13M6.5 6.5v7", "M1.5 2.5h13v4h-13z"},
    {"viewCard", "M2.5 1.5h11v13h-11zM5 8.5h2M9 8.5h2.5M5 11.5h2M9 11.5h2.5", "M2.5 1.5h11v4h-11z"},
    {"viewCardMin", "M1.5 2.5h5.5v4h-5.5zM9 2.5h5.5v4h-5.5zM1.5 9.5h5.5v4h-5.5zM9 9.5h5.5v4h-5.5z"},
    {"columns", "M1.5 2.5h13v11h-13zM6 2.5v11M10 2.5v11", "M6 2.5h4v11h-4z"},
    // paper
    {"printPreview", "M7.5 14.5h-5v-13h6l3 3v1.5M8.5 1.5v3h3M7.5 10a2.5 2.5 0 1 0 5 0a2.5 2.5 0 1 0 -5 0"
                     "M11.9 11.9L14.5 14.5"},
    {"print", "M4.5 5.5v-4h7v4M4.5 11.5h-3v-6h13v6h-3M4.5 9.5h7v5h-7z"},
    {"savePdf", "M7.5 14.5h-5v-13h6l3 3v2M8.5 1.5v3h3M12 8v6.5M9.5 12l2.5 2.5l2.5 -2.5"},
    {"pagePrevious", "M3.5 1.5h9v13h-9zM8 11v-6M5.5 7.5l2.5 -2.5l2.5 2.5"},
    {"pageNext", "M3.5 1.5h9v13h-9zM8 5v6M5.5 8.5l2.5 2.5l2.5 -2.5"},
    {"pageSetup", "M2.5 1.5h11v13h-11zM5.5 4.5h5v7h-5z"},
    // selection
    {"selectAll", "M1.5 1.5h13v13h-13zM4.5 8l2.5 2.8l4.5 -5.3"},
    {"unselectAll", "M1.5 4.5v-3h3M6.7 1.5h2.6M11.5 1.5h3v3M14.5 6.7v2.6M14.5 11.5v3h-3M9.3 14.5h-2.6"
                    "M4.5 14.5h-3v-3M1.5 9.3v-2.6"},
    {"visibleOn", "M1 8c2 -3.3 4.4 -4.9 7 -4.9s5 1.6 7 4.9c-2 3.3 -4.4 4.9 -7 4.9s-5 -1.6 -7 -4.9z",
     "M5.9 8a2.1 2.1 0 1 0 4.2 0a2.1 2.1 0 1 0 -4.2 0z"},
    {"visibleOff",
     "M1 8c2 -3.3 4.4 -4.9 7 -4.9s5 1.6 7 4.9c-2 3.3 -4.4 4.9 -7 4.9s-5 -1.6 -7 -4.9zM2.5 13.5L13.5 2.5"},
    // records and files
    {"new", "M8 14.5h-5.5v-13h6l3 3v3M8.5 1.5v3h3M12 9.5v5M9.5 12h5"},
    {"copy", "M5.5 4.5h8v10h-8zM3.5 11.5h-1v-10h8v1"},
    {"rename", "M8.5 4.5h-7v7h7M13.5 4.5h1v7h-1M9.5 1.5h3M9.5 14.5h3M11 1.5v13"},
    {"edit", "M1.5 14.5l1 -4l8.5 -8.5l3 3l-8.5 8.5zM9 4l3 3"},
    {"delete", "M1.5 4.5h13M5.5 4.5v-3h5v3M3.5 4.5l.8 10h7.4l.8 -10M6.5 7v5M9.5 7v5"},
    {"open", "M1.5 13.5v-11h4.5l1.5 2h5v2M1.5 13.5l2.5 -7h11l-2.5 7z"},
    {"save", "M1.5 1.5h10.5l2.5 2.5v10.5h-13zM4.5 1.5v4h6v-4M4.5 14.5v-5h7v5"},
    {"close", "M3 3l10 10M13 3l-10 10"},
    {"clear", "M5.5 3.5h9v9h-9l-4 -4.5zM8 6l4 4M12 6l-4 4"},
    // moving an entry
    {"moveUp", "M8 14v-12M3.5 6.5l4.5 -4.5l4.5 4.5"},
    {"moveDown", "M8 2v12M3.5 9.5l4.5 4.5l4.5 -4.5"},
    {"moveLeft", "M14 8h-12M6.5 3.5l-4.5 4.5l4.5 4.5"},
    {"moveRight", "M2 8h12M9.5 3.5l4.5 4.5l-4.5 4.5"},
    // what tables hold
    {"layer", "M8 1.5l6.5 3.5l-6.5 3.5l-6.5 -3.5zM1.5 8l6.5 3.5l6.5 -3.5M1.5 11l6.5 3.5l6.5 -3.5"},
    {"textType", "M2.5 4.5v-2h11v2M8 2.5v11M5.5 13.5h5"},
    {"lineType", "M1.5 3.5h13M1.5 8h3.5M6.5 8h3M11 8h3.5M1.5 12.5h.6M5.5 12.5h.6M9.5 12.5h.6M13.5 12.5h.6"},
    {"symbol", "M8 1.5l6.5 12h-13z", "M6.7 9.7a1.3 1.3 0 1 0 2.6 0a1.3 1.3 0 1 0 -2.6 0z"},
    {"penColor", "M8 1.5c-2.6 3.4 -4.5 5.9 -4.5 8.3a4.5 4.5 0 0 0 9 0c0 -2.4 -1.9 -4.9 -4.5 -8.3z"
                 "M5.8 10a2.3 2.3 0 0 0 2.3 2.3"},
    {"lineSymbols",
     "M1 12.5h14M3 12.5v-3M8 12.5v-3M13 12.5v-3M1.7 7.5a1.3 1.3 0 1 0 2.6 0a1.3 1.3 0 1 0 -2.6 0"
     "M6.7 7.5a1.3 1.3 0 1 0 2.6 0a1.3 1.3 0 1 0 -2.6 0M11.7 7.5a1.3 1.3 0 1 0 2.6 0a1.3 1.3 0 1 0 -2.6 0"},
};

} // namespace

std::span<const IconRow> iconRows() { return kIcons; }

} // namespace QV_DOC_CONTROLS
