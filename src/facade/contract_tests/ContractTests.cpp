#include "facade/contract_tests/ContractTests.h"

#include "facade/contract_tests/Promise.h"

namespace ZolWDoc {

using contract::Promise;
using contract::Promises;

namespace {

Promises allPromises()
{
    Promises all;
    contract::appendTablePromises(all);
    contract::appendLayerPromises(all);
    contract::appendGroupPromises(all);
    contract::appendReferencePromises(all);
    contract::appendColorPromises(all);
    contract::appendLateBoundPromises(all);
    contract::appendScopePromises(all);
    return all;
}

/// What was seen instead; null when the promise was kept.
QString brokenBy(const FreshDocument &fresh, const Promise &promise)
{
    try {
        const auto doc = fresh();
        promise.run(*doc);
        return {};
    } catch (const contract::Broken &broken) {
        return QString::fromUtf8(broken.what());
    } catch (const std::exception &error) {
        return QStringLiteral("error: ") + QString::fromUtf8(error.what());
    } catch (...) {
        return QStringLiteral("an exception of an unknown type");
    }
}

} // namespace

std::vector<ContractFinding> checkContract(const FreshDocument &fresh, const ContractOptions &options)
{
    std::vector<ContractFinding> findings;
    for (const Promise &promise : allPromises()) {
        if (!promise.role.startsWith(options.onlyRole) || (promise.optional && !options.optionalRoles))
            continue;
        const QString seen = brokenBy(fresh, promise);
        if (!seen.isNull()) findings.push_back({promise.role, promise.text, seen});
    }
    return findings;
}

QString toText(const std::vector<ContractFinding> &findings)
{
    QString text;
    for (const ContractFinding &f : findings)
        text += f.role + QStringLiteral(": ") + f.promise + QStringLiteral(" - ") + f.seen + u'\n';
    return text;
}

} // namespace ZolWDoc
