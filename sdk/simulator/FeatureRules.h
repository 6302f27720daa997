#pragma once

#include "sdk/producer/OpenCamera.h"
#include "sdk/simulator/RegisterBank.h"

#include <cstdint>

// What a camera accepts from its consumer, and what follows from it.

/// Writes one element of a register that the consumer may change, and changes the registers that depend on
/// it. Throws GenTlError, and changes nothing, if the register is read-only or locked
/// (GC_ERR_ACCESS_DENIED), or if the value is out of range (GC_ERR_INVALID_VALUE).
/// @param value RegisterInfo::elementSize() bytes.
void writeRegister(
    RegisterBank &bank, const RegisterInfo &info, std::size_t element, const std::uint8_t *value);

/// Throws GenTlError if a command must not be executed now.
void checkCommand(const RegisterBank &bank, const RegisterInfo &info);

/// Reduces rates that the exposure time does not allow any more.
void limitRates(RegisterBank &bank);

/// Updates PayloadSize.
void updatePayloadSize(RegisterBank &bank);
