#include "ControlRows.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"

namespace QV_DOC_CONTROLS {
namespace {

template <class Control> QWidget *made(QWidget *parent) { return new Control(parent); }

constexpr ControlRow kRows[] = { // table
    {"usInputBox", "controls/usInputBox.h",
     {22003, u"Korlátok közé eső szám beviteli mezője, mértékegységgel"},
     "inputBox", {200, 26}, "Value FormatString", made<usInputBox>},
    {"ZOL3_LayGroup", "controls/ZOL3_LayGroup.h",
     {22004, u"Rétegek halmaza egy rajzból: számokkal vagy listából"},
     "layerSet", {200, 52}, "sLays sLayGroup", made<ZOL3_LayGroup>},
    {"usLays", "controls/usLays.h",
     {22005, u"Rétegek halmaza megadott rétegekből"},
     "layerSetOfGiven", {200, 52}, "sLays sLayGroup", made<usLays>},
    {"ZOL3_LayInfo", "controls/ZOL3_LayInfo.h",
     {22006, u"Egy réteg száma, neve és kiválasztása"},
     "layerInfo", {320, 30}, "", made<ZOL3_LayInfo>},
};

} // namespace

std::span<const ControlRow> controlRows() { return kRows; }

} // namespace QV_DOC_CONTROLS
