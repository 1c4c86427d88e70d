#pragma once

#include "dialogs/values/ValueBox.h"
#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

class NumberEntry;

/// One or two numbers, each with its label, bounds and unit; confirmed only when all can be taken.
class frmValue final : public ValueBox {
    Q_OBJECT
public:
    frmValue(const NumberQuestion &, QWidget *owner);
    std::vector<double> numbers() const;        ///< as typed; valid once confirmed
    void accept() override;

private:
    std::vector<NumberEntry *> m_entries;
};

} // namespace QV_DOC_CONTROLS
