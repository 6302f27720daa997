#include "sdk/camerahost/BufferInfo.h"

InfoNumber BufferInfo::read(GenTL::BUFFER_INFO_CMD command) const
{
    const Unsupported bit = Unsupported(1) << static_cast<unsigned>(command);
    if ((m_unsupported & bit) != 0 || !m_library.DSGetBufferInfo)
        return {GenTL::GC_ERR_NOT_IMPLEMENTED, 0};
    const InfoNumber number = readNumber([&](auto *type, void *value, std::size_t *size) {
        return m_library.DSGetBufferInfo(m_stream, m_buffer, command, type, value, size);
    });
    if (number.code == GenTL::GC_ERR_NOT_IMPLEMENTED || number.code == GenTL::GC_ERR_INVALID_PARAMETER)
        m_unsupported |= bit;
    return number;
}

std::uint32_t BufferInfo::parts() const
{
    std::uint32_t count = 0;
    if (!m_library.DSGetNumBufferParts || !m_library.DSGetBufferPartInfo
        || callQuietly(m_library.DSGetNumBufferParts, m_stream, m_buffer, &count) != GenTL::GC_ERR_SUCCESS)
        return 0;
    return count;
}

std::uint64_t BufferInfo::partNumber(std::uint32_t part, GenTL::BUFFER_PART_INFO_CMD command) const
{
    const InfoNumber number = readNumber([&](auto *type, void *value, std::size_t *size) {
        return m_library.DSGetBufferPartInfo(m_stream, m_buffer, part, command, type, value, size);
    });
    return number.valueOr(0);
}
