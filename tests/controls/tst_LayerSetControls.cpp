#include "controls/DesignMode.h"
#include "controls/PropertyError.h"
#include "controls/ZOL3_LayGroup.h"
#include "controls/usLays.h"
#include "facade/services/Language.h"
#include "facade/services/Services.h"
#include "support/FaultyDoc.h"
#include "support/LayerDoc.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;

namespace {

/// A host's dialog with one layer set control, and what the control raised.
template <class Control> struct Form {
    QDialog dialog;
    Control *control = new Control(&dialog);
    QPushButton *ok = new QPushButton(&dialog);
    QStringList raised; ///< the set's text at every ChangeLays

    Form()
    {
        auto *const column = new QVBoxLayout(&dialog);
        column->addWidget(control);
        column->addWidget(ok);
        ok->setDefault(true);
        QObject::connect(control, &LayerSetControl::ChangeLays, control,
                         [this](LayerSet &set) { raised << layerSetText(set.layers()); });
        dialog.resize(400, 120);
        dialog.show();
        dialog.activateWindow();
        QApplication::setActiveWindow(&dialog);
        control->txtLays->setFocus();
    }
    QLineEdit &box() { return *control->txtLays; }
    QComboBox &list() { return *control->cboLays; }
    void type(const char *keys)
    {
        box().selectAll();
        QTest::keyClick(&box(), Qt::Key_Delete);
        QTest::keyClicks(&box(), QLatin1String(keys));
    }
    void leave() { ok->setFocus(); }
    /// The entry of this item data, with the keyboard, as a user does.
    void pick(int itemData)
    {
        list().setFocus();
        QTest::keyClick(&list(), Qt::Key_Home);
        while (list().currentData().toInt() != itemData) {
            const int before = list().currentIndex();
            QTest::keyClick(&list(), Qt::Key_Down);
            if (list().currentIndex() == before) return QTest::qFail("no such entry", __FILE__, __LINE__);
        }
    }
    QString numbers() { return layerSetText(control->CollectionLays().layers()); }
    QStringList entries()
    {
        QStringList out;
        for (int i = 0; i < list().count(); ++i)
            out << QString::number(list().itemData(i).toInt()) + u' ' + list().itemText(i);
        return out;
    }
};
using DocForm = Form<ZOL3_LayGroup>;
using ArrayForm = Form<usLays>;

constexpr int kCurrent = -1, kAll = -2, kVisible = -3, kEnumerated = -4;

} // namespace

class tst_LayerSetControls : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    tLay layer(qint16 number) { return *m_doc->layers().findByNumber(number); }

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_doc = tests::layerDoc({{.gNr = 1, .Name = QStringLiteral("A")},
                                 {.gNr = 2, .Name = QStringLiteral("B"), .Visible = false},
                                 {.gNr = 3, .Name = QStringLiteral("C")},
                                 {.gNr = 4, .Name = QStringLiteral("D")},
                                 {.gNr = 7, .Name = QStringLiteral("E"), .Visible = false}});
        m_doc->layers().makeCurrent(layer(3));
    }
    void cleanup()
    {
        setDesignedTest(nullptr);
        QVERIFY2(traceObjects().entries().empty(), "a control was not released");
    }

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

    void typingReadsTheSetAndSelectsTheEnumeratedEntry_data()
    {
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("left");
        QTest::newRow("3,1,2") << "1-3" << "1-3";
        QTest::newRow("1-9") << "1-4,7" << "1-4,7";
        QTest::newRow("4,4") << "4" << "4";
        QTest::newRow("1 2") << "" << "";
        QTest::newRow("9,x") << "" << "";
    }
    void typingReadsTheSetAndSelectsTheEnumeratedEntry()
    {
        QFETCH(QString, read);
        QFETCH(QString, left);
        const char *const typed = QTest::currentDataTag();
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.raised.clear();
        f.type(typed);
        QCOMPARE(f.raised.size(), qsizetype(qstrlen(typed)) + 1); // at every change of the text
        QCOMPARE(f.raised.last(), read);
        QCOMPARE(f.box().text(), QLatin1String(typed));
        QCOMPARE(f.control->sLays(), QLatin1String(typed));
        QCOMPARE(f.list().currentData().toInt(), kEnumerated);
        QCOMPARE(f.control->sLayGroup(), QStringLiteral("(Felsorolt rétegek)"));
        f.leave();
        QCOMPARE(f.box().text(), left);
        QCOMPARE(f.control->sLays(), left);
        QCOMPARE(f.raised.last(), read);
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
    }
    void theEnumeratedEntryKeepsTheSetAndIsSilent()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.pick(kVisible);
        const QStringList before = f.raised;
        QTest::keyClick(&f.list(), Qt::Key_Down);
        QCOMPARE(f.list().currentData().toInt(), kEnumerated);
        QCOMPARE(f.numbers(), QStringLiteral("1,3-4"));
        QCOMPARE(f.raised, before);
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
    void theEntrySetByTheHostIsChosen_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("numbers");
        QTest::newRow("(Látható rétegek)") << kVisible << "1,3-4";
        QTest::newRow("Utak") << 0 << "2,4";
        QTest::newRow("no such entry") << kCurrent << "3";
        QTest::newRow("(Felsorolt rétegek)") << kEnumerated << "7"; // what the box says is read
    }
    void theEntrySetByTheHostIsChosen()
    {
        QFETCH(int, entry);
        QFETCH(QString, numbers);
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.control->setsLays(QStringLiteral("7"));
        f.raised.clear();
        f.control->setsLayGroup(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(f.raised, QStringList{numbers});
        QCOMPARE(f.box().text(), numbers);
        QCOMPARE(f.list().currentData().toInt(),
                 entry ? entry : int(m_doc->layers().groups().back().GroupId));
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
        f.control->TearDown();
        f.control->TearDown();
        QCOMPARE(f.control->CollectionLays().count(), 0);
        QVERIFY(!f.control->ZOLW_Doc());
        f.raised.clear();
        f.type("1-3");
        QCOMPARE(f.raised, QStringList());
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

    void addLaySortsIntoAnySet()
    {
        DocForm f;
        LayerSet set;
        for (const qint16 number : {7, 1, 3, 1}) f.control->AddLay(set, layer(number));
        QCOMPARE(layerSetText(set.layers()), QStringLiteral("1,3,7"));
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

    void captionsFollowTheLanguage_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QString>("visible");
        QTest::newRow("hu") << int(Hungarian) << "(Látható rétegek)";
        QTest::newRow("en") << int(English) << "(Visible layers)";
        QTest::newRow("ro") << int(Romanian) << "(Straturile vizibile)";
        QTest::newRow("vi") << int(Vietnamese) << "(Các lớp đang hiện)";
    }
    void captionsFollowTheLanguage()
    {
        QFETCH(int, language);
        QFETCH(QString, visible);
        setLanguage(Romanian, {});
        DocForm with;
        ArrayForm without;
        QCOMPARE(with.control->sLayGroup(),
                 QStringLiteral("(Aktuális réteg)")); // Hungarian at first, on purpose
        with.control->setZOLW_Doc(m_doc.get());
        without.control->SetLayArr(m_doc->layers().readAll());
        with.pick(kVisible), without.pick(kVisible);
        const auto raised = with.raised;
        setLanguage(language, {});
        emit LanguageHub::instance().LanguageChanged();
        for (auto *control : std::initializer_list<LayerSetControl *>{with.control, without.control}) {
            QCOMPARE(control->cboLays->currentText(), visible);
            QCOMPARE(control->sLayGroup(), visible);
        }
        QCOMPARE(with.raised, raised);
        with.type("1-2");
        QCOMPARE(with.list().currentData().toInt(), kEnumerated);
        with.control->setsLayGroup(visible);
        QCOMPARE(with.numbers(), QStringLiteral("1,3-4"));
    }

    void theChildrenShareTheRoom()
    {
        DocForm f;
        ZOL3_LayGroup &c = *f.control;
        QCOMPARE(c.cboLays->geometry().united(c.txtLays->geometry()), c.rect());
        QCOMPARE(c.cboLays->y(), 0);
        QCOMPARE(c.txtLays->y(), c.cboLays->height());
        const int two = c.height();
        c.setSingleLine(true);
        QApplication::sendPostedEvents(); // the form's layout
        QCOMPARE(c.height() * 2, two);
        QCOMPARE(c.txtLays->width(), c.width() / 2);
        c.setWidthDiferent(450); // twips: 30 pixels at 96 to the inch
        QCOMPARE(c.txtLays->width(), c.width() / 2 + 450 * c.logicalDpiX() / 1440);
        QCOMPARE(c.cboLays->geometry(),
                 QRect(c.txtLays->width(), 0, c.width() - c.txtLays->width(), c.height()));
        for (const double far : {1e300, -1e300}) {
            c.setWidthDiferent(far);
            QVERIFY(c.txtLays->width() + c.cboLays->width() == c.width());
        }
        c.setWidthDiferent(0);
        QFont large = c.font();
        large.setPointSize(large.pointSize() * 2);
        c.setFont(large);
        QCOMPARE(c.txtLays->font().pointSize(), large.pointSize());
        QVERIFY(c.height() > two / 2);
        QCOMPARE(c.txtLays->height(), c.height());
    }

    void tabGoesAsOneReads()
    {
        DocForm f;
        f.control->setFocus();
        QVERIFY(f.list().hasFocus());
        QTest::keyClick(&f.list(), Qt::Key_Tab);
        QVERIFY(f.box().hasFocus());
        f.control->setSingleLine(true);
        f.control->setFocus();
        QVERIFY(f.box().hasFocus());
        QTest::keyClick(&f.box(), Qt::Key_Tab);
        QVERIFY(f.list().hasFocus());
    }

    void theWheelScrollsOnlyAFocusedList()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.box().setFocus();
        const QPointF at(f.list().rect().center());
        QWheelEvent wheel(at, f.list().mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&f.list(), &wheel);
        QCOMPARE(f.list().currentData().toInt(), kCurrent);
        QCOMPARE(f.raised, QStringList{"3"});
    }

    void readersHearWhatItIs()
    {
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        f.control->setsLays(QStringLiteral("1-3"));
        const QAccessibleInterface &box = *QAccessible::queryAccessibleInterface(&f.box());
        QCOMPARE(box.role(), QAccessible::EditableText);
        QCOMPARE(box.text(QAccessible::Name), QStringLiteral("Rétegszámok"));
        QCOMPARE(box.text(QAccessible::Value), QStringLiteral("1-3"));
        QVERIFY(box.text(QAccessible::Description).endsWith(QStringLiteral("A halmaz rétegeinek száma: 3")));
        const QAccessibleInterface &list = *QAccessible::queryAccessibleInterface(&f.list());
        QCOMPARE(list.role(), QAccessible::ComboBox);
        QCOMPARE(list.text(QAccessible::Description), QStringLiteral("Rétegek kiválasztása"));
        QCOMPARE(list.text(QAccessible::Value), QStringLiteral("(Felsorolt rétegek)"));
    }

    void bagsKeepEveryProperty_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("colour of the desktop") << QStringLiteral("BackColor") << QVariant(0x80000018u);
        QTest::newRow("colour") << QStringLiteral("BackColor") << QVariant(0xffeedeu);
        QTest::newRow("layout") << QStringLiteral("SingleLine") << QVariant(true);
        QTest::newRow("split") << QStringLiteral("WidthDiferent") << QVariant(-312.5);
        QTest::newRow("text") << QStringLiteral("sLays") << QVariant(QStringLiteral("1-3"));
        QTest::newRow("entry") << QStringLiteral("sLayGroup") << QVariant(QStringLiteral("Utak"));
        LayerSet set;
        set.add({.LayId = 5, .gNr = 4});
        QTest::newRow("set") << QStringLiteral("CollectionLays") << QVariant::fromValue(set);
        QTest::newRow("font") << QStringLiteral("Font") << QVariant(QFont(QStringLiteral("DejaVu Serif"), 21));
    }
    void bagsKeepEveryProperty()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        const QVariantMap bag{{key, value}};
        DocForm doc;
        ArrayForm array;
        for (LayerSetControl *c : std::initializer_list<LayerSetControl *>{doc.control, array.control}) {
            QCOMPARE(c->propertyBag(), QVariantMap());
            c->setPropertyBag(bag);
            QCOMPARE(c->propertyBag(), bag);
            QCOMPARE(doc.raised, QStringList()); // nothing but kept
            c->setPropertyBag({});
            QCOMPARE(c->propertyBag(), QVariantMap());
        }
    }
    void singlePrecisionIsKept()
    {
        DocForm f;
        f.control->setWidthDiferent(0.1);
        QCOMPARE(f.control->WidthDiferent(), double(0.1f));
        f.control->setWidthDiferent(1e300);
        QCOMPARE(f.control->WidthDiferent(), double(std::numeric_limits<float>::max()));
        f.control->setWidthDiferent(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(f.control->WidthDiferent(), 0.0);
    }

    void whatWasKeptTakesEffectWhenTheDocumentArrives_data()
    {
        QTest::addColumn<QVariantMap>("kept");
        QTest::addColumn<QString>("numbers");
        QTest::addColumn<QString>("entry");
        const QString enumerated = QStringLiteral("(Felsorolt rétegek)");
        QTest::newRow("nothing") << QVariantMap() << "3" << QStringLiteral("(Aktuális réteg)");
        QTest::newRow("a text") << QVariantMap{{"sLays", "4,,2-3"}, {"sLayGroup", enumerated}} << "2-4" << enumerated;
        QTest::newRow("a group") << QVariantMap{{"sLays", "1"}, {"sLayGroup", "Utak"}} << "2,4"
                                 << QStringLiteral("Utak");
        QTest::newRow("an entry that is not there")
            << QVariantMap{{"sLayGroup", "Vízfolyások"}} << "3" << QStringLiteral("(Aktuális réteg)");
        LayerSet set;
        set.add({.LayId = 5, .gNr = 4});
        QTest::newRow("a set") << QVariantMap{{"sLays", "1"}, {"CollectionLays", QVariant::fromValue(set)}} << "4"
                               << enumerated;
    }
    void whatWasKeptTakesEffectWhenTheDocumentArrives()
    {
        QFETCH(QVariantMap, kept);
        QFETCH(QString, numbers);
        QFETCH(QString, entry);
        DocForm f;
        f.control->setPropertyBag(kept);
        f.control->setZOLW_Doc(m_doc.get());
        QCOMPARE(f.raised, QStringList{numbers});
        QCOMPARE(f.box().text(), numbers);
        QCOMPARE(f.list().currentText(), entry);
        QCOMPARE(f.control->sLayGroup(), entry);
    }
    /// As the loader of a form does it: through the property system, in any order.
    void formsSetThePropertiesInAnyOrder()
    {
        const std::pair<const char *, const char *> values[] = {{"sLays", "1-2"},
                                                                {"sLayGroup", "(Felsorolt rétegek)"}};
        for (const bool backwards : {false, true}) {
            DocForm doc;
            ArrayForm array;
            for (int i = 0; i < 2; ++i) {
                const auto &[name, value] = values[backwards ? 1 - i : i];
                QVERIFY(doc.control->setProperty(name, QString::fromUtf8(value)));
                QVERIFY(array.control->setProperty(name, QString::fromUtf8(value)));
            }
            doc.control->setZOLW_Doc(m_doc.get());
            array.control->SetLayArr(m_doc->layers().readAll());
            QCOMPARE(doc.raised, QStringList{"1-2"});
            QCOMPARE(array.raised, QStringList{"1-2"});
            QVERIFY(doc.control->setProperty("sLays", QStringLiteral("7"))); // from now on at once
            QCOMPARE(doc.raised.last(), QStringLiteral("7"));
        }
    }

    void refusedSettersCarryTheirNumber()
    {
        const auto number = [](const std::function<void()> &set) {
            try {
                set();
            } catch (const PropertyError &refused) {
                return int(refused.number());
            }
            return 0;
        };
        DocForm f;
        f.control->setZOLW_Doc(m_doc.get());
        QCOMPARE(number([&] { f.control->setCollectionLays({}); }), 382);
        setDesignedTest([](const QWidget &) { return true; });
        QCOMPARE(number([&] { f.control->setCollectionLays({}); }), 383);
        QCOMPARE(number([&] { f.control->setsLays(QStringLiteral("1")); }), 387);
        QCOMPARE(number([&] { f.control->setsLayGroup(QStringLiteral("Utak")); }), 387);
        const QVariantMap before = f.control->propertyBag();
        f.control->setProperty("sLays", QStringLiteral("1")); // ignored, and nothing is thrown through Qt
        f.control->setProperty("sLayGroup", QStringLiteral("Utak"));
        f.control->setProperty("CollectionLays", QVariant::fromValue(LayerSet()));
        QCOMPARE(f.control->propertyBag(), before);
        setDesignedTest(nullptr);
        f.control->setProperty("CollectionLays", QVariant::fromValue(LayerSet()));
        QCOMPARE(f.numbers(), QStringLiteral("3"));
    }

    void aColourOfItsOwnStaysReadable()
    {
        DocForm f;
        const QColor usual = f.box().palette().color(QPalette::Base);
        f.control->setBackcolor(QColor(20, 30, 60));
        QCOMPARE(f.box().palette().color(QPalette::Base), QColor(20, 30, 60));
        QVERIFY(f.box().palette().color(QPalette::Text).lightness() > 200);
        f.control->setBackcolor(propertyColor(kWindowBackground));
        QCOMPARE(f.box().palette().color(QPalette::Base), usual);
    }
};

QVDC_TEST(tst_LayerSetControls)
#include "tst_LayerSetControls.moc"
