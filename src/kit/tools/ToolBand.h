#pragma once

#include <QToolBar>

namespace QV_DOC_CONTROLS {

/// A tool bar for the keyboard too: Tab comes to its first usable tool, the arrow keys, Home and End go along
/// it.
class ToolBand final : public QToolBar {
    Q_OBJECT
public:
    explicit ToolBand(QWidget *parent);
protected:
    void actionEvent(QActionEvent *) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
private:
    std::vector<QWidget *> usable() const;      ///< its tools, in order
    void placeTabStop();
};

} // namespace QV_DOC_CONTROLS
