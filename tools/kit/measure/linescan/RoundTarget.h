#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/image/RawImage.h"
#include "tools/kit/measure/linescan/EllipseFit.h"
#include "tools/kit/measure/run/Sentence.h"

#include <optional>

/// Which columns of the picture are searched. The picture rolls, so a target keeps its columns only.
struct TargetColumns
{
    std::uint32_t first = 0;
    std::uint32_t count = 0; ///< 0 for all of them.
    std::optional<double> inside = {}; ///< The target must contain this column.
};

/// A round object in a picture. All coordinates are pixels of the camera's picture, where pixel (x, y) covers
/// the square from (x, y) to (x + 1, y + 1).
struct RoundTarget
{
    Ellipse ellipse;
    double residual = 0; ///< Pixels; see EllipseFit.
    bool isBright = false;

    /// Returns the height divided by the width: 1 for a round picture of a round object. A camera that is
    /// turned against the movement shears the picture, but does not change this ratio.
    double heightToWidth() const { return ellipse.halfHeight / ellipse.halfWidth; }

    /// Returns the angle in degrees by which the sensor's line is turned against the perpendicular of the
    /// movement. With x' = x / cos(angle) and y' = (y - x tan(angle)) / pitch, the correlation of the
    /// border's coordinates is -sin(angle).
    double turnDegrees() const;
};

/// What was found in one picture.
struct TargetSearch
{
    std::optional<RoundTarget> target; ///< The largest one.
    Sentence problem; ///< Why there is none.
};

/// Finds the largest dark or bright disc or ring: separates dark from bright by thresholds, takes connected
/// parts that are not cut off by the picture, and fits an ellipse to the outer border of each, which is
/// placed between the pixels where the brightness crosses the threshold. Used by one thread.
class RoundTargetFinder
{
public:
    /// Smaller targets are not precise enough.
    static constexpr int minSize = 24;

    TargetSearch find(const RawImage &picture, const TargetColumns &columns = {});

private:
    ImageConverter m_converter;
};
