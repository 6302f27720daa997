#pragma once

#include <array>
#include <cstdint>
#include <string>

using MacAddress = std::array<std::uint8_t, 6>;

/// What a GigE Vision camera reports about itself. All strings are valid UTF-8 without control characters and
/// may be empty. IPv4 addresses are in the byte order of this machine.
struct CameraData
{
    MacAddress mac{}; ///< All zeros if the camera has none, which is common for simulated cameras.
    std::uint32_t address = 0;
    std::uint32_t mask = 0;
    std::uint32_t gateway = 0;
    std::string vendor;
    std::string model;
    std::string version;
    std::string serial;
    std::string userName;
};

bool operator==(const CameraData &left, const CameraData &right);

/// Returns the text that identifies the camera: its MAC address or, if there is none, the vendor, model and
/// serial number.
std::string identityOf(const CameraData &camera);

/// Returns a MAC address as text, for example "00:11:1c:f0:12:34".
std::string macToString(const MacAddress &mac);

/// Returns an IPv4 address in the byte order of this machine as text, for example "169.254.3.1".
std::string ipv4ToString(std::uint32_t address);
