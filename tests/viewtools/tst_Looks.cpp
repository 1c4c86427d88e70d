#include "dialogs/viewtools/ViewTools.h"
#include "dialogs/viewtools/frmChooseList.h"
#include "dialogs/viewtools/frmGroupBy.h"
#include "dialogs/viewtools/frmShowfields.h"
#include "dialogs/viewtools/frmSort.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "kit/forms/AccessKeys.h"
#include "kit/tools/Icons.h"
#include "kit/tools/ToolSet.h"
#include "support/Modal.h"
#include "support/PlainGrid.h"
#include "support/Registry.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QToolBar>
#include <QtTest/qtest.h>

using namespace QV_DOC_CONTROLS;
using tests::PlainGrid;
using tests::whileModal;

namespace {

constexpr std::pair<int, const char *> kLanguages[] = {
    {Hungarian, "hu"}, {Romanian, "ro"}, {Vietnamese, "vi"}, {English, "en"}};

QPalette darkPalette()
{
    QPalette p(QColor(0x2d, 0x2f, 0x33));
    p.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, QColor(0x85, 0x88, 0x8c));
    p.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0xc2));
    return p;
}

/// Pictures for the eye go where QVDC_PICTURES says; without it none are kept.
void keepPicture(const QPixmap &picture, const QString &name)
{
    const QString folder = qEnvironmentVariable("QVDC_PICTURES");
    if (!folder.isEmpty() && QDir().mkpath(folder))
        QVERIFY(picture.save(folder + u'/' + name + QStringLiteral(".png")));
}

QString captionOf(const QWidget &w)
{
    if (const auto *b = qobject_cast<const QAbstractButton *>(&w)) return b->text();
    if (const auto *g = qobject_cast<const QGroupBox *>(&w)) return g->title();
    const auto *l = qobject_cast<const QLabel *>(&w);
    return l ? l->text() : QString();
}

/// Everything with a caption has room for it, and no two access keys are the same.
void lookAt(const QDialog &d)
{
    QString keys;
    for (const QWidget *w : d.findChildren<QWidget *>()) {
        if (!w->isVisible()) continue;
        const QString caption = captionOf(*w);
        const auto *label = qobject_cast<const QLabel *>(w);
        if (!caption.isEmpty() && !(label && label->wordWrap()))
            QVERIFY2(w->width() >= w->minimumSizeHint().width()
                         && w->height() >= w->minimumSizeHint().height(),
                     qPrintable(d.objectName() + u' ' + caption));
        if (label && label->wordWrap())
            QVERIFY2(label->heightForWidth(label->width()) <= label->height(), qPrintable(caption));
        if (const auto *list = qobject_cast<const QComboBox *>(w))
            QVERIFY2(list->width() >= list->sizeHint().width(),
                     qPrintable(d.objectName() + u' ' + list->objectName()));
        const QChar key = accessKeyOf(caption);
        if (key.isNull()) continue;
        QVERIFY2(!keys.contains(key), qPrintable(d.objectName() + u' ' + caption));
        keys += key;
    }
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
            lookAt(d);
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
            keepPicture(tools.toolBar("mnuBar", {21801, u"Eszköztár"})->grab(), QStringLiteral("bar-") + QLatin1String(name));
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
