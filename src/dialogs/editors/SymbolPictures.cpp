#include "dialogs/editors/SymbolPictures.h"

#include "controls/usSiInfo.h"
#include "kit/ask/ErrorRelay.h"

#include <QDataStream>
#include <QIODevice>

namespace QV_DOC_CONTROLS {
namespace {

constexpr qsizetype kMostPictures = 2000; // some screens full

/// What the preview draws of a symbol, to the bit: a number that is none is also the same again.
QByteArray drawnOf(const ZolWDoc::tSid &s)
{
    QByteArray drawn;
    QDataStream out(&drawn, QIODevice::WriteOnly);
    out << s.Type << s.Facename << s.Code << s.CharSet << s.PitchAndFamily << s.Align << s.Size_mm << s.YwFact
        << s.XwFact << s.Weight << s.Italic << s.Underline << s.StrikeThrough << s.MoveXmm << s.MoveYmm
        << s.ProtType << s.ProtXmm << s.ProtYmm << s.DspZoom;
    return drawn;
}

} // namespace

SymbolPictures::SymbolPictures(usSiInfo &preview, ErrorRelay &relay)
    : QObject(&preview), m_preview(preview), m_relay(relay)
{}

QPixmap SymbolPictures::of(const ZolWDoc::tSid &symbol)
{
    const QByteArray drawn = drawnOf(symbol);
    const auto found = m_pictures.constFind(drawn);
    const bool isThere = found != m_pictures.constEnd();
    if (!isThere || found->look != m_look) {
        if (m_wanted.isEmpty()) QMetaObject::invokeMethod(this, &SymbolPictures::draw, Qt::QueuedConnection);
        m_wanted.insert(drawn, symbol);
    }
    return isThere ? found->pixmap : m_blank;
}

void SymbolPictures::draw()
{
    if (m_wanted.isEmpty()) return;
    if (m_pictures.size() > kMostPictures) m_pictures.clear();
    m_relay.guard([this] {
        const auto wanted = std::exchange(m_wanted, {});
        for (const auto &[drawn, symbol] : wanted.asKeyValueRange()) {
            m_preview.LetSidRec(symbol);
            m_pictures.insert(drawn, {m_preview.GetSiPicture(), m_look});
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
