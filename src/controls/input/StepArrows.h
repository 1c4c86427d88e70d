#pragma once

#include <QWidget>

namespace QV_DOC_CONTROLS {

/// A pair of arrows, one above the other. Tells when one is pressed and when it is let go, whatever ended it.
class StepArrows final : public QWidget {
    Q_OBJECT
public:
    explicit StepArrows(QWidget *parent);
    QSize sizeHint() const override;
    bool isDown() const { return m_down != Down::None; }
signals:
    void pressed(bool up);
    void released();
protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
private:
    enum class Down { None, Upper, Lower };
    void paintArrow(QPainter &painter, bool up) const;
    void letGo();
    Down m_down = Down::None;
};

} // namespace QV_DOC_CONTROLS
