#include "sdk/producerhost/OpenInterface.h"

#include "sdk/hosting/StringReader.h"
#include "sdk/producerhost/DeviceReader.h"

#include <algorithm>
#include <iterator>
#include <utility>

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

void OpenInterface::search(std::uint32_t timeout, Clock::time_point deadline)
{
    const auto start = Clock::now();
    m_problems.clear();
    auto problem = updateDeviceList(timeout, deadline);
    if (problem && isTimeout(*problem) && UpdateTimeout::isShort(timeout))
        addFoundDevices();
    else
        replaceDevices(std::move(problem), timeout);
    noteSearchTime(Clock::now() - start, timeout);
}

void OpenInterface::noteSearchTime(Clock::duration time, std::uint32_t timeout)
{
    // A quick search with a short timeout does not mean that a search with a longer one is quick too.
    const bool isShort = UpdateTimeout::isShort(timeout);
    if (timeout > 0 && (!isShort || !m_searchTime || time > *m_searchTime))
        m_searchTime = time;
}

std::optional<Problem> OpenInterface::updateDeviceList(std::uint32_t timeout, Clock::time_point deadline)
{
    GenTL::bool8_t changed = 0; // The value is ignored, because not every producer writes it.
    return m_library.call("IFUpdateDeviceList", m_library.IFUpdateDeviceList, m_handle, &changed,
        m_timeout.until(timeout, deadline));
}

void OpenInterface::addFoundDevices()
{
    ProblemList ignored; // A producer whose search has not ended may be unable to list its devices.
    std::vector<DeviceRecord> found;
    DeviceReader(m_library, m_handle, ignored).readDevices(found);
    std::vector<DeviceRecord> devices;
    std::set_union(found.begin(), found.end(), m_record.devices.begin(), m_record.devices.end(),
        std::back_inserter(devices), [](const auto &a, const auto &b) { return a.id < b.id; });
    m_record.devices = std::move(devices);
}

void OpenInterface::replaceDevices(std::optional<Problem> failedUpdate, std::uint32_t timeout)
{
    std::vector<DeviceRecord> devices;
    const bool isComplete
        = !failedUpdate && DeviceReader(m_library, m_handle, m_problems).readDevices(devices);
    m_failedSearches = isComplete ? 0 : m_failedSearches + 1;
    if (isComplete || m_failedSearches > maxToleratedFailures || m_record.devices.empty())
        m_record.devices = std::move(devices);
    if (failedUpdate && !(isTimeout(*failedUpdate) && m_timeout.grow(timeout)))
        m_problems.add(std::move(*failedUpdate));
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
