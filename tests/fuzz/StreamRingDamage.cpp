// Takes images from a stream whose host has written arbitrary bytes to the shared memory.

#include "sdk/device/ImageQueue.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint32_t buffers = 4;
constexpr std::uint64_t bufferSize = 4096;

/// Takes values from the front of the input; after its end, they are 0.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size) : m_data(data), m_size(size) { }

    void copyTo(void *target, std::size_t size)
    {
        const std::size_t count = std::min(size, m_size);
        std::memcpy(target, m_data, count);
        m_data += count;
        m_size -= count;
    }

    template <typename Number>
    Number next()
    {
        Number number{};
        copyTo(&number, sizeof number);
        return number;
    }

    std::size_t size() const { return m_size; }

private:
    const std::uint8_t *m_data;
    std::size_t m_size;
};

ChunkFeature nextFeature(Input &input)
{
    ChunkFeature feature;
    feature.type = static_cast<CvxCPP::NodeType>(input.next<std::uint8_t>() % 8U);
    feature.chunkId = input.next<std::uint8_t>();
    feature.address = input.next<std::uint64_t>();
    feature.length = input.next<std::uint32_t>();
    feature.isBigEndian = input.next<std::uint8_t>() % 2U != 0;
    feature.isSigned = input.next<std::uint8_t>() % 2U != 0;
    feature.lowestBit = input.next<std::uint32_t>();
    feature.highestBit = input.next<std::uint32_t>();
    return feature;
}

/// Hands over two buffers with records from the input, then overwrites a part of the ring.
void damage(StreamRing &ring, Input &input)
{
    for (int i = 0; i < 2; ++i) {
        const std::uint32_t buffer = input.next<std::uint8_t>() % (buffers + 1);
        input.copyTo(&ring.record(buffer), sizeof(ImageRecord));
        ring.push(buffer);
    }
    const std::size_t start = input.next<std::uint32_t>() % sizeof(StreamRing);
    input.copyTo(reinterpret_cast<std::uint8_t *>(&ring) + start, sizeof(StreamRing) - start);
}

void read(const CvxCPP::Image &image)
{
    require(image.GetSize() <= bufferSize, "a picture is not larger than a buffer");
    volatile std::uint8_t last = 0; // Reading behind the memory of the stream would end the process.
    for (std::size_t i = 0; i < image.GetSize(); ++i)
        last = image.GetData()[i];
    static_cast<void>(last);
    require(image.GetChunks().size() <= 1, "one feature has at most one value");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const auto memory = StreamMemory::create(buffers, bufferSize);
    require(memory != nullptr, "the memory of a stream can be created");
    const auto policy = static_cast<CvxCPP::StreamPolicy>(input.next<std::uint8_t>() % 2U);
    const auto decoder = std::make_shared<ChunkDecoder>(std::vector<ChunkFeature>{nextFeature(input)});
    const ImageQueue queue(memory, decoder, policy);
    damage(memory->ring(), input);

    std::vector<std::shared_ptr<const CvxCPP::Image>> held;
    for (std::uint32_t i = 0; i <= buffers; ++i) {
        const ImageQueue::Taken taken = queue.take();
        if (!taken.image)
            break;
        read(*taken.image);
        held.push_back(taken.image);
    }
    require(held.size() <= buffers, "no buffer is handed out twice");
    return 0;
}
