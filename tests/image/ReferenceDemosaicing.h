#pragma once

#include <functional>
#include <string_view>

/// Finds the missing colours of single pixels of a Bayer picture, as the two methods are described.
class ReferenceDemosaicing
{
public:
    using Value = std::function<int(int x, int y)>;

    /// `firstColors` are the letters of the first two pixels, `value` returns a pixel of the picture.
    ReferenceDemosaicing(std::string_view firstColors, int width, int height, int maximum, Value value);

    /// Returns the letter of the pixel's colour.
    static char colorOf(std::string_view firstColors, int x, int y);

    int bilinear(int x, int y, char wanted) const;
    int edgeAware(int x, int y, char wanted) const;

private:
    char color(int x, int y) const;
    int value(int x, int y) const;
    int green(int x, int y) const;

    std::string_view m_firstColors;
    int m_width;
    int m_height;
    int m_maximum;
    Value m_value;
};
