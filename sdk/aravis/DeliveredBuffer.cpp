#include "sdk/aravis/DeliveredBuffer.h"

#include "sdk/aravis/AravisError.h"

#include <algorithm>
#include <iterator>

namespace {

struct PayloadTranslation
{
    ArvBufferPayloadType aravisType;
    std::size_t genTlType;
};

// A type that is not in the table is unknown.
constexpr PayloadTranslation payloadTranslations[] = {
    {ARV_BUFFER_PAYLOAD_TYPE_IMAGE, GenTL::PAYLOAD_TYPE_IMAGE},
    {ARV_BUFFER_PAYLOAD_TYPE_MULTIZONE_IMAGE, GenTL::PAYLOAD_TYPE_IMAGE},
    {ARV_BUFFER_PAYLOAD_TYPE_MULTIPART, GenTL::PAYLOAD_TYPE_IMAGE}, // The first picture.
    {ARV_BUFFER_PAYLOAD_TYPE_RAWDATA, GenTL::PAYLOAD_TYPE_RAW_DATA},
    {ARV_BUFFER_PAYLOAD_TYPE_FILE, GenTL::PAYLOAD_TYPE_FILE},
    {ARV_BUFFER_PAYLOAD_TYPE_CHUNK_DATA, GenTL::PAYLOAD_TYPE_CHUNK_DATA},
    {ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA, GenTL::PAYLOAD_TYPE_CHUNK_DATA},
    {ARV_BUFFER_PAYLOAD_TYPE_JPEG, GenTL::PAYLOAD_TYPE_JPEG},
    {ARV_BUFFER_PAYLOAD_TYPE_JPEG2000, GenTL::PAYLOAD_TYPE_JPEG2000},
    {ARV_BUFFER_PAYLOAD_TYPE_H264, GenTL::PAYLOAD_TYPE_H264},
};

std::size_t toGenTl(ArvBufferPayloadType type)
{
    const auto found = std::find_if(std::begin(payloadTranslations), std::end(payloadTranslations),
        [type](const PayloadTranslation &translation) { return translation.aravisType == type; });
    return found == std::end(payloadTranslations) ? std::size_t{GenTL::PAYLOAD_TYPE_UNKNOWN}
                                                  : found->genTlType;
}

bool isPicture(ArvBufferPartDataType type)
{
    return type >= ARV_BUFFER_PART_DATA_TYPE_2D_IMAGE && type <= ARV_BUFFER_PART_DATA_TYPE_CONFIDENCE_MAP;
}

std::size_t positive(gint value)
{
    return value > 0 ? static_cast<std::size_t>(value) : 0;
}

/// Sets what describes the picture, and leaves everything 0 if the buffer contains no picture.
void describePicture(ArvBuffer *buffer, FilledImage &image)
{
    guint part = 0;
    const guint count = arv_buffer_get_n_parts(buffer);
    while (part < count && !isPicture(arv_buffer_get_part_data_type(buffer, part)))
        ++part;
    if (part == count)
        return;

    gint x = 0, y = 0, width = 0, height = 0, paddingX = 0, paddingY = 0;
    arv_buffer_get_part_region(buffer, part, &x, &y, &width, &height);
    arv_buffer_get_part_padding(buffer, part, &paddingX, &paddingY);
    image.width = positive(width);
    image.height = positive(height);
    image.offsetX = positive(x);
    image.offsetY = positive(y);
    image.paddingX = positive(paddingX);
    image.paddingY = positive(paddingY);
    image.pixelFormat = arv_buffer_get_part_pixel_format(buffer, part);
    std::size_t size = 0;
    const auto *const start = static_cast<const std::uint8_t *>(arv_buffer_get_data(buffer, &size));
    const auto *const picture
        = static_cast<const std::uint8_t *>(arv_buffer_get_part_data(buffer, part, &size));
    if (picture > start)
        image.imageOffset = static_cast<std::size_t>(picture - start);
}

/// Returns the bytes up to the end of the picture.
std::size_t pictureEnd(const FilledImage &image)
{
    const std::size_t bitsPerPixel = image.pixelFormat >> 16 & 0xFF; // This is so in every PFNC code.
    return image.imageOffset + (image.width * image.height * bitsPerPixel + 7) / 8;
}

std::uint64_t featureValue(ArvDevice &device, const char *feature)
{
    AravisError error;
    const gint64 value = arv_device_get_integer_feature_value(&device, feature, error.receiver());
    return error.isSet() || value < 0 ? 0 : static_cast<std::uint64_t>(value);
}

/// Describes an incomplete buffer. libaravis neither describes the picture nor reports which parts of it have
/// arrived.
FilledImage incompleteImage(const FilledImage &configured, std::size_t bufferSize)
{
    FilledImage image = configured;
    image.isIncomplete = true;
    image.dataSize = pictureEnd(image);
    image.sizeFilled = std::min(image.dataSize, bufferSize);
    return image;
}

FilledImage completeImage(ArvBuffer *buffer, ChunkByteOrder byteOrder)
{
    FilledImage image;
    const auto *const data
        = static_cast<const std::uint8_t *>(arv_buffer_get_data(buffer, &image.sizeFilled));
    image.dataSize = image.sizeFilled;
    describePicture(buffer, image);
    if (arv_buffer_has_chunks(buffer))
        image.chunks = parseChunks(data, image.sizeFilled, byteOrder);
    return image;
}

} // namespace

FilledImage configuredImage(ArvDevice &device)
{
    FilledImage image;
    image.width = featureValue(device, "Width");
    image.height = featureValue(device, "Height");
    image.offsetX = featureValue(device, "OffsetX");
    image.offsetY = featureValue(device, "OffsetY");
    image.pixelFormat = featureValue(device, "PixelFormat");
    return image;
}

FilledImage toFilledImage(
    ArvBuffer *buffer, std::size_t bufferSize, ChunkByteOrder byteOrder, const FilledImage &configured)
{
    const bool isComplete = arv_buffer_get_status(buffer) == ARV_BUFFER_STATUS_SUCCESS;
    FilledImage image
        = isComplete ? completeImage(buffer, byteOrder) : incompleteImage(configured, bufferSize);
    image.frameId = arv_buffer_get_frame_id(buffer);
    image.timestamp = arv_buffer_get_timestamp(buffer);
    image.payloadType = toGenTl(arv_buffer_get_payload_type(buffer));
    return image;
}
