#pragma once

#include "facade/services/Prompts.h"

#include <QCache>
#include <QPersistentModelIndex>
#include <QStaticText>
#include <QStyledItemDelegate>

class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace QV_DOC_CONTROLS {

class GridModel;
struct GridStyle;

/// Paints cells and bands in their format styles, without the stock delegate's detours, and edits cells.
/// A colour cell keeps its colour while its row is selected.
class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit GridDelegate(const GridModel &model, QObject *parent);
    void setPictureSize(QSize size) { m_pictureSize = size; } ///< device-independent; empty = a line's height
    int pictureRoom() const { return m_pictureSize.height() + 3; } ///< height of a cell: a line and an edge
    static int padding(const QFontMetrics &letters) { return letters.horizontalAdvance(u' '); }
    int lineHeight(const QStyleOptionViewItem &option) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void paintBand(QPainter *painter, const QStyleOptionViewItem &option, int band) const;
    QRect bandMark(const QStyleOptionViewItem &option, int band) const;     ///< where a click toggles
    static QRect checkMark(const QStyleOptionViewItem &option);             ///< where a click toggles a cell
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

signals:
    void choiceAsked(const QModelIndex &cell);  ///< of a column that asks; its editor is closed

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    QWidget *listEditor(QWidget *parent, int column) const;
    QLineEdit *lineEditor(QWidget *parent, int column) const;
    void askInstead(QLineEdit &editor);
    std::optional<Message> refusalOf(const QLineEdit &editor) const;
    bool isKeyTaken(QLineEdit &editor, const QKeyEvent &event);
    bool isKeyTaken(QComboBox &closedList, QKeyEvent &event);
    void paintText(QPainter *painter, const QStyleOptionViewItem &option, const QString &text,
                   bool right) const;
    void paintBold(QPainter *painter, const QStyleOptionViewItem &option, const QString &text,
                   bool right) const;
    void paintCheck(QPainter *painter, const QStyleOptionViewItem &option, bool on) const;
    void paintPicture(QPainter *painter, const QRect &rect, const QPixmap &picture) const;
    static QColor textColor(const QStyleOptionViewItem &option, const GridStyle &style);
    const GridModel &m_model;
    mutable QPersistentModelIndex m_edited;     ///< the cell of the editor made last
    QSize m_pictureSize;
    mutable QCache<QString, QStaticText> m_texts{2000}; ///< lately painted, in m_font
    mutable QFont m_font;
    mutable int m_gap = 0;                      ///< of m_font: measuring a blank for every cell is dear
};

} // namespace QV_DOC_CONTROLS
