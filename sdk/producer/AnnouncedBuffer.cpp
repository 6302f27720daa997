#include "sdk/producer/AnnouncedBuffer.h"

#include "sdk/producer/LastError.h"

#include <algorithm>

using namespace GenTL;

namespace {

constexpr std::size_t chunkTrailerSize = 8; // ID and length.

GC_ERROR failNoData(const char *message)
{
    return fail(GC_ERR_NO_DATA, message);
}

std::uint64_t toNanoseconds(std::uint64_t ticks, std::uint64_t frequency)
{
    constexpr std::uint64_t second = 1'000'000'000;
    return ticks / frequency * second + ticks % frequency * second / frequency;
}

std::size_t chunkPayloadSize(const FilledImage &image)
{
    std::size_t size = 0;
    for (const SINGLE_CHUNK_DATA &chunk : image.chunks)
        size += chunk.ChunkLength + chunkTrailerSize;
    return size;
}

bool isInside(const SINGLE_CHUNK_DATA &chunk, std::size_t size)
{
    const auto offset = static_cast<std::size_t>(chunk.ChunkOffset); // A negative offset becomes very large.
    return offset <= size && chunk.ChunkLength <= size - offset;
}

/// Writes what describes the picture in the buffer, which must have one.
GC_ERROR writePictureInfo(const FilledImage &image, BUFFER_INFO_CMD command, const InfoOutput &output)
{
    switch (command) {
    case BUFFER_INFO_WIDTH:
        return output.writeSize(image.width);
    case BUFFER_INFO_HEIGHT:
    case BUFFER_INFO_DELIVERED_IMAGEHEIGHT:
        return output.writeSize(image.height);
    case BUFFER_INFO_XOFFSET:
        return output.writeSize(image.offsetX);
    case BUFFER_INFO_YOFFSET:
        return output.writeSize(image.offsetY);
    case BUFFER_INFO_XPADDING:
        return output.writeSize(image.paddingX);
    case BUFFER_INFO_YPADDING:
        return output.writeSize(image.paddingY);
    case BUFFER_INFO_IMAGEOFFSET:
        return output.writeSize(image.imageOffset);
    case BUFFER_INFO_PIXELFORMAT:
        return output.writeUint64(image.pixelFormat);
    case BUFFER_INFO_PIXELFORMAT_NAMESPACE:
        return output.writeUint64(PIXELFORMAT_NAMESPACE_PFNC_32BIT);
    case BUFFER_INFO_PIXEL_ENDIANNESS:
        return output.writeInt32(PIXELENDIANNESS_LITTLE);
    default:
        return failUnknownCommand(command);
    }
}

} // namespace

GC_ERROR writeBufferInfo(const AnnouncedBuffer &buffer, const StreamTraits &stream, BUFFER_INFO_CMD command,
    const InfoOutput &output)
{
    const FilledImage &image = buffer.image;
    const bool hasPicture = buffer.hasNewData && image.width > 0;
    switch (command) {
    case BUFFER_INFO_BASE:
        return output.writePointer(buffer.data);
    case BUFFER_INFO_SIZE:
        return output.writeSize(buffer.size);
    case BUFFER_INFO_USER_PTR:
        return output.writePointer(buffer.userPointer);
    case BUFFER_INFO_TIMESTAMP:
        return output.writeUint64(image.timestamp);
    case BUFFER_INFO_NEW_DATA:
        return output.writeBool8(buffer.hasNewData);
    case BUFFER_INFO_IS_QUEUED:
        return output.writeBool8(buffer.state != AnnouncedBuffer::State::Unqueued);
    case BUFFER_INFO_IS_ACQUIRING:
        return output.writeBool8(buffer.state == AnnouncedBuffer::State::Filling);
    case BUFFER_INFO_IS_INCOMPLETE:
        return output.writeBool8(image.isIncomplete);
    case BUFFER_INFO_TLTYPE:
        return output.writeString(stream.tlType);
    case BUFFER_INFO_SIZE_FILLED:
        return output.writeSize(image.sizeFilled);
    case BUFFER_INFO_FRAMEID:
        return output.writeUint64(image.frameId);
    case BUFFER_INFO_IMAGEPRESENT:
        return output.writeBool8(hasPicture);
    case BUFFER_INFO_PAYLOADTYPE:
        return output.writeSize(buffer.hasNewData ? image.payloadType : PAYLOAD_TYPE_UNKNOWN);
    case BUFFER_INFO_DELIVERED_CHUNKPAYLOADSIZE:
        return output.writeSize(chunkPayloadSize(image));
    case BUFFER_INFO_CHUNKLAYOUTID:
        return output.writeUint64(0); // Unknown.
    case BUFFER_INFO_FILENAME:
        return failNoData("The buffer does not contain a file.");
    case BUFFER_INFO_DATA_SIZE:
        return output.writeSize(image.dataSize);
    case BUFFER_INFO_TIMESTAMP_NS:
        return stream.timestampFrequency > 0
            ? output.writeUint64(toNanoseconds(image.timestamp, stream.timestampFrequency))
            : fail(GC_ERR_NOT_AVAILABLE, "The camera has no clock.");
    case BUFFER_INFO_DATA_LARGER_THAN_BUFFER:
        return output.writeBool8(image.dataSize > buffer.size);
    case BUFFER_INFO_CONTAINS_CHUNKDATA:
        return output.writeBool8(!image.chunks.empty());
    case BUFFER_INFO_WIDTH:
    case BUFFER_INFO_HEIGHT:
    case BUFFER_INFO_XOFFSET:
    case BUFFER_INFO_YOFFSET:
    case BUFFER_INFO_XPADDING:
    case BUFFER_INFO_YPADDING:
    case BUFFER_INFO_IMAGEOFFSET:
    case BUFFER_INFO_PIXELFORMAT:
    case BUFFER_INFO_PIXELFORMAT_NAMESPACE:
    case BUFFER_INFO_DELIVERED_IMAGEHEIGHT:
    case BUFFER_INFO_PIXEL_ENDIANNESS:
        return hasPicture ? writePictureInfo(image, command, output)
                          : failNoData("The buffer does not contain a picture.");
    default:
        return failUnknownCommand(command);
    }
}

GC_ERROR writeChunks(const AnnouncedBuffer &buffer, SINGLE_CHUNK_DATA *chunks, std::size_t *count)
{
    const std::vector<SINGLE_CHUNK_DATA> &found = buffer.image.chunks;
    if (found.empty())
        return failNoData("The buffer does not contain chunks.");
    if (!std::all_of(found.begin(), found.end(),
            [&](const SINGLE_CHUNK_DATA &chunk) { return isInside(chunk, buffer.size); }))
        return fail(GC_ERR_PARSING_CHUNK_DATA, "A chunk lies outside the buffer.");
    if (chunks && *count < found.size())
        return fail(
            GC_ERR_BUFFER_TOO_SMALL, "The buffer contains " + std::to_string(found.size()) + " chunks.");
    if (chunks)
        std::copy(found.begin(), found.end(), chunks);
    *count = found.size();
    return GC_ERR_SUCCESS;
}
