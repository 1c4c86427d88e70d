#pragma once

#include "support/QtClasses.h"
#include "support/Same.h"

#include <QObject>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace QV_DOC_CONTROLS {}

/// What every test file needs. The test classes of one program; each is a test of its own for ctest:
/// `tst_<room> tst_<Unit>`.
namespace tests {

using namespace QV_DOC_CONTROLS;

using Maker = std::function<std::unique_ptr<QObject>()>;
std::vector<std::pair<const char *, Maker>> &registry();
bool enter(const char *name, Maker make);

/// Warnings that a test expects; any other ends it as failed. The text is matched as a part, once for each
/// call.
void expectWarning(const QString &part);

} // namespace tests

#define QVDC_TEST(Class)                                                                                     \
    static const bool entered_##Class = tests::enter(#Class, [] { return std::make_unique<Class>(); });
