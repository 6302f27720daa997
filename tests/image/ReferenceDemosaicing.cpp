#include "tests/image/ReferenceDemosaicing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

int floorDivision(int dividend, int divisor)
{
    return static_cast<int>(std::floor(static_cast<double>(dividend) / divisor));
}

/// Returns the index inside of 0 to `count` - 1 that the index is mirrored to.
int mirrored(int index, int count)
{
    if (count == 1)
        return 0;
    while (index < 0 || index >= count)
        index = index < 0 ? -index : 2 * (count - 1) - index;
    return index;
}

} // namespace

ReferenceDemosaicing::ReferenceDemosaicing(
    std::string_view firstColors, int width, int height, int maximum, Value value)
    : m_firstColors(firstColors),
      m_width(width),
      m_height(height),
      m_maximum(maximum),
      m_value(std::move(value))
{ }

char ReferenceDemosaicing::colorOf(std::string_view firstColors, int x, int y)
{
    const auto column = static_cast<std::size_t>(x & 1);
    if ((y & 1) == 0)
        return firstColors[column];
    // Below green is the colour that the first line lacks, and below the other colour is green.
    if (firstColors[column] != 'G')
        return 'G';
    return firstColors.find('R') != std::string_view::npos ? 'B' : 'R';
}

char ReferenceDemosaicing::color(int x, int y) const
{
    return colorOf(m_firstColors, x, y);
}

int ReferenceDemosaicing::value(int x, int y) const
{
    return m_value(mirrored(x, m_width), mirrored(y, m_height));
}

int ReferenceDemosaicing::bilinear(int x, int y, char wanted) const
{
    if (color(x, y) == wanted)
        return value(x, y);
    int sum = 0;
    int count = 0;
    for (int line = y - 1; line <= y + 1; ++line) {
        for (int column = x - 1; column <= x + 1; ++column) {
            if (color(column, line) == wanted) {
                sum += value(column, line);
                ++count;
            }
        }
    }
    return (sum + count / 2) / count;
}

int ReferenceDemosaicing::green(int x, int y) const
{
    if (color(x, y) == 'G')
        return value(x, y);
    const int center = 2 * value(x, y);
    const int bendX = center - value(x - 2, y) - value(x + 2, y);
    const int bendY = center - value(x, y - 2) - value(x, y + 2);
    const int variationX = std::abs(value(x - 1, y) - value(x + 1, y)) + std::abs(bendX);
    const int variationY = std::abs(value(x, y - 1) - value(x, y + 1)) + std::abs(bendY);
    const int fourX = 2 * (value(x - 1, y) + value(x + 1, y)) + bendX;
    const int fourY = 2 * (value(x, y - 1) + value(x, y + 1)) + bendY;
    if (variationX < variationY)
        return std::clamp(floorDivision(fourX + 2, 4), 0, m_maximum);
    if (variationY < variationX)
        return std::clamp(floorDivision(fourY + 2, 4), 0, m_maximum);
    return std::clamp(floorDivision(fourX + fourY + 4, 8), 0, m_maximum);
}

int ReferenceDemosaicing::edgeAware(int x, int y, char wanted) const
{
    const int here = green(x, y);
    if (wanted == 'G')
        return here;
    if (color(x, y) == wanted)
        return value(x, y);
    const auto difference = [&](int dx, int dy) { return value(x + dx, y + dy) - green(x + dx, y + dy); };
    const auto variation = [&](int dx, int dy) {
        return std::abs(value(x + dx, y + dy) - value(x - dx, y - dy))
            + std::abs(2 * here - green(x + dx, y + dy) - green(x - dx, y - dy));
    };
    int mean = 0;
    if (color(x, y) == 'G') {
        const int dx = color(x + 1, y) == wanted ? 1 : 0;
        mean = floorDivision(difference(dx, 1 - dx) + difference(-dx, dx - 1) + 1, 2);
    } else {
        const int falling = difference(-1, -1) + difference(1, 1);
        const int rising = difference(1, -1) + difference(-1, 1);
        if (variation(1, 1) < variation(1, -1))
            mean = floorDivision(falling + 1, 2);
        else if (variation(1, -1) < variation(1, 1))
            mean = floorDivision(rising + 1, 2);
        else
            mean = floorDivision(falling + rising + 2, 4);
    }
    return std::clamp(here + mean, 0, m_maximum);
}
