#include "kit/ask/BoxPrompts.h"

#include "facade/services/Text.h"
#include "kit/ask/ChoiceBox.h"
#include "kit/ask/ReportBox.h"
#include "kit/ask/TextBox.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace QV_DOC_CONTROLS {
namespace {

QWidget *windowOf(QObject *asker)
{
    auto *const widget = qobject_cast<QWidget *>(asker);
    return widget ? widget->window() : QApplication::activeWindow();
}

QMessageBox::Icon boxIcon(Icon icon)
{
    switch (icon) {
    case Icon::Information: return QMessageBox::Information;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Critical: return QMessageBox::Critical;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

/// A box whose text is shown as it is: names from a drawing may hold what looks like markup.
struct Box : QMessageBox {
    Box(const Message &m, QObject *asker) : QMessageBox(windowOf(asker))
    {
        setIcon(boxIcon(m.icon));
        setWindowTitle(m.title);
        setTextFormat(Qt::PlainText);
        setText(m.text);
    }
};

/// "name|pattern|name|pattern" as file dialogs want it.
QStringList nameFilters(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList out;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].section(u'(', 0, 0).trimmed();
        QString patterns = parts[i + 1];
        patterns.remove(u')').replace(u';', u' ');
        out << (name.isEmpty() || name == patterns ? patterns : name + QStringLiteral(" (%1)").arg(patterns));
    }
    return out;
}

/// The labels of Qt's own file dialog follow our language, not the system's.
void nameParts(QFileDialog &dialog, bool opens)
{
    dialog.setLabelText(QFileDialog::LookIn, txt(Text{20178, u"Hely:"}));
    dialog.setLabelText(QFileDialog::FileName, txt(Text{20179, u"Fájlnév:"}));
    dialog.setLabelText(QFileDialog::FileType, txt(Text{20180, u"Fájltípus:"}));
    dialog.setLabelText(QFileDialog::Accept,
                        opens ? txt(Text{20181, u"Megnyitás"}) : txt(Text{20182, u"Mentés"}));
    dialog.setLabelText(QFileDialog::Reject, txt(Text{2801, u"Mégse"}));
}

QString askFile(const FileQuestion &q, QObject *asker, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(windowOf(asker), q.title);
    const bool opens = mode == QFileDialog::AcceptOpen;
    dialog.setAcceptMode(mode);
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // asked below, in our language
    dialog.setNameFilters(nameFilters(q.filter));
    dialog.setDefaultSuffix(q.suffix);
    const QFileInfo proposed(q.path);
    if (proposed.isDir()) dialog.setDirectory(q.path);
    else if (!q.path.isEmpty()) {
        dialog.setDirectory(proposed.absolutePath());
        dialog.selectFile(proposed.fileName());
    }
    nameParts(dialog, opens);
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().value(0);
        const QString question =
            QFileInfo(path).fileName() + u'\n' + txt(Text{20174, u"A fájl már létezik. Felülírod?"});
        if (opens || !QFileInfo::exists(path) || prompts().yesNo({Icon::Question, q.title, question}, asker))
            return path;
        const QWidget *const owner = windowOf(asker);
        if (owner && !owner->isVisible()) break; // closed meanwhile, because of an error
    }
    return {};
}

Prompts &boxes()
{
    static BoxPrompts all;
    return all;
}
[[maybe_unused]] const bool s_entered = (setDefaultPrompts(&boxes), true);

} // namespace

void BoxPrompts::tell(const Message &m, QObject *asker)
{
    Box box(m, asker);
    box.setDefaultButton(box.addButton(txt(Text{2802, u"OK"}), QMessageBox::AcceptRole));
    box.exec();
}

void BoxPrompts::show(const Report &r, QObject *asker) { ReportBox(r, windowOf(asker)).exec(); }

bool BoxPrompts::yesNo(const Message &m, QObject *asker)
{
    Box box(m, asker);
    const QPushButton *yes = box.addButton(txt(Text{3206, u"Igen"}), QMessageBox::YesRole);
    QPushButton *const no = box.addButton(txt(Text{3205, u"Nem"}), QMessageBox::NoRole);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

std::optional<int> BoxPrompts::choose(const Choice &c, QObject *asker)
{
    ChoiceBox box(c, windowOf(asker));
    return box.exec() == QDialog::Accepted ? std::optional(box.chosen()) : std::nullopt;
}

std::optional<QString> BoxPrompts::text(const TextQuestion &q, QObject *asker)
{
    TextBox box(q, windowOf(asker));
    return box.exec() == QDialog::Accepted ? std::optional(box.answer()) : std::nullopt;
}

QString BoxPrompts::openFile(const FileQuestion &q, QObject *asker)
{
    return askFile(q, asker, QFileDialog::AcceptOpen);
}

QString BoxPrompts::saveFile(const FileQuestion &q, QObject *asker)
{
    return askFile(q, asker, QFileDialog::AcceptSave);
}

} // namespace QV_DOC_CONTROLS
