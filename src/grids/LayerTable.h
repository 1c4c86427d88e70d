#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "grids/frame/Column.h"
#include "grids/frame/Deletion.h"
#include "grids/frame/GridManager.h"
#include "grids/frame/RecordNames.h"

namespace QV_DOC_CONTROLS {

/// What layers refer to.
struct LayerNames {
    RecordNames lineTypes, textTypes;
};
inline QString lineTypeName(const ZolWDoc::tLay &l, const LayerNames &n) { return n.lineTypes[l.PenStyleId]; }
inline QString textTypeName(const ZolWDoc::tLay &l, const LayerNames &n) { return n.textTypes[l.TxdId]; }
inline std::vector<GridChoice> lineTypeChoices(const LayerNames &n) { return n.lineTypes.choices(); }
inline std::vector<GridChoice> textTypeChoices(const LayerNames &n) { return n.textTypes.choices(); }
template <auto M> constexpr auto layerField(const char *key, Text caption)
{
    return field<M, LayerNames>(key, caption);
}

/// What the layer table says about itself.
struct LayerTable {
    using Record = ZolWDoc::tLay;
    using Names = LayerNames;
    static Names namesOf(ZolWDoc::ZOLW_Doc &doc);

    static constexpr LayoutName layout{"jsLayer"};
    static constexpr Text cardCaption{3309, u"Réteg:|/"}, groupCaption{2834, u"Név"};
    static constexpr int numberColumn = 0, nameColumn = 1;
    static constexpr Column<Record, Names> columns[] = {
        layerField<&Record::gNr>("gNr", {3308, u"Ssz:"})
            .with({3411, u"Sorszám"})
            .within(1, 32767)
            .unique({Icon::Information, {3300, u"Rétegsorszám"}, {3418, u"Létező rétegsorszám !"}}),
        layerField<&Record::Name>("Name", {3299, u"Rétegnév"})
            .filled()
            .unique({Icon::Information, {3299, u"Rétegnév"}, {3417, u"Létező rétegnév !"}}),
        layerField<&Record::Visible>("Visible", {3307, u"Látható"}).with({3306, u"Láthatóság"}).editable(),
        layerField<&Record::PenStyleId>("PenSyleId", {3305, u"Vonaltípus"}) // published spelling
            .named(&lineTypeName, &lineTypeChoices)
            .editable(),
        layerField<&Record::ScrColor>("ScrColor", {3412, u"Képernyő szín"}).color().editable(),
        layerField<&Record::PrnColor>("PrnColor", {3414, u"Nyomtatási szín"})
            .with({3413, u"Nyomtató szín"})
            .color()
            .editable(),
        layerField<&Record::PenColorId>("PenColorId", {3168, u"Toll"}).pen().editable(),
        layerField<&Record::TxdId>("TxdId", {15, u"Felirattípus"})
            .named(&textTypeName, &textTypeChoices)
            .editable(),
        layerField<&Record::ElByLayer>("ElByLayer", {3304, u"Vonalak réteg szerint"}).editable(),
        layerField<&Record::TxByLayer>("TxByLayer", {3303, u"Felirat/jk. réteg szerint"})
            .with({3302, u"Felirat/jelkulcs réteg szerint"})
            .editable(),
    };
    static constexpr DeleteTexts deletion{.title = {3291, u"Réteg törlés"},
                                          .last = {3292, u"Az utolsó réteget nem lehet törölni!"},
                                          .sureBefore = {3415, u"Biztosan szeretnéd törölni a "},
                                          .sureAfter = {3301, u". réteget?"},
                                          .usedBefore = {3422, u"A(z) '"},
                                          .usedAfter = {3296, u"' réteg nem üres!"}};
    static ZolWDoc::LayerRole &role(ZolWDoc::ZOLW_Doc &doc) { return doc.layers(); }
    static std::vector<ZolWDoc::tGroup> groupsOf(ZolWDoc::ZOLW_Doc &doc) { return doc.layers().groups(); }
    static qint16 id(const Record &l) { return l.LayId; }
    static Paper paper();                     ///< title, footer and the ten captions of a printed table
    static RowStyles styles(const Record &l); ///< colour cells by their pens, the row by its visibility
};

} // namespace QV_DOC_CONTROLS
