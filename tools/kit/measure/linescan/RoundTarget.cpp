#include "tools/kit/measure/linescan/RoundTarget.h"

#include "tools/kit/measure/linescan/GreyPicture.h"
#include "tools/kit/measure/linescan/PictureParts.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double degreesPerRadian = 180 / 3.14159265358979323846;
constexpr float minContrast = 0.1F; // Difference of dark and bright, as a share of bright.
constexpr float minRange = 0.03F; // The same as a share of the full scale; noise in the dark is smaller.
constexpr std::size_t maxParts = 200; // Only the largest parts are tried if a picture is full of texture.

// Where the picture is separated, from dark to bright: in the middle, and nearer to bright, because a thin
// dark ring that is not sharp does not become quite dark.
constexpr float thresholdShares[] = {0.5F, 0.72F};

// A part is round if its border follows the ellipse.
constexpr double minUsedShare = 0.7;
constexpr double minCoveredShare = 0.9;
constexpr double maxResidualShare = 0.005; // Share of the mean radius; a square has 0.08.
constexpr double maxResidual = 0.5; // Pixels; a border is never more precise than the pixels allow.
constexpr double unevenFactor = 6; // A border with a residual that is larger by less is uneven.

/// The outermost pixels of a part in each line and in each column.
struct PartOutline
{
    std::vector<int> left;
    std::vector<int> right;
    std::vector<int> top;
    std::vector<int> bottom;

    explicit PartOutline(const PicturePart &part)
        : left(static_cast<std::size_t>(part.height()), part.right),
          right(static_cast<std::size_t>(part.height()), part.left),
          top(static_cast<std::size_t>(part.width()), part.bottom),
          bottom(static_cast<std::size_t>(part.width()), part.top)
    {
        for (const PixelRun &run : part.runs) {
            const auto line = static_cast<std::size_t>(run.y - part.top);
            left[line] = std::min(left[line], run.first);
            right[line] = std::max(right[line], run.last);
            for (int x = run.first; x <= run.last; ++x) {
                const auto column = static_cast<std::size_t>(x - part.left);
                top[column] = std::min(top[column], run.y);
                bottom[column] = std::max(bottom[column], run.y);
            }
        }
    }
};

/// Returns where the brightness crosses the threshold, 0 to 1 from the inner to the outer pixel.
double crossing(float inner, float outer, float threshold)
{
    return inner == outer ? 0.5
                          : std::clamp(static_cast<double>((threshold - inner) / (outer - inner)), 0.0, 1.0);
}

/// The points of the border. Where the border is more vertical than horizontal, lines cut it more precisely
/// than columns do, and the other way round.
std::vector<FitPoint> borderPoints(const GreyPicture &picture, const PicturePart &part, float threshold)
{
    const PartOutline outline(part);
    const double centerX = (part.left + part.right + 1) / 2.0;
    const double centerY = (part.top + part.bottom + 1) / 2.0;
    const double width = part.width();
    const double height = part.height();
    std::vector<FitPoint> points;
    const auto add = [&](int x, int y, int stepX, int stepY) {
        const double share = crossing(picture.at(x, y), picture.at(x + stepX, y + stepY), threshold);
        const FitPoint point{x + 0.5 + stepX * share, y + 0.5 + stepY * share};
        const double across = std::abs(point.x - centerX) / width;
        const double along = std::abs(point.y - centerY) / height;
        if ((across >= along) == (stepX != 0))
            points.push_back(point);
    };
    for (int y = part.top; y <= part.bottom; ++y) {
        const auto line = static_cast<std::size_t>(y - part.top);
        add(outline.left[line], y, -1, 0);
        add(outline.right[line], y, 1, 0);
    }
    for (int x = part.left; x <= part.right; ++x) {
        const auto column = static_cast<std::size_t>(x - part.left);
        add(x, outline.top[column], 0, -1);
        add(x, outline.bottom[column], 0, 1);
    }
    return points;
}

enum class Shape
{
    Other,
    Uneven, ///< Nearly round, as a circle that did not move evenly.
    Round
};

Shape shapeOf(const EllipseFit &fit)
{
    if (fit.usedShare < minUsedShare || fit.coveredShare < minCoveredShare)
        return Shape::Other;
    const double radius = (fit.ellipse.halfWidth + fit.ellipse.halfHeight) / 2;
    const double limit = std::max(maxResidual, maxResidualShare * radius);
    if (fit.residual <= limit)
        return Shape::Round;
    return fit.residual <= unevenFactor * limit ? Shape::Uneven : Shape::Other;
}

Ellipse scaled(Ellipse ellipse, int scale, std::uint32_t left)
{
    ellipse.centerX = ellipse.centerX * scale + left;
    ellipse.centerY *= scale;
    ellipse.halfWidth *= scale;
    ellipse.halfHeight *= scale;
    return ellipse;
}

Region searchedRegion(const RawImage &picture, const TargetColumns &columns)
{
    if (columns.count == 0)
        return {0, 0, picture.width, picture.height};
    const std::uint32_t first
        = std::min(columns.first, picture.width) & ~1U; // Whole cells of Bayer patterns.
    return {first, 0, std::min(columns.count, picture.width - first), picture.height};
}

bool containsColumn(const RoundTarget &target, const std::optional<double> &column)
{
    return !column || std::abs(*column - target.ellipse.centerX) <= target.ellipse.halfWidth;
}

/// A target has to be larger by this factor to be another one.
constexpr double otherSize = 1.05;

bool isLarger(const RoundTarget &target, const std::optional<RoundTarget> &other)
{
    return !other || target.ellipse.halfWidth > otherSize * other->ellipse.halfWidth;
}

/// Returns the largest target at one level; the sentence is empty if there is not even an uneven one.
TargetSearch findAt(const GreyPicture &grey, float level, std::uint32_t left, const TargetColumns &columns)
{
    TargetSearch search;
    std::vector<PicturePart> parts = pictureParts(grey, level, RoundTargetFinder::minSize);
    parts.resize(std::min(parts.size(), maxParts));
    for (const PicturePart &part : parts) {
        if (part.touchesBorderOf(grey))
            continue;
        const std::optional<EllipseFit> fit = fitEllipse(borderPoints(grey, part, level));
        const Shape shape = fit ? shapeOf(*fit) : Shape::Other;
        if (shape == Shape::Uneven)
            search.problem = {QT_TRANSLATE_NOOP("Sentence",
                "The border of the round target is uneven. Check whether the object moves evenly, whether "
                "lines are lost, and whether the target is sharp and free of other shapes.")};
        if (shape != Shape::Round)
            continue;
        const RoundTarget target{
            scaled(fit->ellipse, grey.scale, left), fit->residual * grey.scale, part.isBright};
        if (containsColumn(target, columns.inside))
            return {target, {}};
    }
    return search;
}

} // namespace

double RoundTarget::turnDegrees() const
{
    return 0 - std::asin(std::clamp(ellipse.correlation, -1.0, 1.0)) * degreesPerRadian;
}

TargetSearch RoundTargetFinder::find(const RawImage &picture, const TargetColumns &columns)
{
    const Region region = searchedRegion(picture, columns);
    const Sentence noTarget{
        QT_TRANSLATE_NOOP("Sentence",
            "There is no complete round target in the picture of %1 lines. Show the camera "
            "a dark or bright disc or ring, or make the picture higher (Height)."),
        {SentenceNumber{static_cast<double>(picture.height)}}};
    if (region.width < minSize || region.height < minSize)
        return {std::nullopt, noTarget};
    const GreyPicture grey = greyPicture(m_converter, picture, region);
    const Threshold threshold = otsuThreshold(grey.values);
    const float difference = threshold.brightMean - threshold.darkMean;
    if (difference < minContrast * threshold.brightMean || difference < minRange * grey.fullScale)
        return {std::nullopt,
            {QT_TRANSLATE_NOOP("Sentence",
                "The picture has too little contrast. Take off the lens cap, add light, and show the camera "
                "a dark or bright disc or ring.")}};
    TargetSearch best{std::nullopt, noTarget};
    for (const float share : thresholdShares) {
        const float level = threshold.darkMean + share * (threshold.brightMean - threshold.darkMean);
        TargetSearch search = findAt(grey, level, region.x, columns);
        if (search.target && isLarger(*search.target, best.target))
            best = search;
        else if (!best.target && !search.problem.isEmpty())
            best.problem = search.problem;
    }
    return best;
}
