#include "facade/contract_tests/Samples.h"

namespace ZolWDoc::contract {
namespace {

QString named(const char *what, int n) { return QStringLiteral("%1 űő%2").arg(QLatin1String(what)).arg(n); }

tLay makeLayer(ZOLW_Doc &doc, int n)
{
    return {.gNr = qint16(20000 + n),
            .Name = named("layer", n),
            .Visible = n % 2 == 0,
            .PenStyleId = firstOf(doc.lineTypes().readAll()).iPenStyleId,
            .ScrColor = 3,
            .PrnColor = 4,
            .PenColorId = 5,
            .TxdId = firstOf(doc.textTypes().readAll()).TxdId,
            .ElByLayer = true};
}
tTxd makeTextType(ZOLW_Doc &doc, int n)
{
    const tTxd first = firstOf(doc.textTypes().readAll());
    tTxd t;
    t.GroupId = first.GroupId, t.GroupName = first.GroupName, t.Name = named("text type", n);
    t.Weight = 400, t.Size_mm = 2.5f, t.RowDist = 1.25f, t.Facename = QStringLiteral("Face"), t.DspZoom = 10;
    t.LayId = firstOf(doc.layers().readAll()).LayId;
    t.TxdId = qint16(20000 + n);
    return t;
}
tSid makeSymbol(ZOLW_Doc &doc, int n)
{
    const tSid first = firstOf(doc.symbols().readAll());
    tSid s;
    s.GroupId = first.GroupId, s.GroupName = first.GroupName, s.ShortName = named("symbol", n);
    s.FullName = QStringLiteral("long"), s.Code = 33, s.Align = 24, s.Size_mm = 5, s.XwFact = 1, s.YwFact = 1;
    s.Facename = QStringLiteral("Face"), s.Weight = 16, s.CharSet = 238, s.DspZoom = 10;
    s.LayId = firstOf(doc.layers().readAll()).LayId;
    s.SidId = qint16(20000 + n);
    return s;
}
tPenStyle makeLineType(ZOLW_Doc &, int n)
{
    return {.PenStyleNr = qint16(20000 + n),
            .Name = named("line type", n),
            .Size = 0.35f,
            .Pattern = {4, 1, 0.5, 1},
            .Slots = {0, 0, 0}};
}
tPenStyleSi makeSymbolization(ZOLW_Doc &doc, int n)
{
    return {.Nr = qint16(20000 + n),
            .Name = named("symbolization", n),
            .SidId = firstOf(doc.symbols().readAll()).SidId,
            .DistrLength = 12.5,
            .Multi = 2};
}
tPt makePoint(ZOLW_Doc &doc, int n)
{
    return {.Name = QStringLiteral("1203/%1").arg(n), .X = 650000.125 + n, .Y = 240000.0625, .Z = 101.5,
            .LayId = firstOf(doc.layers().readAll()).LayId};
}

} // namespace

// One member of a record gets another value; `r` is the record, `d` the document.
#define MEMBER(Rec, name, expression) \
    MemberChange<Rec>{#name, [](Rec &r, [[maybe_unused]] ZOLW_Doc &d) { r.name = expression; }}
#define UNIQUE(Rec, name) UniqueMember<Rec>{#name, [](Rec &to, const Rec &from) { to.name = from.name; }}

template <> const Sample<tLay> &sample()
{
    static const Sample<tLay> s{
        "layers",
        TableKind::Layers,
        &tLay::LayId,
        [](ZOLW_Doc &d) -> TableRole<tLay> & { return d.layers(); },
        makeLayer,
        {MEMBER(tLay, gNr, 32767), MEMBER(tLay, Name, QStringLiteral("Épület, járda 'régi'")),
         MEMBER(tLay, Visible, !r.Visible), MEMBER(tLay, PenStyleId, stored<tPenStyle>(d, 90).iPenStyleId),
         MEMBER(tLay, ScrColor, 255), MEMBER(tLay, PrnColor, 254), MEMBER(tLay, PenColorId, 253),
         MEMBER(tLay, TxdId, stored<tTxd>(d, 90).TxdId), MEMBER(tLay, ElByLayer, !r.ElByLayer),
         MEMBER(tLay, TxByLayer, !r.TxByLayer)},
        {UNIQUE(tLay, gNr), UNIQUE(tLay, Name)}};
    return s;
}
template <> const Sample<tTxd> &sample()
{
    static const Sample<tTxd> s{"text types",
                                TableKind::TextTypes,
                                &tTxd::TxdId,
                                [](ZOLW_Doc &d) -> TableRole<tTxd> & { return d.textTypes(); },
                                makeTextType,
                                {{"GroupId",
                                  [](tTxd &r, ZOLW_Doc &d) {
                                      r.GroupName = QStringLiteral("another group");
                                      r.GroupId = d.textTypes().groups().add(r.GroupName);
                                  }},
                                 MEMBER(tTxd, Name, QStringLiteral("Házszám")),
                                 MEMBER(tTxd, Weight, 1000),
                                 MEMBER(tTxd, Italic, true),
                                 MEMBER(tTxd, Underline, true),
                                 MEMBER(tTxd, StrikeThrough, true),
                                 MEMBER(tTxd, Align, 30),
                                 MEMBER(tTxd, BaseRow, 255),
                                 MEMBER(tTxd, Size_mm, 0.1f),
                                 MEMBER(tTxd, YwFact, 1.1f),
                                 MEMBER(tTxd, XwFact, 0.9f),
                                 MEMBER(tTxd, RowDist, 1.3f),
                                 MEMBER(tTxd, CharSet, 238),
                                 MEMBER(tTxd, PitchAndFamily, 34),
                                 MEMBER(tTxd, Facename, QStringLiteral("Times")),
                                 MEMBER(tTxd, DspZoom, 255),
                                 MEMBER(tTxd, LayId, stored<tLay>(d, 90).LayId),
                                 MEMBER(tTxd, Checked, true)},
                                {UNIQUE(tTxd, Name)}};
    return s;
}
template <> const Sample<tSid> &sample()
{
    static const Sample<tSid> s{"symbols",
                                TableKind::Symbols,
                                &tSid::SidId,
                                [](ZOLW_Doc &d) -> TableRole<tSid> & { return d.symbols(); },
                                makeSymbol,
                                {{"GroupId",
                                  [](tSid &r, ZOLW_Doc &d) {
                                      r.GroupName = QStringLiteral("another group");
                                      r.GroupId = d.symbols().groups().add(r.GroupName);
                                  }},
                                 MEMBER(tSid, Code, 65535),
                                 MEMBER(tSid, ShortName, QStringLiteral("Fűtőakna")),
                                 MEMBER(tSid, FullName, QStringLiteral("Távfűtés aknája")),
                                 MEMBER(tSid, Align, 30),
                                 MEMBER(tSid, Size_mm, 0.7f),
                                 MEMBER(tSid, YwFact, 1.1f),
                                 MEMBER(tSid, XwFact, 0.9f),
                                 MEMBER(tSid, Facename, QStringLiteral("Stroke")),
                                 MEMBER(tSid, Weight, 35),
                                 MEMBER(tSid, Italic, true),
                                 MEMBER(tSid, Underline, true),
                                 MEMBER(tSid, StrikeThrough, true),
                                 MEMBER(tSid, CharSet, 2),
                                 MEMBER(tSid, PitchAndFamily, 34),
                                 MEMBER(tSid, ProtXmm, 1.0 / 3),
                                 MEMBER(tSid, ProtYmm, 2.0 / 3),
                                 MEMBER(tSid, ProtType, 3),
                                 MEMBER(tSid, MoveXmm, -0.3f),
                                 MEMBER(tSid, MoveYmm, 0.2f),
                                 MEMBER(tSid, DspZoom, 255),
                                 MEMBER(tSid, LayId, stored<tLay>(d, 90).LayId),
                                 MEMBER(tSid, Type, 1),
                                 MEMBER(tSid, Checked, true)},
                                {UNIQUE(tSid, ShortName)}};
    return s;
}
template <> const Sample<tPenStyle> &sample()
{
    static const Sample<tPenStyle> s{
        "line types", TableKind::LineTypes, &tPenStyle::iPenStyleId,
        [](ZOLW_Doc &d) -> TableRole<tPenStyle> & { return d.lineTypes(); }, makeLineType,
        {MEMBER(tPenStyle, PenStyleNr, 32767), MEMBER(tPenStyle, Name, QStringLiteral("Kerítés")),
         MEMBER(tPenStyle, Size, 0.18f), MEMBER(tPenStyle, PenDown, false),
         MEMBER(tPenStyle, Pattern, (std::vector<double>{1.0 / 3, 0.1, 0, 2})),
         MEMBER(tPenStyle, Slots, (std::vector<qint16>{0, stored<tPenStyleSi>(d, 90).Nr, 0}))},
        {UNIQUE(tPenStyle, PenStyleNr), UNIQUE(tPenStyle, Name)}};
    return s;
}
template <> const Sample<tPenStyleSi> &sample()
{
    static const Sample<tPenStyleSi> s{
        "line symbolizations",
        TableKind::LineSymbolizations,
        &tPenStyleSi::Nr,
        [](ZOLW_Doc &d) -> TableRole<tPenStyleSi> & { return d.lineSymbolizations(); },
        makeSymbolization,
        {MEMBER(tPenStyleSi, Name, QStringLiteral("Kerítésoszlop")),
         MEMBER(tPenStyleSi, SidId, stored<tSid>(d, 90).SidId), MEMBER(tPenStyleSi, Align, 7),
         MEMBER(tPenStyleSi, DistrLength, 1.0 / 3), MEMBER(tPenStyleSi, DistrNr, 5),
         MEMBER(tPenStyleSi, MultiDist, 0.1), MEMBER(tPenStyleSi, Multi, 3),
         MEMBER(tPenStyleSi, Rotation, -45.5), MEMBER(tPenStyleSi, OffsetY, -0.1),
         MEMBER(tPenStyleSi, OffsetX, 0.2)},
        {}};
    return s;
}
template <> const Sample<tPt> &sample()
{
    static const Sample<tPt> s{"points",
                               TableKind::Points,
                               &tPt::PtId,
                               [](ZOLW_Doc &d) -> TableRole<tPt> & { return d.points(); },
                               makePoint,
                               {MEMBER(tPt, Name, QStringLiteral("új/1")), MEMBER(tPt, X, 0.1),
                                MEMBER(tPt, Y, -0.2), MEMBER(tPt, Z, 1e-3), MEMBER(tPt, LayId, -1)},
                               {}};
    return s;
}

} // namespace ZolWDoc::contract
