#pragma once

#include "facade/contract/Records.h"

#include <QHash>
#include <QObject>
#include <QPixmap>

namespace QV_DOC_CONTROLS {

class ErrorRelay;
class usSiInfo;

/// The pictures of symbols in a list, drawn by a hidden preview: those that are looked at, after the painting
/// that asked for them, because drawing may ask the host for strokes. Made again when the look has changed;
/// until then the old picture is shown.
class SymbolPictures final : public QObject {
    Q_OBJECT
public:
    SymbolPictures(usSiInfo &preview, ErrorRelay &relay);
    QPixmap of(const ZolWDoc::tSid &symbol); ///< what there is now, perhaps only room for it
    void setSide(int pixels);
    void zoomBy(double step); ///< within what the preview allows
    void outdate();           ///< the look has changed: colours, say
    void forget();            ///< all pictures
signals:
    void drawn();

private:
    struct Picture {
        QPixmap pixmap;
        int look = 0;
    };
    void draw();
    usSiInfo &m_preview;
    ErrorRelay &m_relay;
    QHash<QByteArray, Picture> m_pictures; ///< by what is drawn: symbols that look alike share one
    QHash<QByteArray, ZolWDoc::tSid> m_wanted;
    QPixmap m_blank; ///< as large as the pictures
    int m_look = 1;  ///< counts the changes of it
};

} // namespace QV_DOC_CONTROLS
