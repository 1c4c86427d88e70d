#include "fonts/FaceChooser.h"

#include "facade/services/Text.h"
#include "fonts/FontCatalogue.h"
#include "kit/forms/AccessKeys.h"
#include "kit/forms/WindowSize.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

FaceChooser::FaceChooser(const char *form, QWidget *owner)
    : ModalForm(form, owner), txtSearch(new QLineEdit(this)), lstFaces(new QListWidget(this)),
      lblHint(new QLabel(this)), sample(new FontSample(m_host, this)), m_column(new QVBoxLayout),
      m_lblSearch(new QLabel(this))
{
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    txtSearch->setClearButtonEnabled(true);
    txtSearch->installEventFilter(this);
    lstFaces->setObjectName(QStringLiteral("lstFaces"));
    lstFaces->setUniformItemSizes(true);
    lstFaces->setMinimumHeight(sizeOfLetters(*this, 0, 10).height());
    lblHint->setObjectName(QStringLiteral("lblHint"));
    lblHint->setTextFormat(Qt::PlainText);
    lblHint->setWordWrap(true);
    lblHint->setMinimumHeight(2 * fontMetrics().lineSpacing()); // nothing moves when it speaks
    m_lblSearch->setBuddy(txtSearch);
    auto *const searching = new QHBoxLayout;
    searching->addWidget(m_lblSearch);
    searching->addWidget(txtSearch, 1);
    m_column->addLayout(searching);
    m_column->addWidget(lstFaces, 2);
    auto *const all = new QVBoxLayout(this);
    all->addLayout(m_column, 2);
    all->addWidget(sample, 1);
    all->addWidget(lblHint);
    all->addWidget(buttons());
    connect(txtSearch, &QLineEdit::textChanged, this, &FaceChooser::search);
    connect(lstFaces, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(lstFaces, &QListWidget::itemSelectionChanged, this, [this] { faceChosen(); });
}

bool FaceChooser::choose(const QStringList &faces, const QString &first)
{
    const int at = indexOfFace(faces, first);
    m_unknown = at < 0 ? first : QString();
    {
        const QSignalBlocker quiet(lstFaces);
        lstFaces->addItems(faces);
        lstFaces->setCurrentRow(at);
    }
    faceChosen();
    if (at < 0) txtSearch->setFocus();
    else lstFaces->setFocus();
    const bool confirmed = run(&m_host);
    TearDown();
    return confirmed;
}

/// The selected one: a list that gets the focus has a current one all the same.
QString FaceChooser::face() const
{
    const QList<QListWidgetItem *> chosen = lstFaces->selectedItems();
    return chosen.isEmpty() || chosen[0]->isHidden() ? QString() : chosen[0]->text();
}

void FaceChooser::faceChosen()
{
    cmdOk->setEnabled(!face().isEmpty());
    say(face().isEmpty() && !m_unknown.isEmpty() ? unknownFaceText(m_unknown) : QString());
    showSample();
}

void FaceChooser::say(const QString &hint)
{
    lblHint->setText(hint);
    lstFaces->setAccessibleDescription(hint);
}

void FaceChooser::showSample()
{
    std::shared_ptr<CharacterSource> source;
    m_host.guard([&] { if (!face().isEmpty()) source = charactersOf(face()); });
    sample->showLetters(source);
}

/// Names that contain the text stay; when the chosen one goes, the first that stays is chosen.
void FaceChooser::search(const QString &text)
{
    int first = -1;
    for (int row = 0; row < lstFaces->count(); ++row) {
        QListWidgetItem &item = *lstFaces->item(row);
        item.setHidden(!item.text().contains(text.trimmed(), Qt::CaseInsensitive));
        if (first < 0 && !item.isHidden()) first = row;
    }
    if (face().isEmpty()) {
        if (first < 0) lstFaces->clearSelection();
        else lstFaces->setCurrentRow(first, QItemSelectionModel::ClearAndSelect);
    }
    if (!face().isEmpty()) lstFaces->scrollToItem(lstFaces->selectedItems()[0]);
    faceChosen();
}

void FaceChooser::readCaptions()
{
    const QString caption = txt(Text{22455, u"Keresés:"});
    m_lblSearch->setText(withAccessKeys({caption}).first());
    txtSearch->setAccessibleName(caption);
    lstFaces->setAccessibleName(windowTitle());
    sample->setAccessibleName(txt(Text{3167, u"Minta"}));
    faceChosen();
}

/// Up and down walk the list while the search is being typed.
bool FaceChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == txtSearch && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(lstFaces, event), true;
    }
    return ModalForm::eventFilter(watched, event);
}

} // namespace QV_DOC_CONTROLS
