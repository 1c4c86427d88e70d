#pragma once

#include "controls/LayerSetControl.h"

#include "facade/contract/ZOLW_Doc.h"

namespace QV_DOC_CONTROLS {

/// A layer set of a document; its list also offers the document's layer groups. Until there is a document
/// nothing is read and no event raised.
class ZOL3_LayGroup final : public LayerSetControl {
    Q_OBJECT
public:
    explicit ZOL3_LayGroup(QWidget *parent = nullptr);
    ~ZOL3_LayGroup() override;

    ZolWDoc::ZOLW_Doc *ZOLW_Doc() const { return m_doc; }
    void setZOLW_Doc(ZolWDoc::ZOLW_Doc *doc);           ///< the host's, until TearDown(); may be null
    void TearDown();                                    ///< drops the document and the set; may be repeated

    void GetLaysByTextBox(QString &sLayNrs);            ///< runs of commas in the text become one
    void setManual_LayId(qint16 iLayId);                ///< as if its number was typed; unknown: nothing
    void setManual_LayNr(qint16 iLayNr);                ///< as if typed; unknown: nothing

protected:
    bool hasLayers() const override { return m_doc != nullptr; }
    LayerSet layersWith(std::span<const LayerNumbers> numbers) const override;
    std::optional<ZolWDoc::tLay> currentLayer() const override;
    ZolWDoc::tLayArr allLayers() const override;
    ZolWDoc::tLayArr layersOf(qint32 group) const override;
    std::vector<ZolWDoc::tGroup> layerGroups() const override;

private:
    ZolWDoc::ZOLW_Doc *m_doc = nullptr;
};

} // namespace QV_DOC_CONTROLS
