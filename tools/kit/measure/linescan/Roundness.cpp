#include "tools/kit/measure/linescan/Roundness.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

constexpr double equalWidths = 0.05;
constexpr double hertzPerKilohertz = 1e3;

double medianWidth(std::vector<RoundTarget> targets)
{
    const auto middle = targets.begin() + static_cast<std::ptrdiff_t>(targets.size() / 2);
    std::nth_element(targets.begin(), middle, targets.end(),
        [](const RoundTarget &a, const RoundTarget &b) { return a.ellipse.halfWidth < b.ellipse.halfWidth; });
    return middle->ellipse.halfWidth;
}

template <typename Value>
double meanOf(const std::vector<RoundTarget> &targets, const Value &value)
{
    double sum = 0;
    for (const RoundTarget &target : targets)
        sum += value(target);
    return sum / static_cast<double>(targets.size());
}

} // namespace

Roundness roundnessOf(const std::vector<RoundTarget> &targets, std::size_t images)
{
    Roundness roundness;
    roundness.images = images;
    const double width = medianWidth(targets);
    std::copy_if(targets.begin(), targets.end(), std::back_inserter(roundness.targets),
        [width](const RoundTarget &target) {
            return std::abs(target.ellipse.halfWidth - width) <= equalWidths * width;
        });
    roundness.heightToWidth
        = meanOf(roundness.targets, [](const RoundTarget &target) { return target.heightToWidth(); });
    roundness.turnDegrees
        = meanOf(roundness.targets, [](const RoundTarget &target) { return target.turnDegrees(); });
    roundness.deviation = std::sqrt(meanOf(roundness.targets, [&roundness](const RoundTarget &target) {
        return std::pow(target.heightToWidth() - roundness.heightToWidth, 2);
    }));
    return roundness;
}

std::chrono::milliseconds pictureLimit(const LineScanCamera &camera)
{
    using Seconds = std::chrono::duration<double>;
    constexpr std::chrono::milliseconds unknownLimit = std::chrono::minutes(1);
    constexpr Seconds longest{3600};
    const LineFeatureState *const trigger = camera.find(LineFeature::TriggerMode);
    const LineFeatureState *const rate = camera.find(LineFeature::LineRate);
    const bool isTriggered = trigger && trigger->text() == "On";
    if (isTriggered || !camera.linesPerPicture || !rate || rate->number() <= 0)
        return unknownLimit;
    const Seconds lines{2 * *camera.linesPerPicture / rate->number()};
    return usualImageLimit
        + std::chrono::duration_cast<std::chrono::milliseconds>(std::min<Seconds>(lines, longest));
}

Sentence measureRoundness(const MeasureContext &context, const LineScanCamera &camera,
    const RoundnessOptions &options, Roundness &roundness)
{
    RoundTargetFinder finder;
    std::vector<RoundTarget> targets;
    std::size_t images = 0;
    Sentence problem;
    const MeasureProgress progress = [&](std::size_t, std::size_t) {
        return context.progress(targets.size(), options.targets); // Targets are what a person waits for.
    };
    const Sentence enough = untranslated("There are enough targets."); // Ends the loop; is not shown.
    const auto take = [&](const Image &image) -> Sentence {
        ++images;
        const TargetSearch search = finder.find(rawImage(image), options.columns);
        problem = search.problem;
        if (search.target)
            targets.push_back(*search.target);
        return targets.size() < options.targets ? Sentence() : enough;
    };
    const Sentence ended = takeImages(
        {context.device, context.frames, progress}, options.maxImages, pictureLimit(camera), take);
    if (!ended.isEmpty() && targets.size() < options.targets)
        return ended;
    if (targets.empty())
        return problem;
    roundness = roundnessOf(targets, images);
    return {};
}

Sentence roundnessSentence(const Roundness &roundness, const LineScanCamera &camera)
{
    const double error = roundness.errorPercent();
    if (std::abs(error) < roundEnoughPercent)
        return {QT_TRANSLATE_NOOP("Sentence", "The circle is round: height and width differ by %1 %."),
            {SentenceNumber{std::abs(error), 2}}};
    const SentenceNumber percent{std::abs(error), 1};
    if (camera.usesEncoder()) {
        const double lines = camera.presentRatio().linesPerPulse();
        return {error > 0
                ? QT_TRANSLATE_NOOP("Sentence",
                    "The circle is %1 % too tall: lower the lines per encoder pulse from %2 to %3.")
                : QT_TRANSLATE_NOOP("Sentence",
                    "The circle is %1 % too flat: raise the lines per encoder pulse from %2 to %3."),
            {percent, SentenceNumber{lines, 4}, SentenceNumber{lines * roundness.rateFactor(), 4}}};
    }
    const LineFeatureState *const rate = camera.find(LineFeature::LineRate);
    const double kilohertz = rate ? rate->number() / hertzPerKilohertz : 0;
    return {error > 0 ? QT_TRANSLATE_NOOP(
                "Sentence", "The circle is %1 % too tall: lower the line rate from %2 kHz to %3 kHz.")
                      : QT_TRANSLATE_NOOP("Sentence",
                          "The circle is %1 % too flat: raise the line rate from %2 kHz to %3 kHz."),
        {percent, SentenceNumber{kilohertz, 3}, SentenceNumber{kilohertz * roundness.rateFactor(), 3}}};
}

std::optional<LineScanInputs> correctedInputs(
    const LineScanInputs &inputs, const LineScanCamera &camera, const Roundness &roundness)
{
    const std::optional<double> objectPixel = objectPixelOf(inputs, camera.binning);
    if (!objectPixel || roundness.heightToWidth <= 0)
        return std::nullopt;
    const double millimetres = *objectPixel / 1e3;
    LineScanInputs corrected = inputs;
    if (camera.usesEncoder()) {
        corrected.trigger = LineScanInputs::Trigger::Encoder;
        const double step = camera.presentRatio().linesPerPulse() * roundness.rateFactor() * millimetres;
        if (corrected.encoderStep <= 0 && corrected.pulsesPerRevolution > 0)
            corrected.rollerDiameter *= step / encoderStepOf(inputs).value_or(step);
        else
            corrected.encoderStep = step;
        return corrected;
    }
    const LineFeatureState *const rate = camera.find(LineFeature::LineRate);
    if (!rate)
        return std::nullopt;
    corrected.trigger = LineScanInputs::Trigger::LineRate;
    corrected.speed = rate->number() * roundness.rateFactor() * millimetres;
    return corrected;
}
