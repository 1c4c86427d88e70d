#include "window/Pictures.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QPixmap>
#include <QProgressDialog>
#include <QTimer>

#include <cstdio>

namespace refhost {

Pictures::Pictures(const QString &folder) : m_folder(folder)
{
    QDir().mkpath(folder);
    qApp->installEventFilter(this);
}

void Pictures::save(QWidget &window, const QString &name)
{
    QCoreApplication::sendPostedEvents(nullptr,
                                       QEvent::LayoutRequest); // a window just shown is not laid out yet
    const int before = m_taken[name]++;
    const QString path =
        m_folder + u'/' + name + (before ? QString::number(before + 1) : QString()) + QStringLiteral(".png");
    if (!window.grab().save(path)) {
        ++m_failures;
        std::fprintf(stderr, "%s: cannot be written; check the folder and its permissions\n",
                     qPrintable(path));
    }
}

namespace {
/// A message nobody can see is said where it can be read.
void tellText(const QDialog &dialog)
{
    const QString text = dialog.property("text").toString();
    if (!text.isEmpty())
        std::fprintf(stderr, "%s: %s\n", qPrintable(dialog.windowTitle()), qPrintable(text));
}
} // namespace

bool Pictures::eventFilter(QObject *o, QEvent *e)
{
    auto *const dialog = e->type() == QEvent::Show ? qobject_cast<QDialog *>(o) : nullptr;
    const bool passes = qobject_cast<QProgressDialog *>(o); // its Cancel would break the work off
    if (dialog && !passes) // after the events that lay it out and fill it
        QTimer::singleShot(0, dialog, [this, dialog] {
            tellText(*dialog);
            save(*dialog,
                 QString::fromLatin1(dialog->metaObject()->className()).section(QStringLiteral("::"), -1));
            dialog->reject();
        });
    return false;
}

} // namespace refhost
