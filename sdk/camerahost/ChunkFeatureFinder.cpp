#include "sdk/camerahost/ChunkFeatureFinder.h"

#include "sdk/camerahost/RegisterLayout.h"

#include <algorithm>
#include <charconv>

using namespace CvxCPP;

namespace {

/// Parses an ID as descriptions write it: hexadecimal digits, with or without "0x".
std::optional<std::uint64_t> parseChunkId(std::string_view text)
{
    if (text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X")
        text.remove_prefix(2);
    std::uint64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id, 16);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return id;
}

template <typename Value>
std::optional<Value> valueOf(const AccessResult<Value> &result)
{
    const auto *const value = std::get_if<Value>(&result);
    return value ? std::optional<Value>(*value) : std::nullopt;
}

} // namespace

std::vector<ChunkFeature> ChunkFeatureFinder::find()
{
    std::vector<ChunkFeature> features;
    for (const NodeIndex node : m_list.indices()) {
        if (!m_references.isUsable(node) || !m_references.usesImage(node))
            continue;
        if (auto feature = makeFeature(node))
            features.push_back(*std::move(feature));
    }
    return features;
}

std::optional<ChunkFeature> ChunkFeatureFinder::makeFeature(NodeIndex index)
{
    const NodeDescription &node = m_description[index];
    const std::vector<NodeIndex> chain = m_engine.valueChain(index);
    const NodeDescription &reg = m_description[chain.back()];
    const bool isComputed = std::any_of(
        chain.begin(), chain.end(), [this](NodeIndex link) { return isFormula(m_description[link].kind); });
    if (isComputed || !isRegister(reg.kind) || reg.kind == NodeKind::Register)
        return std::nullopt;
    const auto id = chunkId(reg);
    const auto address = valueOf(m_engine.readAddress(chain.back()));
    const auto length = valueOf(m_engine.readLength(chain.back()));
    if (!id || !address || !length)
        return std::nullopt;

    ChunkFeature feature;
    feature.name = node.name;
    feature.type = *nodeType(node.kind);
    feature.chunkId = *id;
    feature.address = *address;
    feature.length = static_cast<std::uint32_t>(*length);
    feature.isBigEndian = isBigEndian(reg);
    if (reg.kind == NodeKind::IntReg || reg.kind == NodeKind::MaskedIntReg) {
        feature.isSigned = isSigned(reg);
        const auto bits = bitRange(reg, feature.length).value_or(BitRange());
        feature.lowestBit = bits.lowest;
        feature.highestBit = bits.highest;
    }
    for (const EntryDescription &entry : node.entries)
        feature.entries.push_back({entry.name, entry.name, entry.value()});
    return feature;
}

std::optional<std::uint64_t> ChunkFeatureFinder::chunkId(const NodeDescription &reg)
{
    const auto port = m_description.find(reg.properties.text(PropertyKind::PPort));
    if (!port)
        return std::nullopt;
    const PropertyList &properties = m_description[*port].properties;
    if (const NodeProperty *const id = properties.find(PropertyKind::ChunkId))
        return parseChunkId(id->text);
    const auto node = m_description.find(properties.text(PropertyKind::PChunkId));
    const auto id = node ? valueOf(m_engine.readInteger(*node)) : std::nullopt;
    return id ? std::optional(static_cast<std::uint64_t>(*id)) : std::nullopt;
}
