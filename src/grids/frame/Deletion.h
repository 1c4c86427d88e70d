#pragma once

#include "facade/services/Text.h"

#include <QString>

#include <span>
#include <vector>

class QObject;

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// The words of a table's deletion; its own pieces stand around a record's number or name.
struct DeleteTexts {
    Text title, last;
    Text sureBefore, sureAfter;                 ///< around the number
    Text usedBefore, usedAfter;                 ///< around the name
};
/// A record that the user wants to be rid of.
struct Doomed {
    qint16 id = -1;
    int number = 0;
    QString name;
    bool isUsed = false;
};

/// "... is in use! DELETE?": what is said before, and the question behind it.
QString deleteQuestion(const QString &before);

/// Asks which records may go, before anything is removed.
///
/// The last record of the table stays; a record in use is asked for, and "Mind" ends that asking.
struct DeleteQuestions {
    const DeleteTexts &texts;
    bool asksForEach = false;                   ///< the delete key asks for every row first; No skips it
    int inTable = 0;                            ///< records of the whole table
    /// Identifiers of those that may go, in the order of `rows`. After every question it asks the relay.
    std::vector<qint16> ask(std::span<const Doomed> rows, const ErrorRelay &relay, QObject *asker) const;
};

} // namespace QV_DOC_CONTROLS
