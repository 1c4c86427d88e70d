#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/LayerForm.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/WillingPrompts.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::ScriptedPrompts;
using tests::told;
using Step = ScriptedPrompts::Step;

namespace {

// What the commands say, to the letter.
Step nameAsked(const char *preset, const QVariant &answer)
{
    return {"text", QStringLiteral("Rétegcsoport átnevezés"),
            QStringLiteral("A csoport új neve:|") + QString::fromUtf8(preset), answer};
}
Step taken() { return told("Csoport átnevezés", QStringLiteral("Létező csoportnév !")); }
Step sure(bool answer)
{
    return {"yesNo", QStringLiteral("Rétegcsoport törlés"),
            QStringLiteral("Biztosan szeretnéd törölni a csoportot?"), answer, Icon::Question};
}
Step moveAsked(int count, const QVariant &answer)
{
    return {"choose", QStringLiteral("Rétegek áthelyezése csoportba"),
            QStringLiteral("A kijelölt rétegek csak ennek a csoportnak lesznek a tagjai. "
                           "Kijelölt rétegek száma: %1").arg(count), answer};
}
Step copyAsked(int count, const QVariant &answer)
{
    return {"choose", QStringLiteral("Rétegek felvétele csoportba"),
            QStringLiteral("A kijelölt rétegek ennek a csoportnak is a tagjai lesznek. "
                           "Kijelölt rétegek száma: %1").arg(count), answer};
}

/// A command on the layers 1 to 4, of which "Utak" has 2 and 4 and the empty group "Üres" none.
struct Case {
    const char *name, *tool, *group;            ///< the chosen group
    std::vector<int> selected;
    std::vector<Step> script;
    const char *after;                          ///< null = as before
};

const std::vector<Case> &cases()
{
    static const std::vector<Case> all = {
        {"new", "miAddNewGroup", "Utak", {2}, {}, "RENDSZER: 1 2 3 4 | Utak: 2 4 | Üres: | Új_csoport:"},

        {"renames", "miGroupRename", "Utak", {}, {nameAsked("Utak", " Út ")},
         "RENDSZER: 1 2 3 4 | Út: 2 4 | Üres:"},
        {"renames after a refusal", "cmdLay_GroupName", "Utak", {},
         {nameAsked("Utak", "Üres"), taken(), nameAsked("Üres", "MIND"), taken(), nameAsked("MIND", "Út")},
         "RENDSZER: 1 2 3 4 | Út: 2 4 | Üres:"},
        {"rename, cancelled", "miGroupRename", "Utak", {}, {nameAsked("Utak", {})}, nullptr},
        {"a name of blanks", "miGroupRename", "Utak", {}, {nameAsked("Utak", "  ")}, nullptr},
        {"the system group keeps its name", "miGroupRename", "RENDSZER", {},
         {told("Rétegcsoport átnevezés", QStringLiteral("A rendszer rétegcsoport neve nem módosítható!"))},
         nullptr},
        {"all layers are no group", "miGroupRename", "MIND", {}, {}, nullptr},

        {"deletes", "miGroupRemove", "Utak", {}, {sure(true)}, "RENDSZER: 1 2 3 4 | Üres:"},
        {"deletes an empty one", "miGroupRemove", "Üres", {}, {sure(true)}, "RENDSZER: 1 2 3 4 | Utak: 2 4"},
        {"delete, not so sure", "miGroupRemove", "Utak", {}, {sure(false)}, nullptr},
        {"the system group stays", "miGroupRemove", "RENDSZER", {},
         {sure(true),
          told("Rétegcsoport törlés", QStringLiteral("A rendszer-rétegcsoport nem törölhető!"))}, nullptr},

        {"moves", "cmdLay_GroupMove", "MIND", {1, 2}, {moveAsked(2, 1)},
         "RENDSZER: 3 4 | Utak: 1 2 4 | Üres:"},
        {"moves out of the shown group", "cmdLay_GroupMove", "Utak", {2}, {moveAsked(1, 2)},
         "RENDSZER: 1 3 4 | Utak: 4 | Üres: 2"},
        {"move, cancelled", "cmdLay_GroupMove", "MIND", {1, 2}, {moveAsked(2, {})}, nullptr},
        {"copies", "cmdLay_GroupCopy", "MIND", {1, 2}, {copyAsked(2, 1)},
         "RENDSZER: 1 2 3 4 | Utak: 1 2 4 | Üres:"},
        {"copies members", "cmdLay_GroupCopy", "MIND", {2}, {copyAsked(1, 1)}, nullptr},
        {"copy, cancelled", "cmdLay_GroupCopy", "MIND", {1}, {copyAsked(1, {})}, nullptr},
    };
    return all;
}

} // namespace

class tst_LayerGroups : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    QString visible() const
    {
        QStringList out;
        for (const tLay &l : m_doc->layers().readAll())
            if (l.Visible) out << QString::number(l.gNr);
        return out.join(u' ');
    }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::fourLayers();
    }
    void cleanup() { setLanguage(Hungarian, {}); }

    void commandsOnGroups_data() { tests::addCases(cases()); }
    void commandsOnGroups()
    {
        QFETCH(int, index);
        const Case &c = cases()[size_t(index)];
        tests::FaultyDoc counted(*m_doc);
        tests::LayerForm form(counted);
        form.chooseGroup(QString::fromUtf8(c.group));
        form.select(c.selected);
        const QString selection = form.selection(), listed = form.listed();
        counted.log.calls.clear();
        {
            ScriptedPrompts user(c.script);
            form.run(c.tool);
        }
        QVERIFY(!form.error);
        QCOMPARE(tests::dumpGroups(*m_doc), QString::fromUtf8(c.after ? c.after : tests::kFourLayers));
        const qsizetype commands = counted.log.calls.count(QStringLiteral("scopes.begin")),
                        fills = counted.log.calls.count(QStringLiteral("textTypes.readAll"));
        QCOMPARE(commands, c.after ? 1 : 0);            // and the table is read again once
        QCOMPARE(fills, commands);
        QCOMPARE(form.groups.table()->model()->rowCount(), int(m_doc->layers().groups().size()) + 1);
        if (c.after) return;
        QCOMPARE(form.chosenGroup(), QString::fromUtf8(c.group));
        QCOMPARE(form.selection(), selection);
        QCOMPARE(form.listed(), listed);
    }

    void bothGridsFollow()
    {
        tests::LayerForm form(*m_doc);
        form.chooseGroup(QStringLiteral("Utak"));
        QCOMPARE(form.listed(), QStringLiteral("2 4"));
        form.select({4});
        {
            ScriptedPrompts user({moveAsked(1, 2), nameAsked("Utak", "Út")});
            form.run("cmdLay_GroupMove");
            QCOMPARE(form.listed(), QStringLiteral("2"));
            form.run("miAddNewGroup");
            form.run("miGroupRename");
        }
        QCOMPARE(form.chosenGroup(), QStringLiteral("Út")); // the row keeps its group
        QCOMPARE(form.listed(), QStringLiteral("2"));
        form.run("miAddNewGroup");
        QCOMPARE(tests::dumpGroups(*m_doc),
                 QStringLiteral("RENDSZER: 1 2 3 | Út: 2 | Üres: 4 | Új_csoport: | Új_csoport_2:"));
        form.run("cmdLay_GroupAllLay");
        QCOMPARE(form.chosenGroup(), QStringLiteral("MIND"));
        QCOMPARE(form.listed(), QStringLiteral("1 2 3 4"));
        for (const bool shown : {false, true}) {
            form.run(shown ? "cmdLay_ShowGroups" : "cmdLay_HideGroups");
            QVERIFY(form.js.bShowGroups() == shown && form.groups.isHidden() != shown);
        }
    }

    void aGroupWithALayerOfItsOwnStays()
    {
        tests::LayerForm form(*m_doc);
        form.select({2});
        {
            ScriptedPrompts user({moveAsked(1, 1)});
            form.run("cmdLay_GroupMove");
        }
        form.chooseGroup(QStringLiteral("Utak"));
        const QString refusal =
            QStringLiteral("A(z) 'Utak' csoport nem minden rétege szerepel más csoportban\n"
                           "ezért nem szüntethető meg!");
        {
            ScriptedPrompts user({sure(true), told("Rétegcsoport törlés", refusal)});
            form.run("miGroupRemove");
        }
        QCOMPARE(tests::dumpGroups(*m_doc), QStringLiteral("RENDSZER: 1 3 4 | Utak: 2 4 | Üres:"));
        form.select({2});
        {
            ScriptedPrompts user({copyAsked(1, 2), sure(true)}); // now it is in another group as well
            form.run("cmdLay_GroupCopy");
            form.run("miGroupRemove");
        }
        QCOMPARE(tests::dumpGroups(*m_doc), QStringLiteral("RENDSZER: 1 3 4 | Üres: 2"));
        QCOMPARE(form.chosenGroup(), QStringLiteral("Üres")); // which moved to its place
        QCOMPARE(form.listed(), QStringLiteral("2"));
    }

    void theSystemGroupOfADocumentFromAnotherCountryStays()
    {
        setLanguage(English, {});
        tests::LayerForm form(*m_doc);
        form.chooseGroup(QStringLiteral("RENDSZER"));
        ScriptedPrompts user({told("Rename layer group",
                                   QStringLiteral("The name of the system layer group cannot be changed!"))});
        form.run("miGroupRename");
    }

    void theGroupPickedLastIsOfferedFirst()
    {
        struct Picker final : tests::WillingPrompts {
            std::vector<int> answers = {2, 1, 0}, presets;
            std::optional<int> choose(const Choice &c, QObject *) override
            {
                presets.push_back(c.preset);
                return answers[presets.size() - 1];
            }
        } user;
        tests::LayerForm form(*m_doc);
        form.select({1});
        for (const char *tool : {"cmdLay_GroupCopy", "cmdLay_GroupCopy", "cmdLay_GroupMove"}) form.run(tool);
        QCOMPARE(user.presets, (std::vector<int>{0, 2, 1}));
    }

    void layersOfTheChosenGroupAreSwitched_data()
    {
        QTest::addColumn<QByteArray>("tool");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("visible");
        QTest::newRow("off") << QByteArray("cmdLay_GroupVisibleOff") << "Utak" << "1 3";
        QTest::newRow("off, the other tool") << QByteArray("cmdGroupVisibleOff") << "Utak" << "1 3";
        QTest::newRow("off, all") << QByteArray("cmdGroupVisibleOff") << "MIND" << "";
        QTest::newRow("off, none in it") << QByteArray("cmdLay_GroupVisibleOff") << "Üres" << "1 2 3 4";
        QTest::newRow("on") << QByteArray("cmdLay_GroupVisibleOn") << "Utak" << "2 4";
        QTest::newRow("on, the other tool") << QByteArray("cmdGroupVisibleOn") << "Utak" << "2 4";
        QTest::newRow("on, all") << QByteArray("cmdLay_GroupVisibleOn") << "MIND" << "1 2 3 4";
    }
    void layersOfTheChosenGroupAreSwitched()
    {
        QFETCH(QByteArray, tool);
        QFETCH(QString, group);
        tLayArr all = m_doc->layers().readAll();
        for (tLay &l : all) l.Visible = tool.endsWith("Off");
        m_doc->layers().writeAll(all);
        tests::LayerForm form(*m_doc);
        form.chooseGroup(group);
        form.run(tool.constData());
        QTEST(visible(), "visible");
        QCOMPARE(form.chosenGroup(), group);
    }

    void theBandOfTheCurrentRowCollapses()
    {
        const auto lines = [](tests::LayerForm &f) { return f.grid.table()->model()->rowCount(); };
        tests::LayerForm form(*m_doc);
        form.select({2});
        const SortKey levels[] = {{LayerTable::nameColumn}, {LayerTable::numberColumn}};
        form.grid.setGroupLevels(levels);
        QCOMPARE(lines(form), 12);                      // a band, a band in it and a row for each layer
        form.run("miGroupCollapse");
        QCOMPARE(lines(form), 11);
        QCOMPARE(form.selection(), QStringLiteral("2*"));
        form.run("miGroupCollapse");
        QCOMPARE(lines(form), 10);
        QVERIFY(!form.js.canCollapseGroup());
        form.run("miGroupCollapse");
        QCOMPARE(lines(form), 10);
    }

    void anEmptyGroupIsWhatAFailedRemovalLeaves()
    {
        tests::FaultyDoc faulty(*m_doc);
        tests::LayerForm form(faulty);
        form.chooseGroup(QStringLiteral("Utak"));
        faulty.log.failNext = QStringLiteral("layers.writeGroups");
        ScriptedPrompts user({sure(true)});
        form.run("miGroupRemove");
        QVERIFY(form.error);
        QCOMPARE(tests::dumpGroups(*m_doc), QStringLiteral("RENDSZER: 1 2 3 4 | Utak: | Üres:"));
        QCOMPARE(form.chosenGroup(), QStringLiteral("Utak"));
        QCOMPARE(form.listed(), QString());
    }
};

QVDC_TEST(tst_LayerGroups)
#include "tst_LayerGroups.moc"
