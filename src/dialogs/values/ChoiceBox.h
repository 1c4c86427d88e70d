#pragma once

#include "dialogs/values/ValueBox.h"
#include "facade/services/Prompts.h"

#include <functional>

namespace QV_DOC_CONTROLS {

/// One of several things, the proposed one chosen at first: up to three short ones stand there as radio
/// buttons, more are a list.
class ChoiceBox final : public ValueBox {
    Q_OBJECT
public:
    ChoiceBox(const Choice &, QWidget *owner);
    int chosen() const { return m_chosen(); }   ///< index of the chosen item
private:
    void showOptions(const Choice &);
    void showList(const Choice &);
    std::function<int()> m_chosen;
};

} // namespace QV_DOC_CONTROLS
