#include "tools/kit/canvas/ImageCanvas.h"

#include <QLocale>

#include <algorithm>
#include <utility>

ImageCanvas::ImageCanvas(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Picture"));
    setHint(tr("No picture yet"));
}

ImageCanvas::~ImageCanvas() = default;

void ImageCanvas::setPicture(const ShownPicture &picture)
{
    if (m_view.pictureSize().isEmpty())
        setPictureSize(picture.pictureSize);
    m_picture = picture;
    m_layer = PictureLayer(picture, m_view.orientation());
    if (m_layer.isComplete()) {
        m_wholePicture = picture;
        m_wholePicture.image.reset(); // It would occupy a buffer of the stream.
        m_wholeLayer = m_layer;
    }
    if (!m_notice.isEmpty())
        updateLayers();
    m_isNewPicture = true;
    update();
}

void ImageCanvas::setPictureSize(const QSize &size)
{
    if (m_view.pictureSize() == size)
        return;
    m_view.setPictureSize(size);
    m_wholePicture = {};
    m_wholeLayer = {};
    cutDrawings();
    finishViewChange();
}

void ImageCanvas::clear()
{
    m_picture = {};
    m_wholePicture = {};
    m_view.setPictureSize({});
    m_isNewPicture = false;
    updateLayers();
    finishViewChange();
}

const ShownPicture &ImageCanvas::picture() const
{
    return m_picture;
}

const ViewTransform &ImageCanvas::view() const
{
    return m_view;
}

PictureRequest ImageCanvas::request() const
{
    const QRect region = m_view.visibleRegion();
    return {m_view.pictureSize(), region, m_view.outputSize(region), m_settings};
}

void ImageCanvas::setDisplaySettings(const DisplaySettings &settings)
{
    m_settings = settings;
    emit requestChanged();
}

ImageCanvas::Tool ImageCanvas::tool() const
{
    return m_tool;
}

void ImageCanvas::setTool(Tool tool)
{
    m_tool = tool;
    m_drag = Drag::None;
    updateCursor();
    update();
}

/// Returns null if the tool draws nothing.
DrawingTool *ImageCanvas::drawingTool()
{
    switch (m_tool) {
    case Tool::Region:
        return &m_regionTool;
    case Tool::Line:
        return &m_lineTool;
    default:
        return nullptr;
    }
}

QRect ImageCanvas::region() const
{
    return m_regionTool.region();
}

void ImageCanvas::setRegion(const QRect &region)
{
    m_regionTool.setRegion(region);
    m_reportedDrawnRegion = region;
    update();
}

QLine ImageCanvas::line() const
{
    return m_lineTool.line();
}

void ImageCanvas::setLine(const QLine &line)
{
    m_lineTool.setLine(line);
    m_reportedLine = line;
    update();
}

bool ImageCanvas::hasGrid() const
{
    return m_hasGrid;
}

bool ImageCanvas::hasCrosshair() const
{
    return m_hasCrosshair;
}

double ImageCanvas::micrometresPerPixel() const
{
    return m_micrometresPerPixel;
}

void ImageCanvas::setNotice(const QString &text)
{
    if (std::exchange(m_notice, text) == text)
        return;
    updateLayers();
    updateAccessibleDescription();
    update();
}

void ImageCanvas::setHint(const QString &text)
{
    m_hint = text;
    updateAccessibleDescription();
    update();
}

void ImageCanvas::setOrientation(const Orientation &orientation)
{
    m_view.setOrientation(orientation);
    finishViewChange();
}

void ImageCanvas::addOverlay(const CanvasOverlay *overlay)
{
    m_overlays.push_back(overlay);
    update();
}

void ImageCanvas::removeOverlay(const CanvasOverlay *overlay)
{
    m_overlays.erase(std::remove(m_overlays.begin(), m_overlays.end(), overlay), m_overlays.end());
    update();
}

void ImageCanvas::fit()
{
    m_view.fit();
    finishViewChange();
}

void ImageCanvas::showPixel(const QPoint &pixel, double minScale)
{
    m_view.setScale(std::max(m_view.scale(), minScale), center());
    m_view.centerOn(QPointF(pixel) + QPointF(0.5, 0.5));
    finishViewChange();
}

void ImageCanvas::showActualSize()
{
    m_view.setScale(1, center());
    finishViewChange();
}

void ImageCanvas::zoomIn()
{
    m_view.zoomIn(center());
    finishViewChange();
}

void ImageCanvas::zoomOut()
{
    m_view.zoomOut(center());
    finishViewChange();
}

void ImageCanvas::rotateRight()
{
    m_view.rotate(1);
    finishViewChange();
}

void ImageCanvas::rotateLeft()
{
    m_view.rotate(-1);
    finishViewChange();
}

void ImageCanvas::mirrorHorizontally()
{
    m_view.mirrorHorizontally();
    finishViewChange();
}

void ImageCanvas::mirrorVertically()
{
    m_view.mirrorVertically();
    finishViewChange();
}

void ImageCanvas::setGrid(bool isVisible)
{
    m_hasGrid = isVisible;
    update();
}

void ImageCanvas::setCrosshair(bool isVisible)
{
    m_hasCrosshair = isVisible;
    update();
}

void ImageCanvas::setMicrometresPerPixel(double micrometres)
{
    m_micrometresPerPixel = micrometres;
    update();
}

void ImageCanvas::updateViewSize()
{
    m_view.setViewSize(size(), devicePixelRatioF());
    finishViewChange();
}

/// Repaints, and reports what has changed.
void ImageCanvas::finishViewChange()
{
    const bool isTurned
        = !(std::exchange(m_reportedOrientation, m_view.orientation()) == m_view.orientation());
    const bool isScaled = std::exchange(m_reportedScale, m_view.scale()) != m_view.scale();
    if (isTurned)
        updateLayers();
    const PictureRequest wanted = request();
    const bool isMoved = std::exchange(m_reportedRegion, wanted.region) != wanted.region;
    const bool isResized = std::exchange(m_reportedSize, wanted.pictureSize) != wanted.pictureSize;
    if (isTurned || isScaled || isResized)
        updateAccessibleDescription();
    if (isTurned || isScaled)
        emit viewChanged();
    if (isMoved || isScaled || isResized)
        emit requestChanged();
    reportPointer();
    updateCursor();
    update();
}

/// Makes the turned pictures again.
void ImageCanvas::updateLayers()
{
    m_layer = PictureLayer(m_picture, m_view.orientation());
    m_wholeLayer = PictureLayer(m_wholePicture, m_view.orientation());
    if (m_notice.isEmpty())
        return;
    m_layer.makeGrey();
    m_wholeLayer.makeGrey();
}

void ImageCanvas::updateAccessibleDescription()
{
    const QSize size = m_view.pictureSize();
    if (!m_notice.isEmpty()) {
        setAccessibleDescription(m_notice);
    } else if (size.isEmpty()) {
        setAccessibleDescription(m_hint);
    } else {
        const QLocale locale;
        setAccessibleDescription(tr("%1 by %2 pixels, shown at %3 %")
                                     .arg(locale.toString(size.width()), locale.toString(size.height()),
                                         locale.toString(100 * m_view.scale(), 'g', 3)));
    }
}

/// Reports a pixel when it is another one than before.
void ImageCanvas::reportPointer()
{
    const std::optional<QPoint> pixel = m_pointer ? m_view.pixelAt(*m_pointer) : std::nullopt;
    if (std::exchange(m_reportedPixel, pixel) == pixel)
        return;
    if (m_tool == Tool::Pick)
        update();
    if (pixel)
        emit pointerMoved(*pixel);
    else
        emit pointerLeft();
}

/// Keeps region and line inside a picture that became smaller.
void ImageCanvas::cutDrawings()
{
    const QRect picture(QPoint(), m_view.pictureSize());
    if (picture.isEmpty())
        return;
    m_regionTool.setRegion(region() & picture);
    if (!picture.contains(line().p1()) || !picture.contains(line().p2()))
        m_lineTool.remove();
    reportDrawing();
}

/// Reports what was changed of region and line.
void ImageCanvas::reportDrawing()
{
    update();
    if (std::exchange(m_reportedDrawnRegion, region()) != region())
        emit regionChanged(region());
    if (std::exchange(m_reportedLine, line()) != line())
        emit lineChanged(line());
}
