#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QWidget;

namespace refhost {

/// Saves a picture of every window that opens, and closes dialogs with Cancel: for looking at the program
/// without a display. Lives as long as the program runs.
class Pictures : public QObject {
    Q_OBJECT
public:
    explicit Pictures(const QString &folder);       ///< created when it is not there
    void save(QWidget &window, const QString &name);
    int failures() const { return m_failures; }     ///< pictures that could not be written
protected:
    bool eventFilter(QObject *, QEvent *) override;
private:
    QString m_folder;
    QHash<QString, int> m_taken;                    ///< pictures of a name so far
    int m_failures = 0;
};

} // namespace refhost
