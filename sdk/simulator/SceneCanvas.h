#pragma once

#include "sdk/simulator/SceneBlur.h"
#include "sdk/simulator/SceneChart.h"
#include "sdk/simulator/SensorFlaws.h"
#include "sdk/simulator/SensorModel.h"

#include <cstdint>
#include <optional>
#include <vector>

/// A rectangle of pixels.
struct SceneArea
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool contains(const SceneArea &other) const;
};

/// The chart as the lens projects it on the sensor: blurred by the focus, seen through the colour filters,
/// without noise. The canvas keeps the part that was prepared last. It is larger than the sensor, so that the
/// scene can move.
class SceneCanvas
{
public:
    /// What the content of the canvas depends on.
    struct View
    {
        double focusPosition;
        int mosaicX; ///< 1 if the columns of the colour filters begin with the second one, otherwise 0.
        int mosaicY; ///< The same for lines.

        bool operator==(const View &other) const;
    };

    /// How far the scene moves in each direction, in pixels; even.
    static int margin(const SensorModel &model);

    /// Number of lines after which the scene of a line scan sensor repeats itself.
    static int lineScanPeriod(const SensorModel &model);

    /// `flaws` must outlive the canvas.
    SceneCanvas(const SensorModel &model, const SensorFlaws &flaws);

    /// Computes the area, unless it is there already.
    void prepare(const View &view, const SceneArea &area);

    /// Returns the pixels from (x, y) on: the square root of the reflectance times fullScale.
    const std::uint8_t *line(int x, int y) const;
    static constexpr float fullScale = 240; // Leaves room for surfaces that are brighter than white.

private:
    /// Something that is painted and blurred line by line.
    struct Layer
    {
        Layer(const SceneArea &area, double maxRadius, int step);

        SceneBlur blur;
        int left; ///< Where painted lines begin.
        int nextLine; ///< The line that is painted next.
        std::vector<float> painted;
    };
    void paintUntil(Layer &layer, int lastLine, bool isTint);
    void blurLine(const Layer &layer, int y, float *values) const;
    double blurRadius(int x, int y) const;
    SceneChart::LineFilter tintFilter(const View &view, int y) const;

    const SensorModel m_model;
    const SensorFlaws &m_flaws;
    SceneChart m_chart;
    std::optional<View> m_view; // Empty if nothing was prepared yet.
    SceneArea m_area;
    std::vector<std::uint8_t> m_pixels;
};
