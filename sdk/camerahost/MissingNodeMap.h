#pragma once

#include "sdk/camerahost/NodeMap.h"

#include <string>

/// Stands in for the node map of a camera whose register description cannot be used. It has no nodes, and all
/// its functions fail. The camera can still stream if the producer knows the size of the images.
class MissingNodeMap : public NodeMap
{
public:
    /// @param reason A text for people, which is the text of all failures.
    explicit MissingNodeMap(std::string reason);

    const std::vector<CvxCPP::NodeInfo> &nodes() const override { return m_nodes; }
    std::variant<CvxCPP::NodeState, Failure> state(const std::string &name) override;
    std::variant<CvxCPP::NodeValue, Failure> read(const std::string &name) override;
    std::optional<Failure> write(const std::string &name, const CvxCPP::NodeValue &value) override;
    std::vector<std::string> dependents(const std::string &) const override { return {}; }
    std::optional<std::int64_t> readInteger(const std::string &) override { return std::nullopt; }
    bool writeInteger(const std::string &, std::int64_t) override { return false; }
    bool execute(const std::string &) override { return false; }
    std::vector<ChunkFeature> chunkFeatures() override { return {}; }
    void setWatching(bool) override { }
    void setStreaming(bool) override { }

private:
    const std::vector<CvxCPP::NodeInfo> m_nodes;
    const Failure m_failure;
};
