#include "tests/camerahost/NodeMapHarness.h"

#include <cstring>
#include <gtest/gtest.h>

std::optional<Problem> MemoryPort::check(const char *call, std::uint64_t address, std::size_t size)
{
    ++accesses;
    if (failingAddresses.count(address) || size > bytes.size() || address > bytes.size() - size)
        return Problem{call, -1010, "no answer"};
    return std::nullopt;
}

std::optional<Problem> MemoryPort::read(std::uint64_t address, void *data, std::size_t size)
{
    auto problem = check("GCReadPort", address, size);
    if (!problem)
        std::memcpy(data, bytes.data() + address, size);
    return problem;
}

std::optional<Problem> MemoryPort::write(std::uint64_t address, const void *data, std::size_t size)
{
    auto problem = check("GCWritePort", address, size);
    if (!problem)
        std::memcpy(bytes.data() + address, data, size);
    return problem;
}

std::string describeCamera(const std::vector<std::string> &features, const std::string &nodes)
{
    std::string category;
    for (const std::string &feature : features)
        category += "<pFeature>" + feature + "</pFeature>";
    return "<?xml version=\"1.0\"?><RegisterDescription ModelName=\"Test\">"
        + element("Category", "Root", category) + nodes + element("Port", "Device", "")
        + "</RegisterDescription>";
}

std::string element(const std::string &kind, const std::string &name, const std::string &content)
{
    return '<' + kind + " Name=\"" + name + "\">" + content + "</" + kind + '>';
}

std::string registerAt(unsigned address, unsigned length)
{
    return "<Address>" + std::to_string(address) + "</Address><Length>" + std::to_string(length)
        + "</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>";
}

NodeMapHarness::NodeMapHarness(const std::vector<std::string> &features, const std::string &nodes)
{
    auto result = NodeMap::create(port, describeCamera(features, nodes));
    if (auto *const created = std::get_if<std::unique_ptr<NodeMap>>(&result))
        map = std::move(*created);
    else
        throw std::runtime_error(std::get<NodeMap::Failure>(result).text);
}

CvxCPP::NodeState NodeMapHarness::state(const std::string &name)
{
    auto result = map->state(name);
    if (const auto *const failure = std::get_if<NodeMap::Failure>(&result)) {
        ADD_FAILURE() << failure->text;
        return {};
    }
    return std::get<CvxCPP::NodeState>(result);
}

CvxCPP::NodeValue NodeMapHarness::read(const std::string &name)
{
    auto result = map->read(name);
    if (const auto *const failure = std::get_if<NodeMap::Failure>(&result)) {
        ADD_FAILURE() << failure->text;
        return {};
    }
    return std::get<CvxCPP::NodeValue>(result);
}

void NodeMapHarness::write(const std::string &name, const CvxCPP::NodeValue &value)
{
    if (const auto failure = map->write(name, value))
        ADD_FAILURE() << failure->text;
}

NodeMap::Failure NodeMapHarness::writeFailure(const std::string &name, const CvxCPP::NodeValue &value)
{
    const auto failure = map->write(name, value);
    EXPECT_TRUE(failure) << name << " was written";
    return failure.value_or(NodeMap::Failure());
}
