#include "controls/LayerSetForm.h"

#include "support/Registry.h"

#include <QAccessible>
#include <QWheelEvent>

using namespace QV_DOC_CONTROLS;
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
            QCOMPARE(with.control->sLayGroup(),
                     QStringLiteral("(Aktuális réteg)")); // Hungarian at first, on purpose
            with.control->setZOLW_Doc(m_doc.get());
            without.control->SetLayArr(m_doc->layers().readAll());
            with.pick(kVisible), without.pick(kVisible);
            const auto raised = with.raised;
            setLanguage(language, {});
            emit LanguageHub::instance().LanguageChanged();
            for (auto *control : std::initializer_list<LayerSetControl *>{with.control, without.control}) {
                QCOMPARE(control->cboLays->currentText(), QString::fromUtf8(visible));
                QCOMPARE(control->sLayGroup(), QString::fromUtf8(visible));
            }
            QCOMPARE(with.raised, raised);
            with.type("1-2");
            QCOMPARE(with.list().currentData().toInt(), kEnumerated);
        }
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
        const QAccessibleInterface &group = *QAccessible::queryAccessibleInterface(f.control);
        QCOMPARE(group.role(), QAccessible::Grouping);
        QCOMPARE(group.text(QAccessible::Name), QStringLiteral("Réteghalmaz"));
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

QVDC_TEST(tst_LayerSetLook)
#include "tst_LayerSetLook.moc"
