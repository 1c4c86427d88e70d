#include "grids/frame/FileChoice.h"

#include "facade/services/Services.h"
#include "grids/frame/Desk.h"
#include "kit/ask/ErrorRelay.h"

#include <QDir>
#include <QFileInfo>

namespace QV_DOC_CONTROLS {
namespace {

const QString kApplication = QStringLiteral("ZolWOp"), kSection = QStringLiteral("Settings");

} // namespace

FileQuestion FileChoice::inFolder(FileQuestion question) const
{
    const QString folder = settingsStore().read(kApplication, kSection, m_setting, {});
    if (QFileInfo(folder).isDir())
        question.path = question.path.isEmpty() ? folder : QDir(folder).filePath(question.path);
    return question;
}

QString FileChoice::picked(const QString &path)
{
    m_desk.relay().checkpoint();
    if (!path.isEmpty())
        settingsStore().write(kApplication, kSection, m_setting, QFileInfo(path).absolutePath());
    return path;
}

QString FileChoice::toOpen(FileQuestion question)
{
    return picked(prompts().openFile(inFolder(std::move(question)), m_desk.asker()));
}

QString FileChoice::toSave(FileQuestion question)
{
    return picked(prompts().saveFile(inFolder(std::move(question)), m_desk.asker()));
}

} // namespace QV_DOC_CONTROLS
