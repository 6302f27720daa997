#pragma once

#include "tools/kit/canvas/ViewTransform.h"
#include "tools/kit/live/PictureFeed.h"

#include <QImage>

class QPainter;

/// A part of a picture, turned as the view shows it, so that painting it is a plain copy.
class PictureLayer
{
public:
    PictureLayer() = default;
    PictureLayer(const ShownPicture &picture, const Orientation &orientation);

    bool isEmpty() const { return m_pixels.isNull(); }
    const QImage &pixels() const { return m_pixels; }

    /// Returns true if the layer contains the whole picture.
    bool isComplete() const { return m_region == QRect(QPoint(), m_pictureSize); }

    bool contains(const QRect &region) const { return m_region.contains(region); }

    /// Removes the colours.
    void makeGrey();

    /// Paints what is visible at its place in the view. A layer of a picture of another size is stretched.
    /// @param painter Works in pixels of the screen.
    void paint(QPainter &painter, const ViewTransform &view) const;

    /// Returns the colour that the view shows for a pixel of the picture; black outside the layer.
    QRgb colorAt(const QPoint &pixel) const;

private:
    QRectF toPixels(const QRectF &partOfRegion) const;

    QImage m_pixels;
    QRect m_region;
    QSize m_pictureSize;
    Orientation m_orientation;
};
