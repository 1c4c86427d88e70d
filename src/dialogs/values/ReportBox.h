#pragma once

#include "facade/services/Prompts.h"

#include <QDialog>

namespace QV_DOC_CONTROLS {

/// What a command did: a text over lines that can be read, searched by eye and copied, and a button to close.
class ReportBox final : public QDialog {
    Q_OBJECT
public:
    ReportBox(const Report &, QWidget *owner);
};

} // namespace QV_DOC_CONTROLS
