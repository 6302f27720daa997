#include "tools/kit/canvas/RegionTool.h"

#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/CanvasOverlays.h"
#include "tools/kit/canvas/LengthText.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double handleReach = 6; ///< Units of the widget.
constexpr double shortestDrag = 3;
constexpr double handleSide = 7;

/// Returns -1 if the place is near the begin of the range, 1 near its end, otherwise 0. A quarter of the
/// range at most counts as near, so that small regions can be moved too.
int nearEnd(double place, double begin, double end, double reach)
{
    const double inside = std::min(reach, (end - begin) / 4);
    if (place >= begin - reach && place <= begin + inside)
        return -1;
    if (place >= end - inside && place <= end + reach)
        return 1;
    return 0;
}

/// Returns the range whose begin or end, as `direction` says, was moved to `edge`; at least one pixel
/// remains.
std::pair<int, int> resizedRange(int begin, int end, int direction, double edge, int length)
{
    if (direction == 0)
        return {begin, end};
    const int moved = std::clamp(static_cast<int>(std::lround(edge)), 0, length);
    const int fixed = direction < 0 ? end : begin;
    if (moved == fixed)
        return fixed < length ? std::pair(fixed, fixed + 1) : std::pair(fixed - 1, fixed);
    return {std::min(moved, fixed), std::max(moved, fixed)};
}

} // namespace

RegionTool::Hit RegionTool::hit(const ViewTransform &view, const QPointF &point) const
{
    if (isEmpty())
        return {};
    const QPointF place = view.toPicture(point);
    const double reach = handleReach * view.devicePixelRatio() / view.scale();
    const QRectF region(m_region);
    if (!region.adjusted(-reach, -reach, reach, reach).contains(place))
        return {};
    const QPoint edges(nearEnd(place.x(), region.left(), region.right(), reach),
        nearEnd(place.y(), region.top(), region.bottom(), reach));
    return {edges.isNull() ? Action::Move : Action::Resize, edges};
}

void RegionTool::press(const ViewTransform &view, const QPointF &point)
{
    m_hit = hit(view, point);
    m_before = m_region;
    m_pressed = point;
    m_grabbed = view.toPicture(point);
}

void RegionTool::drag(const ViewTransform &view, const QPointF &point)
{
    const QSize size = view.pictureSize();
    const QPointF place = view.toPicture(point);
    switch (m_hit.action) {
    case Action::Draw: {
        if ((point - m_pressed).manhattanLength() < shortestDrag)
            return;
        const QPoint first = view.nearestPixel(m_pressed);
        const QPoint last = view.nearestPixel(point);
        const QPoint corner(std::min(first.x(), last.x()), std::min(first.y(), last.y()));
        m_region
            = QRect(corner, QSize(std::abs(first.x() - last.x()) + 1, std::abs(first.y() - last.y()) + 1));
        return;
    }
    case Action::Move:
        m_region = m_before;
        moveBy((place - m_grabbed).toPoint(), size);
        return;
    case Action::Resize:
        m_region = resized(place, size);
        return;
    }
}

/// Returns the region at the time of press() with the grabbed edges moved.
QRect RegionTool::resized(const QPointF &edge, const QSize &pictureSize) const
{
    const QRect &r = m_before;
    const auto [left, right]
        = resizedRange(r.x(), r.x() + r.width(), m_hit.edges.x(), edge.x(), pictureSize.width());
    const auto [top, bottom]
        = resizedRange(r.y(), r.y() + r.height(), m_hit.edges.y(), edge.y(), pictureSize.height());
    return {left, top, right - left, bottom - top};
}

Qt::CursorShape RegionTool::cursor(const ViewTransform &view, const QPointF &point) const
{
    const Hit found = hit(view, point);
    if (found.action == Action::Draw)
        return Qt::CrossCursor;
    if (found.action == Action::Move)
        return Qt::SizeAllCursor;
    const QTransform turn = view.toView();
    const QPointF direction = turn.map(QPointF(found.edges)) - turn.map(QPointF());
    if (std::abs(direction.x()) < std::abs(direction.y()) / 2)
        return Qt::SizeVerCursor;
    if (std::abs(direction.y()) < std::abs(direction.x()) / 2)
        return Qt::SizeHorCursor;
    return direction.x() * direction.y() > 0 ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

void RegionTool::create(const QRect &region)
{
    const QSize size = (region.size() / 2).expandedTo({1, 1});
    m_region = QRect(region.topLeft() + QPoint(region.width() / 4, region.height() / 4), size);
}

void RegionTool::moveBy(const QPoint &pixels, const QSize &pictureSize)
{
    const QPoint corner = m_region.topLeft() + pixels;
    m_region.moveTo(std::clamp(corner.x(), 0, std::max(0, pictureSize.width() - m_region.width())),
        std::clamp(corner.y(), 0, std::max(0, pictureSize.height() - m_region.height())));
}

void RegionTool::resizeBy(const QPoint &pixels, const QSize &pictureSize)
{
    const int width = std::min(m_region.width() + pixels.x(), pictureSize.width() - m_region.x());
    const int height = std::min(m_region.height() + pixels.y(), pictureSize.height() - m_region.y());
    m_region.setSize(QSize(width, height).expandedTo({1, 1}));
}

void RegionTool::paint(
    QPainter &painter, const ViewTransform &view, bool isActive, double micrometresPerPixel) const
{
    const QRectF frame = view.toView(QRectF(m_region));
    if (isEmpty() || !frame.intersects(QRectF(QPointF(), view.viewSize())))
        return;
    const QColor color = QColor::fromRgba(canvascolors::accent);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0, 0, 0, 140), 3));
    painter.drawRect(frame);
    painter.setPen(QPen(color, 1));
    painter.drawRect(frame);
    canvasoverlays::paintLabel(painter, view.viewSize(), frame.bottomLeft() + QPointF(0, 6),
        LengthText::size(m_region.size(), micrometresPerPixel));
    if (!isActive)
        return;
    painter.setBrush(color);
    painter.setPen(QColor::fromRgba(canvascolors::text));
    for (const double x : {frame.left(), frame.center().x(), frame.right()}) {
        for (const double y : {frame.top(), frame.center().y(), frame.bottom()}) {
            QRectF handle(0, 0, handleSide, handleSide);
            handle.moveCenter({x, y});
            if (QPointF(x, y) != frame.center())
                painter.drawRect(handle);
        }
    }
}
