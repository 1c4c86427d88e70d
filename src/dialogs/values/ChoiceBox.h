#pragma once

#include "facade/services/Prompts.h"

#include <QDialog>

class QListWidget;

namespace QV_DOC_CONTROLS {

/// One of several things: a text, a list with the proposed entry current, OK and Cancel.
class ChoiceBox final : public QDialog {
public:
    ChoiceBox(const Choice &, QWidget *owner);
    int chosen() const;                         ///< index of the current entry
private:
    QListWidget *m_list;
};

} // namespace QV_DOC_CONTROLS
