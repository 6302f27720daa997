#include "sdk/gige/RegisterWords.h"

#include "sdk/producer/OpenCamera.h"

RegisterWords wordsAround(std::uint64_t address, std::size_t size)
{
    constexpr std::uint64_t addressEnd = std::uint64_t{1} << 32;
    if (address > addressEnd || size > addressEnd - address)
        throw GenTlError(GenTL::GC_ERR_INVALID_ADDRESS, "A GigE Vision camera has 32-bit addresses.");
    const std::uint64_t start = address / registerSize * registerSize;
    const std::uint64_t end = (address + size + registerSize - 1) / registerSize * registerSize;
    return {static_cast<std::uint32_t>(start), static_cast<std::size_t>(end - start),
        static_cast<std::size_t>(address - start)};
}
