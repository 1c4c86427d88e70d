#include "controls/LayerSetForm.h"

#include "facade/services/Services.h"
#include "support/FaultyDoc.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using namespace tests;

class tst_LayerSetControls : public LayerSetTest {
    Q_OBJECT
private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void aNewControlIsEmptyAndSilent()
    {
        DocForm f;
        QCOMPARE(f.control->sLays(), QString());
        QCOMPARE(f.control->sLayGroup(), QStringLiteral("(Aktuális réteg)"));
        QVERIFY(!f.control->SingleLine());
        QCOMPARE(f.entries(), QStringList({"-1 (Aktuális réteg)", "-2 (Összes réteg)", "-3 (Látható rétegek)",
                                           "-4 (Felsorolt rétegek)"}));
        f.type("1-3"); // without a document nothing is read
        f.pick(kAll);
        QString text = QStringLiteral("1,,2");
        f.control->GetLaysByTextBox(text);
        QCOMPARE(text, QStringLiteral("1,2"));
        f.control->setManual_LayNr(1);
        QCOMPARE(f.control->CollectionLays().count(), 0);
        QCOMPARE(f.raised, QStringList());
    }

    void theDocumentBringsItsGroupsAndTheCurrentLayer()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        const auto groups = m_doc->layers().groups();
        QCOMPARE(f.entries().mid(4),
                 QStringList({QString::number(groups[0].GroupId) + u' ' + groups[0].GroupName,
                              QString::number(groups[1].GroupId) + QStringLiteral(" Utak")}));
        QCOMPARE(f.raised, QStringList{"3"});
        QCOMPARE(f.box().text(), QStringLiteral("3"));
    }

    void typingReadsTheSetAndSelectsTheEnumeratedEntry()
    {
        for (const auto &[typed, read] :
             {std::pair("3,1,2", "1-3"), {"1-9", "1-4,7"}, {"4,4", "4"}, {"1 2", ""}, {"9,x", ""}}) {
            DocForm f;
            f.control->setZOLW_Doc(m_doc.get());
            f.raised.clear();
            f.type(typed);
            QCOMPARE(f.raised.size(), qsizetype(qstrlen(typed)) + 1); // at every change of the text
            QCOMPARE(f.raised.last(), QLatin1String(read));
            QCOMPARE(f.box().text(), QLatin1String(typed));
            QCOMPARE(f.control->sLays(), QLatin1String(typed));
            QCOMPARE(f.list().currentData().toInt(), kEnumerated);
            QCOMPARE(f.control->sLayGroup(), QStringLiteral("(Felsorolt rétegek)"));
            f.leave();
            QCOMPARE(f.box().text(), QLatin1String(read));
            QCOMPARE(f.control->sLays(), QLatin1String(read));
        }
    }

    void enterShowsTheNormalFormAndIsConsumed()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            f.type("3,2,1");
            f.box().setCursorPosition(1);
            const auto before = f.raised.size();
            QTest::keyClick(&f.box(), key);
            QCOMPARE(f.box().text(), QStringLiteral("1-3"));
            QCOMPARE(f.box().cursorPosition(), 3);
            QCOMPARE(f.raised.size(), before); // the control's own writing tells nobody
            QVERIFY(f.dialog.isVisible());
        }
    }

    void choicesReplaceTheSet()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        const int roads = m_doc->layers().groups().back().GroupId;
        const std::pair<int, const char *> choices[] = {
            {kAll, "1-4,7"}, {kVisible, "1,3-4"}, {roads, "2,4"}, {kCurrent, "3"}};
        for (const auto &[data, numbers] : choices) {
            f.type("7");
            f.pick(data);
            QCOMPARE(f.raised.last(), QLatin1String(numbers));
            QCOMPARE(f.box().text(), QLatin1String(numbers));
            QCOMPARE(f.control->sLays(), QLatin1String(numbers));
            QCOMPARE(f.control->sLayGroup(), f.list().currentText());
        }
        f.pick(kVisible);
        f.raised.clear();
        QTest::keyClick(&f.list(), Qt::Key_Down);       // the enumerated layers: the same, and silent
        QCOMPARE(f.numbers(), QStringLiteral("1,3-4"));
        QCOMPARE(f.raised, QStringList());
        QCOMPARE(f.control->sLayGroup(), QStringLiteral("(Felsorolt rétegek)"));
    }

    void aGroupNamedAsTheEnumeratedEntryOnlyAdds()
    {
        auto groups = m_doc->layers().groups();
        groups.back().GroupName = QStringLiteral("(Felsorolt rétegek)");
        m_doc->layers().writeGroups(groups);
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.pick(groups.back().GroupId);                      // passes entries that replace the set
        QCOMPARE(f.raised.last(), QStringLiteral("1-4,7")); // of the system group, passed just before
        QCOMPARE(f.numbers(), QStringLiteral("1-4,7"));
    }

    void theTextSetByTheHostIsReadAndNormalised()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.raised.clear();
        f.control->setsLays(QStringLiteral("3,,1,2,x"));
        QCOMPARE(f.raised, QStringList{"1-3"});
        QCOMPARE(f.control->sLays(), QStringLiteral("1-3"));
        QCOMPARE(f.box().text(), QStringLiteral("1-3"));
        QCOMPARE(f.list().currentData().toInt(), kEnumerated);
        f.control->setsLays({});
        QCOMPARE(f.raised, QStringList({"1-3", ""}));
    }

    void theEntrySetByTheHostIsChosen()
    {
        const int roads = m_doc->layers().groups().back().GroupId;
        for (const auto &[caption, entry, numbers] :
             {std::tuple("(Látható rétegek)", kVisible, "1,3-4"),
              {"Utak", roads, "2,4"}, {"no such entry", kCurrent, "3"},
              {"(Felsorolt rétegek)", kEnumerated, "7"}}) { // the text is read
            DocForm f;
            f.control->setZOLW_Doc(m_doc.get());
            f.control->setsLays(QStringLiteral("7"));
            f.raised.clear();
            f.control->setsLayGroup(QString::fromUtf8(caption));
            QCOMPARE(f.raised, QStringList{numbers});
            QCOMPARE(f.box().text(), QLatin1String(numbers));
            QCOMPARE(f.list().currentData().toInt(), entry);
        }
    }

    void oneReadingServesARange()
    {
        tests::FaultyDoc doc(*m_doc);
        DocForm f;
        f.control->setZOLW_Doc(&doc);
        doc.log.calls.clear();
        QString range = QStringLiteral("1-32000,5-7,3"), singles = QStringLiteral("1,99,7");
        f.control->GetLaysByTextBox(range);
        QCOMPARE(doc.log.calls, QStringList{"layers.readAll"});
        QCOMPARE(f.raised.last(), QStringLiteral("1-4,7"));
        doc.log.calls.clear();
        f.control->GetLaysByTextBox(singles); // cheaper than the whole table
        QCOMPARE(doc.log.calls,
                 QStringList({"layers.findByNumber", "layers.findByNumber", "layers.findByNumber"}));
        QCOMPARE(f.raised.last(), QStringLiteral("1,7"));
    }

    void layersSetByHandAreAsTyped()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.raised.clear();
        f.control->setManual_LayId(layer(7).LayId);
        QCOMPARE(f.box().text(), QStringLiteral("7"));
        QCOMPARE(f.list().currentData().toInt(), kEnumerated);
        f.control->setManual_LayNr(2);
        f.control->setManual_LayNr(99); // not there: nothing changes
        f.control->setManual_LayId(-5);
        QCOMPARE(f.raised, QStringList({"7", "2"}));
        QCOMPARE(f.box().text(), QStringLiteral("2"));
    }

    void tearDownDropsDocumentAndSet()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        QObject::connect(f.control, &LayerSetControl::ChangeLays, [&] { f.control->TearDown(); });
        f.control->setsLays(QStringLiteral("1-3")); // in the midst of it
        QCOMPARE(f.control->CollectionLays().count(), 0);
        QVERIFY(!f.control->ZOLW_Doc());
        f.raised.clear();
        f.type("1-3");
        QCOMPARE(f.raised, QStringList());
    }

    void thirtyTwoThousandLayersAreTyped()
    {
        tLayArr layers;
        for (int nr = 1; nr <= 32767; ++nr) layers.push_back({.LayId = qint16(nr), .gNr = qint16(nr)});
        ArrayForm f;
        f.control->SetLayArr(layers);
        QStringList odd;
        for (int nr = 1; nr <= 32767; nr += 2) odd << QString::number(nr);
        f.control->setsLays(odd.join(u','));
        QCOMPARE(f.control->CollectionLays().count(), 16384);
        QCOMPARE(f.box().text(), odd.join(u','));   // nothing is cut off
        f.control->setsLays(QStringLiteral("1-32767"));
        QCOMPARE(f.raised.last(), QStringLiteral("1-32767"));
    }

    void anArrayServesAsWellAsADocument()
    {
        ArrayForm f;
        QCOMPARE(f.entries().size(), qsizetype(4));
        tLayArr layers = m_doc->layers().readAll();
        layers.push_back({.LayId = 99, .gNr = 3, .Name = QStringLiteral("third twice")});
        f.control->SetLayArr(layers);
        f.control->SetCurrLay(layers[0]);
        QCOMPARE(f.raised, QStringList({"", "1"})); // the chosen entry is the current layer
        layers.clear();                             // a copy was taken
        QString text = QStringLiteral("2-3,,9");
        f.control->getLaysFromTextBox(text);
        QCOMPARE(text, QStringLiteral("2-3,9"));
        QCOMPARE(f.raised.last(), QStringLiteral("2-3,3"));
        f.pick(kVisible);
        QCOMPARE(f.box().text(), QStringLiteral("1,3,3-4"));
        f.type("4");
        f.control->SetCurrLay(layer(7)); // not the chosen entry: the set stays
        QCOMPARE(f.numbers(), QStringLiteral("4"));
    }

    void whatTheDocumentThrowsReachesTheCaller()
    {
        tests::FaultyDoc doc(*m_doc);
        DocForm f;
        f.control->setZOLW_Doc(&doc);
        f.control->setsLays(QStringLiteral("1-3"));
        const QStringList before = f.raised;
        for (const std::function<void()> &call :
             {std::function<void()>([&] { f.control->setsLays(QStringLiteral("4-7")); }),
              std::function<void()>([&] { f.control->setsLayGroup(QStringLiteral("(Összes réteg)")); })}) {
            doc.log.failNext = QStringLiteral("layers.readAll");
            QVERIFY_THROWS_EXCEPTION(tests::HostError, call());
            QCOMPARE(f.numbers(), QStringLiteral("1-3"));
            QCOMPARE(f.control->sLayGroup(), QStringLiteral("(Felsorolt rétegek)"));
            QCOMPARE(f.list().currentText(), f.control->sLayGroup());
            QCOMPARE(f.raised, before);
        }
    }

    void whatItThrowsWhileTheUserActsIsTold()
    {
        tests::FaultyDoc doc(*m_doc);
        DocForm f;
        f.control->setZOLW_Doc(&doc);
        f.control->setsLays(QStringLiteral("1-3"));
        tests::ScriptedPrompts user(
            {{"tell", appTitle(), QStringLiteral("layers.readAll"), {}, Icon::Exclamation},
             {"tell", appTitle(), QStringLiteral("layers.readAll"), {}, Icon::Exclamation}});
        f.list().setFocus();
        doc.log.failNext = QStringLiteral("layers.readAll");
        QTest::keyClick(&f.list(), Qt::Key_Up);                // the visible layers
        QCOMPARE(f.list().currentData().toInt(), kEnumerated); // still what the set is
        QCOMPARE(f.numbers(), QStringLiteral("1-3"));
        f.box().setFocus();
        f.box().setCursorPosition(3);
        doc.log.failNext = QStringLiteral("layers.readAll");
        QTest::keyClick(&f.box(), '7');
        QCOMPARE(f.numbers(), QStringLiteral("1-3"));
        QCOMPARE(user.asked(), 2);
    }

    void groupsOfNowAreOffered()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.pick(m_doc->layers().groups().back().GroupId);
        f.leave();
        auto groups = m_doc->layers().groups();
        groups.back().GroupName = QStringLiteral("Járdák");
        m_doc->layers().writeGroups(groups);
        f.list().setFocus();
        QCOMPARE(f.list().currentText(), QStringLiteral("Járdák"));
        QCOMPARE(f.control->sLayGroup(), QStringLiteral("Járdák"));
        QCOMPARE(f.numbers(), QStringLiteral("2,4"));
        f.leave();
        groups.pop_back();
        m_doc->layers().writeGroups(groups);
        f.list().setFocus();
        QCOMPARE(f.list().currentData().toInt(), kEnumerated);
        QCOMPARE(f.numbers(), QStringLiteral("2,4"));
    }
};

QVDC_TEST(tst_LayerSetControls)
#include "tst_LayerSetControls.moc"
