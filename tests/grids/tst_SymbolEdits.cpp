#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "support/FaultyDoc.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/ShownForm.h"
#include "support/SymbolForm.h"
#include "support/WillingPrompts.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using tests::symbol;
using tests::told;
using tests::warned;
using Step = ScriptedPrompts::Step;
using Steps = std::vector<Step>;
using Shown = tests::ShownForm<tests::SymbolForm>;
Q_DECLARE_METATYPE(Steps)

namespace {

constexpr char kDeleteKey[] = "the delete key", kMoveTo2[] = "2cmdSid_GroupMove";
const QVariant kAll = QVariant::fromValue(AllYesNo::All), kYes = QVariant::fromValue(AllYesNo::Yes);

// What the commands say, to the letter.
Step newAsked(const char *preset, const QVariant &name)
{
    return {"text", QStringLiteral("Jelkulcs típus"),
            QStringLiteral("Az új jelkulcs típus megnevezése|") + QString::fromUtf8(preset), name};
}
Step nameTaken() { return warned("Egyedi név", "Létező jelkulcs név!"); }
Step numberAsked(const char *title, const char *text, double answer)
{
    return {"numbers", QString::fromUtf8(title), QString::fromUtf8(text), QVariantList{answer}};
}
Step groupAsked(const char *title, const char *text, const QVariant &name)
{
    return {"text", QString::fromUtf8(title), QString::fromUtf8(text), name};
}
Step groupTaken() { return warned("Egyedi csoportnév", "Létező csoportnév !"); }
Step refused(const char *name)
{
    return warned("Jelkulcs törlése",
                  QStringLiteral("A(z) '%1' nevű jelkulcs nem törölhető!").arg(QLatin1String(name)));
}
Step lastOne() { return told("Jelkulcs törlése", "Az utolsó jelkulcs nem törölhető!"); }
Step keyAsked(const char *question, bool answer)
{
    return {"yesNo", QStringLiteral("Jelkulcstípus törlés"), QString::fromUtf8(question), answer,
            Icon::Question};
}
Step keyDoesNothing()
{
    return told("Próba", "FOLYTKOV Call OpSid_Delete(tSid, needConfirm:=True, useMsgBox:=True)", Icon::None);
}
Step groupGone()
{
    return {"yesNo", QStringLiteral("Csoport törlése"),
            QStringLiteral("Biztosan szeretnéd törölni a kiválasztott csoportot?"), true, Icon::Question};
}

/// A command on the symbols 1 A and 2 B (which an element uses) of the group "Egy" and 3 C of "Kettő".
struct Case {
    const char *name, *tool, *group;
    std::vector<int> selected;
    std::vector<Step> script;
    const char *after;                          ///< null = as before
    const char *groupsAfter = nullptr;
};
const char kA[] = "1 A Egy 5 16 0", kMany[] = "Biztosan szeretnéd törölni a kiválasztott típusokat?";
const std::vector<Case> kCases = {
    {"new, in the first group", "miAddNew", "MIND", {1}, {newAsked("", "D")},
     "1 A Egy 5 16 0, 2 B Egy 5 16 0, 3 C Kettő 5 16 0, 4 D Egy 5 16 0"},
    {"new, in the current group, after a refusal", "miAddNew", "Kettő", {},
     {newAsked("", "B"), nameTaken(), newAsked("B", "D")},
     "1 A Egy 5 16 0, 2 B Egy 5 16 0, 3 C Kettő 5 16 0, 4 D Kettő 5 16 0"},
    {"new without a name", "miAddNew", "MIND", {}, {newAsked("", " ")}, nullptr},
    {"size", "cmdSid_Size", "MIND", {1, 3},
     {numberAsked("Betűnagyság", "A jelkulcstípus betűnagysága mm-ben|Nagyság=|5", 2.25)},
     "1 A Egy 2.25 16 0, 2 B Egy 5 16 0, 3 C Kettő 2.25 16 0"},
    {"thickness", "cmdSid_Width", "MIND", {2},
     {numberAsked("Vastagság", "A jelkulcstípus vonalvastagsága (csak az ZOL-2.5 jelkulcsokra érvényes)"
                  "|Vastagság=|0.16", 0.29)},
     "1 A Egy 5 16 0, 2 B Egy 5 29 0, 3 C Kettő 5 16 0"},
    {"rename", "cmdSid_Name", "MIND", {1},
     {groupAsked("Jelkulcs típus", "A jelkulcs típus megnevezése|A", "X")},
     "1 X Egy 5 16 0, 2 B Egy 5 16 0, 3 C Kettő 5 16 0"},

    {"deletes, and goes on after a refusal", "miRemove", "MIND", {1, 2, 3}, {refused("B")},
     "2 B Egy 5 16 0"},
    {"deletes one", "miRemove", "MIND", {1}, {}, "2 B Egy 5 16 0, 3 C Kettő 5 16 0"},
    {"the key, one row", kDeleteKey, "MIND", {3},
     {keyAsked("Biztosan szeretnéd törölni a 3. jelkulcsot?", true), keyDoesNothing()}, nullptr},
    {"the key, answered No", kDeleteKey, "MIND", {3},
     {keyAsked("Biztosan szeretnéd törölni a 3. jelkulcsot?", false)}, nullptr},
    {"the key, several rows", kDeleteKey, "MIND", {1, 3}, {keyAsked(kMany, true), keyDoesNothing()}, nullptr},

    {"new group", "miAddNewGroup", "MIND", {},
     {groupAsked("Új csoport", "Új csoportnév|", "Egy"), groupTaken(),
      groupAsked("Új csoport", "Új csoportnév|Egy", "Három")}, nullptr, "Egy, Kettő, Három"},
    {"rename group", "miGroupRename", "Kettő", {},
     {groupAsked("Csoport átnevezés", "Új csoportnév|Kettő", "MIND"), groupTaken(),
      groupAsked("Csoport átnevezés", "Új csoportnév|MIND", "Más")},
     "1 A Egy 5 16 0, 2 B Egy 5 16 0, 3 C Más 5 16 0", "Egy, Más"},
    {"a group that holds symbols stays", "miGroupRemove", "Kettő", {},
     {groupGone(),
      told("Csoport törlése", "A(z) Kettő csoport használatban van, ezért nem törölhető!", Icon::Critical)},
     nullptr, "Egy, Kettő"},
    {"move to a group", kMoveTo2, "MIND", {1, 3}, {},
     "1 A Kettő 5 16 0, 2 B Egy 5 16 0, 3 C Kettő 5 16 0"},
};

} // namespace

class tst_SymbolEdits : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    QString stored() const { return tests::dumpSymbols(m_doc->symbols().readAll()); }
    QString groups() const
    {
        QStringList names;
        for (const tGroup &g : m_doc->symbols().groups().readAll()) names << g.GroupName;
        return names.join(QStringLiteral(", "));
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        setAppTitle(QStringLiteral("Próba"));
        m_doc = tests::symbolDoc({symbol(1, "A"), symbol(2, "B"), symbol(3, "C", "Kettő")});
        const std::vector<refhost::Element> used{{.kind = refhost::ElementKind::Symbol, .sidId = 2}};
        m_doc->addElements(used);
    }

    void commandsAskTellAndWrite_data() { tests::addCases(kCases); }
    void commandsAskTellAndWrite()
    {
        QFETCH(int, index);
        const Case &c = kCases[size_t(index)];
        const QString before = stored(), groupsBefore = groups();
        tests::SymbolForm form(*m_doc);
        form.chooseGroup(QString::fromUtf8(c.group));
        form.select(c.selected);
        {
            ScriptedPrompts user(c.script);
            if (c.tool == kDeleteKey) QTest::keyClick(form.grid.table(), Qt::Key_Delete);
            else if (c.tool == kMoveTo2) form.js.moveToGroup(form.js.groups().at(1).GroupId);
            else form.run(c.tool);
        }
        QCOMPARE(stored(), c.after ? QString::fromUtf8(c.after) : before);
        QCOMPARE(groups(), c.groupsAfter ? QString::fromUtf8(c.groupsAfter) : groupsBefore);
        form.groups.setCurrentRow(0);
        QCOMPARE(form.rows(), m_doc->symbols().readAll());
        QVERIFY(!form.error);
    }

    void theOnlySymbolStaysOnEveryRoad()
    {
        m_doc = tests::symbolDoc({symbol(7, "A")});
        tests::SymbolForm form(*m_doc);
        form.select({7});
        ScriptedPrompts user({lastOne(), told("Jelkulcstípus törlés",
                                              "Az utolsó típust nem lehet törölni!")});
        form.run("miRemove");
        bool ask = true;
        QVERIFY(!form.js.OpSid_Delete(form.rows().front(), ask, false));
        QCOMPARE(m_doc->symbols().count(), 1);
    }

    void allButOneGoWhenAllAreSelected()
    {
        const std::vector<qint64> gone{m_doc->elements().front().id};
        m_doc->removeElements(gone);
        tests::SymbolForm form(*m_doc);
        form.select({1, 2, 3});
        ScriptedPrompts user({lastOne()});
        form.run("miRemove");
        QCOMPARE(stored(), QStringLiteral("3 C Kettő 5 16 0"));
    }

    void oneAnswerCoversARun()
    {
        tests::SymbolForm form(*m_doc);
        const auto all = form.rows();
        const QString question = QStringLiteral("A(z) 'B' jelkulcstípus használva van! TÖRLÖD? ");
        const QString title = QStringLiteral("Jelkulcstípus törlés");
        bool ask = true;
        ScriptedPrompts user({{"yesNo", title, question, false, Icon::Question},
                              {"allYesNo", title, question, kYes, Icon::Question}, refused("B"),
                              {"allYesNo", title, question, kAll, Icon::Question}, refused("B"),
                              refused("B")});           // this document keeps what is used
        QVERIFY(!form.js.OpSid_Delete(all[1], ask, true) && ask);
        QVERIFY(!form.js.OpSid_Delete(all[1], ask, false) && ask);
        QVERIFY(!form.js.OpSid_Delete(all[1], ask, false) && !ask);
        QVERIFY(!form.js.OpSid_Delete(all[1], ask, false));
        QVERIFY(form.js.OpSid_Delete(all[0], ask, false));
        QCOMPARE(stored(), QStringLiteral("2 B Egy 5 16 0, 3 C Kettő 5 16 0"));
    }

    void cellsAreEditedByTheirRules_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<QVariant>("typed");
        QTest::addColumn<QString>("after");         // of symbol 1; empty = refused
        QTest::addColumn<Steps>("asked");
        const auto row = [](const char *name, const char *column, const QVariant &typed, const char *after,
                            Steps asked = {}) {
            QTest::newRow(name) << QByteArray(column) << typed << QString::fromUtf8(after) << asked;
        };
        const auto notTaken = [](const char *column, const char *typed, const char *why) {
            return Steps{warned(column, (QByteArray("Jelkulcstípus: 1/A\nNem fogadható el: ")
                                                          + typed + "\n\n" + why).constData())};
        };
        row("a free number", "SidId", "9", "9 A Egy 5 16 0");
        row("a number in use", "SidId", "2", "", {told("Sorszám", "Létező sorszám !")});
        row("no number", "SidId", "0", "",
            notTaken("Sorszám", "0", "A szám túl kicsi.\nMegengedett: 1\u00a0–\u00a032767"));
        row("emptied", "SidId", " ", "");
        row("a name", "Name", "Új", "1 Új Egy 5 16 0");
        row("a name in use", "Name", "C", "", {nameTaken()});
        row("a size with a comma", "Size", "2,5", "1 A Egy 2.5 16 0");
        row("a size too small", "Size", "0,05", "",
            notTaken("Méret", "0,05",
                     "A szám túl kicsi.\nMegengedett: 0,1\u00a0–\u00a01000\u00a0mm"));
        row("a thickness", "Weight", "35", "1 A Egy 5 35 0");
        row("a thickness in millimetres", "Weight", "0,25", "",
            notTaken("Vastagság", "0,25",
                     "Egész számot írj be!\nMegengedett: 0\u00a0–\u00a0300\u00a0század mm"));
        row("to a vector font", "FontType", 1, "1 A Egy 5 16 1");
        row("no font type", "FontType", 2, "");
    }
    void cellsAreEditedByTheirRules()
    {
        QFETCH(QByteArray, column);
        QFETCH(QVariant, typed);
        QFETCH(QString, after);
        QFETCH(Steps, asked);
        tSid wide = *m_doc->symbols().find(1);
        wide.XwFact = 2.5f, wide.Weight = column == "FontType" ? 99 : 16;
        m_doc->symbols().update(wide);
        const QString before = stored();
        tests::SymbolForm form(*m_doc);
        int refreshed = 0, c = 0;
        connect(&form.js, &clsJS_Sid::RefreshSample, &form.window, [&](const tSid &) { ++refreshed; });
        while (SymbolTable::columns[c].key != column) ++c;
        ScriptedPrompts user(asked);
        QCOMPARE(form.edit(1, c, typed), !after.isEmpty());
        QCOMPARE(refreshed, after.isEmpty() ? 0 : 1);
        if (after.isEmpty()) QCOMPARE(stored(), before);
        else QVERIFY2(stored().contains(after), qPrintable(stored()));
        const auto all = m_doc->symbols().readAll();
        QCOMPARE(std::ranges::count(all, 1.0f, &tSid::XwFact),
                 column == "FontType" && !after.isEmpty() ? 3 : 2);
        QCOMPARE(form.rows(), all);
    }

    void millimetresAndHundredthsAreSaid()
    {
        tests::SymbolForm form(*m_doc);
        QStringList tips;
        for (const int c : {3, 4})
            tips << form.grid.table()->model()->headerData(c, Qt::Horizontal, Qt::ToolTipRole).toString();
        QCOMPARE(tips, (QStringList{"Méret (mm)", "Vastagság (század mm)"}));
    }

    void aRenumberedSymbolTakesItsElementsAlong()
    {
        tests::SymbolForm form(*m_doc);
        QVERIFY(form.edit(2, SymbolTable::numberColumn, QStringLiteral("20")));
        QCOMPARE(m_doc->elements().front().sidId, qint16(20));
    }

    void numbersAreFixedWhereTheDocumentCannotRenumber()
    {
        tests::FaultyDoc fixed(*m_doc);
        fixed.symbols().renumberer = nullptr;
        tests::SymbolForm form(fixed);
        QString editable;
        const QAbstractItemModel &cells = *form.grid.table()->model();
        for (int c = 0; c < cells.columnCount(); ++c)
            editable += cells.flags(cells.index(0, c)) & Qt::ItemIsEditable ? u'e' : u'-';
        QCOMPARE(editable, QStringLiteral("--eeee-e"));
        QVERIFY(!form.edit(1, SymbolTable::numberColumn, QStringLiteral("9")));
    }

    void numbersAreAskedForWithinTheirBounds()
    {
        struct : tests::WillingPrompts {
            std::vector<NumberField> asked;
            std::optional<std::vector<double>> numbers(const NumberQuestion &q, QObject *) override
            {
                asked.push_back(q.fields.front());
                return {};
            }
        } user;
        tests::SymbolForm form(*m_doc);
        form.select({1});
        form.run("cmdSid_Size");
        form.run("cmdSid_Width");
        const NumberField &size = user.asked.at(0), &width = user.asked.at(1);
        QCOMPARE(size.presets, (std::vector{1.0, 1.5, 2.0, 2.5, 3.0, 3.5, 4.0, 5.0, 7.0, 10.0}));
        QCOMPARE(size.unit + width.unit, QStringLiteral("mmmm"));
        QCOMPARE((std::vector{size.min, size.max}), (std::vector{0.1, 1000.0}));
        QCOMPARE((std::vector{width.min, width.max}), (std::vector{0.0, 3.0}));
    }

    void bandsSayWhatTheyAreBandsOf()
    {
        tests::SymbolForm form(*m_doc);
        form.grid.setGroupLevels(std::vector{SortKey{columnOf<SymbolTable>("Weight")}});
        const auto band = [&form] {
            const QModelIndex first = form.grid.table()->model()->index(0, 0);
            return first.data().toString() + u'|' + first.data(Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(band(), QStringLiteral("Jelkulcstípus: Vast.: 16 (3)|"
                                        "csoport Jelkulcstípus: Vast.: 16, 3 sor, kibontva"));
        setLanguage(English, {});
        emit LanguageHub::instance().LanguageChanged();
        QVERIFY2(band().startsWith(QStringLiteral("Symbol type: ")), qPrintable(band()));
    }

    void groupsInTheList()
    {
        tests::SymbolForm form(*m_doc);
        QAbstractItemModel &list = *form.groups.table()->model();
        form.select({1});
        QStringList heard;
        connect(&form.js, &clsJS_Sid::CurrentChanced, &form.window, [&](tSid &s) { heard << s.GroupName; });
        {
            ScriptedPrompts user({warned("Egyedi jelkulcscsoport név",
                                       "Létező jelkulcscsoportnév: Kettő")});
            QVERIFY(!list.setData(list.index(1, 0), QStringLiteral("Kettő")));
        }
        QVERIFY(!list.setData(list.index(0, 0), QStringLiteral("X")));  // "MIND" is no group
        QVERIFY(list.setData(list.index(2, 0), QStringLiteral("Más")));
        QVERIFY(list.setData(list.index(2, 0), QStringLiteral("Kettő")));
        QVERIFY(list.setData(list.index(1, 0), QStringLiteral("Első")));
        QCOMPARE(groups(), QStringLiteral("Első, Kettő"));
        QCOMPARE(heard, QStringList{"Első"});           // by who keeps the current record
        QCOMPARE(form.rows(), m_doc->symbols().readAll());
        QCOMPARE(list.index(1, 0).data().toString(), QStringLiteral("Első"));
        form.chooseGroup(QStringLiteral("Kettő"));
        QCOMPARE(form.listed(), QStringLiteral("3"));
    }

    void aGroupThatIsNotThereIsListedAsWrong()
    {
        tests::FaultyDoc broken(*m_doc);
        broken.symbols().ownGroups.hidden = m_doc->symbols().find(3)->GroupId;
        tests::SymbolForm form(broken);
        form.chooseGroup(QStringLiteral("HIBÁS CSOPORT"));
        QCOMPARE(form.listed(), QStringLiteral("3"));
        QVERIFY(!form.js.canEditGroup());
        ScriptedPrompts user({newAsked("", "D")});
        form.run("miAddNew");                           // there is no such group: to the first
        QCOMPARE(m_doc->symbols().find(4)->GroupName, QStringLiteral("Egy"));
    }

    void textIsDroppedOnAGroup_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("writes");
        QTest::newRow("some, one unknown, one no number") << "FromZol3GridSid 1 3 77 x" << 1;
        QTest::newRow("only what is in the group") << "FromZol3GridSid 3" << 0;
        QTest::newRow("of another table") << "FromZol3GridTxd 1" << -1;
        QTest::newRow("any text") << "Kérem" << -1;
    }
    void textIsDroppedOnAGroup()
    {
        QFETCH(QString, text);
        QFETCH(int, writes);                        // -1 = not taken
        tests::FaultyDoc counted(*m_doc);
        Shown form(counted);
        QMimeData mime;
        mime.setText(text);
        counted.log.calls.clear();
        QVERIFY(!Shown::drop(mime, form.groups, 0));
        QCOMPARE(Shown::drop(mime, form.groups, 2), writes >= 0);
        QCOMPARE(counted.log.writes().size(), std::max(writes, 0));
        QCOMPARE(m_doc->symbols().find(1)->GroupName, QString::fromUtf8(writes > 0 ? "Kettő" : "Egy"));
    }

    void rowsAreDraggedToAGroupOfTheSameTable()
    {
        Shown form(*m_doc), other(*m_doc);
        form.select({1, 2});
        const auto mime = Shown::dragged(form.grid);
        QVERIFY(mime);
        QCOMPARE(mime->text(), QStringLiteral("FromZol3GridSid 1 2"));
        QVERIFY(!Shown::drop(*mime, other.groups, 2));  // there the numbers may mean something else
        QVERIFY(Shown::drop(*mime, form.groups, 2));
        QCOMPARE(stored(), QStringLiteral("1 A Kettő 5 16 0, 2 B Kettő 5 16 0, 3 C Kettő 5 16 0"));
    }
};

QVDC_TEST(tst_SymbolEdits)
#include "tst_SymbolEdits.moc"
