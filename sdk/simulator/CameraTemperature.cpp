#include "sdk/simulator/CameraTemperature.h"

#include <cmath>

using Id = RegisterId;

double sensorTemperature(const RegisterBank &bank, std::int64_t now)
{
    const double target = bank.isOn(Id::AcquisitionActive) ? runningTemperature : idleTemperature;
    const double seconds = static_cast<double>(now - bank.integer(Id::TemperatureTime)) / 1e9;
    const double distance = bank.real(Id::TemperatureBase) - target;
    return target + distance * std::exp(-seconds / bank.real(Id::TemperatureTimeConstant));
}

void setAcquisitionActive(RegisterBank &bank, bool isActive, std::int64_t now)
{
    bank.setReal(Id::TemperatureBase, sensorTemperature(bank, now));
    bank.setInteger(Id::TemperatureTime, now);
    bank.setInteger(Id::AcquisitionActive, isActive);
}
