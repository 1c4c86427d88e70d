#pragma once

#include <QDialog>
#include <QPixmap>
#include <QStringList>

#include <vector>

namespace tests {

/// Pictures of dialogs beside each other, and what is wrong with them.
struct Sheet {
    std::vector<QPixmap> pictures;
    QStringList flaws;

    void take(QDialog &dialog);
    bool save(const QString &path) const;
};

} // namespace tests
