#pragma once

#include <QRegularExpression>
#include <QStringList>

#include <functional>
#include <stdexcept>

namespace tests {

/// The error that a FaultyDoc throws on demand.
struct HostError : std::runtime_error {
    explicit HostError(const QString &call) : std::runtime_error(call.toStdString()) {}
};

/// Counts and fails the calls of a document.
struct CallLog {
    QStringList calls;              ///< every call, in order, e.g. "layers.readAll"
    int bulkUpdates = 0;            ///< of layers, each with its single updates
    int failAt = -1;                ///< the call with this index throws HostError
    QString failNext;               ///< the next call of this name throws HostError
    std::function<void(const QString &)> meanwhile; ///< happens during every call
    void on(const char *name)
    {
        calls << QLatin1String(name);
        if (meanwhile) meanwhile(calls.last());
        const bool wanted = failNext == calls.last();
        if (wanted) failNext.clear();
        if (wanted || calls.size() - 1 == failAt) throw HostError(calls.last());
    }
    QStringList writes() const      ///< calls that change the document
    {
        return calls.filter(
            QRegularExpression(QStringLiteral("add|update|remove|write|make|rename|renumber|discard")));
    }
};

} // namespace tests
