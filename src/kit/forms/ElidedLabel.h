#pragma once

#include <QLabel>

namespace QV_DOC_CONTROLS {

/// A line of plain text that gives way: it is shortened to the room it has and then told by its tool tip.
class ElidedLabel final : public QLabel {
public:
    explicit ElidedLabel(QWidget *parent = nullptr);
    QSize minimumSizeHint() const override;
protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
private:
    QString fitting() const;
};

} // namespace QV_DOC_CONTROLS
