#pragma once

#include <qwt_plot_marker.h>

/// A horizontal line with its text above it, or below it at the upper edge of the diagram. The vertical axis
/// includes the line.
class HorizontalMarker : public QwtPlotMarker
{
public:
    HorizontalMarker();

    QRectF boundingRect() const override;

protected:
    void drawLabel(QPainter *painter, const QRectF &canvas, const QPointF &position) const override;
};
