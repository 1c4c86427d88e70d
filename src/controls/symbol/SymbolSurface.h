#pragma once

#include "fonts/SymbolDrawing.h"

#include <QFrame>

namespace QV_DOC_CONTROLS {

/// What a symbol preview draws on: shows its drawing, greyed when it is disabled or is to look so.
class SymbolSurface final : public QFrame {
    Q_OBJECT
public:
    explicit SymbolSurface(QWidget *parent);
    void setBorder(int borderStyle, int appearance); ///< as the published properties number them
    QPixmap picture() const;                    ///< of the drawing, never greyed, as sharp as this screen
    SymbolDrawing drawing;                      ///< to be painted anew by its owner
    bool greyed = false;                        ///< looks disabled
protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace QV_DOC_CONTROLS
