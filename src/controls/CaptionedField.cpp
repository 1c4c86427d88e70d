#include "controls/CaptionedField.h"

#include "controls/DesignMode.h"
#include "facade/services/Text.h"
#include "kit/forms/Twips.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>

namespace QV_DOC_CONTROLS {
namespace {

Qt::Alignment alignmentOf(int code)
{
    const Qt::Alignment across = code == 1 ? Qt::AlignRight : code == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
    return across | Qt::AlignVCenter;
}

QString defaultUnit() { return txt(Text{2820, u"mm"}); }

} // namespace

CaptionedField::CaptionedField(QWidget *parent)
    : QWidget(parent), picValue(new QLabel(this)), m_lblBefore(new QLabel(this)),
      m_lblAfter(new QLabel(this)), m_before(QStringLiteral("Value =")), m_after(defaultUnit())
{
    picValue->setObjectName(QStringLiteral("picValue"));
    m_lblBefore->setObjectName(QStringLiteral("lblBefore"));
    m_lblAfter->setObjectName(QStringLiteral("lblAfter"));
    for (QLabel *const label : {m_lblBefore, m_lblAfter, picValue}) label->setTextFormat(Qt::PlainText);
    picValue->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CaptionedField::surround(QWidget *value, QWidget *arrows)
{
    m_field = value, m_arrows = arrows;
    setTabOrder(m_field, picValue);
    setInfoMode(false);
}

void CaptionedField::setShort(int &property, int value)
{
    property = std::clamp<int>(value, -32768, 32767);
    arrange();
}

void CaptionedField::setBorderStyle(int style) { setShort(m_borderStyle, style); }
void CaptionedField::setBeforeStringAlign(int align) { setShort(m_align, align); }
void CaptionedField::setWidthBeforeString(int twips) { setShort(m_widthBefore, twips); }
void CaptionedField::setWidthValue(int twips) { setShort(m_widthValue, twips); }
void CaptionedField::setWidthAfterString(int twips) { setShort(m_widthAfter, twips); }

void CaptionedField::setBeforeString(const QString &caption)
{
    m_before = caption;
    arrange();
}

void CaptionedField::setAfterString(const QString &caption)
{
    m_ownAfter = caption != defaultUnit();
    m_after = caption;
    arrange();
}

void CaptionedField::resetAfterString() { setAfterString(defaultUnit()); }

void CaptionedField::setInfoMode(bool on)
{
    m_infoMode = on;
    m_field->setVisible(!on);
    picValue->setVisible(on);
    setFocusProxy(on ? picValue : m_field);
    m_lblBefore->setBuddy(focusProxy());
    arrange();
}

void CaptionedField::setUpDownVisible(bool on)
{
    m_upDownVisible = on;
    arrange();
}

bool CaptionedField::Enabled() const
{
    return isDesigned(*this) ? m_enabled : !testAttribute(Qt::WA_ForceDisabled);
}

void CaptionedField::setEnabled(bool on)
{
    m_enabled = on;
    if (!isDesigned(*this)) QWidget::setEnabled(on); // a form being designed must stay within reach
}

void CaptionedField::setBackcolor(const QColor &color)
{
    m_backcolor = systemColor(color);
    colorChildren();
}

void CaptionedField::setForeColor(const QColor &color)
{
    m_foreColor = systemColor(color);
    colorChildren();
}

/// Where only the background is the form's own, the letters are black or white.
void CaptionedField::colorChildren()
{
    QPalette value, captions;
    if (m_backcolor != kWindowBackground) {
        const QColor back = shownColor(m_backcolor, palette());
        value.setColor(QPalette::Base, back);
        value.setColor(QPalette::Text, back.lightness() > 127 ? Qt::black : Qt::white);
    }
    if (m_foreColor != kWindowText) {
        value.setColor(QPalette::Text, shownColor(m_foreColor, palette()));
        captions.setColor(QPalette::WindowText, shownColor(m_foreColor, palette()));
    }
    m_field->setPalette(value);
    for (QLabel *const label : {m_lblBefore, m_lblAfter, picValue}) label->setPalette(captions);
}

int CaptionedField::pixels(int twips) const { return pixelsOf(std::max(0, twips), *this); }

/// What a caption's text cannot use of its width.
int CaptionedField::around(const QLabel &label)
{
    return 2 * label.indent() + label.contentsMargins().right();
}

/// As wide as published, a caption as wide as its text at least; or as narrow as they may be.
CaptionedField::Widths CaptionedField::widths(bool least) const
{
    const auto caption = [&](const QLabel &label, const QString &text, int twips) {
        const int published = pixels(twips);
        const int wanted = label.fontMetrics().size(Qt::TextShowMnemonic, text).width() + around(label);
        return published == 0 || least ? published : std::max(published, wanted);
    };
    const int value = pixels(m_widthValue);
    return {caption(*m_lblBefore, m_before, m_widthBefore),
            least ? std::min(value, fontMetrics().averageCharWidth() * 6) : value,
            m_upDownVisible && !m_infoMode ? m_arrows->sizeHint().width() : 0,
            caption(*m_lblAfter, m_after, m_widthAfter)};
}

/// Where room is short the captions give way first, a unit after the other one; room to spare is the value's,
/// if the control expands.
CaptionedField::Widths CaptionedField::widthsIn(int room) const
{
    Widths parts = widths(false);
    const Widths least = widths(true);
    int lacking = parts[0] + parts[1] + parts[2] + parts[3] - room;
    for (const size_t part : {0, 3, 1}) {
        const int given = std::clamp(lacking, 0, parts[part] - least[part]);
        parts[part] -= given, lacking -= given;
    }
    if (sizePolicy().horizontalPolicy() & QSizePolicy::ExpandFlag) parts[1] += std::max(0, -lacking);
    return parts;
}

int CaptionedField::frame() const
{
    return m_borderStyle ? 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this) : 0;
}

QSize CaptionedField::sizeOf(const Widths &widths) const
{
    const int across = widths[0] + widths[1] + widths[2] + widths[3];
    return QSize(across, m_field->sizeHint().height()) + QSize(2, 2) * frame();
}

QSize CaptionedField::sizeHint() const { return sizeOf(widths(false)); }
QSize CaptionedField::minimumSizeHint() const { return sizeOf(widths(true)); }

void CaptionedField::arrange()
{
    const int gap = fontMetrics().horizontalAdvance(u' ');
    m_lblBefore->setIndent(m_align == 1 ? gap : 0);
    m_lblBefore->setContentsMargins(0, 0, m_align == 1 ? 0 : gap, 0);
    m_lblAfter->setIndent(gap);
    picValue->setIndent(gap);
    m_lblBefore->setAlignment(alignmentOf(m_align));
    m_arrows->setVisible(m_upDownVisible && !m_infoMode);

    const QRect room = rect().adjusted(frame(), frame(), -frame(), -frame());
    const Widths parts = widthsIn(room.width());
    int x = room.left();
    const auto place = [&](QWidget *child, int width) {
        const QRect at(x, room.top(), width, room.height());
        child->setGeometry(QStyle::visualRect(layoutDirection(), rect(), at));
        x += width;
    };
    place(m_lblBefore, parts[0]);
    place(m_field, parts[1]);
    picValue->setGeometry(m_field->geometry());
    place(m_arrows, parts[2]);
    place(m_lblAfter, parts[3]);
    showCaption(*m_lblBefore, m_before);
    showCaption(*m_lblAfter, m_after);
    captionsChanged();
    updateGeometry();
}

void CaptionedField::showCaption(QLabel &label, const QString &caption)
{
    const int room = label.width() - around(label);
    const QString shown = label.fontMetrics().elidedText(caption, Qt::ElideRight, room, Qt::TextShowMnemonic);
    label.setText(shown);
    label.setToolTip(shown == caption ? QString() : caption);
}

QString CaptionedField::spokenName() const
{
    if (!accessibleName().isEmpty()) return accessibleName();
    QString name = QString(m_before).remove(u'&').trimmed();
    while (name.endsWith(u'=') || name.endsWith(u':')) name = name.chopped(1).trimmed();
    return m_after.isEmpty() ? name : name + QStringLiteral(", ") + m_after;
}

void CaptionedField::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void CaptionedField::paintEvent(QPaintEvent *)
{
    if (frame() == 0) return;
    QPainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = frame() / 2;
    option.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_Frame, &option, &painter, this);
}

void CaptionedField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) arrange();
    if (event->type() == QEvent::PaletteChange) colorChildren();
}

} // namespace QV_DOC_CONTROLS
