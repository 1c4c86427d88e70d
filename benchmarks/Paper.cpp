#include "Figures.h"

#include "kit/paper/PageSetup.h"
#include "kit/paper/SheetOutput.h"
#include "kit/paper/SheetPainter.h"
#include "kit/paper/copySheet.h"

#include <QTemporaryDir>

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;

namespace {

/// A layer table as it is printed: numbers, names, check boxes, swatches, bands.
struct LayerSheet final : SheetSource {
    explicit LayerSheet(int rows) : count(rows) {}
    std::vector<Column> sheetColumns() const override
    {
        return {{QStringLiteral("Ssz:"), 50, Qt::AlignRight},
                {QStringLiteral("Rétegnév"), 180},
                {QStringLiteral("Látható"), 60},
                {QStringLiteral("Vonaltípus"), 110},
                {QStringLiteral("Képernyő szín"), 70, Qt::AlignRight},
                {QStringLiteral("Nyomtatási szín"), 70, Qt::AlignRight},
                {QStringLiteral("Felirattípus"), 110}};
    }
    int sheetRows() const override { return count; }
    Row sheetRow(int row) const override
    {
        Row r;
        if (row % 40 == 0) {
            r.level = 0;
            r.cells.push_back({QStringLiteral("Csoport %1 (39)").arg(row / 40)});
            return r;
        }
        r.cells.resize(7);
        r.cells[0].text = QString::number(row);
        r.cells[1].text = QStringLiteral("Épület kontúr %1").arg(row);
        r.cells[2].check = row % 3 != 0;
        r.cells[3].text = QStringLiteral("Folytonos");
        r.cells[4].text = QString::number(row % 256);
        r.cells[4].background = QColor::fromHsv(row % 360, 255, 200);
        r.cells[5].text = QString::number(row % 7);
        r.cells[5].background = QColor::fromHsv(row % 7 * 50, 255, 120);
        r.cells[6].text = QStringLiteral("Alap felirat");
        for (Cell &c : r.cells) c.grayed = row % 3 == 0;
        return r;
    }
    int count;
};

QPageLayout page() { return pageLayoutOf(QPageSize::A4, QPageLayout::Portrait, {15, 15, 15, 15}); }
SheetTitles titles() { return {QStringLiteral("Rétegek"), {}, QStringLiteral(" oldal"), true}; }

double millisecondsOf(const std::function<void()> &body)
{
    body();
    return medianOf([&] {
        const auto start = Clock::now();
        body();
        return nanosecondsSince(start) / 1e6;
    });
}

} // namespace

// A print that the user waits for must be there before the hand is back on the mouse.
static const bool s_pdf = figure("paper.pdf.2000", "ms", atMost(200), [] {
    const QTemporaryDir folder;
    const LayerSheet sheet(2000);
    return millisecondsOf([&] {
        QString error;
        const SheetPainter painter(sheet, titles(), page());
        if (savePdf(painter, folder.filePath(QStringLiteral("layers.pdf")), error) != OutputResult::Done)
            throw std::runtime_error(error.toStdString());
    });
});

static const bool s_layout = figure("paper.layout.32767", "ms", atMost(200), [] {
    const LayerSheet sheet(32767);
    return millisecondsOf([&] { keep(SheetPainter(sheet, titles(), page()).pageCount()); });
});

static const bool s_copy = figure("paper.copy.32767", "ms", atMost(500), [] {
    const LayerSheet sheet(32767);
    return millisecondsOf([&] { keep(copySheet(sheet)->hasHtml()); });
});
