#pragma once

#include "facade/services/Prompts.h"

namespace QV_DOC_CONTROLS {

/// The real boxes behind prompts(): the only place of the library that shows message boxes and file dialogs.
class BoxPrompts final : public Prompts {
public:
    void tell(const Message &, QObject *asker) override;
    void show(const Report &, QObject *asker) override;
    bool yesNo(const Message &, QObject *asker) override;
    std::optional<int> choose(const Choice &, QObject *asker) override;
    std::optional<QString> text(const TextQuestion &, QObject *asker) override;
    QString openFile(const FileQuestion &, QObject *asker) override;
    QString saveFile(const FileQuestion &, QObject *asker) override;
};

} // namespace QV_DOC_CONTROLS
