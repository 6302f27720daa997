#include "sdk/producer/Answer.h"

#include "sdk/producer/LastError.h"

#include <cstring>

using namespace GenTL;

Answer::Answer(char *buffer, std::size_t *size)
    : m_hasType(false), m_type(nullptr), m_buffer(buffer), m_size(size)
{ }

Answer::Answer(INFO_DATATYPE *type, void *buffer, std::size_t *size)
    : m_hasType(true), m_type(type), m_buffer(buffer), m_size(size)
{ }

bool Answer::isComplete() const
{
    return m_size && (m_type || !m_hasType);
}

GC_ERROR Answer::text(const std::string &value) const
{
    // Up to the first NUL only: what a consumer cannot see must not be counted either.
    const char *const characters = value.c_str();
    return bytes(INFO_DATATYPE_STRING, characters, std::strlen(characters) + 1);
}

GC_ERROR Answer::int32(std::int32_t value) const
{
    return bytes(INFO_DATATYPE_INT32, &value, sizeof value);
}

GC_ERROR Answer::uint32(std::uint32_t value) const
{
    return bytes(INFO_DATATYPE_UINT32, &value, sizeof value);
}

GC_ERROR Answer::bytes(INFO_DATATYPE type, const void *value, std::size_t size) const
{
    if (m_buffer && *m_size < size)
        return fail(GC_ERR_BUFFER_TOO_SMALL,
            "The buffer holds " + std::to_string(*m_size) + " bytes, the answer needs " + std::to_string(size)
                + ".");
    if (m_buffer)
        std::memcpy(m_buffer, value, size);
    if (m_hasType)
        *m_type = type;
    *m_size = size;
    return GC_ERR_SUCCESS;
}

GC_ERROR failArgumentMissing()
{
    return fail(GC_ERR_INVALID_PARAMETER, "A required argument is NULL.");
}

GC_ERROR failUnknownCommand(std::int32_t command)
{
    return fail(GC_ERR_NOT_IMPLEMENTED, "There is no info command " + std::to_string(command) + ".");
}

GC_ERROR failNeverUpdated()
{
    return fail(GC_ERR_NOT_AVAILABLE, "The list was never updated.");
}

GC_ERROR failIndex(std::uint32_t index, std::uint32_t count)
{
    return fail(GC_ERR_INVALID_INDEX,
        "Index " + std::to_string(index) + " is past the end of a list of " + std::to_string(count) + ".");
}

GC_ERROR failUnknownId(const std::string &id)
{
    return fail(GC_ERR_INVALID_ID, "There is no \"" + id + "\" in the list.");
}
