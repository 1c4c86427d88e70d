#pragma once

#include "window/BackBuffer.h"

#include <QWidget>

namespace refhost {

/// The drawing on the screen: pan (middle button, Space and left button, arrow keys), zoom (wheel, + and -,
/// pinch, window), selecting, and giving points. It changes nothing: who listens to its signals does. It
/// never asks the document: what it shows is the scene it was given.
class DrawingView : public QWidget {
    Q_OBJECT
public:
    enum class Tool { Select, Point, Line, Text, ZoomWindow, Symbol };
    explicit DrawingView(QWidget *parent = nullptr);

    /// The first one is shown whole; later ones keep the place that is seen, and the selection where it is
    /// there.
    void setScene(Scene);
    const Scene &scene() const { return m_scene; }
    const Viewport &viewport() const { return m_view; }
    void setDark(bool dark);
    bool isDark() const { return m_dark; }
    void setColors(Colors);
    void setTool(Tool);                             ///< drops what the tool before had begun
    Tool tool() const { return m_tool; }
    const std::vector<int> &selection() const { return m_selection; } ///< indices into the scene's elements
    void select(std::vector<int> elements);

    void fit();                                     ///< everything
    void fitMain();                                 ///< a drawing just opened: single runaways stay outside
    void zoomBy(double factor);                     ///< about the middle
    void panBy(QPoint delta);                       ///< pixels
    QPointF toWorld(QPointF screen) const { return m_scene.toWorld(m_view.toLocal(screen)); }
    QPointF toScreen(QPointF world) const { return m_view.toScreen(world - m_scene.origin()); }
    QSize sizeHint() const override;

signals:
    void cursorAt(QPointF world);
    void viewChanged();
    void toolChanged();
    void selectionChanged();
    void pointGiven(QPointF world);                 ///< by the point and text tools
    void lineGiven(const QList<QPointF> &world);    ///< two points or more
    void deleteWanted();

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void mousePressEvent(QMouseEvent *) override;
    void mouseMoveEvent(QMouseEvent *) override;
    void mouseReleaseEvent(QMouseEvent *) override;
    void mouseDoubleClickEvent(QMouseEvent *) override;
    void wheelEvent(QWheelEvent *) override;
    void keyPressEvent(QKeyEvent *) override;
    void keyReleaseEvent(QKeyEvent *) override;
    void focusOutEvent(QFocusEvent *) override;
    void changeEvent(QEvent *) override;
    bool event(QEvent *) override;

private:
    void fitTo(const QRectF &local);
    void refit();
    void zoomAt(QPointF screen, double factor);
    void redraw();                                  ///< everything is painted anew
    void showCursor();
    void begin(QPoint at);
    void endRubber(QPoint at, Qt::KeyboardModifiers);
    void selectIn(const QRect &, bool wholly, bool adding);
    void selectAt(QPoint, bool adding);
    void endLine();
    bool navigate(int key);
    bool edit(int key);
    void paintSelection(QPainter &) const;
    void paintSketch(QPainter &) const;
    PaintStyle style() const;
    QColor highlight() const;

    Scene m_scene;
    Viewport m_view;
    BackBuffer m_buffer;
    enum class Fit { No, All, Main };
    bool m_hasScene = false;
    Fit m_fit = Fit::No; ///< the view follows the window's size until the user moves it
    bool m_dark = false;
    Colors m_colors = Colors::Screen;
    Tool m_tool = Tool::Select;
    std::vector<int> m_selection;
    QPainterPath m_outline;                         ///< of the selection, local metres
    QList<QPointF> m_line;                          ///< world points of the line being drawn
    QPoint m_cursor;
    std::optional<QPoint> m_panFrom, m_rubberFrom;
    bool m_space = false;                           ///< held down
};

} // namespace refhost
