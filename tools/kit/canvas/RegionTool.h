#pragma once

#include "tools/kit/canvas/DrawingTool.h"

/// A rectangle of whole pixels, with handles at its edges and corners.
class RegionTool : public DrawingTool
{
public:
    QRect region() const { return m_region; }
    void setRegion(const QRect &region) { m_region = region; }

    bool isEmpty() const override { return m_region.isEmpty(); }
    void remove() override { m_region = {}; }
    void press(const ViewTransform &view, const QPointF &point) override;
    void drag(const ViewTransform &view, const QPointF &point) override;
    Qt::CursorShape cursor(const ViewTransform &view, const QPointF &point) const override;
    void create(const QRect &region) override;
    void moveBy(const QPoint &pixels, const QSize &pictureSize) override;
    void resizeBy(const QPoint &pixels, const QSize &pictureSize) override;
    void paint(QPainter &painter, const ViewTransform &view, bool isActive,
        double micrometresPerPixel) const override;

private:
    enum class Action
    {
        Draw,
        Move,
        Resize
    };

    /// What is at a point of the view. The directions are -1, 0 or 1: the edges that move.
    struct Hit
    {
        Action action = Action::Draw;
        QPoint edges;
    };

    Hit hit(const ViewTransform &view, const QPointF &point) const;
    QRect resized(const QPointF &edge, const QSize &pictureSize) const;

    QRect m_region;
    Hit m_hit; ///< What press() found.
    QRect m_before; ///< The region at the time of press().
    QPointF m_pressed; ///< The point of press() in the view.
    QPointF m_grabbed; ///< The same point in the picture.
};
