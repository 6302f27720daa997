#include "sdk/hosting/StringReader.h"

#include <algorithm>
#include <cstring>

namespace {

// Size limit in bytes. No real ID or name is nearly as long, and a thousand cameras with longer strings
// would delay every reply.
constexpr std::size_t maxStringSize = 1U << 10;
constexpr std::size_t spareBytes = 256; // Some producers write more bytes than they reported.
constexpr int maxAttempts = 4; // The string may grow between the two calls of an attempt.

bool isTooSmall(const Problem &problem)
{
    // GenTL has a specific error code for this case since version 1.4. Older producers return
    // GC_ERR_INVALID_PARAMETER.
    return problem.code == GenTL::GC_ERR_BUFFER_TOO_SMALL || problem.code == GenTL::GC_ERR_INVALID_PARAMETER;
}

bool isString(GenTL::INFO_DATATYPE type)
{
    return type == GenTL::INFO_DATATYPE_UNKNOWN || type == GenTL::INFO_DATATYPE_STRING
        || type == GenTL::INFO_DATATYPE_STRINGLIST;
}

} // namespace

template <typename Query>
std::optional<Problem> StringReader::read(const char *call, const Query &query, std::string &value) const
{
    std::optional<Problem> problem;
    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        std::size_t size = 0;
        GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_STRING; // Some producers never write the type.
        problem = m_library.call(call, query, static_cast<char *>(nullptr), &size, &type);
        if (problem)
            return problem;
        if (size == 0)
            return Problem{call, 0, "returned a string without a size"};

        const std::size_t wanted = size;
        std::string buffer(std::min(wanted, maxStringSize) + spareBytes, '\0');
        size = buffer.size();
        problem = m_library.call(call, query, buffer.data(), &size, &type);
        if (problem && isTooSmall(*problem)) {
            if (wanted > maxStringSize)
                return Problem{call, 0, "returned a string of " + std::to_string(wanted) + " bytes"};
            continue;
        }
        if (problem)
            return problem;
        if (!isString(type))
            return Problem{call, 0, "returned data that is not a string"};
        value.assign(buffer.data(), strnlen(buffer.data(), std::min(size, buffer.size())));
        return std::nullopt;
    }
    return problem;
}

std::optional<Problem> StringReader::readInterfaceId(
    GenTL::TL_HANDLE system, std::uint32_t index, std::string &id) const
{
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *) {
        return m_library.TLGetInterfaceID(system, index, buffer, size);
    };
    return read("TLGetInterfaceID", query, id);
}

std::optional<Problem> StringReader::readInterfaceInfo(GenTL::TL_HANDLE system,
    const std::string &interfaceId, GenTL::INTERFACE_INFO_CMD command, std::string &value) const
{
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *type) {
        return m_library.TLGetInterfaceInfo(system, interfaceId.c_str(), command, type, buffer, size);
    };
    return read("TLGetInterfaceInfo", query, value);
}

std::optional<Problem> StringReader::readDeviceId(
    GenTL::IF_HANDLE interface, std::uint32_t index, std::string &id) const
{
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *) {
        return m_library.IFGetDeviceID(interface, index, buffer, size);
    };
    return read("IFGetDeviceID", query, id);
}

std::optional<Problem> StringReader::readDeviceInfo(GenTL::IF_HANDLE interface, const std::string &deviceId,
    GenTL::DEVICE_INFO_CMD command, std::string &value) const
{
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *type) {
        return m_library.IFGetDeviceInfo(interface, deviceId.c_str(), command, type, buffer, size);
    };
    return read("IFGetDeviceInfo", query, value);
}
