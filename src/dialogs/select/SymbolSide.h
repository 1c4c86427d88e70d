#pragma once

#include "dialogs/select/SymbolSamples.h"

#include <QWidget>

namespace QV_DOC_CONTROLS {

class clsJS_Sid;
class ErrorRelay;
class GridPage;
class usSiInfo;

/// What a page of symbols has beside its grid: the preview of the current one, the samples in the grid, and
/// the list of groups to move to. Made for a manager before its init(); both belong to the page.
class SymbolSide final : public QWidget {
    Q_OBJECT
public:
    SymbolSide(GridPage &page, clsJS_Sid &manager, ZolWDoc::ZOLW_Doc &doc, ErrorRelay &relay);
    ~SymbolSide() override;
    void TearDown();                            ///< drops the document; may be repeated

    /// In the preview, at the symbol's own zoom; the one that is shown already keeps the user's.
    void show(const ZolWDoc::tSid &symbol);
    void fill(std::vector<ZolWDoc::tSid> &symbols);     ///< gets ready to draw their samples
    void refresh(const ZolWDoc::tSid &symbol);  ///< draws its sample again

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectTools(clsJS_Sid &manager);
    void connectGroupMove(clsJS_Sid &manager);
    void zoomSamples(double step);
    GridPage &m_page;
    ErrorRelay &m_relay;
    ZolWDoc::ZOLW_Doc *m_doc;                   ///< the host's, until TearDown()
    SymbolSamples m_samples;
    usSiInfo *m_preview;
};

} // namespace QV_DOC_CONTROLS
