#pragma once

#include "facade/contract/ZOLW_Doc.h"

#include <functional>
#include <memory>
#include <vector>

/// Holds a host's document to what the contract promises. Uses the contract and Qt Core only, no test
/// framework.
namespace ZolWDoc {

/// A promise that was not kept.
struct ContractFinding {
    QString role;       ///< e.g. "layers", "layers: change scope"
    QString promise;
    QString seen;       ///< what was seen instead, or the exception that came
};
struct ContractOptions {
    QString onlyRole;           ///< empty = all; else the promises whose role begins so
    bool optionalRoles = true;  ///< also hold the optional roles that the document offers
};
/// Makes a new document that nothing else refers to. It may hold what the host puts into every new drawing,
/// but needs at least one layer, line type, symbol and text type.
using FreshDocument = std::function<std::unique_ptr<ZOLW_Doc>()>;

/// Tries every promise on a document of its own and goes on after a failure. Empty = all were kept.
std::vector<ContractFinding> checkContract(const FreshDocument &, const ContractOptions & = {});
/// One line for each finding.
QString toText(const std::vector<ContractFinding> &);

} // namespace ZolWDoc
