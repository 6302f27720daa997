#include "tools/kit/measure/thermal/ExponentialFit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

/// Offset and amplitude for one scale, and the weighted sum of the squared residuals.
struct LinearFit
{
    double offset = 0;
    double amplitude = 0;
    double squares = std::numeric_limits<double>::max();
};

/// The points with x from 0 and the mean weight 1.
struct NormalisedPoints
{
    double origin = 0;
    std::vector<CurvePoint> points;
};

NormalisedPoints normalised(const std::vector<CurvePoint> &points)
{
    NormalisedPoints result{std::numeric_limits<double>::max(), points};
    double weight = 0;
    for (const CurvePoint &point : points) {
        result.origin = std::min(result.origin, point.x);
        weight += point.weight / static_cast<double>(points.size());
    }
    for (CurvePoint &point : result.points) {
        point.x -= result.origin;
        point.weight /= weight;
    }
    return result;
}

LinearFit fitLinear(const std::vector<CurvePoint> &points, double scale)
{
    double sumE = 0;
    double sumY = 0;
    for (const CurvePoint &point : points) {
        sumE += point.weight * std::exp(-point.x / scale);
        sumY += point.weight * point.y;
    }
    const double count = static_cast<double>(points.size()); // The sum of the weights.
    const double meanE = sumE / count;
    const double meanY = sumY / count;
    double ee = 0;
    double ey = 0;
    double yy = 0;
    for (const CurvePoint &point : points) {
        const double e = std::exp(-point.x / scale) - meanE;
        const double y = point.y - meanY;
        ee += point.weight * e * e;
        ey += point.weight * e * y;
        yy += point.weight * y * y;
    }
    if (ee <= 0)
        return {};
    const double amplitude = ey / ee;
    return {meanY - amplitude * meanE, amplitude, std::max(0.0, yy - amplitude * ey)};
}

/// Returns the logarithm of the best scale.
double bestLogScale(const std::vector<CurvePoint> &points, double minimum, double maximum)
{
    constexpr int gridSteps = 24;
    constexpr int goldenSteps = 30;
    const double goldenShare = (std::sqrt(5.0) - 1) / 2;
    const auto squares = [&points](double logScale) { return fitLinear(points, std::exp(logScale)).squares; };
    const double step = (maximum - minimum) / gridSteps;
    double best = minimum;
    double least = squares(minimum);
    for (int index = 1; index <= gridSteps; ++index) {
        const double value = squares(minimum + step * index);
        if (value < least) {
            least = value;
            best = minimum + step * index;
        }
    }
    double low = std::max(minimum, best - step);
    double high = std::min(maximum, best + step);
    double left = high - goldenShare * (high - low);
    double right = low + goldenShare * (high - low);
    double leftSquares = squares(left);
    double rightSquares = squares(right);
    for (int index = 0; index < goldenSteps; ++index) {
        if (leftSquares < rightSquares) {
            high = right;
            right = left;
            rightSquares = leftSquares;
            left = high - goldenShare * (high - low);
            leftSquares = squares(left);
        } else {
            low = left;
            left = right;
            leftSquares = rightSquares;
            right = low + goldenShare * (high - low);
            rightSquares = squares(right);
        }
    }
    return (low + high) / 2;
}

/// Returns the correlation of neighbouring residuals, from 0 to almost 1.
double neighbourCorrelation(const std::vector<double> &residuals)
{
    constexpr double limit = 0.98;
    double products = 0;
    double squares = 0;
    for (std::size_t index = 0; index < residuals.size(); ++index) {
        squares += residuals[index] * residuals[index];
        if (index > 0)
            products += residuals[index] * residuals[index - 1];
    }
    return squares > 0 ? std::clamp(products / squares, 0.0, limit) : 0;
}

/// Fills in the uncertainties: the diagonal of the inverse normal matrix of offset, amplitude and log scale.
void addErrors(const std::vector<CurvePoint> &points, ExponentialFit &fit)
{
    std::array<double, 6> n{}; // The upper triangle of the normal matrix, line by line.
    std::vector<double> residuals;
    double squares = 0;
    for (const CurvePoint &point : points) {
        const double e = std::exp(-point.x / fit.scale);
        const double slope = fit.amplitude * e * point.x / fit.scale;
        const std::array<double, 6> products{1, e, slope, e * e, e * slope, slope * slope};
        for (std::size_t index = 0; index < products.size(); ++index)
            n[index] += point.weight * products[index];
        residuals.push_back(std::sqrt(point.weight) * (point.y - fit.offset - fit.amplitude * e));
        squares += residuals.back() * residuals.back();
    }
    constexpr double parameters = 3;
    const double correlation = neighbourCorrelation(residuals);
    const double variance = squares / (static_cast<double>(points.size()) - parameters);
    const double inflated = variance * (1 + correlation) / (1 - correlation);
    const double determinant = n[0] * (n[3] * n[5] - n[4] * n[4]) - n[1] * (n[1] * n[5] - n[4] * n[2])
        + n[2] * (n[1] * n[4] - n[3] * n[2]);
    const double infinite = std::numeric_limits<double>::infinity();
    fit.residual = std::sqrt(variance);
    fit.offsetError
        = determinant > 0 ? std::sqrt(inflated * (n[3] * n[5] - n[4] * n[4]) / determinant) : infinite;
    fit.scaleError
        = determinant > 0 ? std::sqrt(inflated * (n[0] * n[3] - n[1] * n[1]) / determinant) : infinite;
}

bool isConstant(const std::vector<CurvePoint> &points)
{
    const CurvePoint &first = points.front();
    const auto isSame = [&first](double CurvePoint::*member) {
        return [&first, member](const CurvePoint &point) { return point.*member == first.*member; };
    };
    return std::all_of(points.begin(), points.end(), isSame(&CurvePoint::x))
        || std::all_of(points.begin(), points.end(), isSame(&CurvePoint::y));
}

} // namespace

double ExponentialFit::at(double x) const
{
    return offset + amplitude * std::exp(-(x - origin) / scale);
}

std::optional<ExponentialFit> fitExponential(
    const std::vector<CurvePoint> &points, double minScale, double maxScale)
{
    constexpr std::size_t fewestPoints = 6;
    if (points.size() < fewestPoints || isConstant(points))
        return std::nullopt;
    const NormalisedPoints data = normalised(points);
    const double minimum = std::log(minScale);
    const double maximum = std::log(maxScale);
    const double logScale = bestLogScale(data.points, minimum, maximum);
    const LinearFit linear = fitLinear(data.points, std::exp(logScale));
    ExponentialFit fit;
    fit.offset = linear.offset;
    fit.amplitude = linear.amplitude;
    fit.scale = std::exp(logScale);
    fit.origin = data.origin;
    constexpr double edge = 0.01; // Smallest distance of the logarithm from its limits.
    fit.isScaleInside = logScale > minimum + edge && logScale < maximum - edge;
    addErrors(data.points, fit);
    return fit;
}
