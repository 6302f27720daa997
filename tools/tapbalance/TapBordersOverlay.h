#pragma once

#include "tools/kit/canvas/CanvasOverlay.h"
#include "tools/kit/measure/taps/TapResult.h"

/// Draws the borders between the taps over the picture, each with the step that remains there.
class TapBordersOverlay : public CanvasOverlay
{
public:
    void setResult(const TapResult &result) { m_result = result; }

    void paint(QPainter &painter, const ViewTransform &view) const override;

private:
    TapResult m_result;
};
