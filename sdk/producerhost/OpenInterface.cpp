#include "sdk/producerhost/OpenInterface.h"

#include "sdk/producerhost/DeviceReader.h"
#include "sdk/producerhost/StringReader.h"

#include <utility>
#include <vector>

namespace {

constexpr int maxToleratedFailures = 1; // A single failed search does not remove the devices.

} // namespace

OpenInterface::OpenInterface(
    const ProducerLibrary &library, GenTL::IF_HANDLE handle, std::uint64_t number, std::string id)
    : m_library(library), m_handle(handle)
{
    m_record.number = number;
    m_record.name = id; // Used until describe() has read the name.
    m_record.id = std::move(id);
}

void OpenInterface::search(Clock::time_point deadline)
{
    const auto start = Clock::now();
    m_problems.clear();
    std::vector<DeviceRecord> devices;
    const bool isComplete
        = updateDeviceList(deadline) && DeviceReader(m_library, m_handle, m_problems).readDevices(devices);
    m_failedSearches = isComplete ? 0 : m_failedSearches + 1;
    if (isComplete || m_failedSearches > maxToleratedFailures || m_record.devices.empty())
        m_record.devices = std::move(devices);
    m_searchTime = Clock::now() - start;
}

bool OpenInterface::updateDeviceList(Clock::time_point deadline)
{
    GenTL::bool8_t changed = 0; // The value is ignored, because not every producer writes it.
    auto problem = m_library.call(
        "IFUpdateDeviceList", m_library.IFUpdateDeviceList, m_handle, &changed, m_timeout.until(deadline));
    if (!problem)
        return true;
    const bool getsMoreTime = isTimeout(*problem) && m_timeout.grow();
    if (!getsMoreTime)
        m_problems.add(std::move(*problem));
    return false;
}

void OpenInterface::describe(GenTL::TL_HANDLE system)
{
    // Some producers crash in TLGetInterfaceInfo if the interface has no devices.
    if (!m_library.TLGetInterfaceInfo || m_record.devices.empty() || std::exchange(m_isDescribed, true))
        return;
    // Failures are ignored: the ID is used if there is no name, and the interface's type is only needed for
    // a device whose own type is unknown.
    const StringReader strings(m_library);
    std::string name;
    strings.readInterfaceInfo(system, m_record.id, GenTL::INTERFACE_INFO_DISPLAYNAME, name);
    if (!name.empty())
        m_record.name = name;
    strings.readInterfaceInfo(system, m_record.id, GenTL::INTERFACE_INFO_TLTYPE, m_record.type);
}

std::optional<Problem> OpenInterface::close()
{
    return m_library.call("IFClose", m_library.IFClose, m_handle);
}
