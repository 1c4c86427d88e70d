#include "controls/LayerSetForm.h"

#include "facade/services/Services.h"
#include "support/FaultyDoc.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

using namespace ZolWDoc;
using namespace tests;

namespace {

using Act = std::function<void(DocForm &)>;

Act typed(const char *keys)
{
    return [=](DocForm &f) { f.type(keys); };
}
Act left(const char *keys)
{
    return [=](DocForm &f) { f.type(keys), f.leave(); };
}
Act entered(Qt::Key key)
{
    return [=](DocForm &f) {
        f.type("4,3");
        f.box().setCursorPosition(1);
        QTest::keyClick(&f.box(), key);
        QCOMPARE(f.box().cursorPosition(), 3);
    };
}
Act picked(int entry)
{
    return [=](DocForm &f) { f.type("7"), f.pick(entry); };
}
Act told(const char *caption)
{
    return [=](DocForm &f) { f.control->setsLays("7"), f.control->setsLayGroup(caption); };
}

} // namespace

class tst_LayerSetControls : public LayerSetTest {
    Q_OBJECT
private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void aNewControlIsEmptyAndSilent()
    {
        DocForm f;
        QCOMPARE(f.look(), "  (Aktuális réteg)");
        QCOMPARE(f.entries(), QStringList({"-1 (Aktuális réteg)", "-2 (Összes réteg)", "-3 (Látható rétegek)",
                                           "-4 (Felsorolt rétegek)"}));
        f.type("1-3"); // without a document nothing is read
        f.pick(kAll);
        QString text = "1,,2";
        f.control->GetLaysByTextBox(text);
        QCOMPARE(text, "1,2");
        f.control->setManual_LayNr(1);
        QCOMPARE(f.numbers(), "");
        QCOMPARE(f.raised, QStringList());
    }

    void everyWayToASetIsShownAndTold()
    {
        const auto groups = m_doc->layers().groups();
        const int roads = groups.back().GroupId;
        const std::tuple<const char *, Act, const char *> rows[] = {
            {"typed", typed("3,1,2"), "[][3][3][1,3][1,3][1-3] 3,1,2 (Felsorolt rétegek)"},
            {"left", left("3,1,2"), "[][3][3][1,3][1,3][1-3] 1-3 (Felsorolt rétegek)"},
            {"a range", left("1-9"), "[][1][][1-4,7] 1-4,7 (Felsorolt rétegek)"},
            {"twice", left("4,4"), "[][4][4][4] 4 (Felsorolt rétegek)"},
            {"no comma", left("1 2"), "[][1][1][]  (Felsorolt rétegek)"},
            {"none of them there", left("9,x"), "[][][][]  (Felsorolt rétegek)"},
            {"Return", entered(Qt::Key_Return), "[][4][4][3-4] 3-4 (Felsorolt rétegek)"},
            {"Enter", entered(Qt::Key_Enter), "[][4][4][3-4] 3-4 (Felsorolt rétegek)"},
            {"current", picked(kCurrent), "[][7][3] 3 (Aktuális réteg)"},
            {"all", picked(kAll), "[][7][3][1-4,7] 1-4,7 (Összes réteg)"},
            {"visible", picked(kVisible), "[][7][3][1-4,7][1,3-4] 1,3-4 (Látható rétegek)"},
            {"the same, silently", picked(kEnumerated), "[][7][3][1-4,7][1,3-4] 1,3-4 (Felsorolt rétegek)"},
            {"a group", picked(roads), "[][7][3][1-4,7][1,3-4][1-4,7][2,4] 2,4 Utak"},
            {"text of the host", [](auto &f) { f.control->setsLays("3,,1,2,x"); },
             "[1-3] 1-3 (Felsorolt rétegek)"},
            {"no text of the host", [](auto &f) { f.control->setsLays({}); }, "[]  (Felsorolt rétegek)"},
            {"entry of the host", told("(Látható rétegek)"), "[7][1,3-4] 1,3-4 (Látható rétegek)"},
            {"group of the host", told("Utak"), "[7][2,4] 2,4 Utak"},
            {"unknown to the list", told("no such entry"), "[7][3] 3 (Aktuális réteg)"},
            {"the text is read", told("(Felsorolt rétegek)"), "[7][7] 7 (Felsorolt rétegek)"},
            {"by identifier", [&](auto &f) { f.control->setManual_LayId(layer(7).LayId); },
             "[7] 7 (Felsorolt rétegek)"},
            {"by number", [](auto &f) { f.control->setManual_LayNr(2); }, "[2] 2 (Felsorolt rétegek)"},
            {"no layer", [](auto &f) { f.control->setManual_LayNr(99), f.control->setManual_LayId(-5); },
             " 3 (Aktuális réteg)"}};
        for (const auto &[name, act, look] : rows) {
            DocForm f(m_doc.get());
            QCOMPARE(f.entries().mid(4).join(u' '), QString("%1 %2 %3 Utak").arg(groups[0].GroupId)
                                                        .arg(groups[0].GroupName).arg(roads));
            same(name, f.look(), "[3] 3 (Aktuális réteg)");
            act(f);
            same(name, f.look(), look);
            QVERIFY2(f.dialog.isVisible(), name);
        }
    }

    void aGroupNamedAsTheEnumeratedEntryOnlyAdds()
    {
        auto groups = m_doc->layers().groups();
        groups.back().GroupName = "(Felsorolt rétegek)";
        m_doc->layers().writeGroups(groups);
        DocForm f(m_doc.get());
        f.pick(groups.back().GroupId);          // passes entries that replace the set
        QCOMPARE(f.look(), "[3][1-4,7][1,3-4][1-4,7] 1-4,7 (Felsorolt rétegek)");
        QCOMPARE(f.numbers(), "1-4,7");
    }

    void oneReadingServesARange()
    {
        FaultyDoc doc(*m_doc);
        DocForm f(&doc);
        const QString single = "layers.findByNumber"; // cheaper than the whole table
        const std::tuple<QString, QStringList, QString> rows[] = {
            {"1-32000,5-7,3", {"layers.readAll"}, "1-4,7"}, {"1,99,7", {single, single, single}, "1,7"}};
        for (auto [text, calls, set] : rows) {
            doc.log.calls.clear();
            f.control->GetLaysByTextBox(text);
            QCOMPARE(doc.log.calls, calls);
            QCOMPARE(f.raised.last(), set);
        }
    }

    void tearDownDropsDocumentAndSet()
    {
        DocForm f(m_doc.get());
        QObject::connect(f.control, &LayerSetControl::ChangeLays, [&] { f.control->TearDown(); });
        f.control->setsLays("1-3"); // in the midst of it
        QCOMPARE(f.numbers(), "");
        QVERIFY(!f.control->ZOLW_Doc());
        f.raised.clear();
        f.type("1-3");
        QCOMPARE(f.raised, QStringList());
    }

    void thirtyTwoThousandLayersAreTyped()
    {
        tLayArr layers;
        QStringList odd;
        for (int nr = 1; nr <= 32767; ++nr) {
            layers.push_back({.LayId = qint16(nr), .gNr = qint16(nr)});
            if (nr % 2) odd << QString::number(nr);
        }
        ArrayForm f;
        f.control->SetLayArr(layers);
        f.control->setsLays(odd.join(u','));
        QCOMPARE(f.control->CollectionLays().count(), 16384);
        QCOMPARE(f.box().text(), odd.join(u','));   // nothing is cut off
        f.control->setsLays("1-32767");
        QCOMPARE(f.raised.last(), "1-32767");
    }

    void anArrayServesAsWellAsADocument()
    {
        ArrayForm f;
        tLayArr layers = m_doc->layers().readAll();
        layers.push_back({.LayId = 99, .gNr = 3, .Name = "third twice"});
        f.control->SetLayArr(layers);
        f.control->SetCurrLay(layers[0]);
        QCOMPARE(f.look(), "[][1] 1 (Aktuális réteg)");
        layers.clear();                             // a copy was taken
        QString text = "2-3,,9";
        f.control->getLaysFromTextBox(text);
        QCOMPARE(text, "2-3,9");
        QCOMPARE(f.raised.last(), "2-3,3");
        f.pick(kVisible);
        QCOMPARE(f.box().text(), "1,3,3-4");
        f.type("4");
        f.control->SetCurrLay(layer(7)); // not the chosen entry: the set stays
        QCOMPARE(f.numbers(), "4");
    }

    void whatTheDocumentThrowsReachesTheCallerAndTheUser()
    {
        FaultyDoc doc(*m_doc);
        DocForm f(&doc);
        f.control->setsLays("1-3");
        f.raised.clear();
        const auto fails = [&](const Act &act) { doc.log.failNext = "layers.readAll", act(f); };
        for (const Act &act : {Act([](auto &g) { g.control->setsLays("4-7"); }),
                               Act([](auto &g) { g.control->setsLayGroup("(Összes réteg)"); })}) {
            QVERIFY_THROWS_EXCEPTION(HostError, fails(act));
            QCOMPARE(f.numbers(), "1-3");
            QCOMPARE(f.control->sLayGroup(), "(Felsorolt rétegek)");
            QCOMPARE(f.list().currentText(), f.control->sLayGroup());
            QCOMPARE(f.raised, QStringList());
        }
        const ScriptedPrompts::Step step{"tell", appTitle(), "layers.readAll", {}, Icon::Exclamation};
        ScriptedPrompts user({step, step});
        f.list().setFocus();
        fails([](auto &g) { QTest::keyClick(&g.list(), Qt::Key_Up); }); // the visible layers
        QCOMPARE(f.list().currentData().toInt(), kEnumerated);          // still what the set is
        QCOMPARE(f.numbers(), "1-3");
        f.box().setFocus();
        f.box().setCursorPosition(3);
        fails([](auto &g) { QTest::keyClick(&g.box(), '7'); });
        QCOMPARE(f.numbers(), "1-3");
        QCOMPARE(user.asked(), 2);
    }

    void groupsOfNowAreOffered()
    {
        DocForm f(m_doc.get());
        auto groups = m_doc->layers().groups();
        f.pick(groups.back().GroupId);
        f.raised.clear();
        groups.back().GroupName = "Járdák";
        for (const char *look : {" 2,4 Járdák", " 2,4 (Felsorolt rétegek)"}) { // renamed, and gone
            f.leave();
            m_doc->layers().writeGroups(groups);
            f.list().setFocus();
            QCOMPARE(f.list().currentText(), QString(look).mid(5));
            QCOMPARE(f.look(), look);
            groups.pop_back();
        }
        QCOMPARE(f.numbers(), "2,4");
    }
};

QVDC_TEST(tst_LayerSetControls)
#include "tst_LayerSetControls.moc"
