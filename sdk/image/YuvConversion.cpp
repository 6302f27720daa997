#include "sdk/image/YuvConversion.h"

#include <cmath>

namespace {

/// The shares of red and blue in luma.
struct LumaShares
{
    double red;
    double blue;
};

constexpr LumaShares bt601{0.299, 0.114};
constexpr LumaShares bt709{0.2126, 0.0722};
constexpr LumaShares bt2020{0.2627, 0.0593};
constexpr std::array<LumaShares, 4> lumaShares = {bt601, bt601, bt709, bt2020}; // Indexed by YuvStandard.

std::int32_t fixedPoint(double weight)
{
    return static_cast<std::int32_t>(std::lround(weight * (1 << yuvFractionBits)));
}

} // namespace

YuvWeights yuvWeights(YuvStandard standard, unsigned depth)
{
    const LumaShares shares = lumaShares[static_cast<std::size_t>(standard)];
    const double greenShare = 1 - shares.red - shares.blue;
    const bool isFull = standard == YuvStandard::Bt601Full;
    const double maximum = (1 << depth) - 1;
    const double unit = 1 << (depth - 8);
    const double lumaScale = isFull ? 1 : maximum / (219 * unit);
    const double chromaScale = isFull ? 1 : maximum / (224 * unit);
    const double redV = 2 * (1 - shares.red) * chromaScale;
    const double blueU = 2 * (1 - shares.blue) * chromaScale;
    return {fixedPoint(lumaScale), fixedPoint(redV), fixedPoint(-blueU * shares.blue / greenShare),
        fixedPoint(-redV * shares.red / greenShare), fixedPoint(blueU), isFull ? 0 : 16 << (depth - 8),
        1 << (depth - 1), (1 << depth) - 1};
}
