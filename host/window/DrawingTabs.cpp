#include "window/DrawingTabs.h"

#include <QDir>
#include <QFileInfo>

namespace refhost {

DrawingTabs::DrawingTabs(QWidget *parent) : QTabWidget(parent)
{
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    setTabBarAutoHide(true);                        // a single drawing needs no tab
    setElideMode(Qt::ElideMiddle);
}

DrawingPage *DrawingTabs::page(int tab) const { return qobject_cast<DrawingPage *>(widget(tab)); }

DrawingPage *DrawingTabs::pageOf(const QString &path) const
{
    const QString wanted = QFileInfo(path).canonicalFilePath();
    for (int i = 0; i < count() && !wanted.isEmpty(); ++i)
        if (QFileInfo(page(i)->doc().path()).canonicalFilePath() == wanted) return page(i);
    return nullptr;
}

DrawingPage &DrawingTabs::open(std::unique_ptr<OpenDrawing> drawing)
{
    DrawingPage *const before = page();
    auto *const opened = new DrawingPage(std::move(drawing));
    emit pageOpened(opened);
    const bool replaces = before && before->drawing().isUntouched();
    const int at = replaces ? currentIndex() : count();
    insertTab(at, opened, QString());
    connect(opened, &DrawingPage::refreshed, this, &DrawingTabs::showNames);
    showNames();
    setCurrentIndex(at);
    if (replaces) close(indexOf(before));
    return *opened;
}

void DrawingTabs::close(int tab)
{
    const std::unique_ptr<DrawingPage> gone(page(tab));
    removeTab(tab);
}

void DrawingTabs::showNames()
{
    for (int i = 0; i < count(); ++i) {
        OpenDrawing &drawing = page(i)->drawing();
        const QString mark = drawing.hasUnsavedWork() ? QStringLiteral("*") : QString();
        setTabText(i, QString(drawing.name()).replace(u'&', QStringLiteral("&&")) + mark);
        setTabToolTip(i, drawing.isUnsaved() ? drawing.name()
                                             : QDir::toNativeSeparators(drawing.doc().path()));
    }
}

ZolWDoc::ZOLW_Doc *DrawingTabs::item(int index)
{
    DrawingPage *const found = page(index);
    return found ? &found->doc() : nullptr;
}

QString DrawingTabs::name(int index) const { return page(index)->drawing().name(); }

} // namespace refhost
