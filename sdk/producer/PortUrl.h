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

    std::string url; ///< Without the version of the schema.
    std::optional<GenTL::URL_SCHEME_ID> scheme; ///< Absent if the URL has an unknown scheme.
    std::string fileName; ///< Without folder.
    std::optional<std::uint64_t> address; ///< Local only.
    std::optional<std::uint64_t> size; ///< Local only; bytes.
    std::optional<Version> schemaVersion; ///< Absent if it is not known.
    std::optional<Version> fileVersion; ///< Absent if nobody has read the description.

    /// Takes apart a URL, which may end with "?SchemaVersion=1.1.0". A part that is missing or wrong stays
    /// empty.
    static PortUrl parse(const std::string &url);
};
