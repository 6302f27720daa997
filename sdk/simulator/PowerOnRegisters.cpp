#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/CameraTemperature.h"
#include "sdk/simulator/EnumerationValues.h"
#include "sdk/simulator/FeatureLimits.h"
#include "sdk/simulator/FeatureRules.h"
#include "sdk/simulator/SensorFlaws.h"

#include <algorithm>
#include <array>

namespace {

using Id = RegisterId;

constexpr std::int64_t mono8 = 0x01080001;
constexpr std::int64_t bayerRg8 = 0x01080009;

struct IntegerValue
{
    RegisterId id;
    std::int64_t value;
};

/// All registers that are not listed anywhere are 0.
constexpr IntegerValue integerDefaults[] = {
    {Id::BinningHorizontal, 1},
    {Id::BinningVertical, 1},
    {Id::AcquisitionMode, continuousAcquisition},
    {Id::AcquisitionFrameCount, 1},
    {Id::TriggerSelector, frameStartTrigger},
    {Id::BlackLevelRaw, 64 * 16},
    {Id::LensFocusPosition, 500},
    {Id::EncoderSourceA, 1},
    {Id::EncoderSourceB, 2},
    {Id::EncoderDivider, 1},
    {Id::ChunkSelector, chunkTimestamp},
};

void setTexts(RegisterBank &bank, const DeviceRecord &record)
{
    bank.setText(Id::DeviceVendorName, record.vendor);
    bank.setText(Id::DeviceModelName, record.model);
    bank.setText(Id::DeviceManufacturerInfo, "Simulated camera");
    bank.setText(Id::DeviceVersion, record.version);
    bank.setText(Id::DeviceFirmwareVersion, "1.0.0");
    bank.setText(Id::DeviceSerialNumber, record.serial);
    bank.setText(Id::DeviceID, record.id);
    bank.setText(Id::DeviceUserID, record.userName);
}

void setSensor(RegisterBank &bank, const SensorModel &sensor)
{
    bank.setInteger(Id::DeviceScanType, sensor.isLineScan);
    bank.setInteger(Id::SensorWidth, sensor.width);
    bank.setInteger(Id::SensorHeight, sensor.height);
    bank.setInteger(Id::IsColor, sensor.isColor);
    bank.setInteger(Id::TapCount, sensor.taps);
    bank.setInteger(Id::DeviceTapGeometry, sensor.taps);
    bank.setInteger(Id::PixelFormat, sensor.isColor ? bayerRg8 : mono8);
    bank.setInteger(Id::Width, widthMax(bank));
    bank.setInteger(Id::Height, sensor.isLineScan ? 1024 : heightMax(bank));
}

} // namespace

RegisterBank powerOnRegisters(const CameraModel &model)
{
    RegisterBank bank;
    for (const IntegerValue &entry : integerDefaults)
        bank.setInteger(entry.id, entry.value);
    setTexts(bank, model.record);
    setSensor(bank, model.sensor);
    bank.setInteger(Id::DeviceLinkSpeed, model.linkSpeed);
    bank.setInteger(Id::DeviceLinkThroughputLimit, model.linkSpeed);
    bank.setReal(Id::TemperatureBase, idleTemperature);
    bank.setReal(Id::TemperatureTimeConstant, model.temperatureTimeConstant);
    bank.setReal(Id::ExposureTime, model.exposureTime);
    bank.setInteger(Id::AcquisitionFrameRateEnable, !model.sensor.isLineScan);
    bank.setReal(Id::AcquisitionFrameRate, 25);
    bank.setInteger(Id::AcquisitionLineRateEnable, model.sensor.isLineScan);
    bank.setReal(Id::AcquisitionLineRate, 10'000);
    for (std::size_t trigger = 0; trigger < triggerCount; ++trigger) {
        bank.setInteger(Id::TriggerSource, softwareSource, trigger);
        bank.setInteger(Id::TriggerDivider, 1, trigger);
        bank.setInteger(Id::TriggerMultiplier, 1, trigger);
    }
    bank.setReal(Id::Gamma, 1);
    const std::array<double, 3> response = SensorFlaws::colorResponse();
    for (std::size_t color = 0; color < response.size(); ++color)
        bank.setReal(Id::BalanceRatio, 1 / response[color], color); // White is white.
    bank.setReal(Id::EncoderResolution, 0.01);
    bank.setReal(Id::EncoderSpeed, 10'000);
    for (std::size_t chunk = 0; chunk < chunkCount; ++chunk)
        bank.setInteger(Id::ChunkEnable, 1, chunk);
    updatePayloadSize(bank);
    return bank;
}
