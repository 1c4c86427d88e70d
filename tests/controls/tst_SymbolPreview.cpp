#include "controls/ZOL3_SiInfo.h"
#include "controls/usSiInfo.h"
#include "document/SqliteDoc.h"
#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/StrokeFont.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tSid;

namespace {

struct SymbolDoc : tests::FaultyDoc {
    using FaultyDoc::FaultyDoc;
    ZolWDoc::SymbolRole &symbols() override { return log.on("symbols"), FaultyDoc::symbols(); }
};

/// Both twins on a host's form, with a document that holds a symbol.
struct Form {
    std::unique_ptr<refhost::SqliteDoc> real = refhost::SqliteDoc::create(QStringLiteral(":memory:"));
    SymbolDoc doc{*real};
    const tests::StrokeFontHost fonts;
    tSid symbol{.GroupId = real->symbols().groups().readAll().front().GroupId,
                .Code = 'N',
                .ShortName = QStringLiteral("ny"),
                .FullName = QStringLiteral("Nyíl"),
                .Size_mm = 4,
                .YwFact = 1,
                .XwFact = 1,
                .Facename = QStringLiteral("Strokes"),
                .Weight = 50,
                .LayId = 1,
                .Type = 1};
    QDialog dialog;
    usSiInfo *control = new usSiInfo(&dialog);
    ZOL3_SiInfo *twin = new ZOL3_SiInfo(&dialog);
    QStringList raised;

    Form()
    {
        auto *const row = new QHBoxLayout(&dialog);
        symbol.SidId = real->symbols().add(symbol);
        for (SymbolPreview *c : all()) {
            row->addWidget(c);
            QObject::connect(c, &SymbolPreview::OnZoom,
                             [this](float z) { raised << QString::number(double(z), 'g', 4); });
        }
        dialog.resize(500, 200);
        dialog.show();
    }
    std::vector<SymbolPreview *> all() const { return {control, twin}; }
    bool blank(const SymbolPreview *c) const
    {
        const QImage picture = c->GetSiPicture().toImage();
        QImage cleared(picture);
        cleared.fill(c->BackColor());
        return picture == cleared;
    }
};

QTimer &repeatOf(SymbolPreview &c) { return *c.findChild<QTimer *>(); }
void tick(SymbolPreview &c, int times)
{
    for (int i = 0; i < times && repeatOf(c).isActive(); ++i) {
        QTimerEvent event(repeatOf(c).timerId());
        QCoreApplication::sendEvent(&repeatOf(c), &event);
    }
}

} // namespace

class tst_SymbolPreview : public QObject {
    Q_OBJECT
private slots:
    void whatIsMissingLeavesTheSurfaceCleared()
    {
        Form f;
        for (SymbolPreview *c : f.all()) {
            c->setVisibleGrid(true);
            c->LetSidRec(f.symbol);
            QVERIFY(f.blank(c));                // no document
            c->SetDoc(&f.doc);
            QVERIFY(!f.blank(c));
            c->setSidId(-1);
            QVERIFY(!f.blank(c));               // no symbol, on a grid
            c->setSidId(32000);
            QVERIFY(f.blank(c));                // no such symbol
            QCOMPARE(c->SidId(), qint16(32000));
            QCOMPARE(c->GetSidRec(), tSid());
            c->setVisibleGrid(false);
            c->setSidId(f.symbol.SidId);
            QCOMPARE(c->GetSidRec(), *f.real->symbols().find(f.symbol.SidId));
            QVERIFY(!f.blank(c));
            tSid other = f.symbol;
            other.Facename = QStringLiteral("?");
            c->LetSidRec(other);
            QVERIFY(f.blank(c));                // no such font
            c->LetSidRec(f.symbol);
            c->TearDown();
            c->TearDown();
            QVERIFY(f.blank(c));
            c->ShowSid();                       // and nothing is asked
        }
    }

    void paintingAsksNeitherDocumentNorFonts()
    {
        Form f;
        f.control->setSidId(f.symbol.SidId);    // as a form does, before there is a document
        f.control->SetDoc(&f.doc);
        QCOMPARE(f.doc.log.calls.count(QStringLiteral("symbols")), 1);
        const int asked = f.fonts.asked;
        f.control->grab();
        f.control->GetSiPicture();
        f.control->setSiColor(Qt::red);
        f.control->cmdZoomOut->click();
        QCOMPARE(f.doc.log.calls.size(), 1);
        QCOMPARE(f.fonts.asked, asked);
        f.control->ShowSid();                   // the host may have another font by now
        QCOMPARE(f.fonts.asked, asked + 1);
        f.doc.log.failNext = QStringLiteral("symbols");
        QVERIFY_THROWS_EXCEPTION(tests::HostError, f.control->setSidId(f.symbol.SidId));
        QVERIFY(f.blank(f.control));
        f.doc.log.failNext = QStringLiteral("symbols");
        tests::ScriptedPrompts user{{{"tell", {}, QStringLiteral("symbols"), {}, Icon::Exclamation}}};
        f.control->setProperty("SidId", 5);     // through which nothing is thrown
    }

    void buttonsStepTheZoomWithinItsBounds_data()
    {
        QTest::addColumn<double>("zoom");
        QTest::addColumn<bool>("larger");
        QTest::addColumn<int>("ticks");         // 0 = clicked
        QTest::addColumn<QString>("raised");
        QTest::addColumn<bool>("running");
        QTest::newRow("smaller") << 3.0 << false << 0 << "2.5" << false;
        QTest::newRow("larger") << 3.0 << true << 0 << "3.5" << false;
        QTest::newRow("held smaller") << 3.0 << false << 3 << "2.9 2.8 2.7" << true;
        QTest::newRow("held larger") << 3.0 << true << 2 << "3.1 3.2" << true;
        QTest::newRow("least") << 0.6 << false << 0 << "0.2" << false;
        QTest::newRow("at the least") << 0.2 << false << 0 << "0.2" << false;
        QTest::newRow("held to the least") << 0.45 << false << 9 << "0.35 0.25 0.2" << false;
        QTest::newRow("most") << 99.75 << true << 0 << "100" << false;
        QTest::newRow("held to the most") << 99.85 << true << 9 << "99.95 100" << false;
    }
    void buttonsStepTheZoomWithinItsBounds()
    {
        QFETCH(double, zoom);
        QFETCH(bool, larger);
        QFETCH(int, ticks);
        QFETCH(QString, raised);
        Form f;
        for (SymbolPreview *c : f.all()) {
            c->setZoom(zoom);
            QCOMPARE(c->Zoom(), zoom);
            f.raised.clear();
            QToolButton *const button = larger ? c->cmdZoomOut : c->cmdZoomIn;
            QTest::mousePress(button, Qt::LeftButton);
            QCOMPARE(repeatOf(*c).interval(), 500);
            QVERIFY(repeatOf(*c).isActive());
            tick(*c, ticks);
            if (ticks > 0) QCOMPARE(repeatOf(*c).interval(), 10);
            if (ticks > 0) QTEST(repeatOf(*c).isActive(), "running");
            QTest::mouseRelease(button, Qt::LeftButton);
            QVERIFY(!repeatOf(*c).isActive());
            QCOMPARE(f.raised.join(u' '), raised);
        }
    }

    void everyPropertyIsKeptAndDrawn_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("shows");
        const auto row = [](const char *name, const QVariant &value, bool shows = true) {
            QTest::newRow(name) << value << shows;
        };
        row("BackColor", 0x80000005u);
        row("BorderStyle", 1);
        row("Zoom", 4.1);
        row("SidId", 32000);
        row("SiColor", 0x112233u);
        row("VisibleGrid", true);
        row("VisibleZoom", false);
        row("Appearance", 1, false); // without a border
        row("VisibleProt", true);
        row("VisibleFrame", true);
        row("ToolTipSid", QStringLiteral("ő"), false);
        row("ShowEnabled", false);
    }
    void everyPropertyIsKeptAndDrawn()
    {
        QFETCH(QVariant, value);
        QFETCH(bool, shows);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        Form f;
        f.symbol.ProtType = 1, f.symbol.ProtXmm = 1;
        for (SymbolPreview *c : f.all()) {
            c->SetDoc(&f.doc);
            f.real->symbols().update(f.symbol);
            QVariantMap bag{{QStringLiteral("SidId"), int(f.symbol.SidId)},
                            {QStringLiteral("BackColor"), 0xffffeeu}}; // a border shows on it
            c->setPropertyBag(bag);
            const QImage before = c->grab().toImage();
            bag[name] = value;
            c->setPropertyBag(bag);
            if (c == f.twin && name == QStringLiteral("ShowEnabled")) bag.remove(name); // it has none
            QCOMPARE(c->propertyBag(), bag);
            QCOMPARE(c->grab().toImage() != before, shows && bag.contains(name));
            c->setPropertyBag({});
            QCOMPARE(c->propertyBag(), QVariantMap());
        }
    }

    void zoomsOutsideTheBoundsBecomeTheBounds()
    {
        Form f;
        f.control->setZoom(1e300);
        QCOMPARE(f.control->Zoom(), 100.0);
        f.control->setZoom(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(f.control->Zoom(), 100.0);
        f.control->setZoom(-1);
        QCOMPARE(f.control->Zoom(), 0.2);
        f.control->setZoom(0.2);
        QCOMPARE(f.raised, QStringList({"100", "0.2"})); // once for each change
        f.control->setBorderStyle(70000);
        QCOMPARE(f.control->BorderStyle(), 32767);
    }

    void theMouseOnTheSurfaceIsPassedOn()
    {
        Form f;
        QStringList events;
        const auto note = [&](const char *what) {
            return [&events, what](qint16 button, qint16 shift, double x, double) {
                events
                    << QStringLiteral("%1 %2 %3 %4").arg(QLatin1String(what)).arg(button).arg(shift).arg(x);
            };
        };
        connect(f.control, &SymbolPreview::MouseDown, this, note("down"));
        connect(f.control, &SymbolPreview::MouseMove, this, note("move"));
        connect(f.control, &SymbolPreview::MouseUp, this, note("up"));
        connect(f.control, &SymbolPreview::Click, this, [&] { events << QStringLiteral("click"); });
        QWidget *const surface = f.control->childAt(8, 8);
        const QString x = QString::number(8 * 1440.0 / surface->logicalDpiX());
        QTest::mouseClick(surface, Qt::LeftButton, Qt::ControlModifier, {8, 8});
        QTest::mousePress(surface, Qt::RightButton, {}, {8, 8});
        QTest::mouseRelease(surface, Qt::RightButton, {}, {8, 8});
        QCOMPARE(events,
                 QStringList({"down 1 2 " + x, "up 1 2 " + x, "click", "down 2 0 " + x, "up 2 0 " + x}));
    }

    void readersHearWhichSymbolIsShown()
    {
        Form f;
        f.control->SetDoc(&f.doc);
        f.control->setSidId(f.symbol.SidId);
        const auto *const said = QAccessible::queryAccessibleInterface(f.control);
        QCOMPARE(said->role(), QAccessible::Grouping);
        QCOMPARE(said->text(QAccessible::Description), QStringLiteral("%1 Nyíl").arg(f.symbol.SidId));
        const auto *const surface = QAccessible::queryAccessibleInterface(f.control->childAt(8, 8));
        QCOMPARE(surface->role(), QAccessible::Graphic);
        QCOMPARE(surface->text(QAccessible::Name), QStringLiteral("%1 Nyíl").arg(f.symbol.SidId));
    }

    void onlyTheTwinFollowsLanguageAndFont()
    {
        Form f;
        setLanguage(English, {});
        emit LanguageHub::instance().LanguageChanged();
        QCOMPARE(f.twin->cmdZoomIn->toolTip(), QStringLiteral("Reduce"));
        QCOMPARE(f.control->cmdZoomIn->toolTip(), QStringLiteral("Kicsinyítés"));
        f.dialog.hide();
        f.dialog.show();
        QCOMPARE(f.control->cmdZoomIn->toolTip(), QStringLiteral("Reduce"));
        setLanguage(Hungarian, {});
        const int before = f.twin->cmdZoomIn->width();
        f.twin->setFont(QFont(QStringLiteral("DejaVu Sans"), 30));
        QVERIFY(f.twin->cmdZoomIn->width() > before);
        const auto hasWindow = [](auto *c) { return requires { c->hWnd(); }; };
        QVERIFY(hasWindow(f.control) && !hasWindow(f.twin));
        QCOMPARE(f.control->hWnd(), f.control->childAt(8, 8)->winId());
    }
};
QVDC_TEST(tst_SymbolPreview)
#include "tst_SymbolPreview.moc"
