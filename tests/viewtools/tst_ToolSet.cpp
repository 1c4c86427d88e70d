#include "dialogs/viewtools/ViewTools.h"
#include "facade/services/Language.h"
#include "kit/tools/ToolSet.h"
#include "support/Registry.h"

#include <QToolBar>

using namespace QV_DOC_CONTROLS;

namespace {

/// A window with the view tools that logs what they do.
struct Window : QWidget {
    QStringList log;
    bool grouped = true, cards = false;
    ErrorRelay relay{[this](std::exception_ptr error) { log << "error " + messageOf(error); }};
    ToolSet tools{kViewTools, relay, this};
    QToolBar *bar = tools.toolBar("mnuBar", {21801, u"Eszköztár"});
    QLineEdit *line = new QLineEdit(this);

    Window();
    void sort() { log << "sort"; }
    void collapse() { log << "collapse"; }
    void fail() { throw std::runtime_error("no disk"); }
    void table() { log << "table", cards = false; }
    void paper() {}
    bool showsCards() const { return cards; }
    bool isGrouped() const { return grouped; }
    QAction &tool(const char *name) const { return *tools.tool(name); }
    QToolButton *button(const char *name) const
    {
        return qobject_cast<QToolButton *>(bar->widgetForAction(&tool(name)));
    }
};

constexpr ToolCommand<Window> kCommands[] = {
    {"miSort", &Window::sort}, {"miCollapseAll", &Window::collapse, &Window::isGrouped},
    {"miFind", &Window::fail}, {"miView_Table", &Window::table},
    {"miView_Card", &Window::paper, nullptr, &Window::showsCards},
    {"miShowFields", &Window::paper}, {"miPrintPreview", &Window::paper},
};

Window::Window()
{
    auto *const column = new QVBoxLayout(this);
    column->addWidget(bar);
    column->addWidget(line);
    tools.connectTools(*this, kCommands);
}

} // namespace

/// Tools of a window; their icons, keys and captions are held in the dialogs that have them.
class tst_ToolSet : public QObject {
    Q_OBJECT
private slots:
    void bandsShowTheirRowsInOrderAndTipsTheirKeys()
    {
        Window w;
        QStringList shown;
        for (const QAction *a : w.bar->actions()) shown << (a->isSeparator() ? "-" : a->objectName());
        QCOMPARE(shown.join(u' '), "miFind miShowFields miSort miGroupBy miCollapseAll miExpandAll - "
                                   "miView_Table miView_Card miView_CardMin - miPrintPreview");
        QCOMPARE(w.tool("miViewStyle").menu(), w.tools.popUp("bndPopUp_ViewStyle"));
        QCOMPARE(w.tools.popUp("bndPopUp_View")->actions().first(), &w.tool("miFind")); // one tool on both
        setLanguage(English, {});
        w.tools.retranslate();
        QCOMPARE(w.tool("miSort").toolTip(), "Sort (Ctrl+Shift+S)");
        setLanguage(Hungarian, {});
    }
    void aToolRunsItsCommandWhenItCan()
    {
        Window w;
        w.tool("miSort").trigger();
        w.tool("miCollapseAll").trigger();
        w.grouped = false;
        QVERIFY(w.tool("miCollapseAll").isEnabled());
        emit w.tools.popUp("bndPopUp_View")->aboutToShow(); // asks what can be done
        w.tool("miCollapseAll").trigger();        // disabled
        w.tool("miFind").trigger();               // its error goes to the relay
        QCOMPARE(w.log, QStringList({"sort", "collapse", "error no disk"}));
    }
    void aToolIsShownOnceItDoesSomethingAndEndsWithWhoeverItWorksFor()
    {
        Window w;
        auto user = std::make_unique<QObject>();
        QVERIFY(w.tool("miSort").isVisible() && !w.tool("miGroupBy").isVisible());
        QVERIFY(w.tool("miViewStyle").isVisible()); // a menu
        w.tools.on("miGroupBy", {[&] { w.log << "group"; }, {}, {}, user.get()});
        w.tools.refresh();
        QVERIFY(w.tool("miGroupBy").isVisible() && w.tool("miGroupBy").isEnabled());
        w.tool("miGroupBy").trigger();
        user.reset();
        w.tool("miGroupBy").trigger();
        w.tools.refresh();
        QVERIFY(!w.tool("miGroupBy").isEnabled());
        QCOMPARE(w.log, QStringList{"group"});
    }
    void aToolThatIsOnFollowsItsOwner()
    {
        Window w;
        w.tool("miView_Card").trigger();          // its owner says: still no cards
        QVERIFY(!w.tool("miView_Card").isChecked());
        w.tools.setChecked("miView_Table", true); // showing it runs nothing
        w.cards = true;
        w.tools.refresh();
        QVERIFY(w.tool("miView_Card").isChecked() && !w.tool("miView_Table").isChecked());
        QCOMPARE(w.log, QStringList());
        w.tool("miView_Table").trigger();
        QVERIFY(!w.tool("miView_Card").isChecked());
        QCOMPARE(w.log, QStringList{"table"});
    }
    /// One stop for Tab, arrows from there; a click leaves the focus alone.
    void theToolBarIsReachedByKeys()
    {
        Window w;
        w.show();
        w.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w));
        w.line->setFocus();
        const auto key = [&w](Qt::Key k) { QTest::keyClick(w.focusWidget(), k); };
        QTest::mouseClick(w.button("miSort"), Qt::LeftButton);
        QVERIFY(w.line->hasFocus());
        key(Qt::Key_Tab);
        QCOMPARE(w.focusWidget(), w.button("miFind"));
        for (int n = 0; n < 2; ++n) key(Qt::Key_Right);
        key(Qt::Key_Space);
        QCOMPARE(w.log, QStringList({"sort", "sort"}));
        key(Qt::Key_End);
        QCOMPARE(w.focusWidget(), w.button("miPrintPreview"));
        key(Qt::Key_Tab);
        QVERIFY(w.line->hasFocus());
        w.tool("miFind").setEnabled(false);
        key(Qt::Key_Tab);
        QCOMPARE(w.focusWidget(), w.button("miShowFields"));
    }
};
QVDC_TEST(tst_ToolSet)
#include "tst_ToolSet.moc"
