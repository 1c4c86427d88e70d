#include "document/RecordFields.h"

#include <QLocale>
#include <QStringList>

#include <type_traits>

using namespace ZolWDoc;
using QV_DOC_CONTROLS::Text;

namespace refhost {
namespace {

constexpr const char *kId = "INTEGER PRIMARY KEY";
constexpr const char *kInteger = "INTEGER NOT NULL";
constexpr const char *kNumber = "INTEGER NOT NULL UNIQUE";
constexpr const char *kReal = "REAL NOT NULL";
constexpr const char *kText = "TEXT NOT NULL";
constexpr const char *kName = "TEXT NOT NULL UNIQUE";
constexpr const char *kSymbolGroup =
    "INTEGER NOT NULL REFERENCES symbol_groups(id) DEFERRABLE INITIALLY DEFERRED";
constexpr const char *kTextTypeGroup =
    "INTEGER NOT NULL REFERENCES text_type_groups(id) DEFERRABLE INITIALLY DEFERRED";

// Lists lie in the file as JSON arrays; SQLite looks into them when it counts references.
template <class T> QString listText(const std::vector<T> &list)
{
    QStringList parts;
    for (T v : list) {
        if constexpr (std::is_floating_point_v<T>)
            parts << QString::number(v, 'g', QLocale::FloatingPointShortest);
        else parts << QString::number(v);
    }
    return u'[' + parts.join(u',') + u']';
}
template <class T> std::vector<T> listOf(const QString &text)
{
    std::vector<T> list;
    for (QStringView part : QStringView(text).mid(1).chopped(1).split(u',', Qt::SkipEmptyParts))
        list.push_back(T(part.toDouble()));
    return list;
}

template <class T> struct Value {
    static QVariant in(T v) { return int(v); }
    static T out(const QVariant &v) { return T(v.toInt()); }
};
template <> struct Value<QString> {
    static QVariant in(const QString &s) { return s.isNull() ? QVariant(QStringLiteral("")) : QVariant(s); }
    static QString out(const QVariant &v) { return v.toString(); }
};
template <class T> requires std::is_floating_point_v<T> struct Value<T> {
    static QVariant in(T v) { return double(v); }
    static T out(const QVariant &v) { return T(v.toDouble()); }
};
template <class T> struct Value<std::vector<T>> {
    static QVariant in(const std::vector<T> &v) { return listText(v); }
    static std::vector<T> out(const QVariant &v) { return listOf<T>(v.toString()); }
};

template <class R, class T> R ownerOf(T R::*); // declared only
template <class R, class T> T typeOf(T R::*);  // declared only
template <auto M> constexpr auto field(const char *column, const char *type)
{
    using Rec = decltype(ownerOf(M));
    using T = decltype(typeOf(M));
    return Field<Rec>{column, type, [](const Rec &r) { return Value<T>::in(r.*M); },
                      [](Rec &r, const QVariant &v) { r.*M = Value<T>::out(v); },
                      [](const Rec &a, const Rec &b) { return a.*M == b.*M; }};
}

constexpr Field<tLay> kLayers[] = {
    field<&tLay::LayId>("id", kId),
    field<&tLay::gNr>("nr", kNumber),
    field<&tLay::Name>("name", kName),
    field<&tLay::Visible>("visible", kInteger),
    field<&tLay::PenStyleId>("line_type", kInteger),
    field<&tLay::ScrColor>("screen_color", kInteger),
    field<&tLay::PrnColor>("print_color", kInteger),
    field<&tLay::PenColorId>("pen", kInteger),
    field<&tLay::TxdId>("text_type", kInteger),
    field<&tLay::ElByLayer>("lines_by_layer", kInteger),
    field<&tLay::TxByLayer>("texts_by_layer", kInteger),
};
constexpr Field<tTxd> kTextTypes[] = {
    field<&tTxd::TxdId>("id", kId),
    field<&tTxd::GroupName>("(SELECT g.name FROM text_type_groups g WHERE g.id=group_id)", nullptr),
    field<&tTxd::GroupId>("group_id", kTextTypeGroup),
    field<&tTxd::Name>("name", kName),
    field<&tTxd::Weight>("weight", kInteger),
    field<&tTxd::Italic>("italic", kInteger),
    field<&tTxd::Underline>("underline", kInteger),
    field<&tTxd::StrikeThrough>("strike_through", kInteger),
    field<&tTxd::Align>("align", kInteger),
    field<&tTxd::BaseRow>("base_row", kInteger),
    field<&tTxd::Size_mm>("size_mm", kReal),
    field<&tTxd::YwFact>("y_factor", kReal),
    field<&tTxd::XwFact>("x_factor", kReal),
    field<&tTxd::RowDist>("row_distance", kReal),
    field<&tTxd::CharSet>("char_set", kInteger),
    field<&tTxd::PitchAndFamily>("pitch_family", kInteger),
    field<&tTxd::Facename>("face", kText),
    field<&tTxd::DspZoom>("zoom", kInteger),
    field<&tTxd::LayId>("layer", kInteger),
    field<&tTxd::Checked>("checked", kInteger),
};
constexpr Field<tSid> kSymbols[] = {
    field<&tSid::SidId>("id", kId),
    field<&tSid::GroupName>("(SELECT g.name FROM symbol_groups g WHERE g.id=group_id)", nullptr),
    field<&tSid::GroupId>("group_id", kSymbolGroup),
    field<&tSid::Code>("code", kInteger),
    field<&tSid::ShortName>("name", kName),
    field<&tSid::FullName>("full_name", kText),
    field<&tSid::Align>("align", kInteger),
    field<&tSid::Size_mm>("size_mm", kReal),
    field<&tSid::YwFact>("y_factor", kReal),
    field<&tSid::XwFact>("x_factor", kReal),
    field<&tSid::Facename>("face", kText),
    field<&tSid::Weight>("weight", kInteger),
    field<&tSid::Italic>("italic", kInteger),
    field<&tSid::Underline>("underline", kInteger),
    field<&tSid::StrikeThrough>("strike_through", kInteger),
    field<&tSid::CharSet>("char_set", kInteger),
    field<&tSid::PitchAndFamily>("pitch_family", kInteger),
    field<&tSid::ProtXmm>("marker_x", kReal),
    field<&tSid::ProtYmm>("marker_y", kReal),
    field<&tSid::ProtType>("marker", kInteger),
    field<&tSid::MoveXmm>("move_x", kReal),
    field<&tSid::MoveYmm>("move_y", kReal),
    field<&tSid::DspZoom>("zoom", kInteger),
    field<&tSid::LayId>("layer", kInteger),
    field<&tSid::Type>("font_type", kInteger),
    field<&tSid::Checked>("checked", kInteger),
};
constexpr Field<tPenStyle> kLineTypes[] = {
    field<&tPenStyle::iPenStyleId>("id", kId),
    field<&tPenStyle::PenStyleNr>("nr", kNumber),
    field<&tPenStyle::Name>("name", kName),
    field<&tPenStyle::Size>("thickness", kReal),
    field<&tPenStyle::PenDown>("pen_down", kInteger),
    field<&tPenStyle::Pattern>("pattern", kText),
    field<&tPenStyle::Slots>("slots", kText),
};
constexpr Field<tPenStyleSi> kSymbolizations[] = {
    field<&tPenStyleSi::Nr>("id", kId),
    field<&tPenStyleSi::Name>("name", kText),
    field<&tPenStyleSi::SidId>("symbol", kInteger),
    field<&tPenStyleSi::Align>("placement", kInteger),
    field<&tPenStyleSi::DistrLength>("segment_length", kReal),
    field<&tPenStyleSi::DistrNr>("segment_count", kInteger),
    field<&tPenStyleSi::MultiDist>("copy_distance", kReal),
    field<&tPenStyleSi::Multi>("copies", kInteger),
    field<&tPenStyleSi::Rotation>("rotation", kReal),
    field<&tPenStyleSi::OffsetY>("offset_y", kReal),
    field<&tPenStyleSi::OffsetX>("offset_x", kReal),
};
constexpr Field<tPt> kPoints[] = {
    field<&tPt::PtId>("id", kId),
    field<&tPt::Name>("name", kText),
    field<&tPt::X>("x", kReal),
    field<&tPt::Y>("y", kReal),
    field<&tPt::Z>("z", kReal),
    field<&tPt::LayId>("layer", kInteger),
};

constexpr Text kTakenId{30040, u"Ez az azonosító már foglalt: "};
constexpr UniqueColumn kLayerUnique[] = {{"id", kTakenId},
                                         {"nr", {30030, u"Már van ilyen sorszámú réteg: "}},
                                         {"name", {30031, u"Már van ilyen nevű réteg: "}}};
constexpr UniqueColumn kTextTypeUnique[] = {{"id", {30032, u"Már van ilyen sorszámú felirattípus: "}},
                                            {"name", {30033, u"Már van ilyen nevű felirattípus: "}}};
constexpr UniqueColumn kSymbolUnique[] = {{"id", {30034, u"Már van ilyen sorszámú jelkulcs: "}},
                                          {"name", {30035, u"Már van ilyen nevű jelkulcs: "}}};
constexpr UniqueColumn kLineTypeUnique[] = {{"id", kTakenId},
                                            {"nr", {30036, u"Már van ilyen sorszámú vonaltípus: "}},
                                            {"name", {30037, u"Már van ilyen nevű vonaltípus: "}}};
constexpr UniqueColumn kSymbolizationUnique[] = {{"id", {30038, u"Már van ilyen sorszámú jelkulcsozás: "}}};
constexpr UniqueColumn kPointUnique[] = {{"id", kTakenId}};

} // namespace

template <> const TableFacts<tLay> &factsOf()
{
    static const TableFacts<tLay> f{TableKind::Layers, "layers", &tLay::LayId, false, kLayers, kLayerUnique,
                                    {30020, u"Nincs ilyen azonosítójú réteg: "}};
    return f;
}
template <> const TableFacts<tTxd> &factsOf()
{
    static const TableFacts<tTxd> f{TableKind::TextTypes, "text_types", &tTxd::TxdId, true, kTextTypes,
                                    kTextTypeUnique, {30021, u"Nincs ilyen sorszámú felirattípus: "}};
    return f;
}
template <> const TableFacts<tSid> &factsOf()
{
    static const TableFacts<tSid> f{TableKind::Symbols,
                                    "symbols",
                                    &tSid::SidId,
                                    true,
                                    kSymbols,
                                    kSymbolUnique,
                                    {30022, u"Nincs ilyen sorszámú jelkulcs: "}};
    return f;
}
template <> const TableFacts<tPenStyle> &factsOf()
{
    static const TableFacts<tPenStyle> f{TableKind::LineTypes,
                                         "line_types",
                                         &tPenStyle::iPenStyleId,
                                         false,
                                         kLineTypes,
                                         kLineTypeUnique,
                                         {30023, u"Nincs ilyen azonosítójú vonaltípus: "}};
    return f;
}
template <> const TableFacts<tPenStyleSi> &factsOf()
{
    static const TableFacts<tPenStyleSi> f{TableKind::LineSymbolizations,
                                           "symbolizations",
                                           &tPenStyleSi::Nr,
                                           true,
                                           kSymbolizations,
                                           kSymbolizationUnique,
                                           {30024, u"Nincs ilyen sorszámú jelkulcsozás: "}};
    return f;
}
template <> const TableFacts<tPt> &factsOf()
{
    static const TableFacts<tPt> f{TableKind::Points, "points", &tPt::PtId, false, kPoints, kPointUnique,
                                   {30025, u"Nincs ilyen azonosítójú pont: "}};
    return f;
}

} // namespace refhost
