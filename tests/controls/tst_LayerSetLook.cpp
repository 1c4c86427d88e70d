#include "controls/LayerSetForm.h"

#include "support/Registry.h"

using namespace ZolWDoc;
using namespace tests;

class tst_LayerSetLook : public LayerSetTest {
    Q_OBJECT
private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void captionsFollowTheLanguage()
    {
        for (const auto &[language, visible] :
             {std::pair(English, "(Visible layers)"), {Romanian, "(Straturile vizibile)"},
              {Vietnamese, "(Các lớp đang hiện)"}, {Hungarian, "(Látható rétegek)"}}) {
            setLanguage(Romanian, {});
            DocForm with;
            ArrayForm without;
            QCOMPARE(with.control->sLayGroup(), "(Aktuális réteg)"); // Hungarian at first, on purpose
            with.arrives(*m_doc), without.arrives(*m_doc);
            with.pick(kVisible), without.pick(kVisible);
            with.raised.clear(), without.raised.clear();
            setLanguage(language, {});
            emit LanguageHub::instance().LanguageChanged();
            QCOMPARE(with.look(), QString(" 1,3-4 ") + visible);
            QCOMPARE(without.look(), QString(" 1,3-4 ") + visible);
            with.type("1-2");
            QCOMPARE(with.list().currentData().toInt(), kEnumerated);
        }
    }

    void theChildrenShareTheRoom()
    {
        DocForm f;
        ZOL3_LayGroup &c = *f.control;
        const QRect &list = f.list().geometry(), &box = f.box().geometry();
        QCOMPARE(list.united(box), c.rect());
        QCOMPARE(box.topLeft(), QPoint(0, list.height()));
        const int two = c.height();
        c.setSingleLine(true);
        QApplication::sendPostedEvents(); // the form's layout
        QCOMPARE(c.height() * 2, two);
        const int moved = 450 * c.logicalDpiX() / 1440;
        for (const auto &[twips, right] :
             {std::pair(0.0, c.width() / 2), {450, c.width() / 2 + moved}, {1e300, c.width()}, {-1e300, 0}}) {
            c.setWidthDiferent(twips);
            QCOMPARE(box, QRect(0, 0, right, c.height()));
            QCOMPARE(list, QRect(right, 0, c.width() - right, c.height()));
        }
        QFont large = c.font();
        large.setPointSize(large.pointSize() * 2);
        c.setFont(large);
        QCOMPARE(f.box().font().pointSize(), large.pointSize());
        QVERIFY(c.height() > two / 2 && box.height() == c.height());
    }

    void tabGoesAsOneReads()
    {
        DocForm f;
        QWidget *const order[] = {&f.list(), &f.box()};
        for (const bool single : {false, true}) {
            f.control->setSingleLine(single);
            f.control->setFocus();
            QCOMPARE(f.dialog.focusWidget(), order[single]);
            QTest::keyClick(order[single], Qt::Key_Tab);
            QCOMPARE(f.dialog.focusWidget(), order[!single]);
        }
    }

    void theWheelScrollsOnlyAFocusedList()
    {
        DocForm f(m_doc.get());
        const QPointF at(f.list().rect().center());
        QWheelEvent wheel(at, f.list().mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&f.list(), &wheel);
        QCOMPARE(f.look(), "[3] 3 (Aktuális réteg)");
    }

    void readersHearWhatItIs()
    {
        DocForm f(m_doc.get());
        f.control->setsLays("1-3");
        const std::tuple<QWidget *, QAccessible::Role, QAccessible::Text, const char *> rows[] = {
            {f.control, QAccessible::Grouping, QAccessible::Name, "Réteghalmaz"},
            {&f.box(), QAccessible::EditableText, QAccessible::Name, "Rétegszámok"},
            {&f.box(), QAccessible::EditableText, QAccessible::Value, "1-3"},
            {&f.box(), QAccessible::EditableText, QAccessible::Description,
             "Rétegszámok és tartományok vesszővel elválasztva, például 1-3,7\nA halmaz rétegeinek száma: 3"},
            {&f.list(), QAccessible::ComboBox, QAccessible::Description, "Rétegek kiválasztása"},
            {&f.list(), QAccessible::ComboBox, QAccessible::Value, "(Felsorolt rétegek)"}};
        for (const auto &[widget, role, kind, said] : rows) {
            const QAccessibleInterface &heard = *QAccessible::queryAccessibleInterface(widget);
            QCOMPARE(heard.role(), role);
            same(said, heard.text(kind), said);
        }
    }

    void aColourOfItsOwnStaysReadable()
    {
        DocForm f;
        const QPalette usual = f.box().palette();
        f.control->setBackcolor(QColor(20, 30, 60));
        QCOMPARE(f.box().palette().color(QPalette::Base), QColor(20, 30, 60));
        for (const QPalette::ColorRole letters : {QPalette::Text, QPalette::PlaceholderText})
            QVERIFY(f.box().palette().color(letters).lightness() > 200);
        QVERIFY(f.box().palette().color(QPalette::PlaceholderText).alpha() < 200);
        f.control->setBackcolor(propertyColor(kWindowBackground));
        QCOMPARE(f.box().palette().color(QPalette::Base), usual.color(QPalette::Base));
    }
};

QVDC_TEST(tst_LayerSetLook)
#include "tst_LayerSetLook.moc"
