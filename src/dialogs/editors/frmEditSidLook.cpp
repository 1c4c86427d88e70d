// What the symbol editor looks like; what it does is in frmEditSid.cpp.
#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usSiInfo.h"
#include "controls/usTxAlign.h"
#include "dialogs/editors/OptionBox.h"
#include "dialogs/editors/frmEditSid.h"
#include "kit/forms/AccessKeys.h"
#include "kit/forms/Twips.h"
#include "kit/forms/WindowSize.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

constexpr int kPreviewLetters = 56, kPreviewLines = 16;

void addLine(QGridLayout &grid, QWidget *label, QWidget *control)
{
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(control, row, 1);
}

QVBoxLayout *oneBelowTheOther(std::initializer_list<QWidget *> numbers)
{
    auto *const column = new QVBoxLayout;
    for (QWidget *number : numbers) column->addWidget(number, 0, Qt::AlignLeft);
    return column;
}

/// Fields one below the other start at one place, behind the longest of their captions.
void alignFields(std::initializer_list<usInputBox *> numbers)
{
    int widest = 0;
    for (const usInputBox *number : numbers) {
        const QFontMetrics letters(number->font());
        const QSize caption = letters.size(Qt::TextShowMnemonic, number->BeforeString() + u' ');
        widest = std::max(widest, caption.width());
    }
    for (usInputBox *number : numbers) number->setWidthBeforeString(twipsOf(widest + 1, *number));
}

} // namespace

void frmEditSid::build()
{
    usSiInfo1->setVisibleProt(true);
    usSiInfo1->setBorderStyle(1);
    usSiInfo1->setMinimumSize(sizeOfLetters(*this, kPreviewLetters, kPreviewLines));
    cmdChooseChar->setAutoDefault(false); // Enter in a field is for OK
    cmdOk->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus in a field that is refused
    auto *const seen = new QVBoxLayout;
    seen->addWidget(usSiInfo1, 1);
    auto *const below = new QHBoxLayout;
    below->addWidget(cmdChooseChar);
    below->addWidget(chkGrid, 1);
    seen->addLayout(below);
    auto *const both = new QHBoxLayout;
    both->addLayout(buildFields(), 2);
    both->addLayout(seen, 3);
    auto *const all = new QVBoxLayout(this);
    all->addLayout(both, 1);
    all->addWidget(buttons());
}

QVBoxLayout *frmEditSid::buildFields()
{
    auto *const names = new QGridLayout;
    addLine(*names, m_fields.label("txtShortName"), txtShortName);
    addLine(*names, m_fields.label("txtFullName"), txtFullName);
    auto *const column = new QVBoxLayout;
    column->addLayout(names);
    buildFont(*column);
    buildPlace(*column);
    buildMarker(*column);
    column->addWidget(usLayInfo1);
    column->addStretch(1);
    return column;
}

void frmEditSid::buildFont(QVBoxLayout &column)
{
    auto *const face = new QGridLayout;
    addLine(*face, m_fields.label("cboFonts"), cboFonts);
    face->setColumnStretch(1, 1);
    cboFonts->setMinimumContentsLength(24);
    cboFonts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    column.addWidget(optFontType);
    column.addLayout(face);
    column.addLayout(oneBelowTheOther({usNumAscIICode, usNumSize, usNumWidth}));
}

void frmEditSid::buildPlace(QVBoxLayout &column)
{
    auto *const moves = new QVBoxLayout(fraMove);
    moves->addLayout(oneBelowTheOther({usNumXMove, usNumYMove}));
    moves->addStretch(1);
    auto *const align = new QVBoxLayout(fraAlign);
    align->addWidget(usTxAlign1);
    auto *const row = new QHBoxLayout;
    row->addWidget(fraMove, 1);
    row->addWidget(fraAlign, 1);
    column.addLayout(row);
}

void frmEditSid::buildMarker(QVBoxLayout &column)
{
    auto *const grid = new QGridLayout(m_marker);
    addLine(*grid, m_fields.label("cboProtType"), cboProtType);
    grid->setColumnStretch(1, 1);
    grid->addLayout(oneBelowTheOther({usNumProtParam1, usNumProtParam2}), grid->rowCount(), 0, 1, 2);
    column.addWidget(m_marker);
}

void frmEditSid::readCaptions()
{
    setWindowTitle(txt(Text{22550, u"Jelkulcstípus szerkesztése"}));
    QStringList captions = m_fields.captions();
    const qsizetype fields = captions.size();
    captions << txt(Text{22560, u"Karakter választása..."}) << txt(Text{22561, u"Eltolás"})
             << txt(Text{22562, u"Igazítás"}) << txt(Text{22563, u"Beszúrási pont jele"})
             << txt(Text{22564, u"Háttérrács"});
    captions = withAccessKeys(captions);
    m_fields.retranslate(captions.first(fields));
    cmdChooseChar->setText(captions[fields]);
    fraMove->setTitle(captions[fields + 1]);
    fraAlign->setTitle(captions[fields + 2]);
    m_marker->setTitle(captions[fields + 3]);
    chkGrid->setText(captions[fields + 4]);
    describeMarker();
    alignFields({usNumAscIICode, usNumSize, usNumWidth});
}

} // namespace QV_DOC_CONTROLS
