#pragma once

#include "sdk/image/RawImage.h"
#include "tools/kit/canvas/GlyphSheet.h"
#include "tools/kit/canvas/PictureLayer.h"

#include <string>
#include <vector>

class QPainter;

/// Draws a grid between the pixels and writes their raw values into them, as soon as they are large enough.
class PixelValuePainter
{
public:
    static constexpr double gridScale = 16;
    static constexpr double valueScale = 32;

    /// Paints what the present scale has room for.
    void paint(
        QPainter &painter, const ViewTransform &view, const PictureLayer &layer, const RawImage &picture);

    /// Returns the values of a pixel as they are written: all digits of integers, six of other numbers.
    static std::vector<std::string> lines(const RawImage &picture, const QPoint &pixel);

private:
    void paintGrid(QPainter &painter, const ViewTransform &view) const;
    void paintValues(
        QPainter &painter, const ViewTransform &view, const PictureLayer &layer, const RawImage &picture);
    void paintPixel(
        QPainter &painter, const QRectF &place, const std::vector<std::string> &texts, bool isLight) const;

    GlyphSheet m_glyphs;
};
