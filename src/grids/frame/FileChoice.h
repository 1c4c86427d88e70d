#pragma once

#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

struct Desk;

/// The file questions of one kind of file: the folder of an answer is proposed the next time.
class FileChoice {
public:
    /// `setting`: under which the folder is kept, e.g. "LayerFileFolder".
    FileChoice(Desk &desk, const char *setting) : m_desk(desk), m_setting(QLatin1String(setting)) {}
    /// The answers: empty = cancelled. The question's path is a file's name or pattern, if any.
    QString toOpen(FileQuestion question);
    QString toSave(FileQuestion question);

private:
    FileQuestion inFolder(FileQuestion question) const;
    QString picked(const QString &path);
    Desk &m_desk;
    QString m_setting;
};

} // namespace QV_DOC_CONTROLS
