#pragma once

#include <QTableView>

#include <vector>

namespace QV_DOC_CONTROLS {

QString rgbOf(quint32 color);                   ///< "RGB 255, 128, 0" of 0xRRGGBB

/// The swatches of a palette in lines of sixteen; a swatch's index is the number before its line plus the one
/// above its column. Arrows run on over the ends of lines, Home and End stay in the line, with Ctrl they and
/// always PgUp and PgDn go to the ends. On a small screen it scrolls.
class ColorGrid final : public QTableView {
    Q_OBJECT
public:
    ColorGrid(std::vector<quint32> palette, QWidget *parent);
    int current() const;                        ///< index; -1 = none
    void setCurrent(int index);                 ///< one outside the palette = none

    void keyboardSearch(const QString &typed) override; ///< digits are handed on

signals:
    void currentMoved(int index);
    void digitsTyped(const QString &digits);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers keys) override;
    void currentChanged(const QModelIndex &now, const QModelIndex &before) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void fitSwatches();
    int m_count;
};

} // namespace QV_DOC_CONTROLS
