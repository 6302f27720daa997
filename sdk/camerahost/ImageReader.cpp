#include "sdk/camerahost/ImageReader.h"

#include "sdk/camerahost/ChunkTrailers.h"

#include <algorithm>

namespace {

constexpr std::uint64_t nanosecondsPerSecond = 1000000000;
constexpr std::uint64_t maxTicksPerSecond = 18000000000; // Beyond this, the conversion would overflow.

} // namespace

ImageReader::ImageReader(const DeviceLibrary &library, GenTL::DS_HANDLE stream,
    const AnnouncedBuffers &buffers, const ImageSetup &setup)
    : m_library(library),
      m_stream(stream),
      m_buffers(buffers),
      m_setup(setup),
      m_pictures(setup.configured),
      m_layout(setup.configured)
{ }

std::optional<std::uint64_t> ImageReader::read(std::uint32_t buffer, ImageRecord &record)
{
    const BufferInfo info(m_library, m_stream, m_buffers.handle(buffer), m_unsupported);
    const std::uint64_t capacity = m_buffers.capacity(buffer);
    // About an incomplete buffer, nothing else is asked: some producers then fail or return nonsense.
    const bool isIncomplete = info.number(GenTL::BUFFER_INFO_IS_INCOMPLETE) != 0;
    const InfoNumber frameId = info.read(GenTL::BUFFER_INFO_FRAMEID);
    std::uint64_t filled = info.number(GenTL::BUFFER_INFO_SIZE_FILLED);
    if (filled == 0 && !isIncomplete)
        filled = info.number(GenTL::BUFFER_INFO_DATA_SIZE);
    if (filled == 0 || filled > capacity)
        filled = capacity;

    record.frameId = frameId.valueOr(0);
    record.isComplete = !isIncomplete;
    record.chunkCount = 0;
    record.timestamp = timestamp(isIncomplete ? std::nullopt : cameraTime(info));
    if (!isIncomplete)
        m_layout = m_pictures.read(info, m_buffers.data(buffer), filled);
    else
        m_layout.received = filled - std::min(filled, m_layout.imageOffset);
    setLayout(m_layout, record);
    if (m_setup.hasChunks && record.isComplete)
        readChunks(info, buffer, filled, record);
    m_buffers.copyToStream(buffer, isIncomplete ? capacity : filled);
    return frameId.isKnown() ? std::optional(frameId.value) : std::nullopt;
}

void ImageReader::setLayout(const PictureLayout &layout, ImageRecord &record) const
{
    const std::uint64_t size = layout.picture.size();
    record.imageOffset = layout.imageOffset;
    record.imageSize = size > 0 ? std::min(size, layout.received) : layout.received;
    record.width = layout.picture.width;
    record.height = layout.picture.height;
    record.offsetX = layout.offsetX;
    record.offsetY = layout.offsetY;
    record.paddingX = layout.picture.paddingX;
    record.paddingY = layout.picture.paddingY;
    record.pixelFormat = layout.picture.pixelFormat;
    record.isBigEndian = layout.isBigEndian;
}

void ImageReader::readChunks(
    const BufferInfo &info, std::uint32_t buffer, std::uint64_t filled, ImageRecord &record) const
{
    // Producers before GenTL 1.4 do not know the command.
    const InfoNumber hasChunks = info.read(GenTL::BUFFER_INFO_CONTAINS_CHUNKDATA);
    const std::uint64_t payloadType = info.number(GenTL::BUFFER_INFO_PAYLOADTYPE);
    const bool isChunkPayload
        = payloadType == GenTL::PAYLOAD_TYPE_CHUNK_DATA || payloadType == GenTL::PAYLOAD_TYPE_CHUNK_ONLY;
    if (hasChunks.isKnown() ? hasChunks.value == 0 : !isChunkPayload)
        return;
    std::size_t count = askForChunks(buffer, record);
    if (count == 0)
        count = findChunks(m_buffers.data(buffer), filled, record.chunks);
    record.chunkCount = static_cast<std::uint32_t>(count);
}

/// Asks the producer where the chunks are. Returns the number of chunks.
std::size_t ImageReader::askForChunks(std::uint32_t buffer, ImageRecord &record) const
{
    std::array<GenTL::SINGLE_CHUNK_DATA, ImageRecord::maxChunks> chunks{};
    std::size_t count = chunks.size();
    const bool isKnown = m_library.DSGetBufferChunkData
        && callQuietly(
               m_library.DSGetBufferChunkData, m_stream, m_buffers.handle(buffer), chunks.data(), &count)
            == GenTL::GC_ERR_SUCCESS;
    std::size_t used = 0;
    for (std::size_t index = 0; isKnown && index < std::min(count, chunks.size()); ++index) {
        const std::uint64_t offset = static_cast<std::uint64_t>(chunks[index].ChunkOffset);
        const std::uint64_t length = chunks[index].ChunkLength;
        const std::uint64_t capacity = m_buffers.capacity(buffer);
        if (offset <= capacity && length <= capacity - offset)
            record.chunks[used++] = {chunks[index].ChunkID, offset, length};
    }
    return used;
}

std::optional<std::uint64_t> ImageReader::cameraTime(const BufferInfo &info) const
{
    if (const std::uint64_t time = info.number(GenTL::BUFFER_INFO_TIMESTAMP_NS))
        return time;
    const std::uint64_t frequency = m_setup.ticksPerSecond;
    if (frequency == 0 || frequency > maxTicksPerSecond)
        return std::nullopt;
    const std::uint64_t ticks = info.number(GenTL::BUFFER_INFO_TIMESTAMP);
    if (ticks == 0)
        return std::nullopt;
    return ticks / frequency * nanosecondsPerSecond + ticks % frequency * nanosecondsPerSecond / frequency;
}

/// Returns the camera's time, or an estimate by our own clock.
std::uint64_t ImageReader::timestamp(std::optional<std::uint64_t> cameraTime)
{
    const auto now = std::chrono::nanoseconds(Clock::now().time_since_epoch());
    const auto ownTime = static_cast<std::uint64_t>(now.count());
    if (cameraTime)
        m_clockDifference = *cameraTime - ownTime;
    return ownTime + m_clockDifference;
}
