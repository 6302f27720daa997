#include "sdk/imagefile/DiskSpace.h"

#include "sdk/imagefile/OutputFile.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <sys/statvfs.h>

std::optional<std::uint64_t> usableSpace(const std::string &path)
{
    if (isSpecialFile(path))
        return std::nullopt;
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::weakly_canonical(path, error).parent_path();
    struct statvfs status
    { };
    if (statvfs(folder.empty() ? "." : folder.c_str(), &status) != 0 || status.f_blocks == 0)
        return std::nullopt;
    constexpr std::uint64_t maxReserve = 1ULL << 30U;
    const std::uint64_t reserve
        = std::min<std::uint64_t>(status.f_blocks * status.f_frsize / 100, maxReserve);
    const std::uint64_t free = status.f_bavail * status.f_frsize;
    return free > reserve ? free - reserve : 0;
}

std::string byteText(std::uint64_t bytes)
{
    static constexpr const char *units[] = {"bytes", "kB", "MB", "GB", "TB"};
    auto value = static_cast<double>(bytes);
    std::size_t unit = 0;
    for (; value >= 1000 && unit + 1 < std::size(units); ++unit)
        value /= 1000;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f %s", unit == 0 ? 0 : 1, value, units[unit]);
    return text.data();
}
