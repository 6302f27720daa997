#pragma once

#include "sdk/producer/OpenCamera.h"

#include <arpa/inet.h>
#include <cstdint>

/// Registers of Aravis's fake camera. They are big endian.
namespace FakeCameraRegister {

constexpr std::uint64_t width = 0x100;
constexpr std::uint64_t height = 0x104;
constexpr std::uint64_t acquisition = 0x124; // 1 starts it, 0 stops it.
constexpr std::uint64_t framePeriod = 0x138; // Microseconds.

} // namespace FakeCameraRegister

inline void writeNumber(OpenCamera &camera, std::uint64_t address, std::uint32_t number)
{
    number = htonl(number);
    camera.write(address, &number, sizeof number);
}

inline std::uint32_t readNumber(OpenCamera &camera, std::uint64_t address)
{
    std::uint32_t number = 0;
    camera.read(address, &number, sizeof number);
    return ntohl(number);
}

/// Returns the code of the GenTlError that the function throws, or GC_ERR_SUCCESS.
template <typename Function>
GenTL::GC_ERROR errorOf(const Function &function)
{
    try {
        function();
    } catch (const GenTlError &error) {
        return error.code();
    }
    return GenTL::GC_ERR_SUCCESS;
}
