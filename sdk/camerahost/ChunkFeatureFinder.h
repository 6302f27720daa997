#pragma once

#include "sdk/camerahost/NodeEngine.h"
#include "sdk/camerahost/NodeList.h"
#include "sdk/protocol/DeviceMessages.h"

#include <optional>
#include <vector>

/// Finds the features whose registers are in the chunks that the camera appends to its images.
class ChunkFeatureFinder
{
public:
    /// All must exist as long as this object.
    ChunkFeatureFinder(const Description &description, const NodeReferences &references, const NodeList &list,
        NodeEngine &engine)
        : m_description(description), m_references(references), m_list(list), m_engine(engine)
    { }

    /// Returns the features, whether or not the camera appends the chunks at present. Leaves out features
    /// whose value is computed by a formula.
    std::vector<ChunkFeature> find();

private:
    std::optional<ChunkFeature> makeFeature(NodeIndex node);
    std::optional<std::uint64_t> chunkId(const NodeDescription &reg);

    const Description &m_description;
    const NodeReferences &m_references;
    const NodeList &m_list;
    NodeEngine &m_engine;
};
