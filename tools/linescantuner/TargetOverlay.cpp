#include "tools/linescantuner/TargetOverlay.h"

#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/CanvasOverlays.h"
#include "tools/kit/canvas/ViewTransform.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>

namespace {

constexpr int outlinePoints = 180;

} // namespace

void TargetOverlay::paint(QPainter &painter, const ViewTransform &view) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    if (columns.count > 0) {
        painter.setPen(QPen(QColor::fromRgb(canvascolors::accent), 1, Qt::DashLine));
        const QSizeF size = view.pictureSize();
        for (const double x : {double(columns.first), double(columns.first + columns.count)})
            painter.drawLine(view.toView(QPointF(x, 0)), view.toView(QPointF(x, size.height())));
    }
    if (!target)
        return;
    QPolygonF outline;
    for (const FitPoint &point : target->ellipse.outline(outlinePoints))
        outline.append(view.toView(QPointF(point.x, point.y)));
    painter.setPen(QPen(QColor::fromRgb(canvascolors::shade), 4));
    painter.drawPolygon(outline);
    painter.setPen(QPen(QColor::fromRgb(canvascolors::warning), 2));
    painter.drawPolygon(outline);
    const Ellipse &ellipse = target->ellipse;
    const QLocale locale;
    const QString text = QCoreApplication::translate("TargetOverlay", "%1 × %2 px")
                             .arg(locale.toString(2 * ellipse.halfWidth, 'f', 1),
                                 locale.toString(2 * ellipse.halfHeight, 'f', 1));
    const QRectF box = outline.boundingRect();
    canvasoverlays::paintLabel(painter, view.viewSize(), box.bottomLeft() + QPointF(0, 6), text);
}
