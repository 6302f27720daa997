#pragma once

#include <optional>
#include <vector>

/// Where one region is sharp.
struct SurfacePoint
{
    double x = 0; ///< Place in the picture: -0.5 at the left edge, 0.5 at the right edge.
    double y = 0; ///< -0.5 at the upper edge, 0.5 at the lower edge.
    double position = 0; ///< Best position of the lens, or the time of the best sharpness.
};

/// How the best position changes over the picture: a tilted plane, and a curvature about the centre:
///
///     position(x, y) = center + right x + down y + curvature r²,    r = 1 in the corners
///
/// The parameters are found by least squares, without the regions whose residual is more than four times the
/// usual one. The curvature is left out if it is not significant.
struct FocusSurface
{
    double center = 0; ///< Best position of the centre of the picture.
    double right = 0; ///< Change of the best position from the left to the right edge.
    double down = 0; ///< Change of the best position from the upper to the lower edge.
    double curvature = 0; ///< Change of the best position from the centre to the corners, without the tilt.
    double tiltDeviation = 0; ///< Standard error of right and down.
    double residual = 0; ///< Standard deviation of the regions from the surface.

    /// Returns the difference of the best positions between two opposite edges or corners.
    double tilt() const;

    /// Returns the direction in which the best position rises: degrees, 0 right, 90 down.
    double angle() const;

    /// The tilt is not an effect of the regions' deviations.
    bool isTilted() const;

    /// Returns the mean of the best positions over the picture: there, the picture is sharp as a whole.
    double meanPosition() const { return center + curvature / 3; }
};

/// Returns the surface; nothing if the regions do not determine it.
/// @param isLine All regions lie in one row, so there is no tilt to the top or the bottom.
std::optional<FocusSurface> fitSurface(const std::vector<SurfacePoint> &points, bool isLine);
