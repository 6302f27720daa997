#pragma once

#include "sdk/image/DefectMap.h"
#include "tools/kit/canvas/CanvasOverlay.h"

#include <QPoint>

#include <optional>

class ImageCanvas;

/// Marks the defect pixels on the live picture, in a colour for each kind. Only the visible ones cost time.
class DefectOverlay : public CanvasOverlay
{
public:
    /// Adds itself to the canvas, which must outlive the overlay.
    explicit DefectOverlay(ImageCanvas &canvas);
    ~DefectOverlay() override;
    DefectOverlay(const DefectOverlay &) = delete;
    DefectOverlay &operator=(const DefectOverlay &) = delete;

    void setMap(const DefectMap &map);
    void setVisible(bool isVisible);

    /// Marks one pixel of the sensor in addition.
    void setSelected(const std::optional<QPoint> &pixel);

    /// Returns where a pixel of the sensor is in the present picture; nothing if it is outside.
    std::optional<QPoint> inPicture(const QPoint &sensorPixel) const;

    void paint(QPainter &painter, const ViewTransform &view) const override;

private:
    QPoint pictureOffset() const;
    void paintMarks(QPainter &painter, const ViewTransform &view) const;
    void paintSelected(QPainter &painter, const ViewTransform &view) const;

    ImageCanvas &m_canvas;
    DefectMap m_map;
    bool m_isVisible = true;
    std::optional<QPoint> m_selected;
};
