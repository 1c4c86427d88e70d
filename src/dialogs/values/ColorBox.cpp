#include "dialogs/values/ColorBox.h"

#include "dialogs/values/ColorGrid.h"
#include "dialogs/values/NumberEntry.h"
#include "facade/services/Text.h"
#include "kit/forms/AccessKeys.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

ColorBox::ColorBox(const ColorIndexQuestion &q, QWidget *owner)
    : ValueBox(q.title, q.text, owner), m_palette(q.palette), m_grid(new ColorGrid(q.palette, this)),
      m_entry(makeNumberEntry(
          {.preset = double(q.preset), .min = 0, .max = double(q.palette.size()) - 1}, this)),
      m_sample(new QLabel(this)), m_rgb(new QLabel(this))
{
    m_grid->setObjectName(QStringLiteral("grdColors"));
    m_grid->setAccessibleName(q.text);
    m_rgb->setObjectName(QStringLiteral("lblRgb"));
    build();
    connect(m_grid, &ColorGrid::digitsTyped, m_entry, &NumberEntry::type);
    connect(m_grid, &ColorGrid::doubleClicked, this, &ColorBox::accept);
    connect(m_grid, &ColorGrid::currentMoved, this, [this](int index) {
        if (index >= 0 && index != m_index) m_entry->setNumber(index);
    });
    connect(m_entry, &NumberEntry::changed, this, [this] { show(m_entry->number()); });
    show(m_entry->number());
    if (m_index >= 0) m_grid->setFocus();
    else m_entry->takeFocus();
}

void ColorBox::build()
{
    const QString caption = txt(Text{21606, u"Színindex:"});
    auto *const label = new QLabel(withAccessKeys({caption}).first(), this);
    label->setBuddy(m_entry->focusProxy());
    m_entry->setCaption(caption);
    m_sample->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_sample->setAutoFillBackground(true);
    m_rgb->setMinimumWidth(fontMetrics().horizontalAdvance(rgbOf(0xffffff)));
    auto *const sample = new QVBoxLayout;
    sample->addWidget(m_sample, 1);
    sample->addWidget(m_rgb);
    auto *const typed = new QFormLayout;
    typed->addRow(label, m_entry);
    auto *const chosen = new QHBoxLayout;
    chosen->addLayout(typed, 1);
    chosen->addLayout(sample);
    fields().addWidget(m_grid, 0, Qt::AlignHCenter);
    fields().addLayout(chosen);
    fields().addStretch(1);
}

void ColorBox::show(std::optional<double> index)
{
    m_index = index ? int(*index) : -1;
    m_grid->setCurrent(m_index);
    QPalette look = palette();
    if (index) look.setColor(QPalette::Window, QColor(QRgb(m_palette[size_t(m_index)])));
    m_sample->setPalette(look);
    m_rgb->setText(index ? rgbOf(m_palette[size_t(m_index)]) : QString());
}

void ColorBox::accept()
{
    if (m_index >= 0) QDialog::accept();
    else m_entry->takeFocus();
}

} // namespace QV_DOC_CONTROLS
