#pragma once

#include "fonts/CharacterSource.h"
#include "kit/forms/CellGrid.h"

namespace QV_DOC_CONTROLS {

class CharacterModel;
class ErrorRelay;

/// The characters of a font in lines of sixteen: all codes, those that the font lacks dimmed, or only those
/// that it has. Only what is seen is drawn, and what a host draws is fetched before, inside the relay.
class CharacterGrid final : public CellGrid {
    Q_OBJECT
public:
    CharacterGrid(ErrorRelay &host, QWidget *parent);
    void setSource(std::shared_ptr<CharacterSource> source);    ///< null = no characters; the code stays
    void setOnlyPresent(bool on);
    bool onlyPresent() const;

    int code() const { return m_code; }
    bool setCode(int code);                     ///< and scrolls to it; false = not among the cells shown
    void zoom(int steps);                       ///< up makes the cells larger, within bounds
    void retranslate();

    QSize sizeHint() const override;            ///< lines of the usual size are seen whole
    void keyboardSearch(const QString &typed) override; ///< digits are handed on, a character is gone to

signals:
    void codeMoved(int code);                   ///< by the user
    void digitsTyped(const QString &digits);

protected:
    int cellCount() const override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool viewportEvent(QEvent *event) override; ///< the tool tip shows the character large

private:
    int sideOf(int zoom) const;
    void fitCells();
    void refill();
    void prepareSeen();
    void goToCode();
    ErrorRelay &m_host;
    CharacterModel &m_model;
    int m_code = 0;
    int m_zoom = 0;                             ///< steps from the usual size
};

} // namespace QV_DOC_CONTROLS
