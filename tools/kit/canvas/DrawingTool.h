#pragma once

#include "tools/kit/canvas/ViewTransform.h"

#include <QPoint>
#include <Qt>

class QPainter;

/// A shape that a person draws on the picture with mouse or keys. Its coordinates are pixels of the picture.
class DrawingTool
{
public:
    virtual ~DrawingTool() = default;

    virtual bool isEmpty() const = 0;
    virtual void remove() = 0;

    /// Begins to draw a new shape, or to move or resize the present one, whatever is at the point.
    virtual void press(const ViewTransform &view, const QPointF &point) = 0;

    /// Continues what press() began.
    virtual void drag(const ViewTransform &view, const QPointF &point) = 0;

    /// Returns the cursor that tells what press() would do.
    virtual Qt::CursorShape cursor(const ViewTransform &view, const QPointF &point) const = 0;

    /// Draws a shape of middle size into the region.
    virtual void create(const QRect &region) = 0;

    virtual void moveBy(const QPoint &pixels, const QSize &pictureSize) = 0;

    /// Moves the right bottom corner or the last point.
    virtual void resizeBy(const QPoint &pixels, const QSize &pictureSize) = 0;

    /// @param isActive True if the shape can be changed, so that handles are drawn.
    /// @param micrometresPerPixel 0 if unknown.
    virtual void paint(
        QPainter &painter, const ViewTransform &view, bool isActive, double micrometresPerPixel) const = 0;
};
