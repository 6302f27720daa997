#include "tools/kit/canvas/PictureLayer.h"

#include <QPainter>

namespace {

QImage turned(const QImage &image, const Orientation &orientation)
{
    const QImage mirrored = orientation.isMirrored ? image.mirrored(true, false) : image;
    if (orientation.quarterTurns == 0)
        return mirrored;
    // Quarter turns and half turns keep the format of the image and are made without interpolation.
    return mirrored.transformed(QTransform().rotate(90 * orientation.quarterTurns));
}

} // namespace

PictureLayer::PictureLayer(const ShownPicture &picture, const Orientation &orientation)
    : m_pixels(turned(picture.pixels, orientation)),
      m_region(picture.region),
      m_pictureSize(picture.pictureSize),
      m_orientation(orientation)
{ }

void PictureLayer::makeGrey()
{
    m_pixels = m_pixels.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
}

/// Returns the place in our pixels of a part of the picture.
QRectF PictureLayer::toPixels(const QRectF &partOfRegion) const
{
    const QTransform turn = m_orientation.transform(m_region.size());
    const QSizeF size = turn.mapRect(QRectF(QPointF(), m_region.size())).size();
    const QTransform scale
        = QTransform::fromScale(m_pixels.width() / size.width(), m_pixels.height() / size.height());
    return (turn * scale).mapRect(partOfRegion.translated(-m_region.topLeft()));
}

void PictureLayer::paint(QPainter &painter, const ViewTransform &view) const
{
    if (isEmpty() || view.isEmpty())
        return;
    const QSize size = view.pictureSize();
    const QTransform stretch = QTransform::fromScale(
        double(size.width()) / m_pictureSize.width(), double(size.height()) / m_pictureSize.height());
    const QRectF part = stretch.mapRect(QRectF(m_region)) & QRectF(view.visibleRegion());
    if (part.isEmpty())
        return;
    painter.drawImage(QRectF(view.toDevice(part)), m_pixels, toPixels(stretch.inverted().mapRect(part)));
}

QRgb PictureLayer::colorAt(const QPoint &pixel) const
{
    const QPointF center = toPixels(QRectF(pixel, QSizeF(1, 1))).center();
    const QPoint inside(static_cast<int>(center.x()), static_cast<int>(center.y()));
    return m_pixels.valid(inside) ? m_pixels.pixel(inside) : qRgb(0, 0, 0);
}
