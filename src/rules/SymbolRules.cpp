#include "rules/SymbolRules.h"

#include "facade/services/Text.h"
#include "rules/FreeNumbers.h"

#include <QSet>

#include <algorithm>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

tSid newSymbol(const QString &name, const tGroup &group)
{
    tSid s;
    s.GroupId = group.GroupId, s.GroupName = group.GroupName;
    s.Code = 33;
    s.ShortName = name;
    s.FullName = txt(Text{3076, u"Új jelkulcs ..."});
    s.Align = 24;
    s.Size_mm = 5, s.YwFact = 1, s.XwFact = 1;
    s.Facename = QStringLiteral("ZolW_DAT1_M2");
    s.Weight = 16;
    s.CharSet = 238;
    s.DspZoom = 10;
    s.LayId = 1;
    return s;
}

void makeVector(tSid &symbol) { symbol.Weight = 16, symbol.XwFact = 1; }

LoadedSymbols loaded(std::span<const tSid> read, const tGroup &group, std::span<const tSid> all)
{
    QSet<QString> names;
    std::vector<qint16> used;
    for (const tSid &s : all) names.insert(s.ShortName), used.push_back(s.SidId);
    LoadedSymbols out;
    for (tSid s : read) {
        if (names.contains(s.ShortName)) {
            out.known << s.ShortName;
            continue;
        }
        names.insert(s.ShortName);
        s.GroupId = group.GroupId, s.GroupName = group.GroupName;
        out.symbols.push_back(std::move(s));
    }
    const std::vector<qint16> numbers = freeNumbers(used, out.symbols.size());
    out.roomForAll = numbers.size() == out.symbols.size();
    out.symbols.resize(numbers.size());
    for (size_t i = 0; i < numbers.size(); ++i) out.symbols[i].SidId = numbers[i];
    return out;
}

} // namespace QV_DOC_CONTROLS
