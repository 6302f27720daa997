#include "tools/kit/measure/taps/TapMeasurement.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>

namespace {

using Matrix = std::vector<std::vector<double>>;

/// Solves the symmetric equations by Gauss elimination with pivots. Unknowns that nothing determines are 0.
std::vector<double> solved(Matrix equations)
{
    const std::size_t count = equations.size();
    for (std::size_t column = 0; column < count; ++column) {
        const auto pivot
            = std::max_element(equations.begin() + static_cast<std::ptrdiff_t>(column), equations.end(),
                [column](const auto &a, const auto &b) { return std::abs(a[column]) < std::abs(b[column]); });
        std::swap(*pivot, equations[column]);
        if (std::abs(equations[column][column]) < 1e-12)
            continue;
        for (std::size_t row = 0; row < count; ++row) {
            const double factor = row == column ? 0 : equations[row][column] / equations[column][column];
            for (std::size_t i = column; factor != 0 && i <= count; ++i)
                equations[row][i] -= factor * equations[column][i];
        }
    }
    std::vector<double> result(count, 0);
    for (std::size_t i = 0; i < count; ++i) {
        if (std::abs(equations[i][i]) >= 1e-12)
            result[i] = equations[i][count] / equations[i][i];
    }
    return result;
}

/// Returns the levels of all taps above that of tap 0.
std::vector<double> levels(std::size_t taps, const std::vector<TapStep> &steps, bool isDark)
{
    Matrix equations(taps, std::vector<double>(taps + 1, 0));
    equations[0][0] = 1; // The level of tap 0 is 0.
    double largestWeight = 0;
    const auto weightOf = [isDark](const TapStep &step) {
        const double error = isDark ? step.differenceError : step.ratioError;
        const double least = isDark ? 0.001 : 1e-5; // Blocks may agree by chance.
        return std::isfinite(error) ? 1 / (error * error + least * least) : 0;
    };
    for (const TapStep &step : steps)
        largestWeight = std::max(largestWeight, weightOf(step));
    for (const TapStep &step : steps) {
        const double weight = largestWeight > 0 ? weightOf(step) / largestWeight : 0;
        const double value = isDark ? step.difference : step.ratio;
        for (const auto &[row, sign] : {std::pair(step.first, -1.0), std::pair(step.second, 1.0)}) {
            if (row == 0)
                continue;
            equations[row][step.first] -= sign * weight;
            equations[row][step.second] += sign * weight;
            equations[row][taps] += sign * weight * value;
        }
    }
    return solved(std::move(equations));
}

TapMeasurement measure(const TapPicture &picture, double darkLevel, TapReference reference, bool isDark)
{
    TapMeasurement result;
    result.isDark = isDark;
    result.reference = reference;
    result.darkLevel = isDark ? 0 : darkLevel;
    result.maxValue = picture.maxValue;
    result.steps = measureSteps(picture, result.darkLevel);
    std::vector<double> level = levels(picture.taps.size(), result.steps, isDark);
    if (!isDark) {
        for (double &value : level)
            value = std::exp(value);
    }
    double base = level.front();
    if (reference == TapReference::Mean) {
        base = 0;
        for (const double value : level)
            base += value / static_cast<double>(level.size());
    }
    for (std::size_t i = 0; i < level.size(); ++i) {
        const double deviation = isDark ? level[i] - base : level[i] / base - 1;
        result.taps.push_back({picture.taps[i].mean, picture.taps[i].noise, deviation});
        result.mismatch = std::max(result.mismatch, std::abs(deviation));
    }
    return result;
}

constexpr double maxClipped = 0.002;
constexpr double maxMoved = 0.02;
constexpr double percent = 100;

Sentence checkMovement(const TapPicture &picture)
{
    if (picture.moved <= maxMoved)
        return {};
    return {
        QT_TRANSLATE_NOOP("Sentence",
            "The scene moves: %1 % of the picture has changed during the measurement. Show an even surface "
            "that rests, then measure again."),
        {SentenceNumber{percent * picture.moved, 0}}};
}

const char *kindText(TapStep::Kind kind)
{
    static constexpr const char *texts[] = {"columns", "lines", "interleaved"};
    return texts[static_cast<std::size_t>(kind)];
}

} // namespace

double TapMeasurement::stepOf(const TapStep &step) const
{
    return isDark ? step.difference : std::expm1(step.ratio);
}

double TapMeasurement::errorOf(const TapStep &step) const
{
    return isDark ? step.differenceError : step.ratioError;
}

double TapMeasurement::largestStep() const
{
    double largest = 0;
    for (const TapStep &step : steps)
        largest = std::max(largest, std::abs(stepOf(step)));
    return largest;
}

TapMeasurement measureBright(const TapPicture &picture, double darkLevel, TapReference reference)
{
    return measure(picture, darkLevel, reference, false);
}

TapMeasurement measureDark(const TapPicture &picture, TapReference reference)
{
    return measure(picture, 0, reference, true);
}

double meanLevel(const TapPicture &picture)
{
    double sum = 0;
    for (const TapPicture::Tap &tap : picture.taps)
        sum += tap.mean / static_cast<double>(picture.taps.size());
    return sum;
}

Sentence checkBright(const TapPicture &picture, double darkLevel)
{
    for (const TapPicture::Tap &tap : picture.taps) {
        if (tap.clipped > maxClipped)
            return {QT_TRANSLATE_NOOP("Sentence",
                        "The picture is overexposed: %1 % of a tap's pixels have the largest value. Shorten "
                        "the exposure time or close the lens aperture, then measure again."),
                {SentenceNumber{percent * tap.clipped, 1}}};
    }
    constexpr double minSignal = 0.05;
    const double signal = (meanLevel(picture) - darkLevel) / picture.maxValue;
    if (signal < minSignal)
        return {
            QT_TRANSLATE_NOOP("Sentence",
                "The picture is too dark: it reaches %1 % of the range. Remove the lens cap, add light or "
                "lengthen the exposure time, then measure again."),
            {SentenceNumber{percent * std::max(signal, 0.0), 1}}};
    return checkMovement(picture);
}

Sentence checkDark(const TapPicture &picture)
{
    constexpr double maxLevel = 0.2;
    const double level = meanLevel(picture) / picture.maxValue;
    if (level > maxLevel)
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The picture is not dark: its mean is %1 % of the range. Cover the lens, then measure "
                    "again."),
            {SentenceNumber{percent * level, 0}}};
    constexpr double maxBlack = 0.1;
    for (const TapPicture::Tap &tap : picture.taps) {
        if (tap.black > maxBlack)
            return {QT_TRANSLATE_NOOP("Sentence",
                        "The dark picture is cut off: %1 % of a tap's pixels are 0. Raise the black level, "
                        "then measure again."),
                {SentenceNumber{percent * tap.black, 0}}};
    }
    return checkMovement(picture);
}

namespace {

/// Returns a tap that no border in the picture relates to the first tap.
std::optional<std::size_t> tapWithoutBorder(const TapMeasurement &measurement)
{
    std::vector<bool> isKnown(measurement.taps.size(), false);
    isKnown.front() = true;
    for (std::size_t round = 0; round < isKnown.size(); ++round) {
        for (const TapStep &step : measurement.steps) {
            if (isKnown[step.first] || isKnown[step.second])
                isKnown[step.first] = isKnown[step.second] = true;
        }
    }
    const auto unknown = std::find(isKnown.begin(), isKnown.end(), false);
    return unknown == isKnown.end() ? std::nullopt
                                    : std::optional(static_cast<std::size_t>(unknown - isKnown.begin()));
}

} // namespace

Sentence checkCertainty(const TapMeasurement &measurement)
{
    if (const std::optional<std::size_t> tap = tapWithoutBorder(measurement))
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The picture shows no border between tap %1 and the other taps. Set the region to the "
                    "whole sensor, or choose another layout, then measure again."),
            {SentenceNumber{static_cast<double>(*tap) + 1, 0}}};
    constexpr double maxError = 0.002; // Relative.
    for (const TapStep &step : measurement.steps) {
        if (measurement.isDark || measurement.errorOf(step) <= maxError)
            continue;
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The step between tap %1 and tap %2 cannot be told from the scene. Show an even surface, "
                    "or take more images, then measure again."),
            {SentenceNumber{step.first + 1.0, 0}, SentenceNumber{step.second + 1.0, 0}}};
    }
    return {};
}

nlohmann::ordered_json toJson(const TapMeasurement &measurement)
{
    auto taps = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < measurement.taps.size(); ++i) {
        const TapMeasurement::Tap &tap = measurement.taps[i];
        taps.push_back(
            {{"tap", i + 1}, {"mean", tap.mean}, {"noise", tap.noise}, {"deviation", tap.deviation}});
    }
    auto steps = nlohmann::ordered_json::array();
    for (const TapStep &step : measurement.steps)
        steps.push_back({{"first", step.first + 1}, {"second", step.second + 1},
            {"border", kindText(step.kind)}, {"position", step.position}, {"step", measurement.stepOf(step)},
            {"standardError", measurement.errorOf(step)}});
    return {{"picture", measurement.isDark ? "dark" : "bright"},
        {"unit", measurement.isDark ? "pixel value" : "share of the signal"},
        {"reference", measurement.reference == TapReference::Mean ? "mean" : "tap 1"},
        {"darkLevel", measurement.darkLevel}, {"maxValue", measurement.maxValue},
        {"mismatch", measurement.mismatch}, {"largestStep", measurement.largestStep()},
        {"taps", std::move(taps)}, {"steps", std::move(steps)}};
}
