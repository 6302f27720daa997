#include "tools/kit/canvas/CanvasOverlays.h"

#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/LengthText.h"
#include "tools/kit/canvas/PleasantNumbers.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace canvasoverlays {

namespace {

constexpr double leastGridDistance = 80;
constexpr double longestScaleBar = 160;
constexpr double edgeMargin = 12;
constexpr double noticeMargin = 12;

QColor color(QRgb rgba)
{
    return QColor::fromRgba(rgba);
}

/// Draws a light line with a dark one beside it, so that it is visible on every picture.
void paintVisibleLine(QPainter &painter, const QLineF &line, const QColor &light)
{
    painter.setPen(QPen(QColor(0, 0, 0, 120), 3));
    painter.drawLine(line);
    painter.setPen(QPen(light, 1));
    painter.drawLine(line);
}

/// Returns the line through the visible part of the picture at a position of its x or y axis.
QLineF lineAcross(const ViewTransform &view, Qt::Orientation axis, double position)
{
    const QRectF region(view.visibleRegion());
    const bool isX = axis == Qt::Horizontal;
    const QPointF first(isX ? position : region.left(), isX ? region.top() : position);
    const QPointF last(isX ? position : region.right(), isX ? region.bottom() : position);
    return {view.toView(first), view.toView(last)};
}

void paintGridLines(QPainter &painter, const ViewTransform &view, Qt::Orientation axis, int step)
{
    const QRect region = view.visibleRegion();
    const int begin = axis == Qt::Horizontal ? region.left() : region.top();
    const int end = axis == Qt::Horizontal ? region.right() : region.bottom();
    for (int position = (begin + step - 1) / step * step; position <= end; position += step) {
        const QLineF line = lineAcross(view, axis, position);
        paintVisibleLine(painter, line, QColor(255, 255, 255, 110));
        const QPointF corner(std::min(line.x1(), line.x2()), std::min(line.y1(), line.y2()));
        const bool isVertical = std::abs(line.dx()) < std::abs(line.dy());
        const QPointF beside = corner + (isVertical ? QPointF(3, 2) : QPointF(2, 3));
        paintLabel(painter, view.viewSize(), beside, QLocale().toString(position));
    }
}

QRectF textRect(const QPainter &painter, const QString &text)
{
    return QRectF(painter.fontMetrics().boundingRect(QRect(), Qt::AlignLeft, text));
}

} // namespace

void paintGrid(QPainter &painter, const ViewTransform &view)
{
    const double pixelSide = view.scale() / view.devicePixelRatio();
    const int step = std::max(1, static_cast<int>(pleasantAtLeast(leastGridDistance / pixelSide)));
    paintGridLines(painter, view, Qt::Horizontal, step);
    paintGridLines(painter, view, Qt::Vertical, step);
}

void paintCrosshair(QPainter &painter, const ViewTransform &view)
{
    const QSizeF size = view.pictureSize();
    const QRectF visible(view.visibleRegion());
    const QColor light = color(canvascolors::warning);
    if (visible.left() <= size.width() / 2 && size.width() / 2 <= visible.right())
        paintVisibleLine(painter, lineAcross(view, Qt::Horizontal, size.width() / 2), light);
    if (visible.top() <= size.height() / 2 && size.height() / 2 <= visible.bottom())
        paintVisibleLine(painter, lineAcross(view, Qt::Vertical, size.height() / 2), light);
}

void paintPointer(QPainter &painter, const ViewTransform &view, const QPoint &pixel)
{
    const QColor light = color(canvascolors::accent);
    paintVisibleLine(painter, lineAcross(view, Qt::Horizontal, pixel.x() + 0.5), light);
    paintVisibleLine(painter, lineAcross(view, Qt::Vertical, pixel.y() + 0.5), light);
}

void paintScaleBar(QPainter &painter, const ViewTransform &view, double micrometresPerPixel)
{
    const bool isMetric = micrometresPerPixel > 0;
    // The length of a micrometre or pixel on the screen.
    const double unitSide = view.scale() / view.devicePixelRatio() / (isMetric ? micrometresPerPixel : 1);
    const double length = pleasantAtMost(longestScaleBar / unitSide);
    if (!isMetric && length < 1)
        return;
    const QString text = isMetric ? LengthText::metric(length)
                                  : LengthText::tr("%1 px").arg(QLocale().toString(length, 'f', 0));
    const double bottom = view.viewSize().height() - edgeMargin;
    const double width = length * unitSide;
    const double textHeight = painter.fontMetrics().height();
    const double boxWidth = std::max(width, textRect(painter, text).width()) + 16;
    const QRectF box(edgeMargin, bottom - textHeight - 14, boxWidth, textHeight + 14);
    painter.fillRect(box, color(canvascolors::shade));
    painter.setPen(color(canvascolors::text));
    painter.drawText(box.adjusted(0, 3, 0, 0), Qt::AlignTop | Qt::AlignHCenter, text);
    const double left = box.center().x() - width / 2;
    const double middle = bottom - 7;
    painter.drawLine(QLineF(left, middle, left + width, middle));
    painter.drawLine(QLineF(left, middle - 3, left, middle + 3));
    painter.drawLine(QLineF(left + width, middle - 3, left + width, middle + 3));
}

void paintNotice(QPainter &painter, const QSize &viewSize, const QString &text)
{
    constexpr int flags = Qt::AlignLeft | Qt::TextWordWrap;
    const QRectF room = QRectF(QPointF(), QSizeF(viewSize)).adjusted(28, 22, -28, 0);
    const QRectF textBox = painter.boundingRect(room, flags, text);
    const QRectF box(noticeMargin, noticeMargin, viewSize.width() - 2 * noticeMargin, textBox.height() + 20);
    painter.fillRect(box, color(canvascolors::panel));
    painter.fillRect(QRectF(box.topLeft(), QSizeF(4, box.height())), color(canvascolors::warning));
    painter.setPen(color(canvascolors::text));
    painter.drawText(room.intersected(box), flags, text);
}

void paintHint(QPainter &painter, const QSize &viewSize, const QString &text)
{
    painter.setPen(color(canvascolors::secondaryText));
    const QRect room = QRect(QPoint(), viewSize).adjusted(24, 24, -24, -24);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text);
}

void paintLabel(QPainter &painter, const QSizeF &viewSize, const QPointF &topLeft, const QString &text)
{
    QRectF box(topLeft, textRect(painter, text).size() + QSizeF(8, 2));
    const QRectF room(QPointF(), viewSize);
    box.moveLeft(std::max(0.0, std::min(box.left(), room.right() - box.width())));
    box.moveTop(std::max(0.0, std::min(box.top(), room.bottom() - box.height())));
    painter.fillRect(box, color(canvascolors::shade));
    painter.setPen(color(canvascolors::text));
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace canvasoverlays
