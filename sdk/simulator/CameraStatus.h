#pragma once

#include "sdk/simulator/RegisterBank.h"

#include <cstdint>

class RegisterFile;

/// Returns the camera's time stamp in nanoseconds. @param now Nanoseconds of the monotonic clock.
std::int64_t timestampAt(const RegisterBank &bank, std::int64_t now);

/// Updates the registers whose values depend on the time.
void updateStatus(RegisterBank &bank, std::int64_t now);

/// Ignores all pulses at trigger inputs up to now.
void forgetPulses(RegisterBank &bank, const RegisterFile &registers);
