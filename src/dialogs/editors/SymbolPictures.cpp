#include "dialogs/editors/SymbolPictures.h"

#include "controls/usSiInfo.h"
#include "kit/ask/ErrorRelay.h"

namespace QV_DOC_CONTROLS {

constexpr qsizetype kMostPictures = 2000; // some screens full

SymbolPictures::SymbolPictures(usSiInfo &preview, ErrorRelay &relay)
    : QObject(&preview), m_preview(preview), m_relay(relay)
{}

QPixmap SymbolPictures::of(const ZolWDoc::tSid &symbol)
{
    const auto found = m_pictures.constFind(symbol.SidId);
    const bool isThere = found != m_pictures.constEnd();
    if (!isThere || found->look != m_look || found->symbol != symbol) {
        if (m_wanted.isEmpty()) QMetaObject::invokeMethod(this, &SymbolPictures::draw, Qt::QueuedConnection);
        m_wanted.insert(symbol.SidId, symbol);
    }
    return isThere ? found->pixmap : m_blank;
}

void SymbolPictures::draw()
{
    if (m_wanted.isEmpty()) return;
    if (m_pictures.size() > kMostPictures) m_pictures.clear();
    m_relay.guard([this] {
        const auto wanted = std::exchange(m_wanted, {});
        for (const ZolWDoc::tSid &symbol : wanted) {
            m_preview.LetSidRec(symbol);
            m_pictures.insert(symbol.SidId, {symbol, m_preview.GetSiPicture(), m_look});
        }
    });
    emit drawn();
}

void SymbolPictures::outdate() { ++m_look, emit drawn(); }

void SymbolPictures::forget()
{
    m_pictures.clear();
    m_wanted.clear();
}

void SymbolPictures::setSide(int pixels)
{
    if (m_preview.size() == QSize(pixels, pixels)) return;
    m_preview.resize(pixels, pixels);
    m_blank = m_preview.GetSiPicture();
    m_blank.fill(Qt::transparent);
    outdate();
}

void SymbolPictures::zoomBy(double step)
{
    m_preview.setZoom(m_preview.Zoom() + step);
    outdate();
}

} // namespace QV_DOC_CONTROLS
