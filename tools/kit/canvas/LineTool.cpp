#include "tools/kit/canvas/LineTool.h"

#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/CanvasOverlays.h"
#include "tools/kit/canvas/LengthText.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double endReach = 8; ///< Units of the widget.
constexpr double bodyReach = 5;
constexpr double shortestLine = 3;
constexpr double endSide = 8;

QPointF pixelCenter(const QPoint &pixel)
{
    return QPointF(pixel) + QPointF(0.5, 0.5);
}

double distance(const QPointF &first, const QPointF &second)
{
    return QLineF(first, second).length();
}

/// Returns the distance of a point from a line of a length.
double distanceFromLine(const QLineF &line, const QPointF &point)
{
    const QPointF direction = line.p2() - line.p1();
    const double share
        = QPointF::dotProduct(point - line.p1(), direction) / QPointF::dotProduct(direction, direction);
    return distance(line.pointAt(std::clamp(share, 0.0, 1.0)), point);
}

QPoint insidePicture(const QPoint &pixel, const QSize &size)
{
    return {std::clamp(pixel.x(), 0, std::max(0, size.width() - 1)),
        std::clamp(pixel.y(), 0, std::max(0, size.height() - 1))};
}

} // namespace

LineTool::Action LineTool::actionAt(const ViewTransform &view, const QPointF &point) const
{
    if (isEmpty())
        return Action::Draw;
    const QLineF line(view.toView(pixelCenter(m_line.p1())), view.toView(pixelCenter(m_line.p2())));
    if (distance(line.p2(), point) <= endReach)
        return Action::MoveLast;
    if (distance(line.p1(), point) <= endReach)
        return Action::MoveFirst;
    return distanceFromLine(line, point) <= bodyReach ? Action::Move : Action::Draw;
}

void LineTool::press(const ViewTransform &view, const QPointF &point)
{
    m_action = actionAt(view, point);
    m_before = m_line;
    m_pressed = point;
    m_grabbed = view.toPicture(point);
}

void LineTool::drag(const ViewTransform &view, const QPointF &point)
{
    const QPoint pixel = view.nearestPixel(point);
    switch (m_action) {
    case Action::Draw:
        if ((point - m_pressed).manhattanLength() >= shortestLine)
            m_line = QLine(view.nearestPixel(m_pressed), pixel);
        return;
    case Action::Move:
        m_line = m_before;
        moveBy((view.toPicture(point) - m_grabbed).toPoint(), view.pictureSize());
        return;
    case Action::MoveFirst:
        m_line = QLine(pixel, m_before.p2());
        return;
    case Action::MoveLast:
        m_line = QLine(m_before.p1(), pixel);
        return;
    }
}

Qt::CursorShape LineTool::cursor(const ViewTransform &view, const QPointF &point) const
{
    switch (actionAt(view, point)) {
    case Action::Draw:
        return Qt::CrossCursor;
    case Action::Move:
        return Qt::SizeAllCursor;
    default:
        return Qt::PointingHandCursor;
    }
}

void LineTool::create(const QRect &region)
{
    const int y = region.center().y();
    m_line = QLine(region.left() + region.width() / 4, y, region.right() - region.width() / 4, y);
}

void LineTool::moveBy(const QPoint &pixels, const QSize &pictureSize)
{
    const QPoint first = insidePicture(m_line.p1() + pixels, pictureSize);
    const QPoint last = insidePicture(m_line.p2() + pixels, pictureSize);
    // Both ends move by the distance that is possible for both.
    const QPoint firstStep = first - m_line.p1();
    const QPoint lastStep = last - m_line.p2();
    const auto smaller = [](int a, int b) { return std::abs(a) < std::abs(b) ? a : b; };
    m_line.translate(smaller(firstStep.x(), lastStep.x()), smaller(firstStep.y(), lastStep.y()));
}

void LineTool::resizeBy(const QPoint &pixels, const QSize &pictureSize)
{
    m_line.setP2(insidePicture(m_line.p2() + pixels, pictureSize));
}

void LineTool::paint(
    QPainter &painter, const ViewTransform &view, bool isActive, double micrometresPerPixel) const
{
    if (isEmpty())
        return;
    const QLineF line(view.toView(pixelCenter(m_line.p1())), view.toView(pixelCenter(m_line.p2())));
    const QColor color = QColor::fromRgba(canvascolors::accent);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 0, 0, 140), 3.5));
    painter.drawLine(line);
    painter.setPen(QPen(color, 1.5));
    painter.drawLine(line);
    painter.setBrush(color);
    painter.setPen(QColor::fromRgba(canvascolors::text));
    for (const QPointF &end : {line.p1(), line.p2()})
        if (isActive)
            painter.drawEllipse(end, endSide / 2, endSide / 2);
    painter.restore();
    const double pixels = QLineF(m_line).length();
    canvasoverlays::paintLabel(
        painter, view.viewSize(), line.p2() + QPointF(8, 8), LengthText::length(pixels, micrometresPerPixel));
}
