#include "controls/usSiInfo.h"
#include "dialogs/editors/frmSupSid.h"
#include "dialogs/select/frmSelect.h"
#include "dialogs/select/frmSetup.h"
#include "dialogs/values/frmValue.h"
#include "facade/clsDocDlgs.h"
#include "facade/contract/FontPicker.h"
#include "facade/contract/RecordEditors.h"
#include "facade/contract/ResourcePicker.h"
#include "facade/services/Language.h"
#include "facade/services/Trace.h"
#include "support/FaultyDoc.h"
#include "support/Modal.h"
#include "support/OwnStore.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/StrokeFont.h"
#include "support/SymbolForm.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

using namespace QV_DOC_CONTROLS;
using namespace ZolWDoc;
using tests::child;
using tests::symbol;
using tests::whileModal;

namespace {

constexpr int kSampleColumn = 1;
QAction &tool(QWidget &of, const char *name) { return child<QAction>(of, name); }
Grid &items(QWidget &of) { return child<Grid>(of, "gridItems"); }
void chooseRow(QWidget &of, qint16 number) { items(of).setCurrentRow(items(of).rowWithId(number)); }
QMenu *askedFor(QWidget &over, QPoint at)       ///< by a right click
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, over.mapToGlobal(at));
    QApplication::sendEvent(&over, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}
/// Goes down a menu by what can be seen and used there, chooses the last one and closes the menu.
void choose(QMenu *menu, const std::vector<const char *> &names)
{
    for (const char *name : names) {
        QVERIFY2(menu, name);
        const auto actions = menu->actions();
        const auto found = std::ranges::find(actions, QLatin1String(name), &QAction::objectName);
        QVERIFY2(found != actions.end() && (*found)->isVisible() && (*found)->isEnabled(), name);
        menu = (*found)->menu();
        if (!menu) (*found)->trigger();
    }
    while (QWidget *const open = QApplication::activePopupWidget()) open->close();
}
/// A host with a vector font and settings of its own.
struct FontHost : tests::OwnStore {
    tests::StrokeFontHost fonts;
    FontHost() { setHostServices(this); }
    VectorFontProvider *vectorFonts(const ZOLW_Doc *) override { return &fonts; }
};
/// What a sample shows: the pixels that are not its ground.
int inkOf(clsJS_Sid &js, qint16 number, Grid &grid)
{
    const QImage sample = js.source().picture(grid.rowWithId(number), kSampleColumn).toImage();
    int ink = 0;
    for (int y = 0; y < sample.height(); ++y)
        for (int x = 0; x < sample.width(); ++x) ink += sample.pixel(x, y) != sample.pixel(0, 0);
    return ink;
}

/// An item of the list behind a line, which must have ten.
void choose(QComboBox &of, int item, bool byMouse)
{
    QCOMPARE(of.count(), 10);
    QAbstractItemView &list = *of.view();
    if (!byMouse) {
        QTest::keyClick(&of, Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i < item; ++i) QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
    } else {
        QTest::mouseClick(&of, Qt::LeftButton, {}, {of.width() - 5, of.height() / 2});
        list.scrollTo(list.model()->index(item, 0));
        const QPoint at = list.visualRect(list.model()->index(item, 0)).center();
        QTest::mouseMove(list.viewport(), at);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    }
    QVERIFY(!list.isVisible());
}

} // namespace

class tst_SymbolDialogs : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<refhost::SqliteDoc> m_doc;
    std::unique_ptr<tests::OwnStore> m_store;
    clsDocDlgs m_dialogs;

private slots:
    void init()
    {
        setLanguage(Hungarian, {});
        m_store = std::make_unique<tests::OwnStore>();
        m_doc = tests::symbolDoc({symbol(1, "A"), symbol(2, "B"), symbol(3, "C", "Kettő")});
        for (tSid s : m_doc->symbols().readAll()) {
            s.Facename = QStringLiteral("DejaVu Sans"), s.Code = 'M', s.Align = 0;
            m_doc->symbols().update(s);
        }
    }
    void cleanup()
    {
        m_store.reset();
        QVERIFY2(traceObjects().entries().empty(), "a form or manager was not released");
    }

    void okHandsOverTheCurrentSymbol()
    {
        tSid chosen{.SidId = 2};
        const auto watch = whileModal<frmSelect>([](frmSelect &d) {
            QCOMPARE(d.windowTitle(), QStringLiteral("Jelkulcstípus-választó"));
            auto &preview = child<usSiInfo>(d, "usSiInfo1");
            QCOMPARE(preview.GetSidRec().SidId, qint16(2));
            chooseRow(d, 3);
            QCOMPARE(preview.GetSidRec().SidId, qint16(3));
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(m_dialogs.bSelect_Sid(*m_doc, chosen));
        QVERIFY(chosen == m_doc->symbols().find(3));
    }

    void whateverIsNoOkLeavesTheRecord()
    {
        const tSid before{.SidId = 2, .ShortName = QStringLiteral("mine")};
        tSid chosen = before;
        for (const bool cancelled : {true, false}) {
            const auto watch = whileModal<frmSelect>([&](frmSelect &d) {
                chooseRow(d, 3);
                if (!cancelled) items(d).setFilterText(QStringLiteral("nincs ilyen"));
                child<QPushButton>(d, cancelled ? "cmdCancel" : "cmdOk").click(); // OK, but nothing is listed
            });
            QVERIFY(!m_dialogs.bSelect_Sid(*m_doc, chosen));
            QVERIFY(chosen == before);
        }
    }

    void samplesAndPreviewAreZoomedByTheirTools()
    {
        tSid chosen{.SidId = 1};
        const auto watch = whileModal<frmSelect>([](frmSelect &d) {
            const int before = inkOf(*d.jsSid, 1, items(d));
            QVERIFY(before > 0);
            tool(d, "cmdSid_ViewZoomOut").trigger();
            QVERIFY(inkOf(*d.jsSid, 1, items(d)) < before);
            tool(d, "cmdSid_ViewZoomIn").trigger();
            QCOMPARE(inkOf(*d.jsSid, 1, items(d)), before);
            auto &preview = child<usSiInfo>(d, "usSiInfo1");
            choose(askedFor(preview, {9, 9}), {"cmdSid_ZoomIn"}); // makes it smaller, as published
            QCOMPARE(preview.Zoom(), 9.5); // the symbol's own is 10
            QWidget &cells = *items(d).table()->viewport();
            const QPoint below = cells.rect().bottomLeft() + QPoint(9, -9);
            for (const QPoint at : {QPoint(9, 9), below})       // on a row, and where there is none
                choose(askedFor(cells, at), {"mnuSiZoom", "cmdSid_ZoomOut"});
            QCOMPARE(preview.Zoom(), 10.5);
            choose(askedFor(cells, below), {"miSiInfo"});
            QVERIFY(!preview.isVisible());
            QVERIFY(!tool(d, "cmdSid_ZoomIn").isEnabled());
            d.reject();
        });
        m_dialogs.bSelect_Sid(*m_doc, chosen);
    }

    void everyRefreshGetsTheSamplesReady()
    {
        m_store.reset();
        const FontHost host;
        const auto makeVector = [this, &host](qint16 id) {
            tSid s = *m_doc->symbols().find(id);
            s.Type = kVectorFont, s.Facename = host.fonts.name(), s.Code = 'N';
            m_doc->symbols().update(s);
        };
        for (const qint16 id : {1, 2}) makeVector(id);
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            QVERIFY(inkOf(*d.jsSid, 2, items(d)) > 0);
            std::vector<std::vector<tSid>> fills;
            connect(d.jsSid, &clsJS_Sid::FillSample, &d, [&](qint32 &count, std::vector<tSid> &symbols) {
                if (count == qint32(symbols.size())) fills.push_back(symbols);
            });
            d.jsSid->Refresh();
            makeVector(3);
            d.jsSid->Refresh();
            QCOMPARE(fills.size(), 2u);
            QCOMPARE(fills.back(), m_doc->symbols().readAll());
            QCOMPARE(inkOf(*d.jsSid, 3, items(d)), inkOf(*d.jsSid, 2, items(d)));
            d.reject();
        });
        m_dialogs.bEdit_Sids(*m_doc);
    }

    void theLayoutOfThePageIsKept()
    {
        const QString path = settingsFolder() + QStringLiteral("/jsSid-hun.jgl");
        QFile::remove(path);
        for (const GridView before : {GridView::Table, GridView::Card}) {
            const auto watch = whileModal<frmSetup>([before](frmSetup &d) {
                QCOMPARE(items(d).view(), before);
                tool(d, "miView_Card").trigger();
                d.reject();
            });
            m_dialogs.bEdit_Sids(*m_doc);
            QVERIFY(QFile::exists(path));
        }
        QFile::remove(path);
    }

    void aSampleFollowsAnEdit()
    {
        tSid plain = *m_doc->symbols().find(2);
        plain.DspZoom = 0;
        m_doc->symbols().update(plain);
        const auto watch = whileModal<frmSetup>([](frmSetup &d) {
            const int before = inkOf(*d.jsSid, 1, items(d));
            QAbstractItemModel &cells = *items(d).table()->model();
            auto &preview = child<usSiInfo>(d, "usSiInfo1");
            chooseRow(d, 1);
            preview.setZoom(7);
            QVERIFY(cells.setData(cells.index(0, 3), QStringLiteral("2,5")));
            QVERIFY(inkOf(*d.jsSid, 1, items(d)) < before);
            QCOMPARE(preview.Zoom(), 7.0);              // still the user's
            chooseRow(d, 2);
            QCOMPARE(preview.Zoom(), 3.0);              // a symbol without a zoom of its own
            d.reject();
        });
        QVERIFY(!m_dialogs.bEdit_Sids(*m_doc));
        QCOMPARE(m_doc->symbols().find(1)->Size_mm, 2.5f);      // edits stay
    }

    void everyPresetSizeIsChosenByKeysAndByMouse()
    {
        const float presets[] = {1, 1.5f, 2, 2.5f, 3, 3.5f, 4, 5, 7, 10};
        const QStringList shown = QStringLiteral("1,0 1,5 2,0 2,5 3,0 3,5 4,0 5,0 7,0 10,0").split(u' ');
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            items(d).selectAll();
            for (const bool byMouse : {false, true})
                for (int i = 0; i < 10; ++i) {
                    const auto user = whileModal<frmValue>([&](frmValue &box) {
                        QCOMPARE(box.findChild<QComboBox *>()->itemText(i), shown[i]);
                        choose(*box.findChild<QComboBox *>(), i, byMouse);
                        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
                    });
                    tool(d, "cmdSid_Size").trigger();
                    for (const tSid &s : m_doc->symbols().readAll()) QCOMPARE(s.Size_mm, presets[i]);
                }
            d.reject();
        });
        m_dialogs.bEdit_Sids(*m_doc);
    }

    void selectedSymbolsMoveByTheGroupMenu()
    {
        const auto watch = whileModal<frmSetup>([](frmSetup &d) {
            QMenu &menu = child<QMenu>(d, "bndGroups2");
            items(d).selectRows({});
            QVERIFY(!tool(d, "cmdSid_GroupMove").isEnabled());
            items(d).selectAll();
            QVERIFY(tool(d, "cmdSid_GroupMove").isEnabled());
            QStringList entries;
            for (const QAction *a : menu.actions())
                entries << a->objectName() + u' ' + a->text() + u' ' + a->data().toString();
            QCOMPARE(entries, (QStringList{"1cmdSid_GroupMove Egy 1001", "2cmdSid_GroupMove Kettő 1002"}));
            menu.actions().at(1)->trigger();
            child<QPushButton>(d, "cmdOk").click();
        });
        QVERIFY(m_dialogs.bEdit_Sids(*m_doc));
        for (const tSid &s : m_doc->symbols().readAll()) QCOMPARE(s.GroupName, QStringLiteral("Kettő"));
    }

    void anErrorOfTheDocumentReachesTheCaller()
    {
        tests::FaultyDoc faulty(*m_doc);
        const auto watch = whileModal<frmSetup>([&](frmSetup &d) {
            items(d).selectAll();
            tests::ScriptedPrompts user({{"numbers", QStringLiteral("Vastagság"),
                                          QStringLiteral("A jelkulcstípus vonalvastagsága (csak az ZOL-2.5 "
                                                         "jelkulcsokra érvényes)|Vastagság=|0.16"),
                                          QVariantList{0.2}}});
            faulty.log.failNext = QStringLiteral("symbols.update");
            tool(d, "cmdSid_Width").trigger();
        });
        QVERIFY_THROWS_EXCEPTION(tests::HostError, m_dialogs.bEdit_Sids(faulty));
    }

    /// Each of the dialogs is closed and its call returns.
    void theOwnerMayGoMeanwhile()
    {
        tSid chosen{.SidId = 2};
        QWidget *owner = nullptr;
        const std::pair<const char *, std::function<bool()>> calls[] = {
            {"select", [&] { return m_dialogs.bSelect_Sid(*m_doc, chosen); }},
            {"setup", [&] { return m_dialogs.bEdit_Sids(*m_doc); }},
            {"manager", [&] { qint16 id = 2; return frmSupSid(owner).bDoModal(*m_doc, MODE_EDIT, id); }},
            {"editor", [&] { return recordEditors()->edit(TableKind::Symbols, *m_doc, 2, owner); }},
            {"font", [&] { return fontPicker()->pickTrueType({}, owner).has_value(); }}};
        for (const auto &[name, call] : calls) {
            owner = new QWidget;
            owner->show(), owner->activateWindow();
            QVERIFY2(QTest::qWaitForWindowActive(owner), name);
            const auto watch = whileModal<QDialog>([&](QDialog &d) {
                QVERIFY(d.parentWidget() == owner);
                delete owner;
            });
            QVERIFY2(!call(), name);
        }
    }

    void whatNobodyOffersIsDisabled()
    {
        const auto watch = whileModal<frmSetup>([](frmSetup &d) {
            items(d).selectAll();
            const auto enabled = [&d] {
                items(d).setCurrentRow(1);              // the tools are asked again
                QStringList names;
                for (const char *name : {"cmdSid_Edit", "cmdSid_TrueType", "miLoadFont25", "cmdSid_Layer",
                                         "cmdSid_Size", "miSave2XML", "moLoadXML"})
                    if (tool(d, name).isEnabled()) names << QLatin1String(name);
                items(d).setCurrentRow(0);
                return names;
            };
            QCOMPARE(enabled().size(), 7);
            RecordEditors *const editors = setRecordEditors(nullptr);
            FontPicker *const fonts = setFontPicker(nullptr);
            ResourcePicker *const resources = setResourcePicker(nullptr);
            const QStringList left = enabled();
            setRecordEditors(editors), setFontPicker(fonts), setResourcePicker(resources);
            QCOMPARE(left, (QStringList{"cmdSid_Size", "miSave2XML", "moLoadXML"}));
            d.reject();
        });
        m_dialogs.bEdit_Sids(*m_doc);
    }
};

QVDC_TEST(tst_SymbolDialogs)
#include "tst_SymbolDialogs.moc"
