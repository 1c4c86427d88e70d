#pragma once

#include "controls/LayerSetControl.h"

namespace QV_DOC_CONTROLS {

/// A layer set without a document: the caller hands over the layers and which of them is current. The list
/// has no groups.
class usLays final : public LayerSetControl {
    Q_OBJECT
public:
    explicit usLays(QWidget *parent = nullptr);

    void SetLayArr(const ZolWDoc::tLayArr &layers);    ///< copied; the set is built anew from these
    void SetCurrLay(const ZolWDoc::tLay &current);     ///< copied
    void getLaysFromTextBox(QString &sLayNrs);          ///< runs of commas in the text become one

protected:
    bool hasLayers() const override { return true; }
    LayerSet layersWith(std::span<const LayerNumbers> numbers) const override
    {
        return layersNumbered(numbers, m_layers);
    }
    std::optional<ZolWDoc::tLay> currentLayer() const override { return m_current; }
    ZolWDoc::tLayArr allLayers() const override { return m_layers; }
    ZolWDoc::tLayArr layersOf(qint32) const override { return {}; }
    std::vector<ZolWDoc::tGroup> layerGroups() const override { return {}; }

private:
    ZolWDoc::tLayArr m_layers;
    std::optional<ZolWDoc::tLay> m_current;
};

} // namespace QV_DOC_CONTROLS
