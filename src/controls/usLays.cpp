#include "controls/usLays.h"

namespace QV_DOC_CONTROLS {

usLays::usLays(QWidget *parent) : LayerSetControl("usLays", parent) { ml_RuntimeSupport_LanguageChanged(); }

void usLays::SetLayArr(const ZolWDoc::tLayArr &layers)
{
    Trace trace("usLays", "SetLayArr");
    m_layers = layers;
    layersArrived();
}

void usLays::SetCurrLay(const ZolWDoc::tLay &current)
{
    Trace trace("usLays", "SetCurrLay");
    m_current = current;
    currentLayerArrived();
}

void usLays::getLaysFromTextBox(QString &sLayNrs)
{
    Trace trace("usLays", "getLaysFromTextBox");
    readSet(sLayNrs);
}

} // namespace QV_DOC_CONTROLS
