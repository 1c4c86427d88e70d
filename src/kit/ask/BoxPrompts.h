#pragma once

#include "facade/services/Prompts.h"

class QWidget;

namespace QV_DOC_CONTROLS {

/// The message boxes and file dialogs behind prompts(): the only place of the library that shows them. The
/// prompts with fields join in dialogs/values.
class BoxPrompts : public Prompts {
public:
    void tell(const Message &, QObject *asker) override;
    void alert() override;
    bool yesNo(const Message &, QObject *asker) override;
    AllYesNo allYesNo(const Message &, QObject *asker) override;
    std::optional<bool> yesNoCancel(const Message &, QObject *asker) override;
    QString openFile(const FileQuestion &, QObject *asker) override;
    QString saveFile(const FileQuestion &, QObject *asker) override;

protected:
    static QWidget *windowOf(QObject *asker);   ///< who owns the box of that asker; null = nobody
};

} // namespace QV_DOC_CONTROLS
