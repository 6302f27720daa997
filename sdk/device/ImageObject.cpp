#include "sdk/device/ImageObject.h"

#include <utility>

using namespace CvxCPP;

namespace {

ImageInfo infoOf(const ImageRecord &record)
{
    ImageInfo info;
    info.width = record.width;
    info.height = record.height;
    info.offsetX = record.offsetX;
    info.offsetY = record.offsetY;
    info.paddingX = record.paddingX;
    info.paddingY = record.paddingY;
    info.pixelFormat = record.pixelFormat;
    info.isBigEndian = record.isBigEndian != 0;
    info.isComplete = record.isComplete != 0;
    info.timestamp = record.timestamp;
    info.receivedAt = record.receivedAt;
    info.frameId = record.frameId;
    return info;
}

} // namespace

ImageObject::ImageObject(std::shared_ptr<StreamMemory> memory, std::uint32_t buffer,
    const ImageRecord &record, std::shared_ptr<const ChunkDecoder> decoder)
    : m_memory(std::move(memory)),
      m_buffer(buffer),
      m_record(record),
      m_decoder(std::move(decoder)),
      m_info(infoOf(record))
{ }

ImageObject::~ImageObject()
{
    m_memory->release(m_buffer);
}

const std::uint8_t *ImageObject::GetData() const
{
    return m_memory->buffer(m_buffer) + m_record.imageOffset;
}

std::vector<ChunkValue> ImageObject::GetChunks() const
{
    return m_decoder->decode(m_memory->buffer(m_buffer), m_record.chunks.data(), m_record.chunkCount);
}
