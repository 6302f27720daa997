#include "sdk/camerahost/PictureReader.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

/// Returns true if a buffer of this type contains something else than a picture.
bool hasNoPicture(std::uint64_t payloadType)
{
    // RAW_DATA, FILE, JPEG, JPEG2000, H264, CHUNK_ONLY, DEVICE_SPECIFIC and GENDC.
    static constexpr std::uint64_t others[] = {2, 3, 5, 6, 7, 8, 9, 11};
    return std::find(std::begin(others), std::end(others), payloadType) != std::end(others);
}

/// Returns true if codes of this namespace are PFNC codes. Producers that do not tell the namespace use PFNC.
bool isPfnc(const InfoNumber &space)
{
    return !space.isKnown() || space.value == GenTL::PIXELFORMAT_NAMESPACE_UNKNOWN
        || space.value == GenTL::PIXELFORMAT_NAMESPACE_GEV
        || space.value == GenTL::PIXELFORMAT_NAMESPACE_PFNC_32BIT;
}

/// Returns 0 if the number is not credible anyway.
std::uint32_t toUint32(std::uint64_t number)
{
    return number <= std::numeric_limits<std::uint32_t>::max() ? static_cast<std::uint32_t>(number) : 0;
}

/// Returns the width or height if it is credible, otherwise the configured one.
std::uint32_t lengthOr(std::uint64_t length, std::uint32_t configured)
{
    return length > 0 && length <= Picture::maxLength ? static_cast<std::uint32_t>(length) : configured;
}

std::uint32_t offsetOr(const InfoNumber &offset, std::uint32_t configured)
{
    return offset.isKnown() ? toUint32(offset.value) : configured;
}

} // namespace

PictureLayout PictureReader::read(const BufferInfo &info, const std::uint8_t *base, std::uint64_t filled)
{
    const std::uint64_t payloadType = info.number(GenTL::BUFFER_INFO_PAYLOADTYPE);
    if (hasNoPicture(payloadType)) {
        PictureLayout raw;
        raw.received = filled;
        return raw;
    }
    const std::uint32_t parts = payloadType == GenTL::PAYLOAD_TYPE_MULTI_PART ? info.parts() : 0;
    for (std::uint32_t part = 0; part < parts; ++part) {
        if (info.partNumber(part, GenTL::BUFFER_PART_INFO_DATA_TYPE) == GenTL::PART_DATATYPE_2D_IMAGE)
            return readPart(info, part, base, filled);
    }
    return readSingle(info, filled);
}

PictureLayout PictureReader::readSingle(const BufferInfo &info, std::uint64_t filled)
{
    const Format format{info.number(GenTL::BUFFER_INFO_WIDTH), info.number(GenTL::BUFFER_INFO_HEIGHT),
        info.number(GenTL::BUFFER_INFO_PIXELFORMAT)};
    const bool hasChanged = format.width != m_format.width || format.height != m_format.height
        || format.pixelFormat != m_format.pixelFormat;
    if (hasChanged || !m_hasDetails) {
        m_format = format;
        readFormatDetails(info);
    }
    PictureLayout layout;
    layout.isBigEndian = m_isBigEndian;
    layout.offsetX = offsetOr(info.read(GenTL::BUFFER_INFO_XOFFSET), m_configured.offsetX);
    layout.offsetY = offsetOr(info.read(GenTL::BUFFER_INFO_YOFFSET), m_configured.offsetY);
    const std::uint64_t imageOffset = info.number(GenTL::BUFFER_INFO_IMAGEOFFSET);
    layout.imageOffset = imageOffset < filled ? imageOffset : 0;
    layout.received = filled - layout.imageOffset;

    Picture reported = m_details;
    reported.width = lengthOr(format.width, m_configured.picture.width);
    reported.height = lengthOr(format.height, m_configured.picture.height);
    const std::uint64_t delivered = info.number(GenTL::BUFFER_INFO_DELIVERED_IMAGEHEIGHT);
    if (delivered > 0 && delivered < reported.height)
        reported.height = static_cast<std::uint32_t>(delivered);
    layout.picture = m_isPfnc ? choosePicture(reported, m_configured.picture, layout.received) : reported;
    return layout;
}

/// Asks what need not be asked again while size and format stay the same.
void PictureReader::readFormatDetails(const BufferInfo &info)
{
    m_hasDetails = true;
    m_details.paddingX = toUint32(info.number(GenTL::BUFFER_INFO_XPADDING));
    m_details.paddingY = toUint32(info.number(GenTL::BUFFER_INFO_YPADDING));
    m_isPfnc = isPfnc(info.read(GenTL::BUFFER_INFO_PIXELFORMAT_NAMESPACE));
    m_details.pixelFormat = toPixelFormat(m_format.pixelFormat);
    if (m_details.pixelFormat == 0)
        m_details.pixelFormat = m_configured.picture.pixelFormat;
    if (!m_isPfnc)
        m_details.pixelFormat = 0;
    m_isBigEndian = info.number(GenTL::BUFFER_INFO_PIXEL_ENDIANNESS) == GenTL::PIXELENDIANNESS_BIG;
}

PictureLayout PictureReader::readPart(
    const BufferInfo &info, std::uint32_t part, const std::uint8_t *base, std::uint64_t filled) const
{
    const auto ask = [&](GenTL::BUFFER_PART_INFO_CMD command) { return info.partNumber(part, command); };
    PictureLayout layout;
    layout.offsetX = toUint32(ask(GenTL::BUFFER_PART_INFO_XOFFSET));
    layout.offsetY = toUint32(ask(GenTL::BUFFER_PART_INFO_YOFFSET));
    const std::uint64_t address = ask(GenTL::BUFFER_PART_INFO_BASE);
    const std::uint64_t offset = address - reinterpret_cast<std::uintptr_t>(base);
    layout.imageOffset = offset < filled ? offset : 0; // A lower address gives a huge difference.
    const std::uint64_t size = ask(GenTL::BUFFER_PART_INFO_DATA_SIZE);
    const std::uint64_t available = filled - layout.imageOffset;
    layout.received = size > 0 ? std::min(size, available) : available;

    Picture reported;
    reported.width = lengthOr(ask(GenTL::BUFFER_PART_INFO_WIDTH), m_configured.picture.width);
    reported.height = lengthOr(ask(GenTL::BUFFER_PART_INFO_HEIGHT), m_configured.picture.height);
    reported.pixelFormat = toPixelFormat(ask(GenTL::BUFFER_PART_INFO_DATA_FORMAT));
    if (reported.pixelFormat == 0)
        reported.pixelFormat = m_configured.picture.pixelFormat;
    // Some producers report the padding in pixels, so the length of a line is computed from the size.
    const std::uint64_t pixels = (std::uint64_t(reported.width) * reported.bitsPerPixel() + 7) / 8;
    const std::uint64_t line = reported.height > 0 ? layout.received / reported.height : 0;
    reported.paddingX = line > pixels ? toUint32(line - pixels) : 0;
    layout.picture = choosePicture(reported, m_configured.picture, layout.received);
    return layout;
}
