#include "dialogs/viewtools/ViewTools.h"
#include "facade/services/Language.h"
#include "kit/forms/AccessKeys.h"
#include "kit/tools/Icons.h"
#include "kit/tools/ToolSet.h"
#include "support/Registry.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;

namespace {

/// A window with the view tools that logs what they do.
struct Window : QWidget {
    QStringList log;
    bool grouped = true, cards = false;
    ErrorRelay relay{
        [this](std::exception_ptr error) { log << QStringLiteral("error ") + messageOf(error); }};
    ToolSet tools{kViewTools, relay, this};
    QToolBar *bar = tools.toolBar("mnuBar", {21801, u"Eszköztár"});
    QLineEdit *line = new QLineEdit(this);

    Window();
    void sort() { log << QStringLiteral("sort"); }
    void collapse() { log << QStringLiteral("collapse"); }
    void fail() { throw std::runtime_error("no disk"); }
    void table() { log << QStringLiteral("table"), cards = false; }
    void paper() {}
    bool showsCards() const { return cards; }
    bool isGrouped() const { return grouped; }
};

constexpr ToolCommand<Window> kCommands[] = {
    {"miSort", &Window::sort},
    {"miCollapseAll", &Window::collapse, &Window::isGrouped},
    {"miFind", &Window::fail},
    {"miView_Table", &Window::table},
    {"miView_Card", &Window::paper, nullptr, &Window::showsCards},
    {"miShowFields", &Window::paper},
    {"miPrintPreview", &Window::paper},
};

Window::Window()
{
    auto *const column = new QVBoxLayout(this);
    column->addWidget(bar);
    column->addWidget(line);
    tools.connectTools(*this, kCommands);
}

QString dump(const QWidget &band)
{
    QStringList out;
    for (const QAction *a : band.actions()) out << (a->isSeparator() ? QStringLiteral("-") : a->objectName());
    return out.join(u' ');
}

} // namespace

class tst_ToolSet : public QObject {
    Q_OBJECT
private slots:
    void init() { setLanguage(Hungarian, {}); }

    void bandsShowTheirRowsInOrder()
    {
        Window w;
        QCOMPARE(
            dump(*w.bar),
            QStringLiteral("miFind miShowFields miSort miGroupBy miCollapseAll miExpandAll - miView_Table "
                           "miView_Card miView_CardMin - miPrintPreview"));
        QCOMPARE(dump(*w.tools.popUp("bndPopUp_ViewStyle")),
                 QStringLiteral("miView_Table miView_Card miView_CardMin"));
        QCOMPARE(w.tools.tool("miViewStyle")->menu(), w.tools.popUp("bndPopUp_ViewStyle"));
        QCOMPARE(w.tools.popUp("bndPopUp_View")->actions().first(),
                 w.tools.tool("miFind")); // one tool on both bands
    }

    void aToolRunsItsCommandWhenItCan()
    {
        Window w;
        w.tools.tool("miSort")->trigger();
        w.tools.tool("miCollapseAll")->trigger();
        w.grouped = false;
        w.tools.refresh();
        w.tools.tool("miCollapseAll")->trigger(); // disabled
        w.tools.tool("miFind")->trigger();        // its error goes to the relay
        QCOMPARE(w.log, QStringList({"sort", "collapse", "error no disk"}));
    }

    void aToolIsShownOnceItDoesSomething()
    {
        Window w;
        QVERIFY(w.tools.tool("miSort")->isVisible() && !w.tools.tool("miGroupBy")->isVisible());
        QVERIFY(w.tools.tool("miViewStyle")->isVisible());      // a menu
        w.tools.on("miGroupBy", {[&] { w.log << QStringLiteral("group"); }});
        QVERIFY(w.tools.tool("miGroupBy")->isVisible());
        w.tools.tool("miGroupBy")->trigger();
        QCOMPARE(w.log, QStringList{"group"});
    }

    void aToolEndsWithWhoeverItWorksFor()
    {
        Window w;
        auto user = std::make_unique<QObject>();
        w.tools.on("miGroupBy", {[&] { w.log << QStringLiteral("group"); }, {}, {}, user.get()});
        w.tools.refresh();
        QVERIFY(w.tools.tool("miGroupBy")->isEnabled());
        user.reset();
        w.tools.tool("miGroupBy")->trigger();
        w.tools.refresh();
        QVERIFY(!w.tools.tool("miGroupBy")->isEnabled());
        QCOMPARE(w.log, QStringList());
    }

    void aToolThatIsOnFollowsItsOwner()
    {
        Window w;
        w.tools.tool("miView_Card")->trigger();                 // its owner says: still no cards
        QVERIFY(!w.tools.tool("miView_Card")->isChecked());
        w.cards = true;
        w.tools.refresh();
        QVERIFY(w.tools.tool("miView_Card")->isChecked() && !w.tools.tool("miView_Table")->isChecked());
    }

    void openingAPopUpAsksWhatCanBeDone()
    {
        Window w;
        w.grouped = false;
        QVERIFY(w.tools.tool("miCollapseAll")->isEnabled());
        emit w.tools.popUp("bndPopUp_View")->aboutToShow();
        QVERIFY(!w.tools.tool("miCollapseAll")->isEnabled());
        QVERIFY(w.tools.tool("miSort")->isEnabled());
    }

    void oneViewIsOnAndShowingItRunsNothing()
    {
        Window w;
        w.tools.setChecked("miView_Table", true);
        w.tools.setChecked("miView_Card", true);
        QVERIFY(!w.tools.tool("miView_Table")->isChecked());
        QCOMPARE(w.log, QStringList());
        w.tools.tool("miView_Table")->trigger();
        QVERIFY(!w.tools.tool("miView_Card")->isChecked());
        QCOMPARE(w.log, QStringList{"table"});
    }

    void keysReachTools()
    {
        Window w;
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        w.line->setFocus();
        QTest::keyClick(w.line, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(w.log, QStringList{"sort"});
    }

    /// One stop for Tab, arrows from there; a click leaves the focus alone.
    void theToolBarIsReachedByKeys()
    {
        Window w;
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        w.line->setFocus();
        const auto button = [&](const char *name) {
            return qobject_cast<QToolButton *>(w.bar->widgetForAction(w.tools.tool(name)));
        };
        QTest::mouseClick(button("miSort"), Qt::LeftButton);
        QVERIFY(w.line->hasFocus());
        QTest::keyClick(w.line, Qt::Key_Tab);
        QCOMPARE(w.focusWidget(), button("miFind"));
        QTest::keyClick(w.focusWidget(), Qt::Key_Right);
        QTest::keyClick(w.focusWidget(), Qt::Key_Right);
        QCOMPARE(w.focusWidget(), button("miSort"));
        QTest::keyClick(w.focusWidget(), Qt::Key_Space);
        QCOMPARE(w.log, QStringList({"sort", "sort"}));
        QTest::keyClick(w.focusWidget(), Qt::Key_End);
        QCOMPARE(w.focusWidget(), button("miPrintPreview"));
        QTest::keyClick(w.focusWidget(), Qt::Key_Tab);
        QVERIFY(w.line->hasFocus());
        w.tools.tool("miFind")->setEnabled(false);
        QTest::keyClick(w.line, Qt::Key_Tab);
        QCOMPARE(w.focusWidget(), button("miShowFields"));
    }

    void captionsFollowTheLanguageAndAccessKeysStayUnique_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("Hungarian") << int(Hungarian);
        QTest::newRow("Romanian") << int(Romanian);
        QTest::newRow("Vietnamese") << int(Vietnamese);
        QTest::newRow("English") << int(English);
    }
    void captionsFollowTheLanguageAndAccessKeysStayUnique()
    {
        QFETCH(int, language);
        Window w;
        setLanguage(language, {});
        w.tools.retranslate();
        QCOMPARE(QString(w.tools.tool("miSort")->text()).remove(u'&'), txt(Text{20164, u"Rendezés..."}));
        QCOMPARE(w.tools.tool("miSort")->toolTip(),
                 txt(Text{2814, u"Rendezés"}) + QStringLiteral(" (Ctrl+Shift+S)"));
        for (const char *band : {"bndPopUp_View", "bndPopUp_ViewStyle"}) {
            QString keys;
            for (const QAction *a : w.tools.popUp(band)->actions()) {
                if (a->isSeparator()) continue;
                const QChar key = accessKeyOf(a->text());
                QVERIFY2(!key.isNull(), qPrintable(a->text()));
                QVERIFY2(!keys.contains(key), qPrintable(a->text()));
                keys += key;
            }
        }
        setLanguage(Hungarian, {});
    }

    void everyToolHasAKnownIconAndNoTwoShareKeysOrIcon()
    {
        QSet<QString> icons, keys;
        for (const Tool &row : kViewTools) {
            if (*row.icon) {
                QVERIFY2(!toolIcon(row.icon).isNull(), row.icon);
                QVERIFY2(!icons.contains(row.icon), row.name);
                icons << row.icon;
            }
            if (*row.keys) {
                const QKeySequence sequence{QLatin1String(row.keys)};
                QVERIFY2(!sequence.isEmpty() && !keys.contains(sequence.toString()), row.name);
                keys << sequence.toString();
            }
        }
    }
};
QVDC_TEST(tst_ToolSet)
#include "tst_ToolSet.moc"
