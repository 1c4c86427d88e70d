#include "pictures/Sheet.h"

#include "support/Looks.h"

#include <QCoreApplication>
#include <QPainter>

namespace tests {

constexpr int kAcross = 2;                      ///< pictures beside each other

void Sheet::take(QDialog &dialog)
{
    QCoreApplication::sendPostedEvents();       // layouts and scroll bars
    pictures.push_back(dialog.grab());
    flaws += flawsOf(dialog);
}

bool Sheet::save(const QString &path) const
{
    QSize one;                                  // a place that the largest fits in
    for (const QPixmap &p : pictures) one = one.expandedTo(p.deviceIndependentSize().toSize());
    const int rows = (int(pictures.size()) + kAcross - 1) / kAcross;
    QPixmap sheet(QSize(one.width() * kAcross, one.height() * rows) * pictures.front().devicePixelRatio());
    sheet.setDevicePixelRatio(pictures.front().devicePixelRatio());
    sheet.fill(Qt::darkGray);
    QPainter painter(&sheet);
    for (int i = 0; i < int(pictures.size()); ++i)
        painter.drawPixmap(QPoint(i % kAcross * one.width(), i / kAcross * one.height()),
                           pictures[size_t(i)]);
    return sheet.save(path);
}

} // namespace tests
