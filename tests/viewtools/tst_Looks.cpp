#include "dialogs/viewtools/ViewTools.h"
#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "kit/tools/Icons.h"
#include "kit/tools/ToolSet.h"
#include "support/Looks.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"

#include <QAction>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QToolBar>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::darkPalette;
using tests::PlainGrid;
using tests::whileModal;

namespace {

constexpr std::pair<int, const char *> kLanguages[] = {
    {Hungarian, "hu"}, {Romanian, "ro"}, {Vietnamese, "vi"}, {English, "en"}};

/// Pictures for the eye go where QVDC_PICTURES says; without it none are kept.
void keepPicture(const QPixmap &picture, const QString &name)
{
    const QString folder = qEnvironmentVariable("QVDC_PICTURES");
    if (!folder.isEmpty() && QDir().mkpath(folder))
        QVERIFY(picture.save(folder + u'/' + name + QStringLiteral(".png")));
}

struct Names final : EntrySource {
    QStringList entries() const override
    {
        return {txt(Text{3299, u"Rétegnév"}), QStringLiteral("Telekhatár"), QStringLiteral("Út")};
    }
};

} // namespace

class tst_Looks : public QObject {
    Q_OBJECT
private slots:
    void nothingIsCutOffInAnyLanguage_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<bool>("dark");
        for (const auto &[id, name] : kLanguages) {
            QTest::newRow(name) << id << false;
            QTest::addRow("%s-dark", name) << id << true;
        }
    }
    void nothingIsCutOffInAnyLanguage()
    {
        QFETCH(int, language);
        QFETCH(bool, dark);
        setLanguage(language, {});
        const QPalette before = QApplication::palette();
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        const auto look = [](QDialog &d) {
            QCOMPARE(tests::flawsOf(d), QStringList());
            keepPicture(d.grab(), d.objectName() + u'-' + QLatin1String(QTest::currentDataTag()));
            d.reject();
        };
        PlainGrid grid({txt(Text{3411, u"Sorszám"}), txt(Text{3299, u"Rétegnév"}),
                        txt(Text{3307, u"Látható"}), txt(Text{3305, u"Vonaltípus"}),
                        txt(Text{3306, u"Láthatóság"})});
        grid.sort = grid.groups = PlainGrid::keys(QStringLiteral("-3 +1"));
        grid.shown = {1, 0, 4};
        bool confirmed = false;
        const auto onSort = whileModal<frmSort>(look);
        QVERIFY(!frmSort().SortGrid(grid));
        const auto onGroup = whileModal<frmGroupBy>(look);
        QVERIFY(!frmGroupBy().GroupGrid(grid));
        const auto onFields = whileModal<frmShowfields>(look);
        frmShowfields().ShowFields(grid, confirmed);
        qint32 index = 0;
        const auto onChoose = whileModal<frmChooseList>(look);
        QVERIFY(!frmChooseList().getIndex(Names(), index));
        QApplication::setPalette(before);
        setLanguage(Hungarian, {});
    }

    void toolsOnBarAndMenu()
    {
        if (qEnvironmentVariableIsEmpty("QVDC_PICTURES"))
            QSKIP("only for the eye: set QVDC_PICTURES to a folder");
        for (const auto &[id, name] : kLanguages) {
            setLanguage(id, {});
            QWidget window;
            ErrorRelay relay;
            ToolSet tools(kViewTools, relay, &window);
            for (const Tool &row : kViewTools)
                if (const QAction *tool = tools.tool(row.name); tool && !tool->menu()) tools.on(row.name, {});
            tools.setChecked("miView_Table", true);
            tools.tool("miExpandAll")->setEnabled(false);
            keepPicture(tools.toolBar("mnuBar", {21801, u"Eszköztár"})->grab(),
                        QStringLiteral("bar-") + QLatin1String(name));
            QMenu &menu = *tools.popUp("bndPopUp_View");
            menu.adjustSize();
            keepPicture(menu.grab(), QStringLiteral("menu-") + QLatin1String(name));
        }
        setLanguage(Hungarian, {});
    }

    void iconsOnOneSheet()
    {
        if (qEnvironmentVariableIsEmpty("QVDC_PICTURES"))
            QSKIP("only for the eye: set QVDC_PICTURES to a folder");
        const QPalette before = QApplication::palette();
        for (const bool dark : {false, true}) {
            QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
            const int rows = (int(iconRows().size()) + 5) / 6;
            QPixmap sheet(6 * 210, rows * 100);
            sheet.fill(QApplication::palette().color(QPalette::Window));
            QPainter painter(&sheet);
            int n = 0;
            for (const IconRow &row : iconRows()) {
                const QPoint at(n % 6 * 210 + 10, n / 6 * 100 + 8);
                int x = at.x();
                for (const int side : {16, 32, 64}) {
                    toolIcon(row.name).paint(&painter, QRect(x, at.y(), side, side));
                    x += side + 14;
                }
                toolIcon(row.name).paint(&painter, QRect(x, at.y(), 16, 16), Qt::AlignCenter,
                                         QIcon::Disabled);
                painter.setPen(QApplication::palette().color(QPalette::WindowText));
                painter.drawText(at + QPoint(0, 82), QLatin1String(row.name));
                ++n;
            }
            keepPicture(sheet, dark ? QStringLiteral("icons-dark") : QStringLiteral("icons-light"));
        }
        QApplication::setPalette(before);
    }
};
QVDC_TEST(tst_Looks)
#include "tst_Looks.moc"
