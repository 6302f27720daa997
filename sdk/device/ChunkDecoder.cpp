#include "sdk/device/ChunkDecoder.h"

#include "sdk/text/Utf8.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>

using namespace CvxCPP;

namespace {

constexpr std::uint32_t numberSize = sizeof(std::uint64_t);

/// Returns the bytes as one number. There are at most eight.
std::uint64_t bitsOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    std::uint64_t number = 0;
    for (std::uint32_t i = 0; i < feature.length; ++i)
        number = number << 8U | bytes[feature.isBigEndian ? i : feature.length - 1 - i];
    return number;
}

NodeValue integerOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    if (feature.length == 0 || feature.length > numberSize)
        return {};
    const std::uint32_t highest = std::min(feature.highestBit, feature.length * 8 - 1);
    if (feature.lowestBit > highest)
        return {};
    const std::uint32_t unused = numberSize * 8 - 1 - highest; // Bits above the value.
    const std::uint64_t number = bitsOf(feature, bytes) << unused;
    const std::uint32_t shift = unused + feature.lowestBit;
    if (feature.isSigned) // Shifting a negative number to the right repeats its sign.
        return static_cast<std::int64_t>(number) >> shift;
    return static_cast<std::int64_t>(number >> shift);
}

template <typename Float, typename Bits>
NodeValue floatOf(std::uint64_t number)
{
    const auto bits = static_cast<Bits>(number);
    Float value = 0;
    static_assert(sizeof value == sizeof bits);
    std::memcpy(&value, &bits, sizeof value);
    return static_cast<double>(value);
}

NodeValue floatOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    if (feature.length == sizeof(float))
        return floatOf<float, std::uint32_t>(bitsOf(feature, bytes));
    if (feature.length == sizeof(double))
        return floatOf<double, std::uint64_t>(bitsOf(feature, bytes));
    return {};
}

NodeValue booleanOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    const NodeValue number = integerOf(feature, bytes);
    if (const auto *integer = std::get_if<std::int64_t>(&number))
        return *integer != 0;
    return {};
}

NodeValue entryOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    const NodeValue number = integerOf(feature, bytes);
    for (const EnumerationEntry &entry : feature.entries) {
        if (number == NodeValue(entry.value))
            return entry.name;
    }
    return {};
}

NodeValue stringOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    const std::uint8_t *const end = std::find(bytes, bytes + feature.length, std::uint8_t(0));
    return toValidUtf8(std::string(bytes, end));
}

NodeValue noValue(const ChunkFeature &, const std::uint8_t *)
{
    return {};
}

NodeValue valueOf(const ChunkFeature &feature, const std::uint8_t *bytes)
{
    // One conversion for each type, in the order of the enumeration.
    static constexpr NodeValue (*conversions[])(const ChunkFeature &, const std::uint8_t *)
        = {noValue, integerOf, floatOf, booleanOf, entryOf, stringOf, noValue, noValue};
    static_assert(std::size(conversions) == static_cast<std::size_t>(NodeType::Register) + 1);
    return conversions[static_cast<std::size_t>(feature.type)](feature, bytes);
}

} // namespace

std::vector<ChunkValue> ChunkDecoder::decode(
    const std::uint8_t *buffer, const ChunkPosition *chunks, std::size_t count) const
{
    std::vector<ChunkValue> values;
    for (const ChunkFeature &feature : m_features) {
        const auto *const chunk = std::find_if(chunks, chunks + count,
            [&](const ChunkPosition &position) { return position.id == feature.chunkId; });
        if (chunk == chunks + count || feature.address > chunk->length
            || feature.length > chunk->length - feature.address)
            continue;
        NodeValue value = valueOf(feature, buffer + chunk->offset + feature.address);
        if (!std::holds_alternative<std::monostate>(value))
            values.push_back({feature.name, std::move(value)});
    }
    return values;
}
