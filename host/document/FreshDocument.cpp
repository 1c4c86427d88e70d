#include "document/CadPalette.h"
#include "document/Layers.h"
#include "document/PenColors.h"
#include "document/ResourceTables.h"
#include "document/Schema.h"

#include "facade/services/Text.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace refhost {
namespace {

struct KhRow {
    Text text;
    int modes;
};
// The list offers the ways in which a surveyed thing is taken over; mode 2 those that can be computed.
constexpr KhRow kChoices[] = {{{30120, u"Mért"}, 1},
                              {{30121, u"Számított"}, 3},
                              {{30122, u"Digitalizált"}, 1},
                              {{30123, u"Átvett"}, 3}};

tSid freshSymbol()
{
    tSid s;
    s.Code = '+';
    s.ShortName = txt(Text{30113, u"Kereszt"});
    s.FullName = s.ShortName;
    s.Align = 6 | 24;
    s.Size_mm = 3;
    s.XwFact = s.YwFact = 1;
    s.Facename = QStringLiteral("DejaVu Sans");
    s.CharSet = 238;
    s.DspZoom = 10;
    s.LayId = 1;
    return s;
}

tTxd freshTextType()
{
    tTxd t;
    t.Name = txt(Text{30112, u"Alapfelirat"});
    t.Align = 24;
    t.Size_mm = 2;
    t.XwFact = t.YwFact = 1;
    t.RowDist = 1;
    t.CharSet = 238;
    t.Facename = QStringLiteral("DejaVu Sans");
    t.DspZoom = 10;
    t.LayId = 1;
    return t;
}

void fillColors(Database &db)
{
    PenColors colors(db);
    colors.replacePalette(cadPalette());
    PenColorTable pens;
    for (int n = 1; n <= 255; ++n) pens.pen(n) = {qint16(n), 0}; // printed black: colour 0 is the foreground
    colors.write(pens);
}

} // namespace

void fillFreshDocument(Database &db)
{
    change(db, QStringLiteral(
                   "INSERT INTO meta VALUES('current_layer', 1), ('scale', 500.0), ('imported_from', '')"));
    change(db, QStringLiteral("INSERT INTO layer_groups(id, name, system) VALUES(1, ?, 1)"),
           txt(Text{3343, u"RENDSZER"}));
    Symbols symbols(db);
    TextTypes textTypes(db);
    const QString group = txt(Text{30114, u"Alapcsoport"});
    symbols.groups().add(group);
    textTypes.groups().add(group);
    LineTypes(db).add({.PenStyleNr = 1, .Name = txt(Text{30111, u"Folytonos"}), .Size = 0.18f});
    Layers(db).add({.gNr = 1,
                    .Name = txt(Text{30110, u"Alapréteg"}),
                    .PenStyleId = 1,
                    .ScrColor = 7,
                    .PenColorId = 7,
                    .TxdId = 1});
    symbols.add(freshSymbol());
    textTypes.add(freshTextType());
    fillColors(db);
    for (const KhRow &row : kChoices)
        change(db, QStringLiteral("INSERT INTO kh_items(text, modes) VALUES(?, ?)"), txt(row.text),
               row.modes);
}

} // namespace refhost
