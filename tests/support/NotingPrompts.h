#pragma once

#include "support/WillingPrompts.h"

namespace tests {

/// What is told goes into a list.
struct NotingPrompts : WillingPrompts {
    QStringList told;
    void tell(const QV_DOC_CONTROLS::Message &m, QObject *) override { told << m.text; }
};

} // namespace tests
