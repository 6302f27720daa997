#pragma once

#include <optional>
#include <vector>

struct CurvePoint
{
    double x = 0;
    double y = 0;
    double weight = 1; ///< For example the number of readings of which y is the mean.
};

/// The curve y = offset + amplitude · exp(-(x - origin) / scale).
struct ExponentialFit
{
    double offset = 0; ///< What y approaches for large x.
    double amplitude = 0;
    double scale = 1;
    double origin = 0;
    double residual = 0; ///< Standard deviation of the points about the curve.
    double offsetError = 0; ///< Standard uncertainty.
    double scaleError = 0; ///< Standard uncertainty of scale, relative to scale.
    bool isScaleInside = false; ///< False if the best scale is a limit of the search: the data show no curve.

    double at(double x) const;
};

/// Fits the curve by least squares with variable projection: for each scale, offset and amplitude are linear
/// parameters (Golub and Pereyra, "The differentiation of pseudo-inverses and nonlinear least squares
/// problems whose variables separate", SIAM J. Numer. Anal. 10, 1973). The logarithm of the scale is searched
/// on a grid, then by golden sections (Kiefer, "Sequential minimax search for a maximum", 1953).
///
/// The uncertainties are those of the linearised problem with all three parameters. Residuals that resemble
/// their neighbours, as those of rounded readings do, count as fewer measurements: the variance grows by (1 +
/// r) / (1 - r), where r is their correlation (Bayley and Hammersley, "The 'effective' number of independent
/// observations in an autocorrelated time series", 1946).
///
/// Returns no value for fewer than six points, or if all x or all y are the same.
std::optional<ExponentialFit> fitExponential(
    const std::vector<CurvePoint> &points, double minScale, double maxScale);
