#pragma once

#include "facade/services/Prompts.h"

#include <QDialog>

namespace QV_DOC_CONTROLS {

class NumberEntry;

/// One or two numbers, each with its label, bounds and unit; confirmed only when all can be taken.
class NumberBox final : public QDialog {
    Q_OBJECT
public:
    NumberBox(const NumberQuestion &, QWidget *owner);
    std::vector<double> numbers() const;        ///< valid once confirmed
    void accept() override;
private:
    NumberEntry *refused() const;               ///< the first that cannot be taken; null = none
    std::vector<NumberEntry *> m_entries;
};

} // namespace QV_DOC_CONTROLS
