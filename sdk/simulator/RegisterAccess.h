#pragma once

#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/RegisterFile.h"

#include <cstddef>
#include <cstdint>

/// Writes to a range of the camera's registers, as a consumer does: checks every register in the range, then
/// changes it or executes the command. Throws GenTlError at the first register that refuses; the registers
/// before it are changed.
/// @param offset From the first register, in bytes.
void writeRegisters(RegisterFile &registers, const CameraModel &model, std::size_t offset, const void *data,
    std::size_t size);

/// Stops the acquisition and unlocks the settings.
void endSession(RegisterBank &bank);
