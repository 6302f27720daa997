#include "sdk/simulator/FeatureLimits.h"

#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/PixelPacking.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

using Id = RegisterId;

struct IntegerRule
{
    RegisterId id;
    IntegerLimits limits;
};

struct DependentRule
{
    RegisterId id;
    IntegerLimits (*limits)(const RegisterBank &bank);
};

struct RealRule
{
    RegisterId id;
    RealLimits limits;
};

/// Number of lines between two possible heights or vertical offsets.
std::int64_t heightIncrement(const RegisterBank &bank)
{
    return isLineScan(bank) ? 1 : 2;
}

std::int64_t roundedDown(std::int64_t value, std::int64_t increment)
{
    return value / increment * increment;
}

constexpr IntegerRule integerRules[] = {
    {Id::DeviceTemperatureSelector, {0, 1, 1}},
    {Id::DeviceLinkThroughputLimitMode, {0, 1, 1}},
    {Id::BinningHorizontalMode, {0, 1, 1}},
    {Id::BinningHorizontal, {1, 4, 1}},
    {Id::ReverseX, {0, 1, 1}},
    {Id::TestPattern, {0, 8, 1}},
    {Id::SceneTarget, {0, 2, 1}},
    {Id::AcquisitionMode, {0, 2, 1}},
    {Id::AcquisitionFrameCount, {1, 65535, 1}},
    {Id::AcquisitionFrameRateEnable, {0, 1, 1}},
    {Id::AcquisitionLineRateEnable, {0, 1, 1}},
    {Id::TriggerMode, {0, 1, 1}},
    {Id::TriggerActivation, {0, 2, 1}},
    {Id::TriggerDivider, {1, 256, 1}},
    {Id::TriggerMultiplier, {1, 64, 1}},
    {Id::ExposureAuto, {0, 2, 1}},
    {Id::LineSelector, {0, 1, 1}},
    {Id::GainRaw, {0, 3600, 1}},
    {Id::GainAuto, {0, 2, 1}},
    {Id::BlackLevelRaw, {0, 16383, 1}},
    {Id::BalanceRatioSelector, {0, 2, 1}},
    {Id::BalanceWhiteAuto, {0, 2, 1}},
    {Id::LensFocusPosition, {0, 1000, 1}},
    {Id::EncoderSelector, {0, 0, 1}},
    {Id::EncoderSourceA, {0, 2, 1}},
    {Id::EncoderSourceB, {0, 2, 1}},
    {Id::EncoderMode, {0, 1, 1}},
    {Id::EncoderDivider, {1, 256, 1}},
    {Id::UserSetSelector, {0, static_cast<std::int64_t>(userSetCount) - 1, 1}},
    {Id::UserSetDefault, {0, static_cast<std::int64_t>(userSetCount) - 1, 1}},
    {Id::ChunkModeActive, {0, 1, 1}},
    {Id::ChunkEnable, {0, 1, 1}},
    {Id::TLParamsLocked, {0, 1, 1}},
    {Id::ChunkSelector, {0, static_cast<std::int64_t>(chunkCount) - 1, 1}},
};

constexpr DependentRule dependentRules[] = {
    {Id::DeviceLinkThroughputLimit,
        [](const RegisterBank &bank) {
            return IntegerLimits{1'000'000, bank.integer(Id::DeviceLinkSpeed), 1};
        }},
    {Id::BinningVertical,
        [](const RegisterBank &bank) {
            return IntegerLimits{1, isLineScan(bank) ? 1 : 4, 1};
        }},
    {Id::Width,
        [](const RegisterBank &bank) {
            return IntegerLimits{minWidth, widthMax(bank) - bank.integer(Id::OffsetX), widthIncrement};
        }},
    {Id::Height,
        [](const RegisterBank &bank) {
            const std::int64_t increment = heightIncrement(bank);
            return IntegerLimits{increment, heightMax(bank) - bank.integer(Id::OffsetY), increment};
        }},
    {Id::OffsetX,
        [](const RegisterBank &bank) {
            return IntegerLimits{0, widthMax(bank) - bank.integer(Id::Width), widthIncrement};
        }},
    {Id::OffsetY,
        [](const RegisterBank &bank) {
            return IntegerLimits{
                0, isLineScan(bank) ? 0 : heightMax(bank) - bank.integer(Id::Height), heightIncrement(bank)};
        }},
    {Id::ReverseY,
        [](const RegisterBank &bank) {
            return IntegerLimits{0, isLineScan(bank) ? 0 : 1, 1};
        }},
    {Id::TriggerSelector,
        [](const RegisterBank &bank) {
            return IntegerLimits{0, isLineScan(bank) ? 2 : 1, 1};
        }},
    {Id::TriggerSource,
        [](const RegisterBank &bank) {
            return IntegerLimits{0, isLineScan(bank) ? 3 : 2, 1};
        }},
    {Id::GainSelector,
        [](const RegisterBank &bank) {
            const std::int64_t taps = bank.integer(Id::TapCount);
            return IntegerLimits{0, taps > 1 ? taps : 0, 1};
        }},
    {Id::BlackLevelSelector,
        [](const RegisterBank &bank) {
            const std::int64_t taps = bank.integer(Id::TapCount);
            return IntegerLimits{0, taps > 1 ? taps : 0, 1};
        }},
};

constexpr RealRule realRules[] = {
    {Id::TriggerDelay, {0, 1'000'000}},
    {Id::LineSignalFrequency, {0, 100'000}},
    {Id::Gamma, {0.25, 4}},
    {Id::BalanceRatio, {0.25, 8}},
    {Id::EncoderResolution, {0.0001, 100}},
    {Id::EncoderSpeed, {0, 1'000'000}},
};

template <typename Rule, std::size_t size>
const Rule *ruleOf(const Rule (&rules)[size], RegisterId id)
{
    const Rule *const found
        = std::find_if(std::begin(rules), std::end(rules), [id](const Rule &rule) { return rule.id == id; });
    return found != std::end(rules) ? found : nullptr;
}

} // namespace

bool isLineScan(const RegisterBank &bank)
{
    return bank.isOn(Id::DeviceScanType);
}

std::int64_t widthMax(const RegisterBank &bank)
{
    return roundedDown(bank.integer(Id::SensorWidth) / bank.integer(Id::BinningHorizontal), widthIncrement);
}

std::int64_t heightMax(const RegisterBank &bank)
{
    if (isLineScan(bank))
        return maxLineScanHeight;
    return roundedDown(
        bank.integer(Id::SensorHeight) / bank.integer(Id::BinningVertical), heightIncrement(bank));
}

IntegerLimits integerLimits(const RegisterBank &bank, RegisterId id)
{
    if (const auto *const rule = ruleOf(integerRules, id))
        return rule->limits;
    if (const auto *const rule = ruleOf(dependentRules, id))
        return rule->limits(bank);
    return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max(), 1};
}

RealLimits realLimits(const RegisterBank &bank, RegisterId id)
{
    // A line or a frame cannot be shorter than its exposure.
    const double highestRate = 1e6 / bank.real(Id::ExposureTime);
    switch (id) {
    case Id::ExposureTime:
        return {1, maxExposureTime};
    case Id::AcquisitionFrameRate:
        return {0.01, isLineScan(bank) ? maxFrameRate : std::min(maxFrameRate, highestRate)};
    case Id::AcquisitionLineRate:
        return {0.1, std::min(maxLineRate, highestRate)};
    default:
        break;
    }
    if (const auto *const rule = ruleOf(realRules, id))
        return rule->limits;
    return {std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
}

bool isPixelFormatOffered(const RegisterBank &bank, std::int64_t code)
{
    const bool isColor = bank.isOn(Id::IsColor);
    const std::vector<PackedFormat> &formats = supportedPixelFormats();
    return std::any_of(formats.begin(), formats.end(), [&](const PackedFormat &format) {
        return format.code == code && (format.colors != PackedFormat::Colors::Mono) == isColor;
    });
}
