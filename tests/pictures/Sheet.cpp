#include "pictures/Sheet.h"

#include "support/Looks.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace tests {

constexpr int kAcross = 2;                      ///< pictures beside each other

void Sheet::take(QDialog &dialog)
{
    QCoreApplication::sendPostedEvents();       // layouts and scroll bars
    pictures.push_back(dialog.grab());
    flaws += flawsOf(dialog);
}

/// In columns as wide as the widest; each row is as high as its highest.
bool Sheet::save(const QString &path) const
{
    const int across = std::min(kAcross, int(pictures.size()));
    std::vector<int> tops{0};
    int wide = 0;
    for (size_t i = 0; i < pictures.size(); ++i) {
        const QSize size = pictures[i].deviceIndependentSize().toSize();
        const size_t row = i / size_t(across);
        if (row + 1 == tops.size()) tops.push_back(tops.back());
        tops[row + 1] = std::max(tops[row + 1], tops[row] + size.height());
        wide = std::max(wide, size.width());
    }
    QPixmap sheet(QSize(wide * across, tops.back()) * pictures.front().devicePixelRatio());
    sheet.setDevicePixelRatio(pictures.front().devicePixelRatio());
    sheet.fill(Qt::darkGray);
    QPainter painter(&sheet);
    for (int i = 0; i < int(pictures.size()); ++i)
        painter.drawPixmap(QPoint(i % across * wide, tops[size_t(i / across)]), pictures[size_t(i)]);
    return sheet.save(path);
}

} // namespace tests
