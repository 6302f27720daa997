#include "sdk/producerhost/LoadedProducer.h"

#include "sdk/hosting/StringReader.h"
#include "sdk/producerhost/InterfaceSearch.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::uint32_t maxCredibleInterfaces = 1U << 16; // A larger number is certainly wrong.
constexpr std::uint32_t shortInterfaceTimeout = 20; // Milliseconds; for the interface list in a short search.

} // namespace

std::optional<Problem> LoadedProducer::open(const char *path)
{
    if (auto problem = m_library.load(path))
        return problem;
    if (auto problem = m_library.call("GCInitLib", m_library.GCInitLib))
        return problem;
    m_isInitialised = true;

    GenTL::TL_HANDLE system = GenTL::GENTL_INVALID_HANDLE;
    if (auto problem = m_library.call("TLOpen", m_library.TLOpen, &system))
        return problem; // After a failure, a handle that the producer may have written must not be used.
    if (system == GenTL::GENTL_INVALID_HANDLE)
        return Problem{"TLOpen", 0, "returned no handle"};
    m_system = system;
    return std::nullopt;
}

bool LoadedProducer::needsInterfaceUpdate(std::uint32_t timeout) const
{
    return !m_hasInterfaceList || (!m_isInterfaceListConfirmed && !UpdateTimeout::isShort(timeout));
}

std::optional<Problem> LoadedProducer::updateInterfaces(std::uint32_t timeout)
{
    m_problems.clear();
    const bool isShort = UpdateTimeout::isShort(timeout);
    const std::uint32_t requested = isShort ? std::min(timeout, shortInterfaceTimeout) : timeout;
    GenTL::bool8_t changed = 0; // The value is ignored, because not every producer writes it.
    auto problem = m_library.call("TLUpdateInterfaceList", m_library.TLUpdateInterfaceList, m_system,
        &changed, m_timeout.until(requested, UpdateTimeout::deadline()));
    const bool getsMoreTime = problem && isTimeout(*problem) && m_timeout.grow(requested);
    m_hasInterfaceList = !getsMoreTime;
    m_isInterfaceListConfirmed = m_isInterfaceListConfirmed || (m_hasInterfaceList && !isShort);
    if (getsMoreTime)
        return std::nullopt;

    std::vector<std::string> ids;
    if (!problem)
        problem = readInterfaceIds(ids);
    if (problem && m_interfaces.empty())
        return problem;
    if (problem) { // The update failed, but the open interfaces still work.
        m_problems.add(std::move(*problem));
        return std::nullopt;
    }
    closeInterfacesExcept(ids);
    for (const std::string &id : ids) {
        if (!isOpen(id))
            openInterface(id);
    }
    std::sort(m_interfaces.begin(), m_interfaces.end(),
        [](const auto &a, const auto &b) { return a->record().id < b->record().id; });
    return std::nullopt;
}

std::optional<Problem> LoadedProducer::readInterfaceIds(std::vector<std::string> &ids)
{
    std::uint32_t count = ProducerLibrary::unwrittenCount;
    if (auto problem = m_library.call("TLGetNumInterfaces", m_library.TLGetNumInterfaces, m_system, &count))
        return problem;
    if (count > maxCredibleInterfaces)
        return Problem{"TLGetNumInterfaces", 0, "returned an implausible number of interfaces"};
    const StringReader strings(m_library);
    bool isComplete = true;
    for (std::uint32_t index = 0; index < count; ++index) {
        std::string id;
        if (auto problem = strings.readInterfaceId(m_system, index, id)) {
            isComplete = isComplete && isGone(*problem);
            m_problems.add(std::move(*problem));
        } else {
            ids.push_back(std::move(id));
        }
    }
    if (!isComplete) { // An unreadable ID may belong to any open interface, so all of them stay open.
        for (const auto &interface : m_interfaces)
            ids.push_back(interface->record().id);
    }
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return std::nullopt;
}

void LoadedProducer::closeInterfacesExcept(const std::vector<std::string> &ids)
{
    const auto closeIfRemoved = [&](const std::unique_ptr<OpenInterface> &interface) {
        if (std::binary_search(ids.begin(), ids.end(), interface->record().id))
            return false;
        if (auto problem = interface->close())
            m_problems.add(std::move(*problem));
        return true;
    };
    m_interfaces.erase(
        std::remove_if(m_interfaces.begin(), m_interfaces.end(), closeIfRemoved), m_interfaces.end());
}

bool LoadedProducer::isOpen(const std::string &id) const
{
    return std::any_of(m_interfaces.begin(), m_interfaces.end(),
        [&](const auto &interface) { return interface->record().id == id; });
}

void LoadedProducer::openInterface(const std::string &id)
{
    GenTL::IF_HANDLE handle = GenTL::GENTL_INVALID_HANDLE;
    auto problem
        = m_library.call("TLOpenInterface", m_library.TLOpenInterface, m_system, id.c_str(), &handle);
    if (!problem && handle == GenTL::GENTL_INVALID_HANDLE)
        problem = Problem{"TLOpenInterface", 0, "returned no handle"};
    if (problem) // The next update of the interface list tries to open the interface again.
        m_problems.add(std::move(*problem));
    else
        m_interfaces.push_back(std::make_unique<OpenInterface>(m_library, handle, m_nextNumber++, id));
}

void LoadedProducer::searchAll(std::uint32_t timeout)
{
    searchInterfaces(m_interfaces, timeout);
    for (const auto &interface : m_interfaces)
        interface->describe(m_system);
}

const OpenInterface *LoadedProducer::searchInterface(std::uint64_t number, std::uint32_t timeout)
{
    const auto found = std::find_if(m_interfaces.begin(), m_interfaces.end(),
        [&](const auto &interface) { return interface->record().number == number; });
    if (found == m_interfaces.end())
        return nullptr;
    (*found)->search(timeout, UpdateTimeout::deadline());
    (*found)->describe(m_system);
    return found->get();
}

std::vector<Problem> LoadedProducer::close()
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
    first.resize(std::min<std::size_t>(first.size(), 1));
    return first;
}
