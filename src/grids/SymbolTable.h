#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "grids/frame/Column.h"
#include "grids/frame/GridManager.h"
#include "grids/frame/RecordNames.h"
#include "rules/SymbolRules.h"

namespace QV_DOC_CONTROLS {

/// What symbols refer to.
struct SymbolNames {
    RecordNames layers;
};
inline QString layerName(const ZolWDoc::tSid &s, const SymbolNames &n) { return n.layers[s.LayId]; }
inline std::vector<GridChoice> layerChoices(const SymbolNames &n) { return n.layers.choices(); }
QString fontTypeName(const ZolWDoc::tSid &s, const SymbolNames &); ///< the number when there is no such type
std::vector<GridChoice> fontTypeChoices(const SymbolNames &);
inline bool canRenumber(ZolWDoc::ZOLW_Doc &doc) { return doc.symbolRenumber() != nullptr; }
template <auto M> constexpr auto symbolField(const char *key, Text caption)
{
    return field<M, SymbolNames>(key, caption);
}

/// What the symbol table says about itself.
struct SymbolTable {
    using Record = ZolWDoc::tSid;
    using Names = SymbolNames;
    static Names namesOf(ZolWDoc::ZOLW_Doc &doc);

    static constexpr LayoutName layout{"jsSid", {3387, u"-hun"}};
    static constexpr Text cardCaption{3238, u"Jelkulcstípus:|/"}, groupCaption{3368, u"Jelkulcscsoport név"};
    static constexpr Text bandCaption = cardCaption;    ///< before group bands
    static constexpr int numberColumn = 0, nameColumn = 2;
    static constexpr Column<Record, Names> columns[] = {
        symbolField<&Record::SidId>("SidId", {3224, u"Ssz"})
            .with({2920, u"Sorszám"})
            .within(1, 32767)
            .where(&canRenumber)
            .unique({Icon::Information, {2920, u"Sorszám"}, {3357, u"Létező sorszám !"}}),
        symbolField<&Record::ShortName>("SidSample", {3167, u"Minta"}).picture(),
        symbolField<&Record::ShortName>("Name", {2834, u"Név"})
            .with({2843, u"Jelkulcs"})
            .filled()
            .unique({Icon::Exclamation, {3039, u"Egyedi név"}, {3234, u"Létező jelkulcs név!"}}),
        symbolField<&Record::Size_mm>("Size", {3221, u"Méret"})
            .within(kLeastSymbolSize, kMostSymbolSize)
            .measuredIn({20005, u"mm"})
            .editable(),
        symbolField<&Record::Weight>("Weight", {3367, u"Vast."}) // as stored, on purpose: prompts ask in mm
            .with({3237, u"Vastagság"})
            .within(0, kHighestWeight)
            .measuredIn({22340, u"század mm"})
            .editable(),
        symbolField<&Record::Type>("FontType", {2894, u"Típus"})
            .named(&fontTypeName, &fontTypeChoices)
            .within(0, kVectorFont)
            .alsoSets(&followFontType)
            .editable(),
        symbolField<&Record::Facename>("FaceName", {3220, u"Készlet"}), // chosen by command
        symbolField<&Record::LayId>("Layer", {2887, u"Cél réteg"})
            .with({3219, u"Réteg"})
            .named(&layerName, &layerChoices)
            .editable(),
    };
    static ZolWDoc::SymbolRole &role(ZolWDoc::ZOLW_Doc &doc) { return doc.symbols(); }
    static ZolWDoc::GroupRole &groupRole(ZolWDoc::ZOLW_Doc &doc) { return doc.symbols().groups(); }
    static std::vector<ZolWDoc::tGroup> groupsOf(ZolWDoc::ZOLW_Doc &doc) { return groupRole(doc).readAll(); }
    static qint16 id(const Record &s) { return s.SidId; }
    static Paper paper();
    static RowStyles styles(const Record &) { return {}; }

    static constexpr Text takenGroup{3233, u"Létező jelkulcscsoportnév: "},
        takenGroupTitle{3369, u"Egyedi jelkulcscsoport név"};
    static constexpr const char *dragToken = "FromZol3GridSid"; ///< published
};

} // namespace QV_DOC_CONTROLS
