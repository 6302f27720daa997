#include "tools/pixelrepair/DefectOverlay.h"

#include "tools/kit/canvas/ImageCanvas.h"
#include "tools/pixelrepair/DefectColors.h"
#include "tools/pixelrepair/DefectTexts.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace {

constexpr double minMark = 7; // Size of a mark in a small picture.
constexpr double markBorder = 4; // Distance of the mark from an enlarged pixel, both sides together.
constexpr double selectedBorder = 14;

QRectF markAround(const QRectF &pixel, double border)
{
    const double size = std::max(minMark, pixel.width()) + border;
    QRectF mark(0, 0, size, size);
    mark.moveCenter(pixel.center());
    return mark;
}

} // namespace

DefectOverlay::DefectOverlay(ImageCanvas &canvas) : m_canvas(canvas)
{
    m_canvas.addOverlay(this);
}

DefectOverlay::~DefectOverlay()
{
    m_canvas.removeOverlay(this);
}

void DefectOverlay::setMap(const DefectMap &map)
{
    m_map = map;
    m_canvas.update();
}

void DefectOverlay::setVisible(bool isVisible)
{
    m_isVisible = isVisible;
    m_canvas.update();
}

void DefectOverlay::setSelected(const std::optional<QPoint> &pixel)
{
    m_selected = pixel;
    m_canvas.update();
}

QPoint DefectOverlay::pictureOffset() const
{
    const auto &image = m_canvas.picture().image;
    if (!image)
        return {};
    const CvxCPP::ImageInfo &info = image->GetInfo();
    return {static_cast<int>(info.offsetX), m_map.isLineScan() ? 0 : static_cast<int>(info.offsetY)};
}

std::optional<QPoint> DefectOverlay::inPicture(const QPoint &sensorPixel) const
{
    const QPoint pixel = sensorPixel - pictureOffset();
    if (!QRect(QPoint(), m_canvas.view().pictureSize()).contains(pixel))
        return {};
    return pixel;
}

void DefectOverlay::paint(QPainter &painter, const ViewTransform &view) const
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    if (m_isVisible)
        paintMarks(painter, view);
    if (m_selected)
        paintSelected(painter, view);
    painter.restore();
}

void DefectOverlay::paintMarks(QPainter &painter, const ViewTransform &view) const
{
    const QRect visible = view.visibleRegion();
    const QPoint offset = pictureOffset();
    const QTransform toView = view.toView();
    const auto before
        = [](const DefectPixelEntry &pixel, int line) { return static_cast<int>(pixel.y) < line; };
    const auto first = m_map.isLineScan()
        ? m_map.pixels.begin()
        : std::lower_bound(m_map.pixels.begin(), m_map.pixels.end(), visible.top() + offset.y(), before);
    std::array<QVector<QRectF>, std::size(defectKinds)> marks;
    for (auto pixel = first; pixel != m_map.pixels.end(); ++pixel) {
        const int x = static_cast<int>(pixel->x) - offset.x();
        const int y = static_cast<int>(pixel->y) - offset.y();
        if (!m_map.isLineScan() && y > visible.bottom())
            break;
        if (x < visible.left() || x > visible.right())
            continue;
        // A defect of a line scan sensor is in all lines of the picture.
        const QRectF place
            = m_map.isLineScan() ? QRectF(x, visible.top(), 1, visible.height()) : QRectF(x, y, 1, 1);
        const QRectF mapped = toView.mapRect(place);
        marks.at(static_cast<std::size_t>(pixel->kind))
            .append(m_map.isLineScan() ? mapped.adjusted(-2, 0, 2, 0) : markAround(mapped, markBorder));
    }
    for (const DefectKind kind : defectKinds) {
        painter.setPen(QPen(defectColor(kind), 1));
        painter.drawRects(marks.at(static_cast<std::size_t>(kind)));
    }
}

void DefectOverlay::paintSelected(QPainter &painter, const ViewTransform &view) const
{
    const std::optional<QPoint> pixel = inPicture(*m_selected);
    if (!pixel)
        return;
    painter.setPen(QPen(Qt::white, 2));
    painter.drawEllipse(markAround(view.toView(QRectF(*pixel, QSizeF(1, 1))), selectedBorder));
}
