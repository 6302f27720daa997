#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where a register description is: in the registers of the camera, in a file of this computer, or on a web
/// server.
struct DescriptionUrl
{
    enum class Scheme : std::uint8_t
    {
        Local,
        File,
        Http,
        Unknown
    };

    Scheme scheme = Scheme::Unknown;
    std::string path; ///< Decoded path of a file. Without a folder, it belongs to the folder of the producer.
    std::uint64_t address = 0; ///< Address of a description in the registers.
    std::uint64_t length = 0; ///< In bytes.
};

/// Parses a URL as cameras state it, with the deviations that occur. Returns nothing if the text is not a
/// URL, or has a number that cannot be read.
std::optional<DescriptionUrl> parseDescriptionUrl(std::string_view text);

/// Splits a list of strings that each end with a NUL. Empty strings are left out.
std::vector<std::string> splitStringList(std::string_view list);
