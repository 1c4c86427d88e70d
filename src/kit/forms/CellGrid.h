#pragma once

#include <QTableView>

namespace QV_DOC_CONTROLS {

/// Cells numbered from 0 line by line, as many in each line but the last; one is the current one. Left and
/// right run on over the ends of lines, Home and End stay in the line, with Ctrl they go to the very ends.
class CellGrid : public QTableView {
    Q_OBJECT
public:
    int current() const { return cellAt(currentIndex()); }      ///< -1 = none
    void setCurrent(int cell);                  ///< one outside the grid = none

signals:
    void currentMoved(int cell);

protected:
    CellGrid(int perLine, QWidget *parent);     ///< the model has `perLine` columns
    virtual int cellCount() const = 0;
    virtual int linesPerPage() const;           ///< that PgUp and PgDn go
    int cellAt(const QModelIndex &index) const;
    QModelIndex indexOf(int cell) const;        ///< invalid outside the grid

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers keys) override;
    void currentChanged(const QModelIndex &now, const QModelIndex &before) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    int cellAfter(CursorAction action, bool whole) const;
    int m_perLine;
};

} // namespace QV_DOC_CONTROLS
