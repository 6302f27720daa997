#include "tools/cvxctl/Demosaicing.h"

#include <array>

namespace {

/// Returns the index beside `index`, mirrored at the border, so that the neighbour has the colour that it
/// would have there.
std::size_t before(std::size_t index)
{
    return index == 0 ? 1 : index - 1;
}

std::size_t after(std::size_t index, std::size_t count)
{
    return index + 1 == count ? count - 2 : index + 1;
}

} // namespace

std::vector<std::uint8_t> demosaicBayerRG8(
    const std::uint8_t *data, std::size_t width, std::size_t height, std::size_t lineSize)
{
    std::vector<std::uint8_t> rgb(3 * width * height);
    std::uint8_t *output = rgb.data();
    for (std::size_t y = 0; y < height; ++y) {
        const std::uint8_t *const above = data + before(y) * lineSize;
        const std::uint8_t *const line = data + y * lineSize;
        const std::uint8_t *const below = data + after(y, height) * lineSize;
        for (std::size_t x = 0; x < width; ++x, output += 3) {
            const std::size_t left = before(x);
            const std::size_t right = after(x, width);
            const auto vertical = static_cast<std::uint8_t>((above[x] + below[x] + 1) / 2);
            const auto horizontal = static_cast<std::uint8_t>((line[left] + line[right] + 1) / 2);
            const auto cross
                = static_cast<std::uint8_t>((above[x] + below[x] + line[left] + line[right] + 2) / 4);
            const auto diagonal = static_cast<std::uint8_t>(
                (above[left] + above[right] + below[left] + below[right] + 2) / 4);
            const bool isRedLine = y % 2 == 0;
            const bool isGreen = (x + y) % 2 != 0;
            // The lines alternate between red-green and green-blue.
            const std::array<std::uint8_t, 2> ownAndOther = isGreen
                ? std::array<std::uint8_t, 2>{horizontal, vertical}
                : std::array<std::uint8_t, 2>{line[x], diagonal};
            output[0] = ownAndOther[isRedLine ? 0 : 1];
            output[1] = isGreen ? line[x] : cross;
            output[2] = ownAndOther[isRedLine ? 1 : 0];
        }
    }
    return rgb;
}
