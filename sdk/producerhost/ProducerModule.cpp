#include "sdk/producerhost/ProducerModule.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr std::uint32_t MostInterfaces = 1U << 16;
constexpr std::uint32_t NoCount = std::numeric_limits<std::uint32_t>::max();

} // namespace

ProducerModule::ProducerModule() : m_updater(m_library) { }

std::optional<Problem> ProducerModule::open(const char *path)
{
    if (auto problem = m_library.load(path))
        return problem;
    if (auto problem = m_library.call("GCInitLib", m_library.GCInitLib))
        return problem;
    m_isInitialised = true;

    GenTL::TL_HANDLE system = GenTL::GENTL_INVALID_HANDLE;
    if (auto problem = m_library.call("TLOpen", m_library.TLOpen, &system))
        return problem; // A handle that is written all the same is not ours.
    if (system == GenTL::GENTL_INVALID_HANDLE)
        return Problem{"TLOpen", 0, "gave no handle"};
    m_system = system;
    return std::nullopt;
}

std::optional<Problem> ProducerModule::updateInterfaces()
{
    m_problems.clear();
    GenTL::bool8_t changed = 0;
    auto problem = m_library.call("TLUpdateInterfaceList", m_library.TLUpdateInterfaceList, m_system,
        &changed, m_timeout.until(UpdateTimeout::bound()));
    m_isListed = !(problem && isTimeout(*problem) && m_timeout.grow());
    if (!m_isListed)
        return std::nullopt;
    std::vector<std::string> ids;
    if (!problem)
        problem = readInterfaceIds(ids);
    if (problem && m_interfaces.empty())
        return problem;
    if (problem) { // The interfaces that are open go on working.
        m_problems.add(std::move(*problem));
        return std::nullopt;
    }
    closeInterfacesExcept(ids);
    for (const std::string &id : ids)
        openInterface(id);
    std::sort(m_interfaces.begin(), m_interfaces.end(),
        [](const OpenInterface &a, const OpenInterface &b) { return a.record.id < b.record.id; });
    return std::nullopt;
}

std::optional<Problem> ProducerModule::readInterfaceIds(std::vector<std::string> &ids)
{
    std::uint32_t count = NoCount;
    if (auto problem = m_library.call("TLGetNumInterfaces", m_library.TLGetNumInterfaces, m_system, &count))
        return problem;
    if (count > MostInterfaces)
        return Problem{"TLGetNumInterfaces", 0, "gave no credible number of interfaces"};
    DeviceReader reader(m_library, m_problems);
    bool isComplete = true;
    for (std::uint32_t index = 0; index < count; ++index) {
        std::string id;
        if (auto problem = reader.readInterfaceId(m_system, index, id)) {
            isComplete = isComplete && isGone(*problem);
            m_problems.add(std::move(*problem));
        } else {
            ids.push_back(std::move(id));
        }
    }
    if (!isComplete) { // One of those that are open may be it.
        for (const OpenInterface &interface : m_interfaces)
            ids.push_back(interface.record.id);
    }
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return std::nullopt;
}

void ProducerModule::closeInterfacesExcept(const std::vector<std::string> &ids)
{
    const auto isGone = [&](const OpenInterface &interface) {
        if (std::binary_search(ids.begin(), ids.end(), interface.record.id))
            return false;
        if (auto problem = m_library.call("IFClose", m_library.IFClose, interface.handle))
            m_problems.add(std::move(*problem));
        return true;
    };
    m_interfaces.erase(std::remove_if(m_interfaces.begin(), m_interfaces.end(), isGone), m_interfaces.end());
}

void ProducerModule::openInterface(const std::string &id)
{
    const bool isOpen = std::any_of(m_interfaces.begin(), m_interfaces.end(),
        [&](const OpenInterface &interface) { return interface.record.id == id; });
    if (isOpen)
        return;
    OpenInterface interface;
    interface.record.id = id;
    interface.record.name = id;
    auto problem = m_library.call(
        "TLOpenInterface", m_library.TLOpenInterface, m_system, id.c_str(), &interface.handle);
    if (!problem && interface.handle == GenTL::GENTL_INVALID_HANDLE)
        problem = Problem{"TLOpenInterface", 0, "gave no handle"};
    if (problem) { // Tried again with the next list of interfaces.
        m_problems.add(std::move(*problem));
        return;
    }
    interface.record.number = m_nextNumber++;
    m_interfaces.push_back(std::move(interface));
}

void ProducerModule::updateDevices()
{
    m_updater.updateAll(m_interfaces);
    for (OpenInterface &interface : m_interfaces)
        describe(interface);
}

const OpenInterface *ProducerModule::updateDevices(std::uint64_t number)
{
    const auto found = std::find_if(m_interfaces.begin(), m_interfaces.end(),
        [&](const OpenInterface &interface) { return interface.record.number == number; });
    if (found == m_interfaces.end())
        return nullptr;
    m_updater.update(*found);
    describe(*found);
    return &*found;
}

void ProducerModule::describe(OpenInterface &interface)
{
    // Asked of an interface without devices, this call ended some producers with a SIGSEGV.
    InterfaceRecord &record = interface.record;
    if (record.devices.empty() || std::exchange(interface.isDescribed, true))
        return;
    DeviceReader reader(m_library, interface.problems);
    const std::string name = reader.readInterfaceInfo(m_system, record.id, GenTL::INTERFACE_INFO_DISPLAYNAME);
    if (!name.empty())
        record.name = name;
    record.type = reader.readInterfaceInfo(m_system, record.id, GenTL::INTERFACE_INFO_TLTYPE);
}

std::vector<Problem> ProducerModule::close()
{
    m_problems.clear();
    closeInterfacesExcept({});
    const auto note = [this](std::optional<Problem> problem) {
        if (problem)
            m_problems.add(std::move(*problem));
    };
    if (m_system != GenTL::GENTL_INVALID_HANDLE)
        note(m_library.call("TLClose", m_library.TLClose, std::exchange(m_system, nullptr)));
    if (std::exchange(m_isInitialised, false))
        note(m_library.call("GCCloseLib", m_library.GCCloseLib));
    std::vector<Problem> first = m_problems.all();
    if (first.size() > 1)
        first.resize(1); // A module that cannot be closed makes the next calls fail as well.
    return first;
}
