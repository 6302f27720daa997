#pragma once

#include "tools/kit/canvas/CanvasOverlay.h"
#include "tools/kit/measure/linescan/RoundTarget.h"

#include <QString>

#include <optional>

/// Draws the ellipse of the target with its width and height, and the columns that are searched.
class TargetOverlay final : public CanvasOverlay
{
public:
    std::optional<RoundTarget> target;
    TargetColumns columns;

    void paint(QPainter &painter, const ViewTransform &view) const override;
};
