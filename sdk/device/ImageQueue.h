#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/ChunkDecoder.h"
#include "sdk/device/StreamMemory.h"

#include <cstdint>
#include <memory>
#include <string>

/// Takes images out of the ring of one stream and checks everything that the host has written there.
class ImageQueue
{
public:
    ImageQueue(std::shared_ptr<StreamMemory> memory, std::shared_ptr<const ChunkDecoder> decoder,
        CvxCPP::StreamPolicy policy);

    struct Taken
    {
        std::shared_ptr<const CvxCPP::Image> image; ///< Null if no image has arrived.
        std::uint64_t skipped = 0; ///< Number of older images that were released.
        std::string damage; ///< What the host has damaged; empty if all is well.
    };

    /// Takes the oldest or the newest image, depending on the policy. Several threads may call this function.
    Taken take() const;

    StreamMemory &memory() const { return *m_memory; }

private:
    Taken taken(std::uint32_t buffer) const;

    const std::shared_ptr<StreamMemory> m_memory;
    const std::shared_ptr<const ChunkDecoder> m_decoder;
    const CvxCPP::StreamPolicy m_policy;
};
