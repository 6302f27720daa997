#pragma once

#include "tools/kit/canvas/ViewTransform.h"

class PictureLayer;
class QPainter;

/// The small outline of the whole picture, with a frame around what the view shows. It is in a corner of the
/// view unless the whole picture is visible.
class Minimap
{
public:
    explicit Minimap(const ViewTransform &view);

    bool isVisible() const { return !m_rect.isEmpty(); }

    /// Returns the place of the picture's outline in the view.
    QRectF rect() const { return m_rect; }

    /// Returns the frame around what is visible, in the view.
    QRectF frame() const;

    /// Returns the point of the picture at a place of the outline.
    QPointF toPicture(const QPointF &viewPoint) const;

    /// @param thumbnail The whole picture; can be empty.
    void paint(QPainter &painter, const PictureLayer &thumbnail) const;

private:
    QTransform toMap() const;

    const ViewTransform &m_view;
    QRectF m_rect;
};
