#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

/// What the command line says about the simulated cameras.
struct Options
{
    std::string interfaceName;
    unsigned count = 1;
    unsigned minDelay = 0, maxDelay = 0; ///< In milliseconds.
    double lossPercent = 0;
    unsigned seed = 1;
    std::string vendor = "Palvento";
    std::string model = "Latent GigE";
    std::string serialPrefix = "FAKE";
    bool hasSerial = true;
    std::array<std::uint8_t, 3> macPrefix{0x02, 0x0A, 0x0B};
    std::uint32_t firstAddress = 0; ///< In host byte order.
};

/// Returns nothing if the command line is wrong.
std::optional<Options> parseOptions(int count, char *arguments[]);

/// Describes the command line.
extern const char *const usage;
