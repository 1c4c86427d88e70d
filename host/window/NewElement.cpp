#include "window/NewElement.h"

#include "facade/services/InterfaceLocale.h"
#include "facade/services/Text.h"

#include <cmath>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

constexpr double kSameWidth = 0.0005; // millimetres

bool isPlain(const ZolWDoc::tPenStyle &type)
{
    const bool bare = std::ranges::all_of(type.Slots, [](qint16 nr) { return nr == 0; });
    return type.Pattern.empty() && type.PenDown && bare;
}

QString freeName(const QString &wanted, const std::vector<ZolWDoc::tPenStyle> &all)
{
    QString name = wanted;
    for (int n = 2; std::ranges::count(all, name, &ZolWDoc::tPenStyle::Name) > 0; ++n)
        name = wanted + QStringLiteral(" (%1)").arg(n);
    return name;
}

/// A continuous line type of that width: the drawing's own, or a new one.
qint16 lineTypeOf(SqliteDoc &doc, double width)
{
    const std::vector<ZolWDoc::tPenStyle> all = doc.lineTypes().readAll();
    qint16 highest = 0;
    for (const ZolWDoc::tPenStyle &type : all) {
        if (isPlain(type) && std::abs(double(type.Size) - width) < kSameWidth) return type.iPenStyleId;
        highest = std::max(highest, type.PenStyleNr);
    }
    ZolWDoc::tPenStyle added;
    added.PenStyleNr = qint16(highest + 1);
    const QString millimetres = interfaceLocale().toString(width);
    added.Name = freeName(join(Text{30620, u"Folytonos "}, millimetres, Text{30621, u" mm"}), all);
    added.Size = float(width);
    return doc.lineTypes().add(added);
}

/// Where a symbol goes by itself: its target layer, if there is one.
std::optional<qint16> ownLayerOf(SqliteDoc &doc, const Element &element)
{
    if (element.kind != ElementKind::Symbol) return {};
    const auto symbol = doc.symbols().find(element.sidId);
    const auto layer = symbol ? doc.layers().find(symbol->LayId) : std::nullopt;
    return layer ? std::optional(layer->LayId) : std::nullopt;
}

} // namespace

void addNew(SqliteDoc &doc, Element element, const NewElement &attributes)
{
    ZolWDoc::inCommand(doc, txt(Text{30622, u"Új elem"}), [&] {
        if (element.kind == ElementKind::Line && attributes.width > 0)
            element.penStyleId = lineTypeOf(doc, attributes.width);
        if (element.kind == ElementKind::Text) {
            element.rotation = attributes.rotation;
            element.size = attributes.textHeight * doc.info().scale / 1000;
        }
        std::vector<qint16> layers = attributes.layers;
        if (layers.empty()) layers.push_back(ownLayerOf(doc, element).value_or(doc.layers().currentId()));
        std::vector<Element> copies;
        for (const qint16 layer : layers) {
            copies.push_back(element);
            copies.back().layId = layer;
        }
        doc.addElements(copies);
    });
}

} // namespace refhost
