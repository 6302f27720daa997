#pragma once

#include "tools/kit/canvas/DrawingTool.h"

#include <QLine>

/// A line between two pixels, with a handle at each end.
class LineTool : public DrawingTool
{
public:
    QLine line() const { return m_line; }
    void setLine(const QLine &line) { m_line = line; }

    bool isEmpty() const override { return m_line.isNull(); }
    void remove() override { m_line = {}; }
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
        MoveFirst,
        MoveLast
    };

    Action actionAt(const ViewTransform &view, const QPointF &point) const;

    QLine m_line;
    Action m_action = Action::Draw; ///< What press() found.
    QLine m_before; ///< The line at the time of press().
    QPointF m_pressed; ///< The point of press() in the view.
    QPointF m_grabbed; ///< The same point in the picture.
};
