#include "tools/kit/canvas/Minimap.h"

#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/PictureLayer.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr QSizeF largestSize(180, 140);
constexpr double largestShare = 0.3; ///< The share of the view's width and height.
constexpr double distanceFromEdge = 12;
constexpr double leastSide = 8;

} // namespace

Minimap::Minimap(const ViewTransform &view) : m_view(view)
{
    if (view.isEmpty() || view.isAllVisible())
        return;
    const QSizeF room = largestSize.boundedTo(view.viewSize() * largestShare);
    const QSizeF picture = view.pictureSize();
    const QSizeF turned = view.orientation().isSideways() ? picture.transposed() : picture;
    const QSizeF size = turned.scaled(room, Qt::KeepAspectRatio).expandedTo({leastSide, leastSide});
    m_rect = QRectF(QPointF(), size);
    m_rect.moveBottomRight(QPointF(view.viewSize().width(), view.viewSize().height())
        - QPointF(distanceFromEdge, distanceFromEdge));
    m_rect = QRectF(m_rect.toRect());
}

/// Returns the transform from the picture to the outline.
QTransform Minimap::toMap() const
{
    const QTransform turn = m_view.orientation().transform(m_view.pictureSize());
    const QSizeF turned = turn.mapRect(QRectF(QPointF(), m_view.pictureSize())).size();
    return turn * QTransform::fromScale(m_rect.width() / turned.width(), m_rect.height() / turned.height())
        * QTransform::fromTranslate(m_rect.left(), m_rect.top());
}

QRectF Minimap::frame() const
{
    return toMap().mapRect(QRectF(m_view.visibleRegion()));
}

QPointF Minimap::toPicture(const QPointF &viewPoint) const
{
    return toMap().inverted().map(viewPoint);
}

void Minimap::paint(QPainter &painter, const PictureLayer &thumbnail) const
{
    painter.fillRect(m_rect, QColor::fromRgba(canvascolors::panel));
    if (!thumbnail.isEmpty())
        painter.drawImage(m_rect, thumbnail.pixels());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QColor::fromRgba(canvascolors::border));
    painter.drawRect(m_rect.adjusted(-0.5, -0.5, 0.5, 0.5));
    QRectF visible = frame();
    // A tiny frame is still found.
    const QPointF center = visible.center();
    visible.setSize(visible.size().expandedTo({leastSide, leastSide}));
    visible.moveCenter(center);
    painter.setPen(QPen(QColor::fromRgba(canvascolors::accent), 2));
    painter.drawRect(visible & m_rect);
}
