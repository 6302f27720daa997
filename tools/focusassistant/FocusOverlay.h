#pragma once

#include "tools/focusassistant/FocusSession.h"
#include "tools/kit/canvas/CanvasOverlay.h"

/// Draws the grid over the picture: each region in the colour of its share of the peak, with the share.
class FocusOverlay : public CanvasOverlay
{
public:
    /// The session must outlive the overlay.
    explicit FocusOverlay(const FocusSession &session) : m_session(session) { }

    void paint(QPainter &painter, const ViewTransform &view) const override;

private:
    void paintRegion(QPainter &painter, const QRectF &area, std::size_t index) const;

    const FocusSession &m_session;
};
