#include "grids/SymbolTable.h"

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

std::vector<GridChoice> fontTypeChoices(const SymbolNames &)
{
    return {{0, QStringLiteral("TrueType")}, {kVectorFont, txt(Text{3353, u"ZOL 2.5 font"})}};
}

QString fontTypeName(const tSid &s, const SymbolNames &names)
{
    const auto known = fontTypeChoices(names);
    return s.Type < known.size() ? known[s.Type].text : QString::number(s.Type);
}

SymbolTable::Names SymbolTable::namesOf(ZOLW_Doc &doc)
{
    return {{doc.layers().readAll(), &tLay::LayId, &tLay::Name}};
}

Paper SymbolTable::paper()
{
    return {{txt(Text{20051, u"Jelkulcstípusok"}), {}, txt(Text{3429, u" oldal"}), false}, {}};
}

} // namespace QV_DOC_CONTROLS
