#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/LayerForm.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using tests::told;
using Step = ScriptedPrompts::Step;

namespace {

const QVariant kAll = QVariant::fromValue(AllYesNo::All), kYes = QVariant::fromValue(AllYesNo::Yes),
               kNo = QVariant::fromValue(AllYesNo::No);

// What the commands say, to the letter.
Step toldByProduct(const char *text) { return told("ZOL", text); }
Step copyAsked(int preset, const QVariant &growth)
{
    return {"numbers", QStringLiteral("Réteg másolás"),
            QStringLiteral("Milyen értékkel akarod megnövelni a másolt rétegek sorszámát?|növekmény|%1")
                .arg(preset),
            growth.isNull() ? QVariant() : QVariant(QVariantList{growth})};
}
Step renumberAsked(int start, const QVariant &answer)
{
    return {"numbers", QStringLiteral("Átsorszámozás"),
            QStringLiteral("A kiválasztott rétegek átsorszámozása|Kezdő sorszám|%1|Növekmény|1").arg(start),
            answer};
}
Step sure(int number, bool answer)
{
    return {"yesNo", QStringLiteral("Réteg törlés"),
            QStringLiteral("Biztosan szeretnéd törölni a %1. réteget?").arg(number), answer, Icon::Question};
}
Step notEmpty(const char *name, const QVariant &answer)
{
    return {"allYesNo", QStringLiteral("Réteg törlés"),
            QStringLiteral("A(z) '%1' réteg nem üres! TÖRLÖD? ").arg(QLatin1String(name)), answer,
            Icon::Question};
}
Step orphans(bool go)
{
    return {"yesNo", QStringLiteral("Érintett pontok törlése"),
            QStringLiteral("Kéred a keletkezett önálló pontok törlését is?"), go, Icon::Exclamation};
}
Step lastOne() { return told("Réteg törlés", "Az utolsó réteget nem lehet törölni!"); }
Step prefixAsked(const QVariant &answer)
{
    return {"yesNoCancel", QStringLiteral("Rétegnév módosítás"),
            QStringLiteral("A '-' karakter előtti rész csak szám lehet?"), answer, Icon::Question};
}
Step nameAsked(const char *preset, const QVariant &answer)
{
    return {"text", QStringLiteral("Réteg átnevezése"),
            QStringLiteral("A réteg új neve:|") + QLatin1String(preset), answer};
}
Step numberAsked(int preset, const QVariant &answer)
{
    return {"numbers", QStringLiteral("Rétegsorszám"),
            QStringLiteral("Új sorszám ehhez a réteghez: A|Sorszám|%1").arg(preset),
            answer.isNull() ? QVariant() : QVariant(QVariantList{answer})};
}
Step takenNumber() { return told("Rétegsorszám", "Létező rétegsorszám !"); }

/// A command on the layers 1 A, 2 B (with an element), 3 C (with an element).
struct Case {
    const char *name, *tool;
    std::vector<int> selected;
    std::vector<Step> script;
    const char *after, *selectedAfter;          ///< null = as before
};
constexpr char kDeleteKey[] = "the delete key";

const std::vector<Case> kCases = {
    {"new", "miAddNew", {2, 1}, {}, "1 A, 2 B, 3 C, 4 Az_új_réteg_neve", "4*"},

    {"copies", "cmdLays_Copy", {1, 3}, {copyAsked(10, 10)}, "1 A, 2 B, 3 C, 11 A_11, 13 C_13", "1* 3"},
    {"copies, cancelled", "cmdLays_Copy", {1}, {copyAsked(10, {})}, nullptr, nullptr},
    {"a copy's number is taken", "cmdLays_Copy", {1, 3},
     {copyAsked(10, 1), toldByProduct("A(z) 2 sorszámú réteg már van !")},
     "1 A, 2 B, 3 C, 4 C_4", "1* 3"},
    {"a copy's number is too high", "cmdLays_Copy", {1, 3},
     {copyAsked(10, 31999), toldByProduct("A(z) 3 sorszámú rétegről nem lehet másolatot csinálni "
                                          "32002 sorszámmal!")},
     "1 A, 2 B, 3 C, 32000 A_32000", "1* 3"},

    {"renumbers", "cmdLays_Renumber", {1, 3}, {renumberAsked(1, QVariantList{10, 5})},
     "10 A, 2 B, 15 C", "10* 15"},
    {"numbers change places", "cmdLays_Renumber", {1, 2}, {renumberAsked(1, QVariantList{2, -1})},
     "2 A, 1 B, 3 C", "2* 1"},
    {"a number outside the selection", "cmdLays_Renumber", {1, 3},
     {renumberAsked(1, QVariantList{1, 1}), takenNumber()}, nullptr, nullptr},
    {"a number too high", "cmdLays_Renumber", {1, 3},
     {renumberAsked(1, QVariantList{32767, 1}), takenNumber()}, nullptr, nullptr},
    {"renumbers, cancelled", "cmdLays_Renumber", {1}, {renumberAsked(1, {})}, nullptr, nullptr},

    {"deletes", "cmdLays_Delete", {1}, {orphans(false)}, "2 B, 3 C", "2*"},
    {"deletes with a question each", "miRemove", {1, 2, 3},
     {notEmpty("B", kNo), notEmpty("C", kYes), orphans(true)}, "2 B", "2*"},
    {"Mind ends the asking", "cmdLays_Delete", {2, 3}, {notEmpty("B", kAll), orphans(true)}, "1 A", "1*"},
    {"all deleted but one", "cmdLays_Delete", {1, 2, 3}, {notEmpty("B", kAll), lastOne(), orphans(true)},
     "3 C", "3*"},
    {"nothing deleted, nothing asked", "cmdLays_Delete", {2}, {notEmpty("B", kNo)}, nullptr, nullptr},
    {"the key asks for each row", kDeleteKey, {1, 2, 3},
     {sure(1, true), sure(2, false), sure(3, true), notEmpty("C", kYes), orphans(false)}, "2 B", "2*"},
    {"the key, the last one", kDeleteKey, {1, 2, 3},
     {sure(1, true), sure(2, true), notEmpty("B", kAll), sure(3, true), lastOne(), orphans(true)},
     "3 C", "3*"},

    {"renames", "cmdLays_Rename", {1, 2}, {nameAsked("A", "Út")}, "1 Út, 2 B, 3 C", "1* 2"},
    {"renames after a refusal", "cmdLays_Rename", {1},
     {nameAsked("A", "B"), told("Rétegnév", "Létező rétegnév !"), nameAsked("B", "D")},
     "1 D, 2 B, 3 C", "1*"},
    {"a name of blanks", "cmdLays_Rename", {1}, {nameAsked("A", "  ")}, nullptr, nullptr},
    {"rename, cancelled", "cmdLays_Rename", {1}, {nameAsked("A", {})}, nullptr, nullptr},
    {"numbers", "cmdLays_Nr", {1}, {numberAsked(1, 9)}, "9 A, 2 B, 3 C", "9*"},
    {"numbers after a refusal", "cmdLays_Nr", {1},
     {numberAsked(1, 3), takenNumber(), numberAsked(3, 8)}, "8 A, 2 B, 3 C", "8*"},
    {"number, given up after a refusal", "cmdLays_Nr", {1},
     {numberAsked(1, 3), takenNumber(), numberAsked(3, {})}, nullptr, nullptr},

    {"no prefix, cancelled", "cmdLays_TrimLeftName", {1}, {prefixAsked({})}, nullptr, nullptr},
    {"no prefix to cut", "cmdLays_TrimLeftName", {1, 2},
     {prefixAsked(true), told("Rétegnév módosítás", "Egyik kijelölt réteg neve sem változott.")},
     nullptr, nullptr},
};

} // namespace

class tst_LayerEdits : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::threeLayers();
        const std::vector<refhost::Element> lines{{.layId = layer(2).LayId}, {.layId = layer(3).LayId}};
        m_doc->addElements(lines);
    }

    void commandsAskTellAndWrite_data() { tests::addCases(kCases); }
    void commandsAskTellAndWrite()
    {
        QFETCH(int, index);
        const Case &c = kCases[size_t(index)];
        const QString before = tests::dump(*m_doc);
        tests::LayerForm form(*m_doc);
        form.select(c.selected);
        const QString selectedBefore = form.selection();
        {
            ScriptedPrompts user(c.script);
            if (c.tool == kDeleteKey) QTest::keyClick(form.grid.table(), Qt::Key_Delete);
            else form.run(c.tool);
        }
        QCOMPARE(tests::dump(*m_doc), c.after ? QString(c.after) : before);
        QCOMPARE(form.selection(), c.selectedAfter ? QString(c.selectedAfter) : selectedBefore);
        QCOMPARE(form.rows(), m_doc->layers().readAll());
        QVERIFY(!form.error);
    }

    void whatIsLeftWithoutALayerIsTheUsersChoice()
    {
        for (const bool go : {false, true}) {
            init();
            tests::LayerForm form(*m_doc);
            form.select({2});
            ScriptedPrompts user({notEmpty("B", kYes), orphans(go)});
            form.run("cmdLays_Delete");
            QCOMPARE(m_doc->elements().size(), go ? size_t(1) : size_t(2));
        }
    }

    void aNewLayerIsLikeTheCurrentOneAndJoinsTheChosenGroup()
    {
        tests::LayerForm form(*m_doc);
        form.groups.setCurrentRow(2);                   // "Utak": even numbers
        form.select({2});
        form.run("miAddNew");
        tLay made = layer(4);
        QVERIFY(!made.Visible && form.js.currentRecord() == made);
        form.groups.setCurrentRow(0);
        form.select({3});
        form.run("miAddNew");
        made = layer(5);
        QVERIFY(made.ElByLayer && made.Name == QStringLiteral("Az_új_réteg_neve_2"));
        form.groups.setCurrentRow(2);
        QCOMPARE(form.rows(), (tLayArr{layer(2), layer(4)}));
    }

    void theFirstLayerGetsDefaults()
    {
        tests::FaultyDoc empty(*m_doc);
        tests::LayerForm form(empty);
        m_doc->layers().remove(layer(1).LayId, true);
        m_doc->layers().remove(layer(2).LayId, true);
        m_doc->layers().remove(layer(3).LayId, true);
        ScriptedPrompts user({toldByProduct("Ez az első réteg!")});
        form.run("miAddNew");
        const tLay first = layer(1);
        QCOMPARE(first, (tLay{.LayId = first.LayId,
                              .gNr = 1,
                              .Name = QStringLiteral("Az_új_réteg_neve"),
                              .PenStyleId = m_doc->lineTypes().readAll().front().iPenStyleId,
                              .TxdId = m_doc->textTypes().readAll().front().TxdId}));
    }

    void thereIsNoLayerAfterTheHighestNumber()
    {
        tLay last = layer(3);
        last.gNr = 32767;
        m_doc->layers().update(last);
        tests::LayerForm form(*m_doc);
        ScriptedPrompts user(
            {tests::warned("Új réteg", "A legnagyobb rétegsorszám már 32767, ezért nem készíthető "
                                       "új réteg. Számozza át a rétegeket!")});
        form.run("miAddNew");
        QCOMPARE(m_doc->layers().count(), 3);
    }

    void copiesJoinTheGroupsOfTheirModels()
    {
        tests::LayerForm form(*m_doc);
        form.groups.setCurrentRow(2);                   // "Utak": even numbers
        form.select({2});
        ScriptedPrompts user({copyAsked(10, 5)});
        form.run("cmdLays_Copy");
        QCOMPARE(form.rows(), (tLayArr{layer(2), layer(7)}));
        tLay copy = layer(2);
        copy.LayId = layer(7).LayId, copy.gNr = 7, copy.Name = QStringLiteral("B_7");
        QCOMPARE(layer(7), copy);
    }

    void copiesOfOneCommandDoNotShareAName()
    {
        m_doc = tests::layerDoc("1 A_11, 10 A");
        tests::LayerForm form(*m_doc);
        form.select({1, 10});
        ScriptedPrompts user({copyAsked(1, 1)});
        form.run("cmdLays_Copy");
        QCOMPARE(tests::dump(*m_doc), QStringLiteral("1 A_11, 10 A, 2 A_11_2, 11 A_11_3"));
    }

    void shortenedNamesAreListed()
    {
        tLayArr all = m_doc->layers().readAll();
        all[0].Name = QStringLiteral("1-Út"), all[1].Name = QStringLiteral("2-Út");
        m_doc->layers().writeAll(all);
        tests::LayerForm form(*m_doc);
        form.select({1, 2, 3});
        ScriptedPrompts user({prefixAsked(false),
                              {"show", QStringLiteral("Rétegnév módosítás"),
                               QStringLiteral("Megváltozott rétegnevek: 1\n"
                                              "Régi nevükön maradtak, mert az új név már foglalt: 1\n"
                                              "'1-Út' ---> 'Út'")}});
        form.run("cmdLays_TrimLeftName");
        QCOMPARE(tests::dump(*m_doc), QStringLiteral("1 Út, 2 2-Út, 3 C"));
        QCOMPARE(form.selection(), QStringLiteral("1* 2 3"));
    }
};

QVDC_TEST(tst_LayerEdits)
#include "tst_LayerEdits.moc"
