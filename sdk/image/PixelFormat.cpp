#include "sdk/image/PixelFormat.h"

#include "sdk/image/PixelLayout.h"

#include <algorithm>
#include <array>

namespace {

struct OldName
{
    std::string_view oldName;
    std::string_view name;
};

constexpr std::array<OldName, 8> oldNames = {{{"RGB8Packed", "RGB8"}, {"BGR8Packed", "BGR8"},
    {"RGBA8Packed", "RGBa8"}, {"YUV422Packed", "YUV422_8_UYVY"}, {"YUV422YUYVPacked", "YUV422_8"},
    {"YUV411Packed", "YUV411_8_UYYVYY"}, {"YUV444Packed", "YUV8_UYV"}, {"RGB10V2Packed", "RGB10p32"}}};

} // namespace

const PixelFormat *findPixelFormat(std::uint32_t code)
{
    const PixelFormat &format = findPixelLayout(code).format;
    return format.code == code && code != 0 ? &format : nullptr;
}

const PixelFormat *findPixelFormat(std::string_view name)
{
    const auto *const old = std::find_if(
        oldNames.begin(), oldNames.end(), [name](const OldName &entry) { return entry.oldName == name; });
    const std::string_view current = old == oldNames.end() ? name : old->name;
    const PixelLayoutTable table = pixelLayouts();
    const auto *const found = std::find_if(
        table.begin(), table.end(), [current](const PixelLayout &row) { return row.format.name == current; });
    return found == table.end() ? nullptr : &found->format;
}
