#include "sdk/image/ClippingRange.h"

#include <algorithm>

namespace {

constexpr ClippingRange limitedLuma = {16, 235};

ClippingRange fullRange(unsigned depth, Number number)
{
    const unsigned bits = std::min(depth, 16U);
    if (number == Number::Signed)
        return {static_cast<std::uint16_t>(0xFFFFU << (bits - 1)),
            static_cast<std::uint16_t>((1U << (bits - 1)) - 1)};
    return {0, static_cast<std::uint16_t>((1U << bits) - 1)};
}

} // namespace

ClippingRange clippingRange(const PixelLayout &layout, unsigned component)
{
    const bool isLuma = layout.format.kind == PixelKind::Yuv && component == 0;
    if (isLuma && layout.standard != YuvStandard::Bt601Full)
        return limitedLuma;
    if (layout.packing == Packing::Rgb565 && component != 1) // Only green has six bits.
        return fullRange(5, layout.number);
    return fullRange(layout.format.depth, layout.number);
}
