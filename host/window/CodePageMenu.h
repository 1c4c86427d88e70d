#pragma once

#include <QMenu>

class QActionGroup;

namespace refhost {

/// Which code page the texts of layer files are in: the user's setting, seen and changed.
class CodePageMenu : public QMenu {
    Q_OBJECT
public:
    explicit CodePageMenu(QWidget *parent);
    void retranslate();
private:
    QAction *add(const QString &codePage);
    void showChosen();
    QActionGroup *m_pages;
};

} // namespace refhost
