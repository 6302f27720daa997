// Uses the input as the register description of a camera, which may be zipped, and reads and writes all its
// features.

#include "sdk/camerahost/DescriptionArchive.h"
#include "sdk/camerahost/DescriptionText.h"
#include "sdk/camerahost/NodeMap.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <set>

using namespace CvxCPP;

namespace {

constexpr std::size_t maxDescriptionSize = 1 << 20; // In bytes.

/// Registers with all kinds of numbers, small, negative and extreme ones. Some addresses cannot be accessed.
class Registers : public RegisterPort
{
public:
    Registers()
    {
        for (std::size_t i = 0; i < m_bytes.size(); ++i)
            m_bytes[i] = static_cast<std::uint8_t>(i % 16 < 4 ? i / 16 : i % 32 < 16 ? 0 : 0xFF);
    }

    std::optional<Problem> read(std::uint64_t address, void *data, std::size_t size) override
    {
        return access(address, size,
            [&](std::size_t at, std::size_t i) { static_cast<std::uint8_t *>(data)[i] = m_bytes[at]; });
    }

    std::optional<Problem> write(std::uint64_t address, const void *data, std::size_t size) override
    {
        return access(address, size,
            [&](std::size_t at, std::size_t i) { m_bytes[at] = static_cast<const std::uint8_t *>(data)[i]; });
    }

private:
    template <typename Step>
    std::optional<Problem> access(std::uint64_t address, std::size_t size, const Step &step)
    {
        require(size > 0 && size <= 16 << 20, "an access has a reasonable size");
        if (address >= 0xF000 && address < 0xFF00)
            return Problem{"GCReadPort", -1010, ""};
        for (std::size_t i = 0; i < size; ++i)
            step((address + i) % m_bytes.size(), i);
        return std::nullopt;
    }

    std::array<std::uint8_t, 4096> m_bytes{};
};

std::string descriptionOf(std::string bytes)
{
    if (isZipArchive(bytes)) {
        auto extracted = extractDescription(bytes, maxDescriptionSize);
        if (auto *const description = std::get_if<std::string>(&extracted))
            bytes = std::move(*description);
        require(bytes.size() <= maxDescriptionSize, "a description is not larger than allowed");
    }
    auto tidied = tidyDescription(bytes);
    const auto *const description = std::get_if<std::string>(&tidied);
    return description ? *description : bytes;
}

void requireNodes(const NodeMap &map)
{
    std::set<std::string> names{""};
    for (const NodeInfo &node : map.nodes()) {
        require(names.count(node.category) > 0, "a node comes after its category");
        require(names.insert(node.name).second, "a node is listed once");
    }
}

void useNode(NodeMap &map, const NodeInfo &node)
{
    const auto result = map.state(node.name);
    const auto *const state = std::get_if<NodeState>(&result);
    require(state != nullptr, "a listed node has a state");
    const bool hasReason = state->lockReason != LockReason::None;
    const bool isAbsent
        = state->access == NodeAccess::NotImplemented || state->access == NodeAccess::NotAvailable;
    require(hasReason || !isAbsent, "an absent node has a reason");
    map.read(node.name);
    const auto failure = map.write(node.name, state->value);
    require(failure || !hasReason, "a locked node is not written");
    require(!failure || !failure->text.empty(), "a failure has a text");
    map.write(node.name, std::int64_t(1));
    map.write(node.name, state->maximum);
    map.dependents(node.name);
    map.readInteger(node.name);
    map.writeInteger(node.name, -1);
    map.execute(node.name);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Registers registers;
    const auto result = NodeMap::create(registers, descriptionOf(textOf(data, size)));
    const auto *const map = std::get_if<std::unique_ptr<NodeMap>>(&result);
    if (!map) {
        require(!std::get<NodeMap::Failure>(result).text.empty(), "a failure has a text");
        return 0;
    }
    requireNodes(**map);
    for (const NodeInfo &node : (*map)->nodes())
        useNode(**map, node);
    (*map)->chunkFeatures();
    return 0;
}
