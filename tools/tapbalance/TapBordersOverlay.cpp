#include "tools/tapbalance/TapBordersOverlay.h"

#include "tools/kit/canvas/CanvasOverlays.h"
#include "tools/kit/canvas/ViewTransform.h"
#include "tools/tapbalance/TapTexts.h"

#include <QPainter>

namespace {

/// Returns the middle of a tap's zone in one direction, as a share of the picture.
double zoneCenter(unsigned tap, unsigned tapsPerZone, unsigned zones)
{
    return (tap / tapsPerZone + 0.5) / zones;
}

} // namespace

void TapBordersOverlay::paint(QPainter &painter, const ViewTransform &view) const
{
    const auto &measurement = m_result.bright ? m_result.bright : m_result.dark;
    if (!measurement || view.isEmpty())
        return;
    const QSizeF size = view.pictureSize();
    const TapLayout &layout = m_result.layout;
    QPen pen(QColor(0xf59e0b));
    pen.setCosmetic(true);
    pen.setStyle(Qt::DashLine);
    for (const TapStep &step : measurement->steps) {
        if (step.kind == TapStep::Kind::Interleaved)
            continue;
        const auto position = static_cast<double>(step.position);
        const bool isVertical = step.kind == TapStep::Kind::Columns;
        const QPointF from = isVertical ? QPointF(position, 0) : QPointF(0, position);
        const QPointF to = isVertical ? QPointF(position, size.height()) : QPointF(size.width(), position);
        painter.setPen(pen);
        painter.drawLine(view.toView(from), view.toView(to));
        const double across = isVertical
            ? zoneCenter(step.first / layout.columns(), layout.tapsY, layout.zonesY)
            : zoneCenter(step.first % layout.columns(), layout.tapsX, layout.zonesX);
        const QPointF label = isVertical ? QPointF(position, across * size.height())
                                         : QPointF(across * size.width(), position);
        canvasoverlays::paintLabel(
            painter, view.viewSize(), view.toView(label), TapTexts::step(*measurement, step));
    }
}
