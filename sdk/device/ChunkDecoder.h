#pragma once

#include "CvxCPP/Image.h"
#include "sdk/protocol/DeviceMessages.h"
#include "sdk/protocol/StreamRing.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Extracts the values of chunk features from the chunks of an image.
class ChunkDecoder
{
public:
    explicit ChunkDecoder(std::vector<ChunkFeature> features) : m_features(std::move(features)) { }

    /// Returns the features whose chunks the image has. `buffer` is the memory to which the positions refer;
    /// every chunk must be in it.
    std::vector<CvxCPP::ChunkValue> decode(
        const std::uint8_t *buffer, const ChunkPosition *chunks, std::size_t count) const;

private:
    const std::vector<ChunkFeature> m_features;
};
