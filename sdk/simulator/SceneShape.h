#pragma once

#include <string>

/// Share of the light that a surface reflects, for red, green and blue; 0 to 1.
struct Reflectance
{
    float red = 0;
    float green = 0;
    float blue = 0;

    static constexpr Reflectance grey(float value) { return {value, value, value}; }
};

/// A shape that is printed on the chart. Lengths and positions are in pixels; pixel (0, 0) has its centre
/// there.
struct SceneShape
{
    /// Computes how much of each pixel of a line the shape covers: `count` values of 0 to 1 from column `x`
    /// on.
    using Coverage = void (*)(const SceneShape &shape, float y, float x, int count, float *coverage);

    Coverage coverage;
    float left;
    float top;
    float width;
    float height;
    Reflectance ink;
    float parameter = 0; ///< Meaning depends on the shape.
    std::string text = {};

    float right() const { return left + width; }
    float bottom() const { return top + height; }
    float centerX() const { return left + width / 2; }
    float centerY() const { return top + height / 2; }
};

SceneShape box(float left, float top, float width, float height, Reflectance ink);
SceneShape disc(float centerX, float centerY, float radius, Reflectance ink);

/// Returns a ring; the radius is that of its outer border.
SceneShape ring(float centerX, float centerY, float radius, float thickness, Reflectance ink);

/// Returns a star of `cycles` dark sectors.
SceneShape star(float centerX, float centerY, float radius, float cycles, Reflectance ink);

/// Returns concentric rings that become finer towards the border, where they are two pixels wide.
SceneShape zonePlate(float centerX, float centerY, float radius, Reflectance ink);

/// Returns a square that is rotated by about five degrees.
SceneShape slantedSquare(float left, float top, float size, Reflectance ink);

/// Returns vertical or horizontal bars; half of each period is dark.
SceneShape verticalBars(float left, float top, float width, float height, float period, Reflectance ink);
SceneShape horizontalBars(float left, float top, float width, float height, float period, Reflectance ink);

/// Returns one line of text with letters of this height.
SceneShape textLine(float left, float top, float letterHeight, const std::string &text, Reflectance ink);
