#include "tools/kit/measure/linescan/EllipseFit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double fullTurn = 2 * 3.14159265358979323846;
constexpr std::size_t unknowns = 5;
constexpr std::size_t minPoints = 12;
constexpr int fitPasses = 5;
constexpr std::size_t directions = 36;

using Coefficients = std::array<double, unknowns>;

/// Moves and scales points to about -1 to 1, where the equations are well-conditioned.
struct FitFrame
{
    double x = 0;
    double y = 0;
    double width = 1;
    double height = 1;

    explicit FitFrame(const std::vector<FitPoint> &points)
    {
        const auto byX = [](const FitPoint &a, const FitPoint &b) { return a.x < b.x; };
        const auto byY = [](const FitPoint &a, const FitPoint &b) { return a.y < b.y; };
        const auto [left, right] = std::minmax_element(points.begin(), points.end(), byX);
        const auto [top, bottom] = std::minmax_element(points.begin(), points.end(), byY);
        x = (left->x + right->x) / 2;
        y = (top->y + bottom->y) / 2;
        width = std::max((right->x - left->x) / 2, 1e-9);
        height = std::max((bottom->y - top->y) / 2, 1e-9);
    }

    FitPoint inside(const FitPoint &point) const { return {(point.x - x) / width, (point.y - y) / height}; }
};

/// Solves symmetric equations by Gaussian elimination with pivoting.
std::optional<Coefficients> solved(std::array<std::array<double, unknowns + 1>, unknowns> rows)
{
    for (std::size_t column = 0; column < unknowns; ++column) {
        const auto pivot = std::max_element(rows.begin() + static_cast<std::ptrdiff_t>(column), rows.end(),
            [column](const auto &a, const auto &b) { return std::abs(a[column]) < std::abs(b[column]); });
        if (std::abs((*pivot)[column]) < 1e-12)
            return std::nullopt;
        std::swap(*pivot, rows[column]);
        for (std::size_t row = 0; row < unknowns; ++row) {
            if (row == column)
                continue;
            const double factor = rows[row][column] / rows[column][column];
            for (std::size_t i = column; i <= unknowns; ++i)
                rows[row][i] -= factor * rows[column][i];
        }
    }
    Coefficients result{};
    for (std::size_t i = 0; i < unknowns; ++i)
        result[i] = rows[i][unknowns] / rows[i][i];
    return result;
}

std::optional<Coefficients> fitConic(const std::vector<FitPoint> &points, const FitFrame &frame)
{
    std::array<std::array<double, unknowns + 1>, unknowns> rows{};
    for (const FitPoint &point : points) {
        const auto [x, y] = frame.inside(point);
        const std::array<double, unknowns + 1> terms{x * x, x * y, y * y, x, y, 1};
        for (std::size_t row = 0; row < unknowns; ++row)
            for (std::size_t column = 0; column <= unknowns; ++column)
                rows[row][column] += terms[row] * terms[column];
    }
    return solved(rows);
}

/// Converts the conic to an ellipse in the coordinates of the points.
std::optional<Ellipse> ellipseOf(const Coefficients &conic, const FitFrame &frame)
{
    const auto [a, b, c, d, e] = conic;
    const double determinant = 4 * a * c - b * b;
    if (determinant <= 0)
        return std::nullopt;
    const double x = (b * e - 2 * c * d) / determinant;
    const double y = (b * d - 2 * a * e) / determinant;
    const double level = 1 + a * x * x + b * x * y + c * y * y;
    // About its centre, the ellipse is a x² + b xy + c y² = level; the inverse of the matrix has the squares
    // of half the width and half the height.
    const double squareX = 4 * c * level / determinant;
    const double squareY = 4 * a * level / determinant;
    if (squareX <= 0 || squareY <= 0)
        return std::nullopt;
    Ellipse ellipse;
    ellipse.centerX = frame.x + frame.width * x;
    ellipse.centerY = frame.y + frame.height * y;
    ellipse.halfWidth = frame.width * std::sqrt(squareX);
    ellipse.halfHeight = frame.height * std::sqrt(squareY);
    ellipse.correlation = -2 * b * level / determinant / std::sqrt(squareX * squareY);
    return ellipse;
}

/// Returns the distance of a point from the border along the line to the centre.
double radialDistance(const Ellipse &ellipse, const FitPoint &point)
{
    const double relative = ellipse.relativeDistance(point);
    const double distance = std::hypot(point.x - ellipse.centerX, point.y - ellipse.centerY);
    return relative > 0 ? std::abs(distance - distance / relative) : ellipse.halfWidth;
}

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::vector<FitPoint> withoutOutliers(const std::vector<FitPoint> &points, const Ellipse &ellipse)
{
    std::vector<double> distances;
    for (const FitPoint &point : points)
        distances.push_back(radialDistance(ellipse, point));
    constexpr double robustFactor = 1.4826; // Ratio of standard to median deviation if normally distributed.
    const double limit = std::max(0.5, 3 * robustFactor * medianOf(distances));
    std::vector<FitPoint> kept;
    for (std::size_t i = 0; i < points.size(); ++i)
        if (distances[i] <= limit)
            kept.push_back(points[i]);
    return kept;
}

double coveredShareOf(const std::vector<FitPoint> &points, const Ellipse &ellipse)
{
    std::array<bool, directions> isCovered{};
    for (const FitPoint &point : points) {
        const double angle = std::atan2((point.y - ellipse.centerY) / ellipse.halfHeight,
                                 (point.x - ellipse.centerX) / ellipse.halfWidth)
            + fullTurn / 2;
        isCovered[static_cast<std::size_t>(angle / fullTurn * directions) % directions] = true;
    }
    return static_cast<double>(std::count(isCovered.begin(), isCovered.end(), true)) / directions;
}

EllipseFit qualityOf(const Ellipse &ellipse, const std::vector<FitPoint> &used, std::size_t all)
{
    double sum = 0;
    for (const FitPoint &point : used)
        sum += std::pow(radialDistance(ellipse, point), 2);
    return {ellipse, std::sqrt(sum / static_cast<double>(used.size())),
        static_cast<double>(used.size()) / static_cast<double>(all), coveredShareOf(used, ellipse)};
}

} // namespace

double Ellipse::relativeDistance(const FitPoint &point) const
{
    const double x = (point.x - centerX) / halfWidth;
    const double y = (point.y - centerY) / halfHeight;
    const double square = (x * x - 2 * correlation * x * y + y * y) / (1 - correlation * correlation);
    return std::sqrt(std::max(square, 0.0));
}

std::vector<FitPoint> Ellipse::outline(int count) const
{
    std::vector<FitPoint> points;
    const double rest = std::sqrt(1 - correlation * correlation);
    for (int i = 0; i < count; ++i) {
        const double angle = fullTurn * i / count;
        const double x = std::cos(angle);
        points.push_back(
            {centerX + halfWidth * x, centerY + halfHeight * (correlation * x + rest * std::sin(angle))});
    }
    return points;
}

std::optional<EllipseFit> fitEllipse(const std::vector<FitPoint> &points)
{
    std::vector<FitPoint> used = points;
    std::optional<Ellipse> ellipse;
    for (int pass = 0; pass < fitPasses; ++pass) {
        if (used.size() < minPoints)
            return std::nullopt;
        const FitFrame frame(used);
        const std::optional<Coefficients> conic = fitConic(used, frame);
        ellipse = conic ? ellipseOf(*conic, frame) : std::nullopt;
        if (!ellipse || std::abs(ellipse->correlation) >= 1)
            return std::nullopt;
        std::vector<FitPoint> kept = withoutOutliers(points, *ellipse);
        const bool isDone = kept.size() == used.size();
        used = std::move(kept);
        if (isDone || used.size() < minPoints)
            break;
    }
    if (used.size() < minPoints)
        return std::nullopt;
    return qualityOf(*ellipse, used, points.size());
}
