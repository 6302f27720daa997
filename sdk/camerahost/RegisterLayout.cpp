#include "sdk/camerahost/RegisterLayout.h"

#include <algorithm>

bool isBigEndian(const NodeDescription &node)
{
    return node.properties.text(PropertyKind::Endianness) == "BigEndian";
}

bool isSigned(const NodeDescription &node)
{
    return node.properties.text(PropertyKind::Sign) == "Signed";
}

std::optional<std::int64_t> fixedLength(const NodeDescription &node)
{
    const NodeProperty *const length = node.properties.find(PropertyKind::Length);
    if (!length || node.properties.has(PropertyKind::PLength))
        return std::nullopt;
    return parseInteger(length->text);
}

std::optional<BitRange> bitRange(const NodeDescription &node, std::uint32_t length)
{
    const std::uint32_t bits = 8 * length;
    if (node.kind != NodeKind::MaskedIntReg)
        return BitRange{0, bits - 1};
    const bool isOneBit = node.properties.has(PropertyKind::Bit);
    const auto first
        = parseInteger(node.properties.text(isOneBit ? PropertyKind::Bit : PropertyKind::LowestBit));
    const auto last
        = parseInteger(node.properties.text(isOneBit ? PropertyKind::Bit : PropertyKind::HighestBit));
    if (!first || !last)
        return std::nullopt;
    const auto [low, high] = std::minmax(*first, *last); // Descriptions confuse the two.
    if (low < 0 || high >= bits)
        return std::nullopt;
    const BitRange range{static_cast<std::uint32_t>(low), static_cast<std::uint32_t>(high)};
    return isBigEndian(node) ? BitRange{bits - 1 - range.highest, bits - 1 - range.lowest} : range;
}
