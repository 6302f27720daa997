#include "tools/kit/canvas/ImageCanvas.h"

ImageCanvas::ImageCanvas(QWidget *parent) : QWidget(parent) { }
ImageCanvas::~ImageCanvas() = default;

void ImageCanvas::setPicture(const ShownPicture &picture)
{
    m_picture = picture;
    update();
}

void ImageCanvas::setPictureSize(const QSize &size)
{
    m_view.setPictureSize(size);
    emit requestChanged();
}

void ImageCanvas::clear()
{
    m_picture = {};
    update();
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
}
QRect ImageCanvas::region() const
{
    return m_region;
}
void ImageCanvas::setRegion(const QRect &region)
{
    m_region = region;
}
QLine ImageCanvas::line() const
{
    return m_line;
}
void ImageCanvas::setLine(const QLine &line)
{
    m_line = line;
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
    m_notice = text;
}
void ImageCanvas::setHint(const QString &text)
{
    m_hint = text;
}
void ImageCanvas::setOrientation(const Orientation &orientation)
{
    m_view.setOrientation(orientation);
}
void ImageCanvas::fit()
{
    m_view.fit();
}
void ImageCanvas::showActualSize()
{
    m_view.setScale(1, rect().center());
}
void ImageCanvas::zoomIn()
{
    m_view.zoomIn(rect().center());
}
void ImageCanvas::zoomOut()
{
    m_view.zoomOut(rect().center());
}
void ImageCanvas::rotateRight()
{
    m_view.rotate(1);
}
void ImageCanvas::rotateLeft()
{
    m_view.rotate(-1);
}
void ImageCanvas::mirrorHorizontally()
{
    m_view.mirrorHorizontally();
}
void ImageCanvas::mirrorVertically()
{
    m_view.mirrorVertically();
}
void ImageCanvas::setGrid(bool isVisible)
{
    m_hasGrid = isVisible;
}
void ImageCanvas::setCrosshair(bool isVisible)
{
    m_hasCrosshair = isVisible;
}
void ImageCanvas::setMicrometresPerPixel(double micrometres)
{
    m_micrometresPerPixel = micrometres;
}
