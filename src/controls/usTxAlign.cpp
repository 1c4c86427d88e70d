#include "controls/usTxAlign.h"

#include "controls/symbol/AlignPoint.h"
#include "facade/services/Language.h"
#include "facade/services/Text.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/GroupRole.h"
#include "kit/forms/PropertyBag.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace QV_DOC_CONTROLS {
namespace {

struct Line {
    quint8 flags;                               ///< its part of the text-align number
    Text name;
};
constexpr Line kColumns[] = {{0, {22407, u"bal"}}, {6, {22408, u"közép"}}, {2, {22409, u"jobb"}}};
constexpr Line kRows[] = {{0, {22410, u"felső él"}}, {24, {22411, u"alapvonal"}}, {8, {22412, u"alsó él"}}};
constexpr int kAcross = 6, kUpright = 24;

constexpr BagRow kBag[] = {{"Align", "Align", 24}};

quint8 alignOf(int point) { return kRows[point / 3].flags + kColumns[point % 3].flags; }
QString nameOf(int point)
{
    return join(kColumns[point % 3].name, QStringLiteral(", "), kRows[point / 3].name);
}

const QString kLetters = QStringLiteral("Ág");  // reach from the top edge to the bottom one

} // namespace

/// The sample text, as large as there is room, and the lines that its points stand on.
struct usTxAlign::Sample {
    QFont font;
    std::array<double, 3> x, y;
};

usTxAlign::usTxAlign(QWidget *parent) : QWidget(parent)
{
    announceAsGroup<usTxAlign>();
    for (int i = 0; i < int(m_points.size()); ++i) {
        m_points[size_t(i)] = new AlignPoint(this);
        connect(m_points[size_t(i)], &QRadioButton::clicked, this, [this, i] {
            ErrorRelay::reporting().guard([&] { pick(alignOf(i)); });
        });
    }
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    connect(&LanguageHub::instance(), &LanguageHub::LanguageChanged, this, &usTxAlign::reloadCaptions);
    setAlign(m_align);
    reloadCaptions();
}

void usTxAlign::setAlign(int align)
{
    m_align = quint8(std::clamp(align, 0, 255));
    QRadioButton *marked = nullptr;
    for (int i = 0; i < int(m_points.size()); ++i) {
        QRadioButton *const point = m_points[size_t(i)];
        point->setAutoExclusive(false);         // none may be marked
        point->setChecked(alignOf(i) == m_align);
        if (point->isChecked()) marked = point;
    }
    for (QRadioButton *point : m_points) point->setAutoExclusive(true);
    setFocusProxy(marked ? marked : m_points.front());
    describe();
}

void usTxAlign::pick(quint8 align)
{
    if (align == m_align) return;
    setAlign(align);
    emit ChangeAlign(align);
}

void usTxAlign::describe()
{
    const auto marked = std::ranges::find_if(m_points, &QRadioButton::isChecked);
    setAccessibleDescription(marked == m_points.end() ? QString() : (*marked)->accessibleName());
}

void usTxAlign::reloadCaptions()
{
    setAccessibleName(txt(Text{22406, u"Igazítás"}));
    for (int i = 0; i < int(m_points.size()); ++i) {
        m_points[size_t(i)]->setAccessibleName(nameOf(i));
        m_points[size_t(i)]->setToolTip(nameOf(i));
    }
    describe();
}

QVariantMap usTxAlign::propertyBag() const { return bagOf(*this, kBag); }
void usTxAlign::setPropertyBag(const QVariantMap &bag) { readBag(*this, kBag, bag); }

usTxAlign::Sample usTxAlign::sample() const
{
    const double margin = AlignPoint::reach(*this);
    QFont font = this->font();
    font.setPixelSize(100);
    const QFontMetricsF large(font);
    const double across = large.horizontalAdvance(kLetters), down = large.ascent() + large.descent();
    const double fit = std::min((width() - 2 * margin) / across, (height() - 2 * margin) / down);
    const double factor = std::max(fit, 0.05);
    font.setPixelSize(std::max(1, int(100 * factor)));
    const double w = std::round(across * factor), h = std::round(down * factor);
    const double left = std::round((width() - w) / 2), top = std::round((height() - h) / 2);
    return {font, {left, left + w / 2, left + w}, {top, top + std::round(large.ascent() * factor), top + h}};
}

/// Every point gets the part of the picture that lies nearest to it.
void usTxAlign::arrange()
{
    const Sample s = sample();
    const auto edges = [](const std::array<double, 3> &at, int length) {
        return std::array{0, int((at[0] + at[1]) / 2), int((at[1] + at[2]) / 2), length};
    };
    const auto x = edges(s.x, width()), y = edges(s.y, height());
    for (size_t i = 0; i < m_points.size(); ++i) {
        const size_t row = i / 3, column = i % 3;
        const QRect part(QPoint(x[column], y[row]), QPoint(x[column + 1] - 1, y[row + 1] - 1));
        m_points[i]->setGeometry(part);
        static_cast<AlignPoint *>(m_points[i])->setPoint(QPointF(s.x[column], s.y[row]) - part.topLeft());
    }
}

void usTxAlign::paintEvent(QPaintEvent *)
{
    const Sample s = sample();
    QPainter painter(this);
    painter.setFont(s.font);
    const QColor ink = palette().color(QPalette::Text);
    painter.setPen(ink);
    painter.setOpacity(0.4);                    // the points stand out
    painter.drawText(QPointF(s.x[0], s.y[1]), kLetters);
    painter.translate(0.5, 0.5);
    painter.drawRect(QRectF(QPointF(s.x[0], s.y[0]), QPointF(s.x[2], s.y[2])));
    painter.setPen(QPen(ink, 1, Qt::DashLine));
    painter.drawLine(QPointF(s.x[0], s.y[1]), QPointF(s.x[2], s.y[1]));
}

QSize usTxAlign::sizeHint() const
{
    const int line = fontMetrics().height();
    return {8 * line, 6 * line};
}

QSize usTxAlign::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {5 * line, 4 * line};
}

void usTxAlign::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        arrange();
        updateGeometry();
    }
}

void usTxAlign::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

} // namespace QV_DOC_CONTROLS
