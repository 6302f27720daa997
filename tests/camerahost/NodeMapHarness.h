#pragma once

#include "sdk/camerahost/NodeMap.h"

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

/// Registers in memory. Accesses to the failing addresses, and beyond the end, return a problem.
class MemoryPort : public RegisterPort
{
public:
    std::optional<Problem> read(std::uint64_t address, void *data, std::size_t size) override;
    std::optional<Problem> write(std::uint64_t address, const void *data, std::size_t size) override;

    std::array<std::uint8_t, 4096> bytes{};
    std::set<std::uint64_t> failingAddresses;
    unsigned accesses = 0;

private:
    std::optional<Problem> check(const char *call, std::uint64_t address, std::size_t size);
};

/// Returns a register description: these features in the root category, these nodes, and the port "Device".
std::string describeCamera(const std::vector<std::string> &features, const std::string &nodes);

/// Returns an element with a name.
std::string element(const std::string &kind, const std::string &name, const std::string &content);

/// Returns the content of a register that can be read and written, little-endian and unsigned. The content
/// may be followed by more elements.
std::string registerAt(unsigned address, unsigned length = 4);

/// A node map over registers in memory.
class NodeMapHarness
{
public:
    /// Fails the current test if the description cannot be used.
    NodeMapHarness(const std::vector<std::string> &features, const std::string &nodes);

    MemoryPort port;
    std::unique_ptr<NodeMap> map;

    // These functions fail the current test if the call fails.
    CvxCPP::NodeState state(const std::string &name);
    CvxCPP::NodeValue read(const std::string &name);
    void write(const std::string &name, const CvxCPP::NodeValue &value);

    /// Returns the failure of a write, or fails the current test.
    NodeMap::Failure writeFailure(const std::string &name, const CvxCPP::NodeValue &value);
};

/// Returns a value for comparisons, with the type of an integer in NodeValue.
inline CvxCPP::NodeValue integer(std::int64_t value)
{
    return value;
}

inline CvxCPP::NodeValue text(const char *value)
{
    return std::string(value);
}
