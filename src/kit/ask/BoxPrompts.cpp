#include "kit/ask/BoxPrompts.h"

#include "facade/services/Text.h"
#include "kit/ask/runModal.h"
#include "kit/forms/AccessKeys.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <array>
#include <span>

namespace QV_DOC_CONTROLS {
namespace {

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
    Box(const Message &m, QWidget *owner) : QMessageBox(owner)
    {
        setIcon(boxIcon(m.icon));
        setWindowTitle(m.title);
        setTextFormat(Qt::PlainText);
        setText(m.text);
    }
};

struct Answer {
    const char *name;
    Text caption;
    QMessageBox::ButtonRole role;
};
constexpr Answer kAll{"cmdAll", {3423, u"Mind"}, QMessageBox::YesRole};
constexpr Answer kYes{"cmdYes", {3206, u"Igen"}, QMessageBox::YesRole};
constexpr Answer kNo{"cmdNo", {3205, u"Nem"}, QMessageBox::NoRole};
constexpr Answer kCancel{"cmdCancel", {2801, u"Mégse"}, QMessageBox::RejectRole};

/// Which of the answers the user gives: Enter means `byDefault`, Esc and the close box the last one.
size_t answerTo(Box &box, std::span<const Answer> answers, size_t byDefault)
{
    QStringList captions;
    for (const Answer &a : answers) captions << txt(a.caption);
    captions = withAccessKeys(captions);
    std::vector<QAbstractButton *> buttons;
    for (size_t i = 0; i < answers.size(); ++i) {
        QPushButton *const button = box.addButton(captions[qsizetype(i)], answers[i].role);
        button->setObjectName(QLatin1String(answers[i].name));
        buttons.push_back(button);
        if (i == byDefault) box.setDefaultButton(button);
    }
    box.setEscapeButton(buttons.back());
    runModal(box);
    const auto clicked = std::ranges::find(buttons, box.clickedButton());
    return clicked == buttons.end() ? answers.size() - 1 : size_t(clicked - buttons.begin());
}

/// Enter must not lose anything: where the icon warns, it means the last answer.
size_t enterMeans(Icon icon, size_t last)
{
    return icon == Icon::Exclamation || icon == Icon::Critical ? last : 0;
}

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

QString askFile(const FileQuestion &q, QWidget *owner, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(owner, q.title);
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
        if (opens || !QFileInfo::exists(path) ||
            prompts().yesNo({Icon::Exclamation, q.title, question}, owner))
            return path;
        if (owner && !owner->isVisible()) break; // closed meanwhile, because of an error
    }
    return {};
}

} // namespace

QWidget *BoxPrompts::windowOf(QObject *asker)
{
    auto *const widget = qobject_cast<QWidget *>(asker);
    return widget ? widget->window() : QApplication::activeWindow();
}

void BoxPrompts::tell(const Message &m, QObject *asker)
{
    Box box(m, windowOf(asker));
    box.setDefaultButton(box.addButton(txt(Text{2802, u"OK"}), QMessageBox::AcceptRole));
    runModal(box);
}

void BoxPrompts::alert() { QApplication::beep(); }

bool BoxPrompts::yesNo(const Message &m, QObject *asker)
{
    Box box(m, windowOf(asker));
    return answerTo(box, std::array{kYes, kNo}, enterMeans(m.icon, 1)) == 0;
}

AllYesNo BoxPrompts::allYesNo(const Message &m, QObject *asker)
{
    Box box(m, windowOf(asker));
    constexpr AllYesNo answers[] = {AllYesNo::All, AllYesNo::Yes, AllYesNo::No};
    return answers[answerTo(box, std::array{kAll, kYes, kNo}, 2)];
}

std::optional<bool> BoxPrompts::yesNoCancel(const Message &m, QObject *asker)
{
    Box box(m, windowOf(asker));
    const size_t answer = answerTo(box, std::array{kYes, kNo, kCancel}, enterMeans(m.icon, 2));
    return answer == 2 ? std::nullopt : std::optional(answer == 0);
}

QString BoxPrompts::openFile(const FileQuestion &q, QObject *asker)
{
    return askFile(q, windowOf(asker), QFileDialog::AcceptOpen);
}

QString BoxPrompts::saveFile(const FileQuestion &q, QObject *asker)
{
    return askFile(q, windowOf(asker), QFileDialog::AcceptSave);
}

} // namespace QV_DOC_CONTROLS
