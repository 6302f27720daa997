#include "sdk/producer/InfoOutput.h"

#include "sdk/producer/LastError.h"

#include <cstring>

using namespace GenTL;

InfoOutput::InfoOutput(char *buffer, std::size_t *size)
    : m_hasType(false), m_type(nullptr), m_buffer(buffer), m_size(size)
{ }

InfoOutput::InfoOutput(INFO_DATATYPE *type, void *buffer, std::size_t *size)
    : m_hasType(true), m_type(type), m_buffer(buffer), m_size(size)
{ }

bool InfoOutput::isComplete() const
{
    return m_size && (m_type || !m_hasType);
}

GC_ERROR InfoOutput::writeString(const std::string &value) const
{
    // A consumer reads only the part before the first NUL, so the size must not include the rest.
    const char *const characters = value.c_str();
    return write(INFO_DATATYPE_STRING, characters, std::strlen(characters) + 1);
}

GC_ERROR InfoOutput::writeInt32(std::int32_t value) const
{
    return write(INFO_DATATYPE_INT32, &value, sizeof value);
}

GC_ERROR InfoOutput::writeUint32(std::uint32_t value) const
{
    return write(INFO_DATATYPE_UINT32, &value, sizeof value);
}

GC_ERROR InfoOutput::writeUint64(std::uint64_t value) const
{
    return write(INFO_DATATYPE_UINT64, &value, sizeof value);
}

GC_ERROR InfoOutput::writeSize(std::size_t value) const
{
    return write(INFO_DATATYPE_SIZET, &value, sizeof value);
}

GC_ERROR InfoOutput::writePointer(void *value) const
{
    return write(INFO_DATATYPE_PTR, &value, sizeof value);
}

GC_ERROR InfoOutput::writeBool8(bool value) const
{
    const bool8_t byte = value ? 1 : 0;
    return write(INFO_DATATYPE_BOOL8, &byte, sizeof byte);
}

GC_ERROR InfoOutput::writeBytes(const void *data, std::size_t size) const
{
    return write(INFO_DATATYPE_BUFFER, data, size);
}

GC_ERROR InfoOutput::writeStringList(const std::vector<std::string> &values) const
{
    std::string list;
    for (const std::string &value : values)
        list.append(value.c_str(), std::strlen(value.c_str()) + 1);
    return write(INFO_DATATYPE_STRINGLIST, list.c_str(), list.size() + 1);
}

GC_ERROR InfoOutput::write(INFO_DATATYPE type, const void *value, std::size_t size) const
{
    if (m_buffer && *m_size < size)
        return fail(GC_ERR_BUFFER_TOO_SMALL,
            "The buffer holds " + std::to_string(*m_size) + " bytes, but " + std::to_string(size)
                + " are needed.");
    if (m_buffer)
        std::memcpy(m_buffer, value, size);
    if (m_hasType)
        *m_type = type;
    *m_size = size;
    return GC_ERR_SUCCESS;
}
