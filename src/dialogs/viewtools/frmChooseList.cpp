#include "dialogs/viewtools/frmChooseList.h"

#include "facade/services/Text.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

frmChooseList::frmChooseList(QWidget *owner)
    : ModalForm("frmChooseList", owner), lstKh(new QListWidget(this))
{
    lstKh->setObjectName(QStringLiteral("lstKh"));
    lstKh->setUniformItemSizes(true);
    auto *const column = new QVBoxLayout(this);
    column->addWidget(lstKh, 1);
    column->addWidget(buttons());
    connect(lstKh, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(lstKh, &QListWidget::currentRowChanged, this, [this](int row) { cmdOk->setEnabled(row >= 0); });
    lstKh->setFocus();
}

bool frmChooseList::getIndex(const EntrySource &source, qint32 &index)
{
    const Trace trace("frmChooseList", "getIndex");
    index = -1;
    m_source = &source;
    lstKh->clear();
    lstKh->addItems(source.entries());
    lstKh->setCurrentRow(0);
    cmdOk->setEnabled(lstKh->count() > 0);
    const bool confirmed = run();
    if (confirmed) index = lstKh->currentRow();
    TearDown();
    return confirmed;
}

void frmChooseList::readCaptions()
{
    setWindowTitle(txt(Text{21206, u"Választás a listából"}));
    lstKh->setAccessibleName(txt(Text{21207, u"Választható elemek"}));
    const QStringList entries = m_source ? m_source->entries() : QStringList();
    for (int row = 0; row < std::min(lstKh->count(), int(entries.size())); ++row)
        lstKh->item(row)->setText(entries[row]);
}

} // namespace QV_DOC_CONTROLS
