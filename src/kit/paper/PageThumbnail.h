#pragma once

#include <QPageLayout>
#include <QWidget>

namespace QV_DOC_CONTROLS {

/// A small picture of a sheet of paper: its shape, how it is turned, and what the margins leave of it.
class PageThumbnail final : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    void setPage(const QPageLayout &page);
    QSize sizeHint() const override;
protected:
    void paintEvent(QPaintEvent *) override;
private:
    QPageLayout m_page;
};

} // namespace QV_DOC_CONTROLS
