#include "rules/LayerTransfer.h"

#include <QHash>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

tLayArr takingOver(std::span<const tLay> from, std::span<const tLay> to, std::span<bool tLay::*const> parts)
{
    QHash<qint16, const tLay *> byNumber;
    for (const tLay &l : from) byNumber.insert(l.gNr, &l);
    tLayArr changed;
    for (const tLay &l : to) {
        const tLay *const model = byNumber.value(l.gNr);
        if (!model) continue;
        tLay taken = l;
        for (const auto part : parts) taken.*part = model->*part;
        if (taken != l) changed.push_back(std::move(taken));
    }
    return changed;
}

} // namespace QV_DOC_CONTROLS
