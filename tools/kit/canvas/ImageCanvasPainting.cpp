#include "tools/kit/canvas/CanvasColors.h"
#include "tools/kit/canvas/CanvasOverlay.h"
#include "tools/kit/canvas/CanvasOverlays.h"
#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/kit/canvas/Minimap.h"

#include <QPainter>

#include <utility>

namespace {

constexpr double noticeOpacity = 0.45;

} // namespace

void ImageCanvas::paintEvent(QPaintEvent * /*event*/)
{
    if (m_view.devicePixelRatio() != devicePixelRatioF())
        updateViewSize();
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgba(canvascolors::background));
    if (m_layer.isEmpty()) {
        canvasoverlays::paintHint(painter, size(), m_hint);
    } else {
        paintPicture(painter);
        paintOverlays(painter);
    }
    if (!m_notice.isEmpty())
        canvasoverlays::paintNotice(painter, size(), m_notice);
    if (m_hasFocusFrame) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QColor::fromRgba(canvascolors::accent));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    painter.end();
    if (std::exchange(m_isNewPicture, false))
        emit painted();
}

/// Paints in pixels of the screen, so that no pixel of the picture is interpolated.
void ImageCanvas::paintPicture(QPainter &painter)
{
    const double ratio = m_view.devicePixelRatio();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    const QRect place = m_view.toDevice(QRectF(QPointF(), m_view.pictureSize()));
    painter.setPen(QColor::fromRgba(canvascolors::border));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    if (!m_notice.isEmpty())
        painter.setOpacity(noticeOpacity);
    // Until the requested region arrives, an older picture of everything fills what is missing.
    if (!m_layer.contains(m_view.visibleRegion()))
        m_wholeLayer.paint(painter, m_view);
    m_layer.paint(painter, m_view);
    painter.restore();
}

/// Returns true if the size of the image is that of the view's picture.
bool ImageCanvas::isPicture(const CvxCPP::Image &image) const
{
    const CvxCPP::ImageInfo &info = image.GetInfo();
    return QSize(static_cast<int>(info.width), static_cast<int>(info.height)) == m_view.pictureSize();
}

void ImageCanvas::paintOverlays(QPainter &painter)
{
    if (m_picture.image && isPicture(*m_picture.image))
        m_pixelValues.paint(painter, m_view, m_layer, rawImage(*m_picture.image));
    if (m_hasGrid)
        canvasoverlays::paintGrid(painter, m_view);
    if (m_hasCrosshair)
        canvasoverlays::paintCrosshair(painter, m_view);
    for (const CanvasOverlay *const overlay : m_overlays) {
        painter.save();
        overlay->paint(painter, m_view);
        painter.restore();
    }
    m_regionTool.paint(painter, m_view, m_tool == Tool::Region, m_micrometresPerPixel);
    m_lineTool.paint(painter, m_view, m_tool == Tool::Line, m_micrometresPerPixel);
    if (m_tool == Tool::Pick && m_reportedPixel)
        canvasoverlays::paintPointer(painter, m_view, *m_reportedPixel);
    canvasoverlays::paintScaleBar(painter, m_view, m_micrometresPerPixel);
    const Minimap minimap(m_view);
    if (minimap.isVisible())
        minimap.paint(painter, m_wholeLayer);
}
