#include "kit/paper/Ink.h"

#include "kit/forms/Contrast.h"

namespace QV_DOC_CONTROLS {
namespace {

constexpr double kReadable = 3.0;   ///< contrast that large or bold letters need

} // namespace

QColor inkOn(QColor ground, QColor wanted)
{
    if (!ground.isValid() && !wanted.isValid()) return QColor::fromRgb(kInk);
    const QColor under = ground.isValid() ? ground : QColor::fromRgb(kPaper);
    if (wanted.isValid() && contrastOf(under, wanted) >= kReadable) return wanted;
    return blackOrWhiteOn(under);
}

} // namespace QV_DOC_CONTROLS
