#pragma once

#include "tools/kit/canvas/ViewTransform.h"

#include <QString>

class QPainter;

/// What helps to read a picture. All functions draw over what is there, in units of the widget.
namespace canvasoverlays {

/// Draws lines at pleasant distances, and the numbers of their pixels at the edge of the view.
void paintGrid(QPainter &painter, const ViewTransform &view);

/// Draws lines through the middle of the picture.
void paintCrosshair(QPainter &painter, const ViewTransform &view);

/// Draws lines through a pixel.
void paintPointer(QPainter &painter, const ViewTransform &view, const QPoint &pixel);

/// Draws a line of a pleasant length, in micrometres if the scale is known.
/// @param micrometresPerPixel 0 if unknown.
void paintScaleBar(QPainter &painter, const ViewTransform &view, double micrometresPerPixel);

/// Draws a text over the top of the view. Long texts get several lines.
void paintNotice(QPainter &painter, const QSize &viewSize, const QString &text);

/// Draws a text in the middle of the view.
void paintHint(QPainter &painter, const QSize &viewSize, const QString &text);

/// Draws a text on a dark ground next to a point, inside the view.
void paintLabel(QPainter &painter, const QSizeF &viewSize, const QPointF &topLeft, const QString &text);

} // namespace canvasoverlays
