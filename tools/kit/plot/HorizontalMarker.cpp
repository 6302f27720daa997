#include "tools/kit/plot/HorizontalMarker.h"

#include <QPainter>

HorizontalMarker::HorizontalMarker()
{
    setLineStyle(HLine);
    setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    setItemAttribute(QwtPlotItem::AutoScale);
}

QRectF HorizontalMarker::boundingRect() const
{
    return {0, yValue(), -1, 0}; // Without a width, the horizontal axis ignores it.
}

void HorizontalMarker::drawLabel(QPainter *painter, const QRectF &canvas, const QPointF &position) const
{
    const double height = label().textSize(painter->font()).height() + spacing();
    const bool isCut = position.y() - height < canvas.top();
    QwtPlotMarker::drawLabel(painter, canvas, isCut ? position + QPointF(0, height + spacing()) : position);
}
