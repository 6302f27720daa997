#include "sdk/simulator/CameraStatus.h"

#include "sdk/simulator/CameraTemperature.h"
#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/LineSignal.h"
#include "sdk/simulator/RegisterFile.h"

namespace {

using Id = RegisterId;
constexpr double mainboardDistance = -6; // Degrees that the mainboard is warmer than the sensor.

} // namespace

std::int64_t timestampAt(const RegisterBank &bank, std::int64_t now)
{
    return now - bank.integer(Id::TimestampOrigin);
}

void updateStatus(RegisterBank &bank, std::int64_t now)
{
    bank.setInteger(Id::Timestamp, timestampAt(bank, now));
    bank.setReal(Id::DeviceTemperature, sensorTemperature(bank, now), 0);
    bank.setReal(Id::DeviceTemperature, sensorTemperature(bank, now) + mainboardDistance, 1);
    for (std::size_t line = 0; line < lineCount; ++line)
        bank.setInteger(
            Id::LineStatus, LineSignal{bank.real(Id::LineSignalFrequency, line)}.isHigh(now), line);
    const LineSignal encoder{encoderFrequency(bank)};
    bank.setInteger(Id::EncoderValue, encoder.edgesBetween(bank.integer(Id::EncoderOrigin), now));
}

void forgetPulses(RegisterBank &bank, const RegisterFile &registers)
{
    for (std::size_t input = 0; input < triggerInputCount; ++input)
        bank.setInteger(Id::UsedPulses, registers.pulses(input), input);
}
