#include "facade/contract/RecordEditors.h"
#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/FixedFonts.h"
#include "support/NotingPrompts.h"
#include "support/OwnStore.h"
#include "support/Registry.h"
#include "support/SymbolForm.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::symbol;

namespace {

constexpr qint16 kPicked = 7;                           ///< a layer

/// A font whose characters share a name; one has none.
struct FewLetters final : VectorFont {
    QString name() const override { return QStringLiteral("Betűk"); }
    std::vector<Entry> entries() const override
    {
        const QString name = QStringLiteral("Kút");
        return {{65, name}, {66, {}}, {67, name}, {68, name + QStringLiteral("_2")}, {69, name}};
    }
    Glyph glyph(qint32) const override { return {}; }
};
/// Every dialog beyond the table: each says yes at once, after it has read something.
struct Beyond final : tests::OwnStore, ResourcePicker, RecordEditors, VectorFontProvider {
    FewLetters font;
    tests::FixedFonts fonts;
    ResourcePicker *resources = setResourcePicker(this);
    RecordEditors *editors = setRecordEditors(this);
    Beyond() { fonts.strokes = font.name(); }
    ~Beyond() override { setResourcePicker(resources), setRecordEditors(editors); }
    VectorFontProvider *vectorFonts(const ZOLW_Doc *) override { return this; }
    QStringList names() const override { return {font.name()}; }
    const VectorFont *find(const QString &) const override { return &font; }
    bool canPick(TableKind) const override { return true; }
    std::optional<qint16> pick(TableKind, ZOLW_Doc &doc, qint16, QObject *) override
    {
        doc.layers().count();
        return kPicked;
    }
    bool canEdit(TableKind kind) const override { return kind == TableKind::Symbols; }
    bool edit(TableKind, ZOLW_Doc &doc, qint16 id, QObject *) override
    {
        tSid s = *doc.symbols().find(id);
        s.FullName += u'!';
        doc.symbols().update(s);
        return true;
    }
};

constexpr char kCellEdit[] = "a cell edit", kGroupMove[] = "2cmdSid_GroupMove";
std::unique_ptr<refhost::SqliteDoc> threeSymbols()
{
    return tests::symbolDoc({symbol(1, "A"), symbol(2, "B"), symbol(3, "C", "Kettő")});
}
void run(tests::SymbolForm &form, const char *tool)
{
    if (std::strcmp(tool, kCellEdit) == 0) form.edit(1, SymbolTable::numberColumn, 9);
    else if (std::strcmp(tool, kGroupMove) == 0) form.js.moveToGroup(form.js.groups().at(1).GroupId);
    else form.run(tool);
}

/// Runs a tool on the first two of three symbols, the host failing at one call of it; counts the calls.
struct Run {
    std::unique_ptr<refhost::SqliteDoc> doc = threeSymbols();
    QTemporaryDir folder;
    tests::FaultyDoc faulty{*doc};
    tests::SymbolForm form{faulty};
    tests::NotingPrompts user;
    Run(const char *tool, int failAt)
    {
        user.path = folder.filePath(QStringLiteral("a.rst"));
        form.select({1, 2});
        form.run("miSave2XML");
        doc->symbols().remove(2);                       // its name is free for what is loaded
        if (std::strncmp(tool, "miGroup", 7) == 0) form.chooseGroup(QStringLiteral("Kettő"));
        if (std::strcmp(tool, "miGroupRemove") == 0) doc->symbols().remove(3);
        form.js.Refresh();
        form.select({1});
        faulty.log.calls.clear();
        faulty.log.failAt = failAt;
        run(form, tool);
        faulty.log.failAt = -1;
        form.groups.setCurrentRow(0);
    }
};

/// The symbols as the rules were written down: number, name, group, size, thickness, font type.
struct Model {
    struct Row {
        int nr;
        QString name, group = QStringLiteral("Egy");
        double size = 5;
        int weight = 16, type = 0;
    };
    std::vector<Row> rows;
    QString dump() const
    {
        QStringList out;
        for (const Row &r : rows)
            out << QStringLiteral("%1 %2 %3 %4 %5 %6")
                       .arg(r.nr).arg(r.name, r.group).arg(r.size).arg(r.weight).arg(r.type);
        return out.join(QStringLiteral(", "));
    }
    void sort() { std::ranges::sort(rows, {}, &Row::nr); }
    int highest() const { return rows.back().nr; }
};

} // namespace

class tst_SymbolWalk : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void everyCallOfEveryCommandMayFail_data()
    {
        QTest::addColumn<QByteArray>("tool");
        for (const char *other : {kCellEdit, kGroupMove}) QTest::newRow(other) << QByteArray(other);
        for (const auto &c : kSymbolCommands) QTest::newRow(c.tool) << QByteArray(c.tool);
    }
    void everyCallOfEveryCommandMayFail()
    {
        QFETCH(QByteArray, tool);
        const Beyond beyond;
        const Run undisturbed(tool.constData(), -1);
        QVERIFY(!undisturbed.form.error);
        const QByteArrayList onlyShow{"cmdSid_ShowGroups", "cmdSid_HideGroups", "miGroupCollapse"};
        const int calls = int(undisturbed.faulty.log.calls.size());
        QCOMPARE(calls > 0, !onlyShow.contains(tool));
        const bool isWrite = !QByteArrayList{"miSave2XML", "miSaveXML"}.contains(tool);
        QCOMPARE(!undisturbed.faulty.log.writes().isEmpty(), isWrite && calls > 0);
        for (int at = 0; at < calls; ++at) {
            Run run(tool.constData(), at);
            const QString call = run.faulty.log.calls.value(at);
            QVERIFY2(run.form.failed() == call, qPrintable(call));
            QVERIFY2(run.form.rows() == run.doc->symbols().readAll(), qPrintable(call));
            QVERIFY(!run.form.js.isBusy());
        }
    }

    void everyStepDoesWhatTheModelSays_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed : {1u, 2u, 3u}) QTest::addRow("seed %u", seed) << seed;
    }
    /// Size, thickness, font, group, renumber, new and delete on any selection.
    void everyStepDoesWhatTheModelSays()
    {
        QFETCH(quint32, seed);
        const Beyond beyond;
        QRandomGenerator random(seed);
        const auto doc = threeSymbols();
        tests::SymbolForm form(*doc);
        tests::NotingPrompts user;
        Model model{{{1, "A"}, {2, "B"}, {3, "C", QStringLiteral("Kettő")}}};
        for (int step = 0; step < 60; ++step) {
            std::vector<int> numbers;
            std::vector<Model::Row *> chosen;
            for (Model::Row &r : model.rows)
                if (random.bounded(2) == 0 || model.rows.size() == 1)
                    chosen.push_back(&r), numbers.push_back(r.nr);
            form.select(numbers);
            const double size = random.bounded(1, 40) / 4.0, width = random.bounded(0, 300) / 100.0;
            switch (chosen.empty() ? 6 : random.bounded(7)) {
            case 0:
                user.typed = {size};
                for (auto *r : chosen) r->size = size;
                form.run("cmdSid_Size");
                break;
            case 1:
                user.typed = {width};
                for (auto *r : chosen) r->weight = qRound(width * 100);
                form.run("cmdSid_Width");
                break;
            case 2:
                for (auto *r : chosen) r->type = step % 2;
                form.run(step % 2 ? "cmdSid_Vector" : "cmdSid_TrueType");
                break;
            case 3:
                for (auto *r : chosen) r->group = QString::fromUtf8(step % 2 ? "Kettő" : "Egy");
                form.js.moveToGroup(form.js.groups().at(size_t(step % 2)).GroupId);
                break;
            case 4: {
                const int to = model.highest() + random.bounded(1, 5);
                form.edit(chosen.front()->nr, SymbolTable::numberColumn, to);
                chosen.front()->nr = to;
                break;
            }
            case 5:
                if (chosen.size() == model.rows.size()) numbers.pop_back();
                std::erase_if(model.rows,
                              [&](const auto &r) { return std::ranges::count(numbers, r.nr) > 0; });
                form.run("miRemove");
                break;
            default:
                user.written = QStringLiteral("Új%1").arg(step);
                model.rows.push_back({model.highest() + 1, user.written});
                form.run("miAddNew");
            }
            model.sort();
            QCOMPARE(tests::dumpSymbols(doc->symbols().readAll()), model.dump());
            QVERIFY(form.rows() == doc->symbols().readAll() && !form.error);
        }
    }

    void whatComesFromBeyondTheTable()
    {
        const Beyond beyond;
        const auto doc = threeSymbols();
        tests::SymbolForm form(*doc);
        tests::NotingPrompts user;
        form.chooseGroup(QStringLiteral("Kettő"));
        form.run("miLoadFont25");
        std::vector<tSid> made = doc->symbols().readAll();
        made.erase(made.begin(), made.begin() + 3);
        QCOMPARE(tests::dumpSymbols(made),
                 QStringLiteral("4 Kút Kettő 5 16 1, 5 Betűk_66 Kettő 5 16 1, 6 Kút_2 Kettő 5 16 1, "
                                "7 Kút_2_2 Kettő 5 16 1, 8 Kút_3 Kettő 5 16 1"));
        form.select({3});
        for (const char *tool : {"cmdSid_TrueType", "cmdSid_Layer", "cmdSid_Edit"}) form.run(tool);
        tSid expected = symbol(3, "C", "Kettő");
        expected.GroupId = form.js.groups().at(1).GroupId;
        expected.Facename = QStringLiteral("DejaVu Sans"), expected.CharSet = 204;
        expected.LayId = kPicked;
        expected.FullName += u'!';
        QVERIFY(doc->symbols().find(3) == expected);
        QCOMPARE(form.rows().back(), made.back());
    }
};

QVDC_TEST(tst_SymbolWalk)
#include "tst_SymbolWalk.moc"
