#include "tools/kit/measure/focus/FocusSurface.h"

#include "tools/kit/measure/focus/LeastSquares.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {
using Points = std::vector<SurfacePoint>;

constexpr double significance = 3; // In standard errors.
constexpr double outlierLimit = 4; // In usual deviations.
constexpr double medianToDeviation = 1.4826; // Ratio of standard to median deviation if normally distributed.

/// Which terms of the surface are fitted.
struct Terms
{
    bool isLine;
    bool isCurved;

    std::size_t count() const { return 2 + (isLine ? 0 : 1) + (isCurved ? 1 : 0); }

    std::vector<double> factors(double x, double y) const
    {
        std::vector<double> factors{1, x};
        if (!isLine)
            factors.push_back(y);
        if (isCurved)
            factors.push_back(isLine ? x * x * 4 : (x * x + y * y) * 2);
        return factors;
    }
};

struct Fit
{
    FocusSurface surface;
    double curvatureDeviation = 0;
    std::vector<double> residuals;
};

std::optional<Fit> fitTerms(const Points &points, const Terms &terms)
{
    if (points.size() <= terms.count()) // One region more, so that there is a residual.
        return {};
    LeastSquares equations(terms.count());
    for (const SurfacePoint &point : points)
        equations.add(terms.factors(point.x, point.y), point.position);
    const auto parameters = equations.solve();
    const auto variances = equations.variances();
    if (!parameters || !variances)
        return {};
    Fit fit;
    double squares = 0;
    for (const SurfacePoint &point : points) {
        double residual = point.position;
        const std::vector<double> factors = terms.factors(point.x, point.y);
        for (std::size_t i = 0; i < factors.size(); ++i)
            residual -= factors[i] * parameters->at(i);
        fit.residuals.push_back(residual);
        squares += residual * residual;
    }
    const double deviation = std::sqrt(squares / static_cast<double>(points.size() - terms.count()));
    fit.surface.center = parameters->at(0);
    fit.surface.right = parameters->at(1);
    fit.surface.down = terms.isLine ? 0 : parameters->at(2);
    fit.surface.curvature = terms.isCurved ? parameters->back() : 0;
    fit.surface.tiltDeviation = deviation * std::sqrt(variances->at(1));
    fit.surface.residual = deviation;
    fit.curvatureDeviation = deviation * std::sqrt(variances->back());
    return fit;
}

Points withoutOutliers(const Points &points, const std::vector<double> &residuals)
{
    std::vector<double> sizes;
    for (const double residual : residuals)
        sizes.push_back(std::abs(residual));
    std::vector<double> sorted = sizes;
    std::sort(sorted.begin(), sorted.end());
    const double limit = outlierLimit * medianToDeviation * sorted[sorted.size() / 2];
    Points kept;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (sizes[i] <= limit)
            kept.push_back(points[i]);
    return kept;
}
} // namespace

double FocusSurface::tilt() const
{
    return std::hypot(right, down);
}

double FocusSurface::angle() const
{
    constexpr double degreesPerRadian = 57.29577951308232;
    const double degrees = std::atan2(down, right) * degreesPerRadian;
    return degrees < 0 ? degrees + 360 : degrees;
}

bool FocusSurface::isTilted() const
{
    return tilt() > significance * tiltDeviation;
}

std::optional<FocusSurface> fitSurface(const std::vector<SurfacePoint> &points, bool isLine)
{
    const auto all = fitTerms(points, {isLine, false});
    if (!all)
        return {};
    const Points good = withoutOutliers(points, all->residuals);
    const auto curved = fitTerms(good, {isLine, true});
    if (curved && std::abs(curved->surface.curvature) > significance * curved->curvatureDeviation)
        return curved->surface;
    const auto plane = fitTerms(good, {isLine, false});
    return plane ? plane->surface : all->surface;
}
