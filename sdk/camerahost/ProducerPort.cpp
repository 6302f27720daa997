#include "sdk/camerahost/ProducerPort.h"

#include <algorithm>
#include <string>

namespace {

bool isLossCode(std::int32_t code)
{
    static constexpr std::int32_t codes[] = {
        GenTL::GC_ERR_IO, GenTL::GC_ERR_TIMEOUT, GenTL::GC_ERR_INVALID_HANDLE, GenTL::GC_ERR_ACCESS_DENIED};
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

/// Some producers return success although they have transferred only a part.
std::optional<Problem> partialAccess(const char *call, std::size_t transferred, std::size_t size)
{
    if (transferred >= size)
        return std::nullopt;
    return Problem{
        call, 0, "transferred " + std::to_string(transferred) + " of " + std::to_string(size) + " bytes"};
}

} // namespace

std::optional<Problem> ProducerPort::read(std::uint64_t address, void *data, std::size_t size)
{
    std::size_t transferred = size;
    auto problem = m_library.call("GCReadPort", m_library.GCReadPort, m_port, address, data, &transferred);
    return count(problem ? std::move(problem) : partialAccess("GCReadPort", transferred, size));
}

std::optional<Problem> ProducerPort::write(std::uint64_t address, const void *data, std::size_t size)
{
    std::size_t transferred = size;
    auto problem = m_library.call("GCWritePort", m_library.GCWritePort, m_port, address, data, &transferred);
    return count(problem ? std::move(problem) : partialAccess("GCWritePort", transferred, size));
}

std::optional<Problem> ProducerPort::count(std::optional<Problem> problem)
{
    if (!problem)
        ++m_successes;
    else if (isLossCode(problem->code))
        ++m_lossFailures;
    return problem;
}
