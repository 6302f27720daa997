#pragma once

#include "sdk/image/PixelKernels.h"

// SampleKernels::correctField() for x86-64. The processor must have the instructions.

void correctFieldSse41(
    const std::uint8_t *input, const FieldLine &field, std::size_t count, std::uint8_t *output);
void correctFieldSse41(
    const std::uint16_t *input, const FieldLine &field, std::size_t count, std::uint16_t *output);
void correctFieldAvx2(
    const std::uint8_t *input, const FieldLine &field, std::size_t count, std::uint8_t *output);
void correctFieldAvx2(
    const std::uint16_t *input, const FieldLine &field, std::size_t count, std::uint16_t *output);
