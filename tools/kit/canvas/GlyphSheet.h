#pragma once

#include <QImage>
#include <QSize>

#include <string_view>
#include <vector>

class QPainter;

/// The characters of numbers as small images of one size. Writing thousands of numbers with them is many
/// times faster than with a font.
class GlyphSheet
{
public:
    /// Draws the characters unless they exist already.
    /// @param pixelSize Of the font, in units of the widget.
    void set(int pixelSize, double devicePixelRatio);

    /// Returns the size of one character, in units of the widget.
    QSizeF glyphSize() const { return m_glyphSize; }

    /// Returns the size of a character in a font of `pixelSize`.
    static QSizeF glyphSize(int pixelSize);

    /// Writes the text, whose characters other than those of numbers are left out.
    void write(QPainter &painter, const QPointF &topLeft, std::string_view text, bool isLight) const;

private:
    int m_pixelSize = 0;
    double m_devicePixelRatio = 0;
    QSizeF m_glyphSize;
    std::vector<QImage> m_dark;
    std::vector<QImage> m_light;
};
