#pragma once

#include <QStringList>

class QCommandLineParser;

namespace qvres {

/// A command of the tool: `files` are its operands. Returns the exit code; throws Failure.
struct Command {
    const char *name;
    int files; ///< how many operands it takes
    int (*run)(const QStringList &files, const QCommandLineParser &options);
};
const Command *commandNamed(const QString &name); ///< null = none

} // namespace qvres
