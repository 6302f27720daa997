#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

/// Returns red, green and blue for luma and chroma of `depth` bits. `standard` is that of ReferenceFormat.
inline std::array<double, 3> referenceColor(std::string_view standard, int depth, std::array<double, 3> yuv)
{
    auto [y, u, v] = yuv;
    const double maximum = std::pow(2, depth) - 1;
    const double kr = standard == "709" ? 0.2126 : standard == "2020" ? 0.2627 : 0.299;
    const double kb = standard == "709" ? 0.0722 : standard == "2020" ? 0.0593 : 0.114;
    u -= std::pow(2, depth - 1);
    v -= std::pow(2, depth - 1);
    if (!standard.empty()) {
        y = (y - 16) * 255 / 219;
        u = u * 255 / 224;
        v = v * 255 / 224;
    }
    const double red = y + 2 * (1 - kr) * v;
    const double blue = y + 2 * (1 - kb) * u;
    const double green = (y - kr * red - kb * blue) / (1 - kr - kb); // Because luma is the sum of the shares.
    return {std::clamp(red, 0.0, maximum), std::clamp(green, 0.0, maximum), std::clamp(blue, 0.0, maximum)};
}
