#pragma once

#include <cstddef>
#include <cstdint>

constexpr std::size_t registerSize = 4; ///< Bytes of every register of a GigE Vision camera.

/// The registers of a GigE Vision camera that contain a range of bytes. A camera only permits access
/// to whole registers.
struct RegisterWords
{
    std::uint32_t start = 0; ///< The address of the first register.
    std::size_t size = 0; ///< Bytes of all registers.
    std::size_t offset = 0; ///< Position of the range in the registers.
};

/// Throws GenTlError (GC_ERR_INVALID_ADDRESS) if the range does not end within the 32-bit addresses.
RegisterWords wordsAround(std::uint64_t address, std::size_t size);
