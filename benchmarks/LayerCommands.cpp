#include "TimedDoc.h"

#include "document/SqliteDoc.h"
#include "facade/contract/ResourcePicker.h"
#include "support/LayerWork.h"
#include "support/WillingPrompts.h"

#include <QTemporaryDir>

#include <map>

using namespace benchmarks;
using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

/// Picks the first record of any table.
struct FirstPicker final : ResourcePicker {
    ResourcePicker *before = setResourcePicker(this);
    ~FirstPicker() override { setResourcePicker(before); }
    bool canPick(TableKind) const override { return true; }
    std::optional<qint16> pick(TableKind, ZOLW_Doc &, qint16, QObject *) override { return qint16(1); }
};

/// Every second layer is in the group "Utak", too.
void formGroup(LayerRole &layers)
{
    auto groups = layers.groups();
    groups.push_back({-1, QStringLiteral("Utak")});
    layers.writeGroups(groups);
    const qint16 roads = layers.groups().back().GroupId;
    auto members = layers.members();
    for (const tLay &l : layers.readAll())
        if (l.gNr % 2 == 0) members.push_back({roads, l.LayId});
    layers.writeMembers(members);
}

/// A reference document on disk with so many layers, each named after its number; made once.
QString originalWith(int layers)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1.qvd").arg(layers));
    if (QFile::exists(path)) return path;
    const auto doc = refhost::SqliteDoc::create(path);
    std::vector<tLay> rows;
    for (int i = doc->layers().count(); i < layers; ++i) {
        const bool on = i % 4 < 2;
        rows.push_back({.gNr = qint16(i + 1),
                        .Name = QStringLiteral("%1-Layer of the survey").arg(i + 1),
                        .Visible = on,
                        .ScrColor = qint16(i % 256),
                        .ElByLayer = on,
                        .TxByLayer = on});
    }
    std::vector<qint16> ids;
    doc->layers().addAll(rows, ids);
    formGroup(doc->layers());
    return path;
}

/// A copy of it at a form that is shown, all layers selected.
struct Form {
    QTemporaryDir folder;
    std::unique_ptr<refhost::SqliteDoc> real;
    std::unique_ptr<TimedDoc> doc;
    std::unique_ptr<tests::LayerForm> form;
    tests::WillingPrompts user;
    FirstPicker picker;

    explicit Form(int layers)
    {
        const QString path = folder.filePath(QStringLiteral("bench.qvd"));
        QFile::copy(originalWith(layers), path);
        real = refhost::SqliteDoc::open(path);
        doc = std::make_unique<TimedDoc>(*real);
        form = std::make_unique<tests::LayerForm>(*doc);
        form->window.resize(1000, 700);
        form->grid.resize(1000, 700);
        form->window.show();
        form->grid.setCurrentRow(0);
        form->grid.selectAll();
    }
};

struct Spent {
    double library = 0, written = 0;            ///< milliseconds; reading is the library's
};

/// One command, to its picture on the screen.
Spent spentOn(Form &f, const char *tool)
{
    const double before = f.doc->spent();
    const auto start = Clock::now();
    f.form->run(tool);
    f.form->grid.repaint();
    const double whole = nanosecondsSince(start) / 1e6, written = f.doc->spent() - before;
    if (f.form->error) std::rethrow_exception(f.form->error);
    return {whole - written, written};
}

/// What the user types where a command asks for numbers: copies that all fit, numbers in reverse, a free
/// number.
std::vector<double> typedFor(std::string_view tool, int layers)
{
    if (tool == "cmdLays_Renumber") return {double(layers), -1};
    if (tool == "cmdLays_Nr") return {32500};
    return {double(layers)};
}

/// The median of three runs, measured once. What a command changes stays changed, so that every run has a
/// document of its own.
const Spent &spentOn(const char *tool, int layers)
{
    static std::map<std::string, Spent> known;
    const auto [entry, isNew] = known.try_emplace(tool);
    if (!isNew) return entry->second;
    std::array<Spent, 3> runs;
    for (Spent &s : runs) {
        Form f(layers);
        f.user.typed = typedFor(tool, layers);
        f.user.path = f.folder.filePath(QStringLiteral("layers"));
        tests::prepare(tool, *f.form, *f.doc, f.user.path);
        s = spentOn(f, tool);
    }
    std::ranges::nth_element(runs, runs.begin() + 1, {}, &Spent::library);
    return entry->second = runs[1];
}

bool enter(const char *tool, Bound bound)
{
    // Copies need numbers of their own, which end at 32,000.
    const int layers = std::string_view(tool) == "cmdLays_Copy" ? 16000 : 32000;
    const std::string name = "layers." + std::to_string(layers) + '.' + tool;
    figure(name, "ms", bound, [=] { return spentOn(tool, layers).library; });
    return figure(name + ".written", "ms", unbounded(), [=] { return spentOn(tool, layers).written; });
}
/// Recolouring and switching are held to a tenth of a second apart from the document's writing, which is
/// printed beside it.
const bool s_entered = [] {
    for (const auto &c : kLayerCommands) {
        const std::string tool = c.tool;
        const bool atOnce = tool.find("On") != std::string::npos || tool.find("Off") != std::string::npos ||
                            tool == "cmdLays_PenColorId";
        enter(c.tool, atOnce ? atMost(100) : unbounded());
    }
    return true;
}();

} // namespace
