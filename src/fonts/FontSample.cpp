#include "fonts/FontSample.h"

#include "kit/ask/ErrorRelay.h"
#include "kit/forms/WindowSize.h"

#include <QPainter>

namespace QV_DOC_CONTROLS {

FontSample::FontSample(ErrorRelay &host, QWidget *parent) : QFrame(parent), m_host(host)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setAutoFillBackground(true);
}

QSize FontSample::sizeHint() const { return sizeOfLetters(*this, 54, 5); }

void FontSample::showLetters(std::shared_ptr<CharacterSource> source)
{
    m_source = std::move(source);
    m_code = -1;
    if (m_source) m_host.guard([this] { m_source->prepareSample(); });
    update();
}

void FontSample::showCharacter(std::shared_ptr<CharacterSource> source, int code)
{
    m_source = std::move(source);
    m_code = code;
    const auto one = quint16(code);
    if (m_source) m_host.guard([&] { m_source->prepare({&one, 1}); });
    update();
}

void FontSample::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!m_source) return;
    QPainter painter(this);
    const QColor ink = palette().color(QPalette::Text);
    const double margin = fontMetrics().height() / 2.0;
    const QRectF box = QRectF(contentsRect()).adjusted(margin, margin, -margin, -margin);
    if (m_code < 0) m_source->drawSample(painter, box, ink);
    else m_source->draw(painter, m_code, box, ink);
}

} // namespace QV_DOC_CONTROLS
