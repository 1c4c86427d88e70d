#include "fonts/CharacterSource.h"

#include <algorithm>

namespace QV_DOC_CONTROLS {

CellPlace placeInCell(const QRectF &shape, double baseLine, const QRectF &cell)
{
    CellPlace place;
    if (shape.isEmpty() && shape.width() <= 0 && shape.height() <= 0) return {{cell.left(), baseLine}, 1};
    place.scale = std::min({1.0, cell.width() / std::max(shape.width(), 1e-9),
                            cell.height() / std::max(shape.height(), 1e-9)});
    const QRectF scaled(shape.topLeft() * place.scale, shape.size() * place.scale);
    place.origin.setX(cell.center().x() - scaled.center().x());
    place.origin.setY(std::clamp(baseLine, cell.top() - scaled.top(),
                                 std::max(cell.top() - scaled.top(), cell.bottom() - scaled.bottom())));
    return place;
}

QString codeText(int code)
{
    return QStringLiteral("U+%1").arg(code, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace QV_DOC_CONTROLS
