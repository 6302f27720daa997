#include "sdk/simulator/SceneSettings.h"

#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/FeatureLimits.h"
#include "sdk/simulator/LineSignal.h"

#include <cmath>

namespace {

using Id = RegisterId;

double decibels(const RegisterBank &bank, std::size_t element)
{
    return static_cast<double>(bank.integer(Id::GainRaw, element)) / 100;
}

double blackLevel(const RegisterBank &bank, std::size_t element)
{
    return static_cast<double>(bank.integer(Id::BlackLevelRaw, element)) / 16;
}

double linear(double decibels)
{
    return std::pow(10, decibels / 20);
}

void setGeometry(RenderSettings &settings, const RegisterBank &bank)
{
    const auto value = [&bank](RegisterId id) { return static_cast<int>(bank.integer(id)); };
    settings.offsetX = value(Id::OffsetX);
    settings.offsetY = value(Id::OffsetY);
    settings.width = value(Id::Width);
    settings.height = value(Id::Height);
    settings.binningX = value(Id::BinningHorizontal);
    settings.binningY = value(Id::BinningVertical);
    settings.binningMode = static_cast<BinningMode>(value(Id::BinningHorizontalMode));
    settings.isReversedX = bank.isOn(Id::ReverseX);
    settings.isReversedY = bank.isOn(Id::ReverseY);
    settings.pixelFormat = static_cast<std::uint32_t>(bank.integer(Id::PixelFormat));
}

double encoderLineRate(const RegisterBank &bank)
{
    const bool isAnyEdge = bank.integer(Id::TriggerActivation, lineStartTrigger) == anyEdge;
    return encoderFrequency(bank) * triggersPerPulse(bank, lineStartTrigger) * (isAnyEdge ? 2 : 1);
}

void setLines(RenderSettings &settings, const RegisterBank &bank)
{
    const bool isEncoder = bank.isOn(Id::TriggerMode, lineStartTrigger)
        && bank.integer(Id::TriggerSource, lineStartTrigger) == encoderSource;
    const double lineRate = isEncoder ? encoderLineRate(bank) : bank.real(Id::AcquisitionLineRate);
    // The object moves by one line of the scene per cycle of the encoder. Without pulses, there are no lines.
    settings.lineStep = lineRate > 0 ? bank.real(Id::EncoderSpeed) / lineRate : 1;
    settings.lineJitter = isEncoder ? 0 : 0.3;
}

} // namespace

double gainDecibels(const RegisterBank &bank)
{
    return decibels(bank, 0);
}

RenderSettings sceneSettings(const RegisterBank &bank)
{
    RenderSettings settings;
    setGeometry(settings, bank);
    settings.exposureTime = bank.real(Id::ExposureTime);
    settings.gain = linear(gainDecibels(bank));
    settings.blackLevel = blackLevel(bank, 0);
    for (std::size_t tap = 0; tap < settings.tapGain.size(); ++tap) {
        settings.tapGain[tap] = linear(decibels(bank, tap + 1));
        settings.tapBlackLevel[tap] = blackLevel(bank, tap + 1);
    }
    settings.gamma = bank.real(Id::Gamma);
    for (std::size_t color = 0; color < settings.balanceRatio.size(); ++color)
        settings.balanceRatio[color] = bank.real(Id::BalanceRatio, color);
    settings.focusPosition = static_cast<double>(bank.integer(Id::LensFocusPosition));
    settings.testPattern = static_cast<TestPattern>(bank.integer(Id::TestPattern));
    settings.target = static_cast<SceneTarget>(bank.integer(Id::SceneTarget));
    if (isLineScan(bank))
        setLines(settings, bank);
    return settings;
}
