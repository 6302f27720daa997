#pragma once

#include <optional>
#include <vector>

struct FitPoint
{
    double x = 0;
    double y = 0;
};

/// An ellipse, by what matters for a picture that is made of lines.
struct Ellipse
{
    double centerX = 0;
    double centerY = 0;
    double halfWidth = 0; ///< Horizontal distance from the centre to the outermost point on the right.
    double halfHeight = 0; ///< Vertical distance from the centre to the lowest point.
    /// The correlation of the coordinates: 0 if the axes are horizontal and vertical.
    double correlation = 0;

    /// Returns the distance of a point from the centre divided by the one of the border in its direction.
    double relativeDistance(const FitPoint &point) const;

    /// Returns the points of the border, for drawing.
    std::vector<FitPoint> outline(int count) const;
};

struct EllipseFit
{
    Ellipse ellipse;
    double residual = 0; ///< Root mean square distance of the used points from the ellipse.
    double usedShare = 0; ///< Share of the points that are used; the others are outliers.
    double coveredShare = 0; ///< Share of the directions from the centre in which there are used points.
};

/// Fits an ellipse to points of its border. The conic A x² + B xy + C y² + D x + E y = 1 in coordinates
/// about the middle of the points is solved by linear least squares (Rosin, "A note on the least squares
/// fitting of ellipses", Pattern Recognition Letters 14, 1993, normalisation F = 1). Points that are further
/// away than three times the robust standard deviation (1.4826 times the median of the distances) are left
/// out, and the fit is repeated. Returns nothing if the conic is no ellipse.
std::optional<EllipseFit> fitEllipse(const std::vector<FitPoint> &points);
