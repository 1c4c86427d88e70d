#pragma once

#include "kit/forms/ModalForm.h"

#include <QStringList>

class QListWidget;

namespace QV_DOC_CONTROLS {

/// Whoever offers entries to choose from; asked again after a language change.
struct EntrySource {
    virtual ~EntrySource() = default;
    virtual QStringList entries() const = 0;    ///< as shown, in order
};

/// The dialog in which the user picks one entry of a list.
class frmChooseList final : public ModalForm {
    Q_OBJECT
public:
    explicit frmChooseList(QWidget *owner = nullptr);
    ~frmChooseList() override { TearDown(); }
    void TearDown() override { m_source = nullptr; }
    /// Index of the entry, from 0; -1 and false = cancelled
    bool getIndex(const EntrySource &source, qint32 &index);

    QListWidget *const lstKh;                   // published name

private:
    void readCaptions() override;
    const EntrySource *m_source = nullptr;
};

} // namespace QV_DOC_CONTROLS
