#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <cstdint>
#include <optional>
#include <string>

/// A place where a register description lies, for example "Local:camera.xml;100000;2F3A".
struct PortUrl
{
    struct Version
    {
        std::int32_t major;
        std::int32_t minor;
        std::int32_t subminor;
    };

    std::string url;
    std::optional<GenTL::URL_SCHEME_ID> scheme; ///< Absent if the URL has an unknown scheme.
    std::string fileName; ///< Without folder.
    std::optional<std::uint64_t> address; ///< Local only.
    std::optional<std::uint64_t> size; ///< Local only; bytes.
    std::optional<Version> schemaVersion; ///< The two versions are absent if nobody has read the description.
    std::optional<Version> fileVersion;

    /// Takes a URL apart. A part that is missing or wrong stays empty.
    static PortUrl parse(const std::string &url);
};
