#include "SmallScene.h"

#include "window/DrawingView.h"

#include "support/Registry.h"

using namespace refhost;
using tests::line;

class tst_DrawingView : public QObject {
    Q_OBJECT
private:
    std::unique_ptr<DrawingView> m_view;

    void wheel(QPointF at, int turn)
    {
        QWheelEvent e(at, m_view->mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &e);
    }
    void drag(Qt::MouseButton button, QPoint from, QPoint to)
    {
        QTest::mousePress(m_view.get(), button, {}, from);
        QTest::mouseMove(m_view.get(), to);
        QTest::mouseRelease(m_view.get(), button, {}, to);
    }
    QPoint on(double x, double y) const { return m_view->toScreen({x, y}).toPoint(); }
    static bool near(QPointF a, QPointF b, double tolerance) { return QLineF(a, b).length() <= tolerance; }

private slots:
    void init()
    {
        m_view = std::make_unique<DrawingView>();
        m_view->resize(400, 300);
        m_view->setScene(Scene(tests::smallTables(),
                               {line(650000, 240000, 650100, 240000), line(650000, 240050, 650100, 240050),
                                line(650020, 240010, 650080, 240040, 2)}));
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }
    void cleanup() { m_view.reset(); }

    void wheelKeepsThePointUnderTheCursor()
    {
        for (const auto &[at, turn] :
             {std::pair(QPointF(13, 280), 120), {{311, 17}, -240}, {{200, 150}, 4800}}) {
            const QPointF before = m_view->toWorld(at);
            const double zoom = m_view->viewport().pxPerMetre;
            wheel(at, turn);
            QVERIFY((m_view->viewport().pxPerMetre > zoom) == (turn > 0));
            QVERIFY(near(m_view->toWorld(at), before, 1e-6));
        }
    }

    void fitShowsAll()
    {
        wheel({10, 10}, 1200);
        QTest::keyClick(m_view.get(), Qt::Key_F);
        const QRectF seen = m_view->viewport().visible(), all = m_view->scene().bounds();
        QVERIFY(seen.contains(all));
        QVERIFY(all.width() > seen.width() * 0.85); // and no smaller than it must be
        m_view->resize(500, 200);
        QVERIFY(m_view->viewport().visible().contains(all)); // follows the window until the user moves
    }

    void panningMovesTheDrawingAndPaintsWhatComesIntoView()
    {
        using How = std::function<void(QPoint)>;
        const How middle = [this](QPoint by) { drag(Qt::MiddleButton, {200, 150}, QPoint(200, 150) + by); };
        const How space = [this](QPoint by) {
            QTest::keyPress(m_view.get(), Qt::Key_Space);
            drag(Qt::LeftButton, {200, 150}, QPoint(200, 150) + by);
            QTest::keyRelease(m_view.get(), Qt::Key_Space);
        };
        const How arrow = [this](QPoint) { QTest::keyClick(m_view.get(), Qt::Key_Left); };
        for (const auto &[pan, by] :
             {std::pair(middle, QPoint(37, -21)), {space, {-50, 60}}, {arrow, {40, 0}}}) {
            m_view->grab();
            const QPoint before = on(650050, 240025);
            pan(by);
            QCOMPARE(on(650050, 240025) - before, by);
            QImage whole(m_view->size(), QImage::Format_RGB32);
            QPainter p(&whole);
            renderTo(p, m_view->scene(), m_view->viewport(), {Qt::white});
            p.end();
            const QImage seen = m_view->grab().toImage().convertToFormat(QImage::Format_RGB32);
            int different = 0; // a clipped line starts within a pixel: its softness may differ
            for (int y = 0; y < whole.height(); ++y)
                for (int x = 0; x < whole.width(); ++x)
                    different += std::abs(qGray(seen.pixel(x, y)) - qGray(whole.pixel(x, y))) > 40;
            QCOMPARE(different, 0);
        }
    }

    void zoomWindowShowsTheWindowAndEnds()
    {
        m_view->setTool(DrawingView::Tool::ZoomWindow);
        const QPointF corner = m_view->toWorld({100, 100}), other = m_view->toWorld({140, 130});
        drag(Qt::LeftButton, {100, 100}, {140, 130});
        QVERIFY(near(m_view->toWorld({0, 0}), corner, 0.5) && near(m_view->toWorld({400, 300}), other, 0.5));
        QCOMPARE(m_view->tool(), DrawingView::Tool::Select);
    }

    void clickSelectsTheNearestAndControlAdds()
    {
        const auto clicked = [this](QPoint at, Qt::KeyboardModifiers held = {}) {
            QTest::mouseClick(m_view.get(), Qt::LeftButton, held, at);
            return m_view->selection();
        };
        QCOMPARE(clicked(on(650050, 240000) + QPoint(0, 3)), std::vector<int>{0});
        QCOMPARE(clicked(on(650050, 240050), Qt::ControlModifier), (std::vector<int>{0, 1}));
        QCOMPARE(clicked(on(650050, 240000), Qt::ControlModifier), std::vector<int>{1});
        QVERIFY(clicked(on(650050, 240060)).empty());
    }

    void rubberBandTakesWholeOnesToTheRightAndTouchedOnesToTheLeft()
    {
        const QPoint a = on(650010, 240045), b = on(650090, 239995);
        drag(Qt::LeftButton, a, b);
        QCOMPARE(m_view->selection(), std::vector<int>{2});
        drag(Qt::LeftButton, b, a);
        QCOMPARE(m_view->selection(), (std::vector<int>{0, 2}));
    }

    void lineToolGivesItsVerticesAndEscapeDropsThem()
    {
        m_view->setTool(DrawingView::Tool::Line);
        QSignalSpy given(m_view.get(), &DrawingView::lineGiven);
        for (QPoint at : {QPoint(50, 50), QPoint(90, 70), QPoint(95, 99)})
            QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, at);
        QTest::keyClick(m_view.get(), Qt::Key_Backspace);
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QCOMPARE(given.size(), 1);
        const auto world = given[0][0].value<QList<QPointF>>();
        QCOMPARE(world.size(), 2);
        QVERIFY(near(world[1], m_view->toWorld({90, 70}), 1e-9));
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, QPoint(50, 50));
        QTest::keyClick(m_view.get(), Qt::Key_Escape);
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QCOMPARE(given.size(), 1);
        QCOMPARE(m_view->tool(), DrawingView::Tool::Line); // the first Esc ends the line, the second the tool
        QTest::keyClick(m_view.get(), Qt::Key_Escape);
        QCOMPARE(m_view->tool(), DrawingView::Tool::Select);
    }
};

QVDC_TEST(tst_DrawingView)
#include "tst_DrawingView.moc"
