#include "sdk/simulator/AutomaticControl.h"

#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/FeatureLimits.h"
#include "sdk/simulator/FeatureRules.h"
#include "sdk/simulator/PixelPacking.h"

#include <algorithm>
#include <cmath>

namespace {

using Id = RegisterId;

constexpr double targetBrightness = 0.4;
constexpr double tolerance = 0.03; // Relative deviation that is left alone.
constexpr int samplesPerSide = 48;

/// Returns a value of a line; 1 is the largest value of the format.
double valueAt(const PackedFormat &format, const std::uint8_t *line, std::size_t index)
{
    const auto wordAt = [line](std::size_t byte) { return line[byte] | line[byte + 1] << 8U; };
    const auto depth = static_cast<std::size_t>(format.depth);
    int value = 0;
    switch (format.layout) {
    case PackedFormat::Layout::Bytes:
        value = line[index];
        break;
    case PackedFormat::Layout::Words:
        value = wordAt(2 * index);
        break;
    case PackedFormat::Layout::BitStream:
        value = wordAt(index * depth / 8) >> index * depth % 8 & format.maxValue();
        break;
    case PackedFormat::Layout::Packed: // The upper 8 bits are enough.
        return line[index / 2 * 3 + index % 2 * 2] / 255.0;
    }
    return static_cast<double>(value) / format.maxValue();
}

/// Sums up samples of one colour, or of all.
class Mean
{
public:
    void add(double value)
    {
        m_sum += value;
        ++m_count;
    }
    double value() const { return m_count > 0 ? m_sum / m_count : 0; }

private:
    double m_sum = 0;
    int m_count = 0;
};

/// Returns the factor by which a mean value has to change, or 1 if it is close enough.
double correction(double mean, double target)
{
    const double factor = std::clamp(target / std::max(mean, 0.001), 0.5, 2.0);
    return std::abs(factor - 1) < tolerance ? 1 : factor;
}

void endOnce(RegisterBank &bank, RegisterId automatic, bool isDone)
{
    if (isDone && bank.integer(automatic) == autoOnce)
        bank.setInteger(automatic, autoOff);
}

/// Returns the longest exposure that does not reduce the frame rate.
double longestExposure(const RegisterBank &bank)
{
    double longest = maxExposureTime;
    if (bank.isOn(Id::AcquisitionFrameRateEnable) && !isLineScan(bank))
        longest = std::min(longest, 1e6 / bank.real(Id::AcquisitionFrameRate));
    if (bank.isOn(Id::AcquisitionLineRateEnable))
        longest = std::min(longest, 1e6 / bank.real(Id::AcquisitionLineRate));
    return longest;
}

/// Returns true if the exposure time was changed.
bool adjustExposure(RegisterBank &bank, double factor)
{
    const double old = bank.real(Id::ExposureTime);
    const double wanted
        = std::clamp(old * factor, realLimits(bank, Id::ExposureTime).min, longestExposure(bank));
    bank.setReal(Id::ExposureTime, wanted);
    limitRates(bank);
    return wanted != old;
}

bool adjustGain(RegisterBank &bank, double factor)
{
    const std::int64_t old = bank.integer(Id::GainRaw);
    const IntegerLimits limits = integerLimits(bank, Id::GainRaw);
    const std::int64_t wanted = std::clamp(
        old + static_cast<std::int64_t>(std::lround(2000 * std::log10(factor))), limits.min, limits.max);
    bank.setInteger(Id::GainRaw, wanted);
    return wanted != old;
}

void adjustBrightness(RegisterBank &bank, double mean)
{
    const double factor = correction(mean, targetBrightness);
    const bool isExposureAutomatic = bank.isOn(Id::ExposureAuto);
    const bool isExposureChanged = isExposureAutomatic && adjustExposure(bank, factor);
    // The gain helps only when the exposure time has reached a limit.
    const bool isGainNeeded = bank.isOn(Id::GainAuto) && !isExposureChanged;
    const bool isGainChanged = isGainNeeded && adjustGain(bank, factor);
    endOnce(bank, Id::ExposureAuto, !isExposureChanged);
    endOnce(bank, Id::GainAuto, isGainNeeded && !isGainChanged);
}

void adjustWhite(RegisterBank &bank, const std::array<double, 3> &colors)
{
    const RealLimits limits = realLimits(bank, Id::BalanceRatio);
    bool isChanged = false;
    for (const std::size_t color : {std::size_t{0}, std::size_t{2}}) { // Green stays as it is.
        const double old = bank.real(Id::BalanceRatio, color);
        const double wanted = std::clamp(old * correction(colors[color], colors[1]), limits.min, limits.max);
        bank.setReal(Id::BalanceRatio, wanted, color);
        isChanged = isChanged || wanted != old;
    }
    endOnce(bank, Id::BalanceWhiteAuto, !isChanged);
}

} // namespace

Brightness measureBrightness(const RegisterBank &bank, const std::uint8_t *picture)
{
    const PackedFormat &format = pixelFormat(static_cast<std::uint32_t>(bank.integer(Id::PixelFormat)));
    const auto width = static_cast<std::size_t>(bank.integer(Id::Width));
    const auto height = static_cast<std::size_t>(bank.integer(Id::Height));
    const std::size_t values = format.colors == PackedFormat::Colors::Rgb ? 3 : 1;
    const std::size_t lineSize = format.lineSize(static_cast<int>(width));
    const std::size_t stepX = width / samplesPerSide | 1U; // Odd steps meet all colours of a mosaic.
    const std::size_t stepY = height / samplesPerSide | 1U;
    Mean all;
    std::array<Mean, 3> colors;
    for (std::size_t y = 0; y < height; y += stepY)
        for (std::size_t x = 0; x < width; x += stepX)
            for (std::size_t i = 0; i < values; ++i) {
                const double value = valueAt(format, picture + y * lineSize, x * values + i);
                all.add(value);
                colors[values == 3 ? i : x % 2 + y % 2].add(value);
            }
    if (format.colors == PackedFormat::Colors::Mono)
        return {all.value(), {}};
    return {all.value(), {colors[0].value(), colors[1].value(), colors[2].value()}};
}

bool isAnyAutomaticOn(const RegisterBank &bank)
{
    return bank.isOn(Id::ExposureAuto) || bank.isOn(Id::GainAuto) || bank.isOn(Id::BalanceWhiteAuto);
}

void adjustAutomatics(RegisterBank &bank, const Brightness &brightness)
{
    if (bank.isOn(Id::ExposureAuto) || bank.isOn(Id::GainAuto))
        adjustBrightness(bank, brightness.mean);
    if (bank.isOn(Id::BalanceWhiteAuto))
        adjustWhite(bank, brightness.colors);
}
