#include "controls/ZOL3_SiInfo.h"
#include "controls/usSiInfo.h"
#include "document/SqliteDoc.h"
#include "facade/services/Language.h"
#include "support/FaultyDoc.h"
#include "support/Registry.h"
#include "support/ScriptedPrompts.h"
#include "support/StrokeFont.h"

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tSid;

namespace {

struct SymbolDoc : tests::FaultyDoc {
    using FaultyDoc::FaultyDoc;
    tests::FaultySymbols &symbols() override { return log.on("symbols"), FaultyDoc::symbols(); }
};

/// Both twins on a host's form, with a document that holds a symbol.
struct Form {
    std::unique_ptr<refhost::SqliteDoc> real = refhost::SqliteDoc::create(":memory:");
    SymbolDoc doc{*real};
    const tests::StrokeFontHost fonts;
    tSid symbol{.Code = 'N', .FullName = "Nyíl", .Size_mm = 4, .Facename = fonts.name(),
                .Weight = 50, .ProtXmm = 1, .ProtType = 1, .LayId = 1, .Type = 1};
    QDialog dialog;
    usSiInfo *control = new usSiInfo(&dialog);
    ZOL3_SiInfo *twin = new ZOL3_SiInfo(&dialog);
    QStringList raised;

    Form()
    {
        auto *const row = new QHBoxLayout(&dialog);
        symbol.GroupId = real->symbols().groups().readAll().front().GroupId;
        symbol.SidId = real->symbols().add(symbol);
        for (SymbolPreview *c : all()) {
            row->addWidget(c);
            const auto note = [this](float zoom) { raised << QString::number(double(zoom), 'g', 4); };
            QObject::connect(c, &SymbolPreview::OnZoom, note);
        }
        dialog.resize(500, 200);
        dialog.show();
    }
    std::vector<SymbolPreview *> all() const { return {control, twin}; }
    static bool blank(const SymbolPreview *c)
    {
        const QImage picture = c->GetSiPicture().toImage();
        QImage cleared(picture);
        cleared.fill(c->BackColor());
        return picture == cleared;
    }
};

} // namespace

class tst_SymbolPreview : public QObject {
    Q_OBJECT
private slots:
    void whatIsMissingLeavesTheSurfaceCleared()
    {
        Form f;
        tSid other = f.symbol;
        other.Facename = "?";
        for (SymbolPreview *c : f.all()) {
            c->setVisibleGrid(true);
            c->LetSidRec(f.symbol);
            QVERIFY(f.blank(c));                // no document
            c->SetDoc(&f.doc);
            QVERIFY(!f.blank(c));
            c->setSidId(32000);
            QVERIFY(f.blank(c) && c->SidId() == 32000 && c->GetSidRec() == tSid()); // no such symbol
            c->setSidId(-1);
            QVERIFY(!f.blank(c));               // none, on a grid
            c->setVisibleGrid(false);
            c->setSidId(f.symbol.SidId);
            QVERIFY(!f.blank(c) && c->GetSidRec().FullName == f.symbol.FullName);
            c->LetSidRec(other);
            c->setVisibleGrid(true);
            c->setVisibleProt(true);
            QVERIFY(f.blank(c));                // no such font
            c->LetSidRec(f.symbol);
            c->TearDown();
            c->TearDown();
            c->ShowSid();
            QVERIFY(f.blank(c));
        }
    }

    void paintingAsksNeitherDocumentNorFonts()
    {
        Form f;
        f.control->setSidId(f.symbol.SidId);    // as a form does, before there is a document
        f.control->SetDoc(&f.doc);
        const int asked = f.fonts.asked;
        f.control->grab();
        f.control->setSiColor(Qt::red);
        f.control->cmdZoomOut->click();
        QCOMPARE(f.doc.log.calls.count("symbols"), 1);
        QCOMPARE(f.fonts.asked, asked);
        f.control->ShowSid();                   // the host may have another font by now
        QCOMPARE(f.fonts.asked, asked + 1);
        f.doc.log.failNext = "symbols";
        QVERIFY_THROWS_EXCEPTION(tests::HostError, f.control->setSidId(f.symbol.SidId));
        QVERIFY(f.blank(f.control));
        f.doc.log.failNext = "symbols";
        tests::ScriptedPrompts user{{{"tell", {}, "symbols", {}, Icon::Exclamation}}};
        f.control->setProperty("SidId", 5);     // through which nothing is thrown
    }

    void buttonsStepTheZoomWithinItsBounds()
    {
        const std::tuple<double, bool, int, const char *> rows[] = { // larger, ticks held, raised
            {3, false, 0, "2.5"}, {3, true, 0, "3.5"}, {3, false, 3, "2.9 2.8 2.7"}, {3, true, 2, "3.1 3.2"},
            {0.6, false, 0, "0.2"}, {0.2, false, 0, "0.2"}, {0.45, false, 9, "0.35 0.25 0.2"},
            {99.85, true, 9, "99.95 100"}};
        Form f;
        for (const auto &[zoom, larger, ticks, raised] : rows)
            for (SymbolPreview *c : f.all()) {
                auto &repeat = *c->findChild<QTimer *>();
                c->setZoom(zoom);
                QCOMPARE(c->Zoom(), zoom);
                f.raised.clear();
                QToolButton *const button = larger ? c->cmdZoomOut : c->cmdZoomIn;
                QTest::mousePress(button, Qt::LeftButton);
                QVERIFY(repeat.isActive() && repeat.interval() == 500);
                for (int i = 0; i < ticks && repeat.isActive(); ++i) { // stands still at a bound
                    QTimerEvent event(repeat.timerId());
                    QCoreApplication::sendEvent(&repeat, &event);
                    QCOMPARE(repeat.interval(), 10);
                }
                QTest::mouseRelease(button, Qt::LeftButton);
                QVERIFY(!repeat.isActive());
                QCOMPARE(f.raised.join(u' '), raised);
            }
        f.raised.clear();
        for (const double zoom : {-1.0, double(NAN), 0.0, 1e300}) f.control->setZoom(zoom);
        QCOMPARE(f.raised, QStringList({"0.2", "100"}));
    }

    void everyPropertyIsKeptAndDrawn()
    {
        const std::tuple<const char *, QVariant, bool> rows[] = { // whether it shows
            {"BackColor", 0x80000008u, true}, {"BorderStyle", 1, true}, {"Zoom", 4.1, true},
            {"SidId", 32000, true}, {"SiColor", 0x112233u, true}, {"VisibleGrid", true, true},
            {"VisibleZoom", false, true}, {"Appearance", 1, false}, {"VisibleProt", true, true},
            {"VisibleFrame", true, true}, {"ToolTipSid", "ő", false}, {"ShowEnabled", false, true}};
        Form f;
        for (const auto &[property, value, shows] : rows)
            for (SymbolPreview *c : f.all()) {
                const QString name = property;
                const bool has = c == f.control || name != "ShowEnabled";
                QVariantMap bag{{"SidId", int(f.symbol.SidId)},
                                {"BackColor", 0xffffeeu}}; // a border shows on it
                c->SetDoc(&f.doc);
                c->setPropertyBag(bag);
                const QImage before = c->grab().toImage();
                bag[name] = value;
                c->setPropertyBag(bag);
                if (!has) bag.remove(name);
                QCOMPARE(c->propertyBag(), bag);
                QVERIFY2((c->grab().toImage() != before) == (shows && has), property);
                c->setPropertyBag({});
                QCOMPARE(c->propertyBag(), QVariantMap());
            }
    }

    void theMouseOnTheSurfaceIsPassedOn()
    {
        Form f;
        QSignalSpy down(f.control, &SymbolPreview::MouseDown), up(f.control, &SymbolPreview::MouseUp);
        QSignalSpy click(f.control, &SymbolPreview::Click);
        QTest::mouseClick(f.control->childAt(8, 8), Qt::LeftButton, Qt::ControlModifier, {8, 16});
        QTest::mouseClick(f.control->childAt(8, 8), Qt::RightButton, {}, {8, 16});
        const double twips = 1440.0 / f.control->logicalDpiX();
        QCOMPARE(down, (QList<QVariantList>{{1, 2, 8 * twips, 16 * twips}, {2, 0, 8 * twips, 16 * twips}}));
        QCOMPARE(up, down);
        QCOMPARE(click.size(), 1);
    }

    void readersHearTheSymbolAndOnlyTheTwinFollowsLanguageAndFont()
    {
        Form f;
        f.control->SetDoc(&f.doc);
        f.control->setSidId(f.symbol.SidId);
        const auto *const surface = QAccessible::queryAccessibleInterface(f.control->childAt(8, 8));
        QCOMPARE(surface->role(), QAccessible::Graphic);
        QCOMPARE(surface->text(QAccessible::Name), QStringLiteral("%1 Nyíl").arg(f.symbol.SidId));
        setLanguage(English, {});
        emit LanguageHub::instance().LanguageChanged();
        QCOMPARE(f.twin->cmdZoomIn->toolTip(), "Reduce");
        QCOMPARE(f.control->cmdZoomIn->toolTip(), "Kicsinyítés");
        f.dialog.hide();
        f.dialog.show();
        QCOMPARE(f.control->cmdZoomIn->toolTip(), "Reduce");
        setLanguage(Hungarian, {});
        const int before = f.twin->cmdZoomIn->width();
        f.twin->setFont(QFont("DejaVu Sans", 30));
        QVERIFY(f.twin->cmdZoomIn->width() > before);
        QCOMPARE(f.control->hWnd(), f.control->childAt(8, 8)->winId());
    }
};
QVDC_TEST(tst_SymbolPreview)
#include "tst_SymbolPreview.moc"
