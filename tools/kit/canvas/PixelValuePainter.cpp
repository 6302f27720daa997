#include "tools/kit/canvas/PixelValuePainter.h"

#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawValues.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr int smallestFont = 7;
constexpr int largestFont = 18;
constexpr double margin = 2; ///< Between the text and the edges of its pixel.

/// Returns the most characters that a component of the picture needs, so that the size of the font does not
/// depend on its values.
std::size_t widestValue(const PixelLayout &layout)
{
    constexpr std::size_t widestFloat = 12; // A sign, six digits, a point and an exponent.
    constexpr std::size_t bitsOfThreeDigits = 10;
    if (layout.number == Number::Float)
        return widestFloat;
    const std::size_t digits = layout.format.depth * 3U / bitsOfThreeDigits + 1;
    return digits + (layout.number == Number::Signed ? 1 : 0);
}

/// Returns the largest font in which the lines fit into the room; nothing if none does.
std::optional<int> fittingFont(std::size_t characters, std::size_t lines, const QSizeF &room)
{
    for (int size = largestFont; size >= smallestFont; --size) {
        const QSizeF glyph = GlyphSheet::glyphSize(size);
        if (glyph.width() * double(characters) <= room.width()
            && glyph.height() * double(lines) <= room.height())
            return size;
    }
    return std::nullopt;
}

bool isDark(QRgb color)
{
    return qGray(color) < 128;
}

} // namespace

std::vector<std::string> PixelValuePainter::lines(const RawImage &picture, const QPoint &pixel)
{
    const bool isFloat = findPixelLayout(picture.pixelFormat).number == Number::Float;
    const RawValues values
        = rawValues(picture, static_cast<std::uint32_t>(pixel.x()), static_cast<std::uint32_t>(pixel.y()));
    std::vector<std::string> result;
    for (unsigned i = 0; i < values.count; ++i) {
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), isFloat ? "%.6g" : "%.0f", values.values[i]);
        result.emplace_back(text.data());
    }
    return result;
}

void PixelValuePainter::paint(
    QPainter &painter, const ViewTransform &view, const PictureLayer &layer, const RawImage &picture)
{
    if (view.scale() >= gridScale)
        paintGrid(painter, view);
    if (view.scale() >= valueScale)
        paintValues(painter, view, layer, picture);
}

void PixelValuePainter::paintGrid(QPainter &painter, const ViewTransform &view) const
{
    const QRect region = view.visibleRegion();
    const QRectF area = view.toView(QRectF(region));
    const double step = view.scale() / view.devicePixelRatio();
    const double width = 1 / view.devicePixelRatio();
    const QColor color(128, 128, 128, 110);
    for (double x = area.left(); x < area.right() + width; x += step)
        painter.fillRect(QRectF(x, area.top(), width, area.height()), color);
    for (double y = area.top(); y < area.bottom() + width; y += step)
        painter.fillRect(QRectF(area.left(), y, area.width(), width), color);
}

void PixelValuePainter::paintValues(
    QPainter &painter, const ViewTransform &view, const PictureLayer &layer, const RawImage &picture)
{
    const double side = view.scale() / view.devicePixelRatio();
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const auto font = fittingFont(
        widestValue(layout), layout.format.components, QSizeF(side - 2 * margin, side - 2 * margin));
    if (!font)
        return;
    m_glyphs.set(*font, view.devicePixelRatio());
    const QSizeF glyph = m_glyphs.glyphSize();
    const QTransform toView = view.toView();
    const QRect region = view.visibleRegion();
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            const auto texts = lines(picture, {x, y});
            const bool isLight = isDark(layer.colorAt({x, y}));
            const QPointF center = toView.map(QPointF(x + 0.5, y + 0.5));
            QPointF place(0, std::round(center.y() - glyph.height() * double(texts.size()) / 2));
            for (const std::string &text : texts) {
                place.setX(std::round(center.x() - glyph.width() * double(text.size()) / 2));
                m_glyphs.write(painter, place, text, isLight);
                place.ry() += glyph.height();
            }
        }
    }
}
