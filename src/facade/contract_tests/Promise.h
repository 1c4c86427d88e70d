#pragma once

#include "facade/contract_tests/ContractTests.h"

#include <QString>

#include <optional>
#include <stdexcept>
#include <vector>

namespace ZolWDoc::contract {

/// Ends a trial: the promise was broken.
struct Broken : std::runtime_error {
    explicit Broken(const QString &seen) : std::runtime_error(seen.toStdString()) {}
};

inline void hold(bool kept, const QString &seenOtherwise)
{
    if (!kept) throw Broken(seenOtherwise);
}
inline QString shown(int n) { return QString::number(n); }
/// Two numbers that must agree.
inline void same(int seen, int promised, const char *what)
{
    hold(seen == promised,
         QStringLiteral("%1: %2 instead of %3").arg(QLatin1String(what)).arg(seen).arg(promised));
}
/// What a find or a read must have given; a host at fault may have given nothing.
template <class T> T found(std::optional<T> answer, const char *what)
{
    hold(answer.has_value(), QLatin1String(what) + QStringLiteral(" is not found"));
    return *answer;
}
template <class T> T firstOf(const std::vector<T> &all)
{
    hold(!all.empty(), QStringLiteral("a table of a new document is empty"));
    return all.front();
}
template <class Act> void mustThrow(Act act, const char *what)
{
    bool threw = false;
    try {
        act();
    } catch (const std::exception &) {
        threw = true;
    }
    hold(threw, QStringLiteral("%1: no error").arg(QLatin1String(what)));
}

/// One promise; `run` throws Broken, or whatever the host throws, when it is not kept.
struct Promise {
    QString role, text;
    std::function<void(ZOLW_Doc &)> run;
    bool optional = false;      ///< of a role that a host may lack; kept where it does
};
using Promises = std::vector<Promise>;

void appendTablePromises(Promises &);       ///< what all tables have in common
void appendLayerPromises(Promises &);
void appendGroupPromises(Promises &);       ///< groups of text types and symbols
void appendReferencePromises(Promises &);   ///< uses, refusals, renumbering
void appendColorPromises(Promises &);
void appendScopePromises(Promises &);       ///< command scopes over all tables
void appendLateBoundPromises(Promises &);

} // namespace ZolWDoc::contract
