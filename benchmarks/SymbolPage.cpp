#include "Figures.h"
#include "FirstPaint.h"

#include "dialogs/editors/frmSupSid.h"
#include "dialogs/select/frmSetup.h"
#include "document/SqliteDoc.h"
#include "facade/clsDocDlgs.h"

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;

namespace {

constexpr int kSymbols = 32000;

/// The reference document with so many symbols, made once.
refhost::SqliteDoc &stored()
{
    static std::unique_ptr<refhost::SqliteDoc> doc;
    if (doc) return *doc;
    qAddPostRoutine([] { doc.reset(); });   // the driver goes with the application
    doc = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
    std::vector<ZolWDoc::tSid> rows;
    for (int n = doc->symbols().count() + 1; n <= kSymbols; ++n)
        rows.push_back({.SidId = qint16(n), .Code = 33 + n % 200,
                        .ShortName = QStringLiteral("Jelkulcs %1").arg(n), .Align = 24, .Size_mm = 5,
                        .YwFact = 1, .XwFact = 1, .Facename = QStringLiteral("DejaVu Sans"), .CharSet = 238,
                        .LayId = 1, .Type = quint8(n % 2)});
    std::vector<qint16> ids;
    doc->symbols().addAll(rows, ids);
    return *doc;
}

double opening()
{
    return untilFirstPaint<frmSetup>([] { clsDocDlgs().bEdit_Sids(stored()); });
}
Showing showManager()
{
    frmSupSid form;
    return showingOf<frmSupSid>([&] {
        qint16 id = kSymbols;
        form.bDoModal(stored(), MODE_SELECT, id);
    });
}
double openingManager() { return showManager().opening; }
double closingManager() { return showManager().closing; }
/// What the document takes to answer the calls of one opening.
double reading()
{
    refhost::SqliteDoc &doc = stored();
    const auto start = Clock::now();
    const auto symbols = doc.symbols().readAll();
    const auto layers = doc.layers().readAll();
    const auto groups = doc.symbols().groups().readAll();
    const auto pens = doc.penColors().read();
    const double spent = nanosecondsSince(start) / 1e6; // before it is all given back, as the dialog keeps it
    keep(symbols), keep(layers), keep(groups), keep(pens);
    return spent;
}

const bool s_entered =
    figure("symbols.page.32000.open", "ms", unbounded(), [] { return medianOf(&opening); }) &&
    figure("symbols.manager.32000.open", "ms", unbounded(), [] { return medianOf(&openingManager); }) &&
    figure("symbols.manager.32000.close", "ms", unbounded(), [] { return medianOf(&closingManager); }) &&
    figure("symbols.manager.32000.open.page", "x", atMost(1.3),
           [] { return medianOf([] { return openingManager() / opening(); }); }) &&
    figure("symbols.page.32000.reading", "ms", unbounded(), [] { return medianOf(&reading); });

} // namespace
