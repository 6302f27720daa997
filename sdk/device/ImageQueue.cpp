#include "sdk/device/ImageQueue.h"

#include "sdk/device/ImageObject.h"

#include <optional>
#include <utility>

using namespace CvxCPP;

ImageQueue::ImageQueue(
    std::shared_ptr<StreamMemory> memory, std::shared_ptr<const ChunkDecoder> decoder, StreamPolicy policy)
    : m_memory(std::move(memory)), m_decoder(std::move(decoder)), m_policy(policy)
{ }

ImageQueue::Taken ImageQueue::take() const
{
    static constexpr char damagedQueue[] = "has damaged the queue of the images";
    StreamRing &ring = m_memory->ring();
    if (!ring.isPlausible())
        return {nullptr, 0, damagedQueue};
    std::optional<std::uint32_t> newest;
    std::uint64_t skipped = 0;
    // A fast camera may fill the queue again while it is drained, so the loop ends after all buffers.
    const std::uint32_t count = m_policy == StreamPolicy::NewestImage ? m_memory->buffers() : 1;
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto buffer = ring.pop();
        if (!buffer)
            break;
        if (!m_memory->claim(*buffer))
            return {nullptr, skipped, damagedQueue};
        if (newest) {
            m_memory->release(*newest);
            ++skipped;
        }
        newest = buffer;
    }
    if (!newest)
        return {};
    Taken result = taken(*newest);
    result.skipped = skipped;
    return result;
}

/// Makes the image of a claimed buffer.
ImageQueue::Taken ImageQueue::taken(std::uint32_t buffer) const
{
    const auto record = m_memory->record(buffer);
    if (!record)
        return {nullptr, 0, "has damaged the description of an image"};
    return {std::make_shared<ImageObject>(m_memory, buffer, *record, m_decoder), 0, {}};
}
