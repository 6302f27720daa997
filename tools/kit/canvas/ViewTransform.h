#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QTransform>

#include <optional>

/// How a picture is turned on the screen: first mirrored left to right, then turned clockwise.
struct Orientation
{
    int quarterTurns = 0; ///< 0 to 3.
    bool isMirrored = false;

    bool isSideways() const { return quarterTurns % 2 != 0; }
    bool operator==(const Orientation &other) const
    {
        return quarterTurns == other.quarterTurns && isMirrored == other.isMirrored;
    }

    /// Returns the transform from a picture of this size to the same picture turned, with its corner at (0,
    /// 0).
    QTransform transform(const QSizeF &size) const;
};

/// Where a picture is in a view. Coordinates of the picture are pixels as the camera sends them: pixel (x, y)
/// covers the square from (x, y) to (x + 1, y + 1). Coordinates of the view are those of a widget. The scale
/// is in pixels of the screen per pixel of the picture, so a picture at scale 1 is sharp on every screen.
///
/// Half of the view, or half of a smaller picture, is always covered. A picture that is not larger than the
/// fitted one is in the middle.
class ViewTransform
{
public:
    static constexpr double maxScale = 128;

    QSize pictureSize() const { return m_pictureSize; }
    QSizeF viewSize() const { return m_viewSize; }
    double devicePixelRatio() const { return m_devicePixelRatio; }

    /// A fitted picture stays fitted. Otherwise scale and centre are kept as far as possible.
    void setPictureSize(const QSize &size);
    void setViewSize(const QSizeF &size, double devicePixelRatio);

    bool isEmpty() const { return m_pictureSize.isEmpty() || m_viewSize.isEmpty(); }
    double scale() const { return m_scale; }
    double fittedScale() const;
    double minScale() const; ///< A quarter of the fitted scale, or 1 if that is less.
    bool isFitted() const { return m_isFitted; }

    void fit();

    /// Scales; what the view shows at the anchor stays there as far as possible.
    void setScale(double scale, const QPointF &anchor);

    /// Goes on to the next scale of a pleasant series, which the fitted scale is part of.
    void zoomIn(const QPointF &anchor);
    void zoomOut(const QPointF &anchor);

    /// Moves the picture by a distance in the view.
    void pan(const QPointF &distance);

    /// Moves a point of the picture to the middle of the view.
    void centerOn(const QPointF &picturePoint);

    Orientation orientation() const { return m_orientation; }

    /// Turns and mirrors what the view shows about its middle.
    void setOrientation(const Orientation &orientation);
    void rotate(int quarterTurns); ///< Clockwise; negative numbers turn to the left.
    void mirrorHorizontally(); ///< Swaps the left and the right that the person sees.
    void mirrorVertically();

    /// Returns the transform from the picture to the view. From scale 1 on, the corner of the picture is at a
    /// whole pixel of the screen.
    QTransform toView() const;
    QPointF toView(const QPointF &picturePoint) const { return toView().map(picturePoint); }
    QRectF toView(const QRectF &pictureRect) const { return toView().mapRect(pictureRect); }
    QPointF toPicture(const QPointF &viewPoint) const { return toView().inverted().map(viewPoint); }

    /// Returns the pixel at a place of the view; nothing outside the picture.
    std::optional<QPoint> pixelAt(const QPointF &viewPoint) const;

    /// Returns the pixel of the picture that is next to a place of the view.
    QPoint nearestPixel(const QPointF &viewPoint) const;

    /// Returns the place of a region of the picture in pixels of the screen, with its edges rounded.
    QRect toDevice(const QRectF &pictureRect) const;

    /// Returns the smallest region of whole pixels that contains all that is visible.
    QRect visibleRegion() const;

    /// Returns true if the whole picture is in the view.
    bool isAllVisible() const { return visibleRegion().size() == m_pictureSize; }

    /// Returns the pixels that a conversion of the region should have: as many as the screen shows, but not
    /// more than the region has.
    QSize outputSize(const QRect &region) const;

private:
    QSizeF turnedSize() const; ///< Returns the size of the turned, unscaled picture.
    QSizeF deviceSize() const { return m_viewSize * m_devicePixelRatio; }
    QPointF viewCenter() const { return {m_viewSize.width() / 2, m_viewSize.height() / 2}; }
    QPointF shownCorner() const;
    QTransform exactToDevice() const;
    QPointF exactToPicture(const QPointF &viewPoint) const;
    void place(const QPointF &picturePoint, const QPointF &viewPoint);
    void limit();
    void refresh(const QPointF &center);

    QSize m_pictureSize;
    QSizeF m_viewSize;
    double m_devicePixelRatio = 1;
    Orientation m_orientation;
    bool m_isFitted = true;
    double m_scale = 1;
    /// The corner of the turned picture, in pixels of the screen. While a person zooms, the corner is not
    /// rounded, so that errors do not add up.
    QPointF m_corner;
};
