#pragma once

#include "window/DrawingPage.h"

#include <QTabWidget>

namespace refhost {

/// The open drawings, a tab each. A new drawing that nobody has touched gives its place to the next one.
class DrawingTabs : public QTabWidget, private ZolWDoc::DocumentList {
    Q_OBJECT
public:
    explicit DrawingTabs(QWidget *parent);
    DrawingPage *page() const { return page(currentIndex()); } ///< the one in front; null = none is open
    DrawingPage *page(int tab) const;               ///< null = there is no such tab
    DrawingPage *pageOf(const QString &path) const; ///< that shows this file; null = none does
    DrawingPage &open(std::unique_ptr<OpenDrawing>); ///< comes to the front
    void close(int tab);                            ///< asks nothing
    void showNames();                               ///< of drawings that were saved or changed
    ZolWDoc::DocumentList &documents() { return *this; } ///< in the order of the tabs
    int count() const override { return QTabWidget::count(); }
signals:
    void pageOpened(refhost::DrawingPage *);        ///< before it comes to the front
private:
    ZolWDoc::ZOLW_Doc *item(int index) override;
    QString name(int index) const override;
};

} // namespace refhost
