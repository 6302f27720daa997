#include "tools/kit/plot/GapCurve.h"

#include <algorithm>
#include <cmath>

QRectF GapCurve::boundingRect() const
{
    QRectF bounds(1, 1, -2, -2); // Invalid, as Qwt wants it without any sample.
    for (std::size_t index = 0; index < dataSize(); ++index) {
        const QPointF point = sample(int(index));
        if (std::isnan(point.y()))
            continue;
        if (bounds.width() < 0) {
            bounds = QRectF(point, point);
            continue;
        }
        bounds.setCoords(std::min(bounds.left(), point.x()), std::min(bounds.top(), point.y()),
            std::max(bounds.right(), point.x()), std::max(bounds.bottom(), point.y()));
    }
    return bounds;
}

void GapCurve::drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
    const QRectF &canvasRect, int from, int to) const
{
    int begin = from;
    for (int index = from; index <= to + 1; ++index) {
        if (index <= to && !std::isnan(sample(index).y()))
            continue;
        if (begin < index)
            QwtPlotCurve::drawLines(painter, xMap, yMap, canvasRect, begin, index - 1);
        begin = index + 1;
    }
}
