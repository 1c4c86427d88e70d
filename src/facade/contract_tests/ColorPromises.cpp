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
    add("choice list", "items have identifiers and texts", choicesAreDistinct);
    add("display", "redrawing all views raises no error", redrawReturns);
}

} // namespace ZolWDoc::contract
