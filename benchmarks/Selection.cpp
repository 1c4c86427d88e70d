#include "Figures.h"
#include "FirstPaint.h"

#include "TinyDoc.h"
#include "dialogs/select/frmSelect.h"
#include "document/SqliteDoc.h"
#include "facade/clsDocDlgs.h"

#include <QApplication>

#include <map>

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;

namespace {

std::vector<ZolWDoc::tLay> layerRows(int count, int from)
{
    std::vector<ZolWDoc::tLay> rows;
    for (int i = from; i < count; ++i)
        rows.push_back({.LayId = qint16(i + 1),
                        .gNr = qint16(i + 1),
                        .Name = QStringLiteral("Réteg %1").arg(i + 1),
                        .Visible = i % 3 != 0,
                        .ScrColor = qint16(i % 256),
                        .PrnColor = qint16(i % 7),
                        .PenColorId = qint16(i % 256)});
    return rows;
}

/// A document that answers from memory, so that opening costs nothing but the dialog's own work.
example::TinyDoc &rememberedDoc(int layers)
{
    static std::map<int, std::unique_ptr<example::TinyDoc>> made;
    auto &doc = made[layers];
    if (doc) return *doc;
    doc = std::make_unique<example::TinyDoc>();
    auto &role = static_cast<example::TinyLayers &>(doc->layers());
    role.rows = layerRows(layers, 0);
    std::vector<ZolWDoc::tLayMember> members;
    for (const auto &lay : role.rows) members.push_back({1, lay.LayId}); // all in the system group
    role.writeMembers(members);
    return *doc;
}

/// The reference document with so many layers, made once.
refhost::SqliteDoc &storedDoc(int layers)
{
    static std::map<int, std::unique_ptr<refhost::SqliteDoc>> made;
    if (made.empty()) qAddPostRoutine([] { made.clear(); }); // the driver goes with the application
    auto &doc = made[layers];
    if (doc) return *doc;
    doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
    std::vector<qint16> ids;
    doc->layers().addAll(layerRows(layers, doc->layers().count()), ids);
    return *doc;
}

/// What the reference document takes to answer the calls of one opening.
double readingTime(ZolWDoc::ZOLW_Doc &doc)
{
    const auto start = Clock::now();
    const auto pens = doc.penColors().read();
    const auto palette = doc.penColors().palette();
    const auto layers = doc.layers().readAll();
    const auto lineTypes = doc.lineTypes().readAll();
    const auto textTypes = doc.textTypes().readAll();
    const auto groups = doc.layers().groups();
    const auto members = doc.layers().members();
    const double spent = nanosecondsSince(start) / 1e6; // before it is all given back, as the dialog keeps it
    keep(pens), keep(palette), keep(layers), keep(lineTypes), keep(textTypes), keep(groups), keep(members);
    return spent;
}

/// Milliseconds from the call to the first picture.
double openOnce(ZolWDoc::ZOLW_Doc &doc)
{
    return untilFirstPaint<frmSelect>([&doc] {
        ZolWDoc::tLay lay;
        clsDocDlgs().bSelect_Lay(doc, lay);
    });
}
double openingTime(int layers)
{
    return medianOf([&doc = rememberedDoc(layers)] { return openOnce(doc); });
}
double openingToEmpty(int layers)
{
    return medianOf([layers] {
        const double empty = openOnce(rememberedDoc(1));
        return openOnce(rememberedDoc(layers)) / empty;
    });
}

bool enter(int layers)
{
    const std::string name = "select.layers." + std::to_string(layers);
    figure(name + ".open", "ms", unbounded(), [layers] { return openingTime(layers); });
    figure(name + ".open.to.empty", "x", unbounded(), [layers] { return openingToEmpty(layers); });
    return figure(name + ".reading", "ms", unbounded(), [layers] {
        return medianOf([&doc = storedDoc(layers)] { return readingTime(doc); });
    });
}
const bool s_entered = enter(400) && enter(5000) && enter(32000);

} // namespace
