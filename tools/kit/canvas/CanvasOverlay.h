#pragma once

class QPainter;
class ViewTransform;

/// Something that a tool draws over the picture of an ImageCanvas.
class CanvasOverlay
{
public:
    virtual ~CanvasOverlay() = default;

    /// Paints in coordinates of the view; `view` says where the pixels of the picture are.
    virtual void paint(QPainter &painter, const ViewTransform &view) const = 0;
};
