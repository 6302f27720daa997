#include "tools/kit/canvas/ViewTransform.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// The pleasant scales; below 1, their reciprocals.
constexpr std::array<double, 17> steps
    = {1, 1.5, 2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 64, 96, ViewTransform::maxScale, 192, 256};

/// Scales that differ less are the same.
constexpr double tolerance = 1.0001;

double nextLarger(double scale)
{
    double result = steps.back();
    for (const double step : steps) {
        for (const double candidate : {step, 1 / step})
            if (candidate > scale * tolerance)
                result = std::min(result, candidate);
    }
    return result;
}

double nextSmaller(double scale)
{
    return 1 / nextLarger(1 / scale);
}

/// Returns where an axis of the picture may start, so that enough of it is visible.
double limitedStart(double start, double length, double viewLength)
{
    const double covered = std::min(length, viewLength) / 2;
    return std::clamp(start, covered - length, viewLength - covered);
}

/// Returns the rectangle with rounded edges; at least one pixel, so that a picture of one line is visible.
QRect roundedEdges(const QRectF &rect)
{
    const QPoint corner(qRound(rect.left()), qRound(rect.top()));
    const QSize size(qRound(rect.right()) - corner.x(), qRound(rect.bottom()) - corner.y());
    return {corner, size.expandedTo({1, 1})};
}

} // namespace

QTransform Orientation::transform(const QSizeF &size) const
{
    const double w = size.width();
    const double h = size.height();
    const QTransform mirrored = isMirrored ? QTransform(-1, 0, 0, 1, w, 0) : QTransform();
    const std::array<QTransform, 4> turns = {QTransform(), QTransform(0, 1, -1, 0, h, 0),
        QTransform(-1, 0, 0, -1, w, h), QTransform(0, -1, 1, 0, 0, w)};
    return mirrored * turns[static_cast<std::size_t>(quarterTurns)];
}

void ViewTransform::setPictureSize(const QSize &size)
{
    if (m_pictureSize == size)
        return;
    const bool wasEmpty = isEmpty();
    const QPointF center = wasEmpty ? QPointF() : exactToPicture(viewCenter());
    m_pictureSize = size;
    m_isFitted = m_isFitted || wasEmpty;
    refresh(center);
}

void ViewTransform::setViewSize(const QSizeF &size, double devicePixelRatio)
{
    const QPointF center = isEmpty() ? QPointF() : exactToPicture(viewCenter());
    m_viewSize = size;
    m_devicePixelRatio = devicePixelRatio;
    refresh(center);
}

double ViewTransform::fittedScale() const
{
    if (isEmpty())
        return 1;
    const QSizeF size = turnedSize();
    const QSizeF view = deviceSize();
    return std::min({view.width() / size.width(), view.height() / size.height(), maxScale});
}

double ViewTransform::minScale() const
{
    return std::min(fittedScale() / 4, 1.0);
}

void ViewTransform::fit()
{
    m_isFitted = true;
    m_scale = fittedScale();
    limit();
    m_corner = shownCorner();
}

void ViewTransform::setScale(double scale, const QPointF &anchor)
{
    if (isEmpty())
        return;
    const QPointF point = exactToPicture(anchor);
    m_isFitted = false;
    m_scale = std::clamp(scale, minScale(), maxScale);
    place(point, anchor);
}

void ViewTransform::zoomIn(const QPointF &anchor)
{
    const double next = nextLarger(m_scale);
    const double fitted = fittedScale();
    if (m_scale * tolerance < fitted && fitted < next * tolerance)
        fit();
    else
        setScale(next, anchor);
}

void ViewTransform::zoomOut(const QPointF &anchor)
{
    const double next = nextSmaller(m_scale);
    const double fitted = fittedScale();
    if (m_scale > fitted * tolerance && fitted * tolerance > next)
        fit();
    else
        setScale(next, anchor);
}

void ViewTransform::pan(const QPointF &distance)
{
    if (isEmpty() || m_scale <= fittedScale() * tolerance)
        return;
    m_isFitted = false;
    m_corner += distance * m_devicePixelRatio;
    limit();
}

void ViewTransform::centerOn(const QPointF &picturePoint)
{
    if (!isEmpty() && !m_isFitted)
        place(picturePoint, viewCenter());
}

void ViewTransform::setOrientation(const Orientation &orientation)
{
    const QPointF center = isEmpty() ? QPointF() : exactToPicture(viewCenter());
    m_orientation = orientation;
    refresh(center);
}

void ViewTransform::rotate(int quarterTurns)
{
    setOrientation({(m_orientation.quarterTurns + quarterTurns % 4 + 4) % 4, m_orientation.isMirrored});
}

void ViewTransform::mirrorHorizontally()
{
    setOrientation({(4 - m_orientation.quarterTurns) % 4, !m_orientation.isMirrored});
}

void ViewTransform::mirrorVertically()
{
    setOrientation({(6 - m_orientation.quarterTurns) % 4, !m_orientation.isMirrored});
}

QTransform ViewTransform::toView() const
{
    const double ratio = m_devicePixelRatio;
    const QPointF corner = shownCorner();
    return m_orientation.transform(m_pictureSize) * QTransform::fromScale(m_scale, m_scale)
        * QTransform::fromTranslate(corner.x(), corner.y()) * QTransform::fromScale(1 / ratio, 1 / ratio);
}

std::optional<QPoint> ViewTransform::pixelAt(const QPointF &viewPoint) const
{
    if (isEmpty())
        return std::nullopt;
    const QPointF point = toPicture(viewPoint);
    const QPoint pixel(static_cast<int>(std::floor(point.x())), static_cast<int>(std::floor(point.y())));
    return QRect(QPoint(), m_pictureSize).contains(pixel) ? std::optional(pixel) : std::nullopt;
}

QPoint ViewTransform::nearestPixel(const QPointF &viewPoint) const
{
    const QPointF point = toPicture(viewPoint);
    const auto inside = [](double place, int length) {
        return static_cast<int>(std::clamp(std::floor(place), 0.0, std::max(length - 1.0, 0.0)));
    };
    return {inside(point.x(), m_pictureSize.width()), inside(point.y(), m_pictureSize.height())};
}

QRect ViewTransform::toDevice(const QRectF &pictureRect) const
{
    const double ratio = m_devicePixelRatio;
    return roundedEdges((toView() * QTransform::fromScale(ratio, ratio)).mapRect(pictureRect));
}

QRect ViewTransform::visibleRegion() const
{
    if (isEmpty())
        return {};
    // Rounding errors do not make a line of pixels visible.
    constexpr double error = 1e-6;
    const QRectF visible = toView().inverted().mapRect(QRectF(QPointF(), m_viewSize));
    return visible.adjusted(error, error, -error, -error).toAlignedRect() & QRect(QPoint(), m_pictureSize);
}

QSize ViewTransform::outputSize(const QRect &region) const
{
    if (region.isEmpty())
        return {};
    const QSize shown = toDevice(region).size();
    const QSize unturned = m_orientation.isSideways() ? shown.transposed() : shown;
    return unturned.expandedTo({1, 1}).boundedTo(region.size());
}

QSizeF ViewTransform::turnedSize() const
{
    return m_orientation.isSideways() ? m_pictureSize.transposed() : m_pictureSize;
}

QPointF ViewTransform::shownCorner() const
{
    if (m_scale < 1)
        return m_corner;
    return {std::round(m_corner.x()), std::round(m_corner.y())};
}

QTransform ViewTransform::exactToDevice() const
{
    return m_orientation.transform(m_pictureSize) * QTransform::fromScale(m_scale, m_scale)
        * QTransform::fromTranslate(m_corner.x(), m_corner.y());
}

QPointF ViewTransform::exactToPicture(const QPointF &viewPoint) const
{
    return exactToDevice().inverted().map(viewPoint * m_devicePixelRatio);
}

/// Moves the picture so that a point of it is at a place of the view, within the limits.
void ViewTransform::place(const QPointF &picturePoint, const QPointF &viewPoint)
{
    m_corner += viewPoint * m_devicePixelRatio - exactToDevice().map(picturePoint);
    limit();
}

void ViewTransform::limit()
{
    if (isEmpty())
        return;
    const QSizeF size = turnedSize() * m_scale;
    const QSizeF view = deviceSize();
    if (m_scale <= fittedScale() * tolerance) {
        m_corner = QPointF((view.width() - size.width()) / 2, (view.height() - size.height()) / 2);
        return;
    }
    m_corner.setX(limitedStart(m_corner.x(), size.width(), view.width()));
    m_corner.setY(limitedStart(m_corner.y(), size.height(), view.height()));
}

/// Adapts to another size or orientation; the point of the picture stays in the middle of the view.
void ViewTransform::refresh(const QPointF &center)
{
    if (m_isFitted) {
        fit();
        return;
    }
    m_scale = std::clamp(m_scale, minScale(), maxScale);
    if (!isEmpty())
        place(center, viewCenter());
}
