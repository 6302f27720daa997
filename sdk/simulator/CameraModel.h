#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/simulator/RegisterBank.h"
#include "sdk/simulator/SensorModel.h"
#include "sdk/simulator/SimulatorConfiguration.h"

#include <cstdint>

/// Everything about a simulated camera that does not change while the camera is connected.
struct CameraModel
{
    DeviceRecord record;
    SensorModel sensor;
    std::int64_t linkSpeed = 0; ///< Bytes per second.
    double temperatureTimeConstant = 0; ///< Seconds until a running camera is 63 % warmer.
    double exposureTime = 0; ///< Microseconds, after power-on.

    bool isBigEndianLink() const; ///< True if chunk data are big endian.
};

/// Returns the model of a device. What `keys` leaves open follows from the name of the model and from the
/// technology.
CameraModel cameraModel(const DeviceRecord &record, const SensorKeys &keys);

/// Returns the registers after power-on.
RegisterBank powerOnRegisters(const CameraModel &model);

/// Returns a number that differs between models whose registers cannot be shared.
std::uint64_t fingerprint(const CameraModel &model);
