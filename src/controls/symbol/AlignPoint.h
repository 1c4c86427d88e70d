#pragma once

#include <QRadioButton>

namespace QV_DOC_CONTROLS {

/// One of the points of an alignment picker: a radio button that fills its part of the picture and shows as a
/// dot somewhere on it.
class AlignPoint final : public QRadioButton {
public:
    explicit AlignPoint(QWidget *parent);
    void setPoint(QPointF at);                  ///< in its own coordinates
    static double reach(const QWidget &on);     ///< pixels that the mark of focus takes around the point
    QSize sizeHint() const override { return {}; }
    QSize minimumSizeHint() const override { return {}; }
protected:
    bool hitButton(const QPoint &at) const override { return rect().contains(at); }
    void paintEvent(QPaintEvent *event) override;
private:
    QPointF m_at;
};

} // namespace QV_DOC_CONTROLS
