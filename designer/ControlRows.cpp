#include "ControlRows.h"

#include "controls/ZOL3_LayGroup.h"
#include "controls/ZOL3_LayInfo.h"
#include "controls/ZOL3_SiInfo.h"
#include "controls/usInputBox.h"
#include "controls/usLays.h"
#include "controls/usSiInfo.h"
#include "controls/usTxAlign.h"

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
    {"usSiInfo", "controls/usSiInfo.h",
     {22403, u"Egy jelkulcs nagyított képe"},
     "symbolPreview", {160, 120}, "ToolTipSid", made<usSiInfo>},
    {"ZOL3_SiInfo", "controls/ZOL3_SiInfo.h",
     {22404, u"Egy jelkulcs nagyított képe, amely követi a nyelvet és a betűtípust"},
     "symbolPreviewOfForm", {160, 120}, "ToolTipSid", made<ZOL3_SiInfo>},
    {"usTxAlign", "controls/usTxAlign.h",
     {22405, u"A felirat vagy jelkulcs igazítása a beszúrási ponthoz"},
     "textAlign", {130, 100}, "", made<usTxAlign>},
};

} // namespace

std::span<const ControlRow> controlRows() { return kRows; }

} // namespace QV_DOC_CONTROLS
