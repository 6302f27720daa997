#include "tools/kit/measure/linescan/PlanBuilder.h"

#include <algorithm>
#include <cmath>

using namespace CvxCPP;

namespace {

constexpr double micrometresPerMillimetre = 1e3;
constexpr double largeErrorPercent = 0.5; // Half of what a round object may be off.
constexpr double equalNumbers = 1e-9;

/// Returns the number without digits that only come from the calculation, so that a rate and an exposure that
/// fit exactly are not above their limits.
double roundedDown(double value)
{
    constexpr double stepsPerUnit = 1e3;
    constexpr double calculationError = 1e-6; // Steps.
    return std::floor(value * stepsPerUnit + calculationError) / stepsPerUnit;
}

/// Returns 0 if the feature allows every value.
double incrementOf(const LineFeatureState &feature)
{
    const auto *const real = std::get_if<double>(&feature.state.increment);
    const auto *const integer = std::get_if<std::int64_t>(&feature.state.increment);
    return real ? *real : integer ? static_cast<double>(*integer) : 0;
}

/// Returns the nearest value that the feature allows.
double allowedNumber(const LineFeatureState &feature, double value)
{
    const double minimum = feature.minimum().value_or(value);
    const double increment = incrementOf(feature);
    if (increment > 0)
        value = minimum + std::round((value - minimum) / increment) * increment;
    return std::max(value, minimum);
}

/// Returns the longest exposure that the feature allows and that is not longer than the limit, or the
/// shortest one that it allows.
double allowedExposure(const LineFeatureState &feature, double limit)
{
    const double nearest = allowedNumber(feature, limit);
    if (nearest <= limit)
        return nearest;
    return std::max(nearest - incrementOf(feature), feature.minimum().value_or(0));
}

NodeValue asValueOf(const LineFeatureState &feature, double number)
{
    if (std::holds_alternative<std::int64_t>(feature.state.value))
        return static_cast<std::int64_t>(std::llround(number));
    return number;
}

bool isEqual(const NodeValue &left, const NodeValue &right)
{
    const auto *const a = std::get_if<double>(&left);
    const auto *const b = std::get_if<double>(&right);
    return a && b ? std::abs(*a - *b) <= equalNumbers * std::abs(*a) : left == right;
}

} // namespace

PlanBuilder::PlanBuilder(const LineScanInputs &inputs, const LineScanCamera &camera)
    : m_inputs(inputs), m_camera(camera), m_limits(camera.facts)
{ }

LineRatePlan PlanBuilder::build()
{
    m_plan = {};
    m_plan.problem = unsuitableCamera(m_camera);
    if (m_plan.problem.isEmpty())
        m_plan.problem = problemOf(m_inputs);
    if (!m_plan.problem.isEmpty() || !calculate())
        return m_plan;
    checkLimits();
    // A shorter exposure makes room for a higher rate; a lower rate makes room for a longer exposure.
    const bool isShortened = m_plan.exposure && *m_plan.exposure < m_camera.facts.exposure;
    if (isShortened)
        planExposure();
    isEncoder() ? planEncoder() : planRate();
    if (!isShortened)
        planExposure();
    return m_plan;
}

bool PlanBuilder::calculate()
{
    m_plan.objectPixel = *objectPixelOf(m_inputs, m_camera.binning);
    if (m_inputs.speed > 0)
        m_plan.wantedRate = m_inputs.speed * micrometresPerMillimetre / m_plan.objectPixel;
    if (!(isEncoder() ? calculateRatio() : calculateRate()))
        return false;
    calculateExposure();
    return true;
}

bool PlanBuilder::calculateRate()
{
    const LineFeatureState *const feature = m_camera.find(LineFeature::LineRate);
    if (!feature) {
        m_plan.problem = {QT_TRANSLATE_NOOP("Sentence",
            "The camera has no line rate of its own (AcquisitionLineRate). Use an encoder, or an external "
            "trigger.")};
        return false;
    }
    m_plan.rate = allowedNumber(*feature, roundedDown(*m_plan.wantedRate));
    m_plan.errorPercent = (*m_plan.rate / *m_plan.wantedRate - 1) * 100;
    return true;
}

bool PlanBuilder::calculateRatio()
{
    if (!m_camera.find(LineFeature::TriggerSource) || !m_camera.find(LineFeature::TriggerMode)) {
        m_plan.problem = {QT_TRANSLATE_NOOP("Sentence",
            "The camera cannot start lines by an encoder (TriggerSelector has no LineStart). Use its line "
            "rate.")};
        return false;
    }
    m_plan.wantedRatio = *encoderStepOf(m_inputs) * micrometresPerMillimetre / m_plan.objectPixel;
    m_plan.ratio = bestEncoderRatio(*m_plan.wantedRatio, m_camera.ratioLimits());
    m_plan.errorPercent = (m_plan.ratio->linesPerPulse() / *m_plan.wantedRatio - 1) * 100;
    if (m_plan.wantedRate)
        m_plan.rate = *m_plan.wantedRate * m_plan.ratio->linesPerPulse() / *m_plan.wantedRatio;
    return true;
}

void PlanBuilder::calculateExposure()
{
    m_plan.deadTime = m_limits.deadTime();
    const LineFeatureState *const feature = m_camera.find(LineFeature::ExposureTime);
    if (!feature)
        return;
    m_plan.exposure = m_camera.facts.exposure;
    if (!m_plan.rate)
        return;
    m_plan.longestExposure = m_limits.longestExposure(*m_plan.rate);
    const bool isTooLong = m_camera.facts.exposure > *m_plan.longestExposure * (1 + equalNumbers);
    if (isTooLong || m_inputs.usesLongestExposure)
        m_plan.exposure = allowedExposure(*feature, roundedDown(*m_plan.longestExposure));
}

void PlanBuilder::checkLimits()
{
    m_plan.limit = m_limits.lowest(m_plan.exposure.value_or(0));
    if (m_plan.limit.reason != RateReason::None)
        m_plan.highestSpeed = m_plan.limit.rate * m_plan.objectPixel / micrometresPerMillimetre;
    if (m_plan.rate) {
        const RateLimit limit = m_limits.check(*m_plan.rate, m_plan.exposure.value_or(0));
        if (limit.reason != RateReason::None)
            m_plan.warnings.push_back(limitSentence(limit, m_camera.facts));
        // The camera would refuse the rate.
        if (limit.reason == RateReason::Camera && !isEncoder())
            m_plan.problem = m_plan.warnings.back();
    }
    if (m_plan.exposure && *m_plan.exposure < m_camera.facts.exposure)
        m_plan.warnings.push_back({QT_TRANSLATE_NOOP("Sentence",
                                       "The exposure of %1 µs is longer than a line. It has to be shortened "
                                       "to %2 µs, so the picture becomes darker: add light or gain."),
            {SentenceNumber{m_camera.facts.exposure, 1}, SentenceNumber{*m_plan.exposure, 1}}});
    if (std::abs(m_plan.errorPercent) > largeErrorPercent)
        m_plan.warnings.push_back(errorSentence());
}

Sentence PlanBuilder::errorSentence() const
{
    const SentenceNumber percent{std::abs(m_plan.errorPercent), 1};
    const bool isTooTall = m_plan.errorPercent > 0;
    if (isEncoder())
        return {isTooTall ? QT_TRANSLATE_NOOP("Sentence",
                    "The closest setting of the camera makes objects %1 % too tall. Change the "
                    "magnification, or use another encoder.")
                          : QT_TRANSLATE_NOOP("Sentence",
                              "The closest setting of the camera makes objects %1 % too flat. Change the "
                              "magnification, or use another encoder."),
            {percent}};
    return {isTooTall ? QT_TRANSLATE_NOOP("Sentence",
                "The closest setting of the camera makes objects %1 % too tall. Change the magnification or "
                "the speed.")
                      : QT_TRANSLATE_NOOP("Sentence",
                          "The closest setting of the camera makes objects %1 % too flat. Change the "
                          "magnification or the speed."),
        {percent}};
}

void PlanBuilder::planRate()
{
    planEntry(LineFeature::TriggerMode, "Off");
    if (m_camera.find(LineFeature::LineRateEnable))
        plan(LineFeature::LineRateEnable, true);
    plan(LineFeature::LineRate, asValueOf(*m_camera.find(LineFeature::LineRate), *m_plan.rate));
}

void PlanBuilder::planEncoder()
{
    const EncoderRatio &ratio = *m_plan.ratio;
    planInput(LineFeature::EncoderSourceA, "Line0");
    planInput(LineFeature::EncoderSourceB, "Line1");
    planEntry(LineFeature::EncoderMode, ratio.countsPerPulse == 4 ? "HighResolution" : "FourPhase");
    if (m_camera.find(LineFeature::EncoderDivider))
        plan(LineFeature::EncoderDivider, ratio.encoderDivider);
    if (const LineFeatureState *const resolution = m_camera.find(LineFeature::EncoderResolution))
        plan(LineFeature::EncoderResolution,
            asValueOf(
                *resolution, allowedNumber(*resolution, *encoderStepOf(m_inputs) / ratio.countsPerPulse)));
    planTriggerFactors(ratio);
    const LineFeatureState &source = *m_camera.find(LineFeature::TriggerSource);
    const std::vector<std::string> &entries = source.state.availableEntries;
    const auto encoder = std::find_if(entries.begin(), entries.end(),
        [](const std::string &entry) { return entry.find("Encoder") != std::string::npos; });
    if (encoder == entries.end()) {
        m_plan.problem = {QT_TRANSLATE_NOOP("Sentence",
            "The camera offers no encoder as the source of its line trigger (TriggerSource). Use its line "
            "rate.")};
        return;
    }
    if (source.text().find("Encoder") == std::string::npos)
        plan(LineFeature::TriggerSource, *encoder);
    // With both edges, the camera would take two lines per pulse.
    const LineFeatureState *const activation = m_camera.find(LineFeature::TriggerActivation);
    if (activation && activation->text() == "AnyEdge")
        planEntry(LineFeature::TriggerActivation, "RisingEdge");
    planEntry(LineFeature::TriggerMode, "On");
}

void PlanBuilder::planTriggerFactors(const EncoderRatio &ratio)
{
    if (m_camera.find(LineFeature::TriggerDivider))
        plan(LineFeature::TriggerDivider, ratio.triggerDivider);
    if (m_camera.find(LineFeature::TriggerMultiplier))
        plan(LineFeature::TriggerMultiplier, ratio.multiplier);
}

void PlanBuilder::planExposure()
{
    const LineFeatureState *const feature = m_camera.find(LineFeature::ExposureTime);
    if (!feature || !m_plan.exposure || *m_plan.exposure == m_camera.facts.exposure)
        return;
    planEntry(LineFeature::ExposureAuto, "Off");
    plan(LineFeature::ExposureTime, asValueOf(*feature, *m_plan.exposure));
}

/// Connects an input of the encoder that is not connected yet.
void PlanBuilder::planInput(LineFeature feature, const char *fallback)
{
    const LineFeatureState *const input = m_camera.find(feature);
    if (input && input->text() == "Off")
        planEntry(feature, fallback);
}

void PlanBuilder::planEntry(LineFeature feature, const std::string &entry)
{
    const LineFeatureState *const found = m_camera.find(feature);
    if (found && found->allows(entry))
        plan(feature, entry);
}

void PlanBuilder::plan(LineFeature feature, const NodeValue &value)
{
    const LineFeatureState &found = *m_camera.find(feature);
    if (isEqual(found.state.value, value))
        return;
    m_plan.settings.push_back({found.selectors, found.state.name, found.state.value, value,
        found.state.lockReason == LockReason::StreamRunning});
}
