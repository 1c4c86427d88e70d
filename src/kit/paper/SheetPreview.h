#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

namespace QV_DOC_CONTROLS {

class SheetPainter;

/// The pages of a sheet, one below the other, as they will be printed. Pages are drawn when they come into
/// view.
class SheetPreview final : public QAbstractScrollArea {
    Q_OBJECT
public:
    static constexpr double kWholePage = 0, kPageWidth = -1;   ///< zooms that follow the window's size

    explicit SheetPreview(QWidget *parent = nullptr);
    /// Not owned; null = empty. Stays at the same page where there is one
    void setSheet(const SheetPainter *sheet);
    int pageCount() const;
    /// From 0: the one in the middle of the view; -1 = there is none
    int currentPage() const;
    void goToPage(int page);
    void nextPage() { goToPage(currentPage() + 1); }
    void previousPage() { goToPage(currentPage() - 1); }
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);                  ///< 1 = as large as on paper, or one of the two above
    void stepZoom(int direction);               ///< to the next larger (1) or smaller (-1) of zoomSteps()
    static const std::vector<double> &zoomSteps();

signals:
    void currentPageMoved(int page);
    void zoomChanged(double zoom);

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *) override;
    void wheelEvent(QWheelEvent *) override;

private:
    double scale() const;                       ///< pixels per paper unit
    QSizeF pageSize() const;                    ///< pixels
    int gap() const;                            ///< pixels around pages
    QPointF cornerOf(int page) const;           ///< in the viewport
    /// Scroll bars follow sheet, zoom and size; the place in the sheet stays
    void layOut();
    void tellPage();
    void drawPage(QPainter &painter, int page);

    const SheetPainter *m_sheet = nullptr;
    double m_zoom = kWholePage;
    double m_place = 0;                         ///< middle of the view in pages from the top
    bool m_layingOut = false;
    int m_toldPage = -1;
    QCache<int, QPixmap> m_drawn;               ///< cost in KiB
};

} // namespace QV_DOC_CONTROLS
