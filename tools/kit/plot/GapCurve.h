#pragma once

#include <qwt_plot_curve.h>

/// A curve with gaps: a sample whose y is not a number separates the parts before and after it.
class GapCurve : public QwtPlotCurve
{
public:
    using QwtPlotCurve::QwtPlotCurve;

    QRectF boundingRect() const override;

protected:
    void drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
        const QRectF &canvasRect, int from, int to) const override;
};
