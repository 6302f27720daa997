#include "tools/kit/canvas/PixelValuePainter.h"

#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawValues.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

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

/// Draws a short line in the colour that a pixel of a Bayer picture measures.
void paintBayerColor(QPainter &painter, const QRectF &place, const RawImage &picture, const QPoint &pixel)
{
    constexpr std::array<QRgb, 3> colors = {0xffff4040, 0xff30e030, 0xff4080ff};
    const auto color
        = rawValues(picture, static_cast<std::uint32_t>(pixel.x()), static_cast<std::uint32_t>(pixel.y()))
              .color;
    const double width = std::round(place.width() / 3);
    const QRectF line(std::round(place.center().x() - width / 2), place.bottom() - 6, width, 3);
    painter.fillRect(line.adjusted(-1, -1, 1, 1), QColor(0, 0, 0, 150));
    painter.fillRect(line, QColor(colors[static_cast<std::size_t>(*color)]));
}

} // namespace

std::vector<std::string> PixelValuePainter::lines(const RawImage &picture, const QPoint &pixel)
{
    const bool isFloat = findPixelLayout(picture.pixelFormat).number == Number::Float;
    const RawValues values
        = rawValues(picture, static_cast<std::uint32_t>(pixel.x()), static_cast<std::uint32_t>(pixel.y()));
    std::vector<std::string> result;
    for (unsigned i = 0; i < values.count; ++i) {
        const QString text
            = isFloat ? QString::number(values.values[i], 'g', 6) : QString::number(values.values[i], 'f', 0);
        result.push_back(text.toStdString());
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
    const QRectF area = view.toView(QRectF(view.visibleRegion()));
    const double step = view.scale() / view.devicePixelRatio();
    const double width = 1 / view.devicePixelRatio();
    // A dark line beside a light one is visible on every picture.
    const std::array<QColor, 2> colors = {QColor(0, 0, 0, 70), QColor(255, 255, 255, 50)};
    for (std::size_t i = 0; i < colors.size(); ++i) {
        const double shift = (double(i) - 1) * width;
        for (double x = area.left(); x < area.right() + step / 2; x += step)
            painter.fillRect(QRectF(x + shift, area.top(), width, area.height()), colors[i]);
        for (double y = area.top(); y < area.bottom() + step / 2; y += step)
            painter.fillRect(QRectF(area.left(), y + shift, area.width(), width), colors[i]);
    }
}

void PixelValuePainter::paintValues(
    QPainter &painter, const ViewTransform &view, const PictureLayer &layer, const RawImage &picture)
{
    const double side = view.scale() / view.devicePixelRatio();
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const auto font = fittingFont(
        widestValue(layout) + 1, layout.format.components, QSizeF(side - margin, side - 2 * margin));
    if (!font)
        return;
    m_glyphs.set(*font, view.devicePixelRatio());
    const QRect region = view.visibleRegion();
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            const QRectF place = view.toView(QRectF(x, y, 1, 1));
            paintPixel(painter, place, lines(picture, {x, y}), isDark(layer.colorAt({x, y})));
            if (layout.format.kind == PixelKind::Bayer)
                paintBayerColor(painter, place, picture, {x, y});
        }
    }
}

void PixelValuePainter::paintPixel(
    QPainter &painter, const QRectF &place, const std::vector<std::string> &texts, bool isLight) const
{
    const QSizeF glyph = m_glyphs.glyphSize();
    double top = std::round(place.center().y() - glyph.height() * double(texts.size()) / 2);
    for (const std::string &text : texts) {
        const double left = std::round(place.center().x() - glyph.width() * double(text.size()) / 2);
        m_glyphs.write(painter, {left, top}, text, isLight);
        top += glyph.height();
    }
}
