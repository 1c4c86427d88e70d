#pragma once

#include "kit/ask/BoxPrompts.h"

namespace QV_DOC_CONTROLS {

/// The library's boxes behind prompts(): to the message boxes and file dialogs of the kit, the boxes with
/// fields.
class ValuePrompts final : public BoxPrompts {
public:
    void show(const Report &, QObject *asker) override;
    std::optional<int> choose(const Choice &, QObject *asker) override;
    std::optional<QString> text(const TextQuestion &, QObject *asker) override;
    std::optional<std::vector<double>> numbers(const NumberQuestion &, QObject *asker) override;
    std::optional<int> colorIndex(const ColorIndexQuestion &, QObject *asker) override;
};

} // namespace QV_DOC_CONTROLS
