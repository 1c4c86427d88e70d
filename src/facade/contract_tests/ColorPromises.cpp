#include "facade/contract_tests/Samples.h"

#include <QSet>

namespace ZolWDoc::contract {
namespace {

PenColorTable somePens()
{
    PenColorTable pens;
    for (int n = 1; n <= 255; ++n) pens.pen(n) = {qint16(255 - n), qint16((n * 7) % 256)};
    return pens;
}

void pensComeBack(ZOLW_Doc &doc)
{
    PenColorTable pens = somePens();
    const Palette palette = doc.penColors().palette();
    doc.penColors().write(pens);
    hold(doc.penColors().read() == pens, QStringLiteral("other pens are read than were written"));
    pens.pen(12).ScrColor = 255;
    doc.penColors().write(pens);
    hold(doc.penColors().read() == pens, QStringLiteral("a change of pen 12 is not read as written"));
    hold(doc.penColors().palette() == palette, QStringLiteral("writing pens changed the palette"));
}

void paletteIsReplaced(ZOLW_Doc &doc)
{
    if (!doc.paletteReplacement()) return;
    Palette palette;
    for (size_t i = 0; i < palette.size(); ++i) palette[i] = quint32(0xffffff - i * 0x010203);
    const PenColorTable pens = doc.penColors().read();
    doc.paletteReplacement()->replacePalette(palette);
    hold(doc.penColors().palette() == palette, QStringLiteral("another palette is read than was written"));
    hold(doc.penColors().read() == pens, QStringLiteral("replacing the palette changed the pens"));
}

void pensAreDiscarded(ZOLW_Doc &doc)
{
    if (!doc.changeScopes()) return;
    const PenColorTable before = doc.penColors().read();
    doc.changeScopes()->beginChanges(TableKind::PenColors);
    doc.penColors().write(somePens());
    doc.changeScopes()->discardChanges(TableKind::PenColors);
    hold(doc.penColors().read() == before, QStringLiteral("the pens are not as they were"));
}

void penRevisionFollows(ZOLW_Doc &doc)
{
    if (!doc.revisions()) return;
    const quint64 before = doc.revisions()->revision(TableKind::PenColors);
    doc.penColors().write(somePens());
    hold(doc.revisions()->revision(TableKind::PenColors) != before,
         QStringLiteral("the revision stays after a write"));
}

void layersUsePens(ZOLW_Doc &doc)
{
    if (!doc.usage()) return;
    using Usage = UsageRole::Usage;
    qint16 tLay::*const roles[] = {&tLay::PenColorId, &tLay::ScrColor, &tLay::PrnColor};
    const qint16 pen = 201;
    hold(doc.usage()->usersOf(TableKind::PenColors, pen).empty(),
         QStringLiteral("a pen has users too early"));
    tLay all = sample<tLay>().make(doc, 1);
    for (qint16 tLay::*role : roles) {
        tLay one = sample<tLay>().make(doc, 2);
        one.*role = pen;
        all.*role = pen;
        one.LayId = doc.layers().add(one);
        hold(doc.usage()->usersOf(TableKind::PenColors, pen)
                 == std::vector<Usage>{{Usage::By::Layers, 1, one.Name}},
             QStringLiteral("a layer that uses the pen is not told"));
        doc.layers().remove(one.LayId);
    }
    doc.layers().add(all);
    hold(doc.usage()->usersOf(TableKind::PenColors, pen)
             == std::vector<Usage>{{Usage::By::Layers, 1, all.Name}},
         QStringLiteral("a layer that uses the pen in every role is not one user"));
}

void choicesAreDistinct(ZOLW_Doc &doc)
{
    for (int mode : {1, 2}) {
        QSet<qint16> ids;
        for (const tKh &item : doc.khItems().items(mode)) {
            hold(!ids.contains(item.KhId),
                 QStringLiteral("an identifier stands twice in mode ") + shown(mode));
            hold(!item.Text.isEmpty(), QStringLiteral("an item has no text in mode ") + shown(mode));
            ids.insert(item.KhId);
        }
    }
}

void redrawReturns(ZOLW_Doc &doc) { doc.redrawAll(); }

} // namespace

void appendColorPromises(Promises &all)
{
    const auto add = [&](const char *role, const char *text, void (*run)(ZOLW_Doc &), bool optional = false) {
        all.push_back({QLatin1String(role), QLatin1String(text), run, optional});
    };
    add("pen colours", "the pens come back as they were written", pensComeBack);
    add("pen colours: palette", "a replaced palette comes back", paletteIsReplaced, true);
    add("pen colours: change scope", "discard brings the pens back", pensAreDiscarded, true);
    add("pen colours: revision", "a write gives another revision", penRevisionFollows, true);
    add("pen colours: usage", "a layer's pen, screen and print colour are told", layersUsePens, true);
    add("choice list", "items have identifiers and texts", choicesAreDistinct);
    add("display", "redrawing all views raises no error", redrawReturns);
}

} // namespace ZolWDoc::contract
