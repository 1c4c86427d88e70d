#include "kit/paper/PageSetupDialog.h"

#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "kit/forms/Buttons.h"
#include "kit/forms/QuietWheel.h"
#include "kit/paper/PageSetup.h"
#include "kit/paper/PageThumbnail.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {
namespace {

struct MarginRow {
    const char *name;
    Text caption;
};
constexpr MarginRow kMargins[] = {
    {"spinLeft", {21435, u"&Bal:"}},
    {"spinTop", {21436, u"&Felső:"}},
    {"spinRight", {21437, u"&Jobb:"}},
    {"spinBottom", {21438, u"&Alsó:"}},
};

} // namespace

PageSetupDialog::PageSetupDialog(const QPageLayout &page, QWidget *parent)
    : QDialog(parent), m_paper(new QComboBox(this)), m_paperLabel(new QLabel(this)), m_turnedBox(turnedBox()),
      m_marginsBox(marginsBox()), m_thumbnail(new PageThumbnail(this)), m_refusal(new QLabel(this)),
      m_buttons(okCancelButtons(*this))
{
    setObjectName(QStringLiteral("PageSetupDialog"));
    build();
    fillPapers(page.pageSize());
    (page.orientation() == QPageLayout::Landscape ? m_landscape : m_portrait)->setChecked(true);
    const QMarginsF m = page.margins(QPageLayout::Millimeter);
    const double margins[] = {m.left(), m.top(), m.right(), m.bottom()};
    for (size_t i = 0; i < m_margins.size(); ++i) {
        m_margins[i]->setValue(margins[i]);
        connect(m_margins[i], &QDoubleSpinBox::valueChanged, this, &PageSetupDialog::follow);
    }
    connect(m_paper, &QComboBox::currentIndexChanged, this, &PageSetupDialog::follow);
    connect(m_landscape, &QRadioButton::toggled, this, &PageSetupDialog::follow);
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this, &PageSetupDialog::retranslate);
    retranslate();
    m_paper->setFocus();
}

QGroupBox *PageSetupDialog::turnedBox()
{
    auto *const box = new QGroupBox(this);
    m_portrait = new QRadioButton(box);
    m_landscape = new QRadioButton(box);
    m_portrait->setObjectName(QStringLiteral("optPortrait"));
    m_landscape->setObjectName(QStringLiteral("optLandscape"));
    auto *const row = new QHBoxLayout(box);
    row->addWidget(m_portrait);
    row->addWidget(m_landscape);
    row->addStretch();
    return box;
}

QGroupBox *PageSetupDialog::marginsBox()
{
    auto *const box = new QGroupBox(this);
    auto *const form = new QFormLayout(box);
    for (size_t i = 0; i < m_margins.size(); ++i) {
        m_margins[i] = new QDoubleSpinBox(box);
        m_margins[i]->setObjectName(QLatin1String(kMargins[i].name));
        m_margins[i]->setRange(0, kMostMargin);
        m_margins[i]->setDecimals(1);
        m_margins[i]->setSuffix(QStringLiteral(" mm"));
        quietWheel(*m_margins[i]);
        m_marginLabels[i] = new QLabel(box);
        m_marginLabels[i]->setBuddy(m_margins[i]);
        form->addRow(m_marginLabels[i], m_margins[i]);
    }
    m_range = new QLabel(box);
    form->addRow(m_range);
    return box;
}

void PageSetupDialog::build()
{
    m_paper->setObjectName(QStringLiteral("cboPaper"));
    quietWheel(*m_paper);
    m_paperLabel->setBuddy(m_paper);
    m_refusal->setObjectName(QStringLiteral("lblRefusal"));
    m_refusal->setWordWrap(true);
    m_refusal->setMinimumHeight(3 * fontMetrics().lineSpacing()); // nothing jumps when it speaks
    m_refusal->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto *const paper = new QHBoxLayout;
    paper->addWidget(m_paperLabel);
    paper->addWidget(m_paper, 1);
    auto *const left = new QVBoxLayout;
    left->addLayout(paper);
    left->addWidget(m_turnedBox);
    left->addWidget(m_marginsBox);
    left->addStretch();
    auto *const both = new QHBoxLayout;
    both->addLayout(left);
    both->addWidget(m_thumbnail, 1);
    auto *const column = new QVBoxLayout(this);
    column->addLayout(both, 1);
    column->addWidget(m_refusal);
    column->addWidget(m_buttons);
}

void PageSetupDialog::fillPapers(const QPageSize &current)
{
    for (QPageSize::PageSizeId id : paperSizes()) m_paper->addItem(paperName(QPageSize(id)), int(id));
    if (m_paper->findData(int(current.id())) < 0) m_paper->addItem(paperName(current), int(current.id()));
    m_paper->setCurrentIndex(m_paper->findData(int(current.id())));
}

void PageSetupDialog::retranslate()
{
    setWindowTitle(txt(Text{3345, u"Oldalbeállítás"}));
    m_paperLabel->setText(txt(Text{21430, u"&Papírméret:"}));
    m_turnedBox->setTitle(txt(Text{21431, u"Tájolás"}));
    m_portrait->setText(txt(Text{21432, u"Á&lló"}));
    m_landscape->setText(txt(Text{21433, u"F&ekvő"}));
    m_marginsBox->setTitle(txt(Text{21434, u"Margók"}));
    for (size_t i = 0; i < m_margins.size(); ++i) m_marginLabels[i]->setText(txt(kMargins[i].caption));
    m_range->setText(join(Text{21439, u"Megengedett: 0 – "}, int(kMostMargin), QStringLiteral(" mm")));
    m_thumbnail->setAccessibleName(txt(Text{21443, u"Az oldal vázlata"}));
    QV_DOC_CONTROLS::retranslate(*m_buttons);
    follow();
}

QPageLayout PageSetupDialog::page() const
{
    const auto turned = m_landscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait;
    const QMarginsF margins(m_margins[0]->value(), m_margins[1]->value(), m_margins[2]->value(),
                            m_margins[3]->value());
    return pageLayoutOf(QPageSize::PageSizeId(m_paper->currentData().toInt()), turned, margins);
}

void PageSetupDialog::follow()
{
    const QPageLayout now = page();
    const QString refusal = refusalFor(now);
    m_thumbnail->setPage(now);
    m_thumbnail->setAccessibleDescription(m_paper->currentText());
    m_refusal->setText(refusal);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(refusal.isEmpty());
}

void PageSetupDialog::accept()
{
    if (!refusalFor(page()).isEmpty()) return;
    storePageSetup(page());
    QDialog::accept();
}

} // namespace QV_DOC_CONTROLS
