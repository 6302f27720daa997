#include "sdk/gige/GigEDiscovery.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <set>
#include <sys/eventfd.h>
#include <utility>

using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

// The thread reads at most this number of datagrams of one socket before it lets callers lock the mutex.
constexpr int maxDatagrams = 64;

int createEvent()
{
    const int descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (descriptor < 0)
        throw std::system_error(errno, std::generic_category(), "The search for GigE cameras cannot start");
    return descriptor;
}

/// Returns the argument of poll() for a wait until a time, but not longer than a minute.
int pollTimeout(Clock::time_point end)
{
    const Clock::time_point now = Clock::now();
    const auto limited = std::clamp(end, now, now + 1min) - now;
    return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(limited).count());
}

/// Returns true if the new addresses contain a network interface, an address or a carrier that the old ones
/// lack.
bool hasNewAddress(const std::vector<InterfaceAddress> &now, const std::vector<InterfaceAddress> &before)
{
    return std::any_of(now.begin(), now.end(), [&](const InterfaceAddress &address) {
        const bool isKnown = std::find(before.begin(), before.end(), address) != before.end();
        return address.hasCarrier && !isKnown;
    });
}

} // namespace

GigEDiscovery::GigEDiscovery() : m_listChangedEvent(createEvent()), m_wakeEvent(createEvent())
{
    readInterfaces(Clock::now());
    m_thread = std::thread(&GigEDiscovery::run, this);
}

GigEDiscovery::~GigEDiscovery()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    eventfd_write(m_wakeEvent.number(), 1);
    m_thread.join();
}

std::vector<InterfaceList> GigEDiscovery::interfaces()
{
    const std::lock_guard lock(m_mutex);
    if (m_interfaceFailure)
        throw std::system_error(*m_interfaceFailure);
    m_reported.noteInterfaces(currentLists());
    return currentLists();
}

std::vector<ListedCamera> GigEDiscovery::cameras(
    const std::string &interfaceId, std::chrono::milliseconds timeout)
{
    std::unique_lock lock(m_mutex);
    if (timeout > 0ms && !m_schedule.isResultRecent(Clock::now()))
        waitForSearch(lock, timeout);
    const std::vector<InterfaceList> &lists = currentLists();
    const auto list = std::find_if(
        lists.begin(), lists.end(), [&](const InterfaceList &other) { return other.id == interfaceId; });
    if (list == lists.end())
        return {};
    m_reported.noteCameras(*list);
    return list->cameras;
}

void GigEDiscovery::waitForSearch(std::unique_lock<FairMutex> &lock, std::chrono::milliseconds timeout)
{
    const Time end = Clock::now() + std::min(timeout, SearchSchedule::maxAnswerDelay);
    if (!m_schedule.isSearching()) {
        m_isSearchRequested = true;
        eventfd_write(m_wakeEvent.number(), 1);
    }
    ++m_waitingCallers;
    const std::uint64_t ended = m_endedSearches;
    lock.unlock();
    {
        std::unique_lock endLock(m_endMutex);
        m_searchEnded.wait_until(endLock, end, [&] { return m_endedSearches != ended; });
    }
    lock.lock();
    --m_waitingCallers;
}

void GigEDiscovery::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isStopping) {
        work(Clock::now());
        waitForEvent(lock);
        // Answers are read before deadlines are checked, so that a camera is not removed if the process was
        // stopped for a while.
        receive(Clock::now());
    }
}

void GigEDiscovery::waitForEvent(std::unique_lock<FairMutex> &lock)
{
    std::vector<pollfd> descriptors{{m_monitor.descriptor(), POLLIN, 0}, {m_wakeEvent.number(), POLLIN, 0}};
    for (const auto &entry : m_sockets)
        descriptors.push_back({entry.second->descriptor(), POLLIN, 0});
    const int timeout = pollTimeout(std::min(m_schedule.nextDeadline(), m_registry.nextDeadline()));
    lock.unlock();
    poll(descriptors.data(), descriptors.size(), timeout);
    lock.lock();
    eventfd_t count = 0;
    eventfd_read(m_wakeEvent.number(), &count);
    if (descriptors.front().revents != 0) {
        readInterfaces(Clock::now());
        reportChange();
    }
}

void GigEDiscovery::work(Time now)
{
    askAgain(m_registry.takeDueRequests(now));
    if (m_registry.removeSilent(now)) {
        m_areListsOutdated = true;
        reportChange();
    }
    if (m_schedule.endIfSettled(now)) {
        {
            const std::lock_guard endLock(m_endMutex);
            ++m_endedSearches;
        }
        m_areListsOutdated = m_areListsOutdated || m_endedSearches == 1; // Placements are remembered now.
        m_searchEnded.notify_all();
        if (m_waitingCallers == 0)
            reportChange();
    }
    if (m_schedule.takeReport(now))
        reportChange();
    if (!m_schedule.isSearching() && (m_isSearchRequested || now >= m_schedule.nextSearch()))
        startSearch(now);
}

void GigEDiscovery::readInterfaces(Time now)
{
    m_monitor.clear();
    std::vector<InterfaceAddress> addresses;
    try {
        addresses = interfaceAddresses();
        m_interfaceFailure.reset();
    } catch (const std::system_error &error) {
        m_interfaceFailure = error; // The next search tries again.
        return;
    }
    if (addresses == m_addresses)
        return;
    if (hasNewAddress(addresses, m_addresses))
        m_schedule.searchSoon(now);
    m_addresses = std::move(addresses);
    m_areListsOutdated = true;
    openSockets();
}

/// Creates the missing sockets and removes those of network interfaces that are gone, with their cameras.
void GigEDiscovery::openSockets()
{
    for (auto entry = m_sockets.begin(); entry != m_sockets.end();) {
        const unsigned index = entry->first;
        const bool isPresent = std::any_of(m_addresses.begin(), m_addresses.end(),
            [&](const InterfaceAddress &address) { return address.index == index; });
        if (!isPresent)
            m_registry.removeInterface(index);
        entry = isPresent ? std::next(entry) : m_sockets.erase(entry);
    }
    for (const InterfaceAddress &address : m_addresses) {
        if (m_sockets.count(address.index) > 0)
            continue;
        try {
            m_sockets.emplace(address.index, std::make_unique<DiscoverySocket>(address));
        } catch (const std::system_error &) {
            // The process has no descriptor left. The next search tries again.
        }
    }
}

void GigEDiscovery::startSearch(Time now)
{
    if (m_interfaceFailure) {
        readInterfaces(now);
        reportChange();
    }
    openSockets();
    m_isSearchRequested = false;
    if (m_schedule.start(now))
        m_registry.startSearch(now);
    if (++m_requestId == 0)
        ++m_requestId; // 0 is not a valid ID.
    m_recentRequests.at(m_requestId % m_recentRequests.size()) = m_requestId;
    std::set<unsigned> interfaces;
    for (const InterfaceAddress &address : m_addresses)
        interfaces.insert(address.index);
    broadcastLimited(std::move(interfaces));
    for (const InterfaceAddress &address : m_addresses) {
        const auto socket = m_sockets.find(address.index);
        if (socket != m_sockets.end())
            socket->second->broadcastToSubnet(address, m_requestId);
    }
}

/// Sends one broadcast through each of the network interfaces, from its first address.
void GigEDiscovery::broadcastLimited(std::set<unsigned> interfaces) const
{
    for (const InterfaceAddress &address : m_addresses) {
        const auto socket = m_sockets.find(address.index);
        if (interfaces.erase(address.index) > 0 && socket != m_sockets.end())
            socket->second->broadcastLimited(address, m_requestId);
    }
}

void GigEDiscovery::askAgain(const std::vector<CameraRegistry::Camera> &cameras) const
{
    std::set<unsigned> broadcasts;
    for (const CameraRegistry::Camera &camera : cameras) {
        const auto *const own = addressInSubnet(m_addresses, camera.interfaceIndex, camera.data.address);
        const auto socket = m_sockets.find(camera.interfaceIndex);
        if (!own)
            broadcasts.insert(
                camera.interfaceIndex); // A camera in another subnet answers only to a broadcast.
        else if (socket != m_sockets.end())
            socket->second->sendTo(camera.data.address, *own, m_requestId);
    }
    broadcastLimited(std::move(broadcasts));
}

void GigEDiscovery::receive(Time now)
{
    for (const auto &[index, socket] : m_sockets) {
        int remaining = maxDatagrams;
        while (const auto answer = socket->receive(remaining)) {
            if (!isRecentRequest(answer->requestId)
                || !m_registry.addAnswer(index, answer->requestId, answer->camera))
                continue;
            m_areListsOutdated = true;
            m_schedule.noteChange(now);
        }
    }
}

bool GigEDiscovery::isRecentRequest(std::uint16_t requestId) const
{
    return requestId != 0
        && std::find(m_recentRequests.begin(), m_recentRequests.end(), requestId) != m_recentRequests.end();
}

const std::vector<InterfaceList> &GigEDiscovery::currentLists()
{
    if (std::exchange(m_areListsOutdated, false))
        m_lists = m_placement.place(m_addresses, m_registry.cameras(), m_endedSearches > 0);
    return m_lists;
}

void GigEDiscovery::reportChange()
{
    if (m_reported.takeChange(currentLists()))
        eventfd_write(m_listChangedEvent.number(), 1);
}
