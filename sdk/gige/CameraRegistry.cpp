#include "sdk/gige/CameraRegistry.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr int maxRequests = 3; // To one camera in one search.

/// When a silent camera is asked again.
struct Delays
{
    std::chrono::milliseconds firstRequest; // After the start of the search.
    std::chrono::milliseconds nextRequest; // After each request.
};

// A camera may take a second to answer, so it is asked again only after this second. A camera that was silent
// during a whole search is asked again soon, because it is probably gone.
constexpr Delays firstMissedSearch{1000ms, 300ms};
constexpr Delays secondMissedSearch{100ms, 100ms};
constexpr auto removalDelay = 50ms; // After the last request of the second missed search.

} // namespace

void CameraRegistry::startSearch(Time now)
{
    for (Entry &entry : m_entries) {
        entry.missedSearches = entry.hasAnswered ? 0 : entry.missedSearches + 1;
        entry.hasAnswered = false;
        entry.requests = 0;
        entry.deadline
            = now + (entry.missedSearches == 0 ? firstMissedSearch : secondMissedSearch).firstRequest;
    }
}

bool CameraRegistry::addAnswer(unsigned interfaceIndex, const CameraData &data)
{
    std::string identity = identityOf(data);
    if (Entry *const entry = find(interfaceIndex, identity, data)) {
        entry->hasAnswered = true;
        entry->missedSearches = 0;
        entry->deadline = Time::max();
        if (entry->camera.data == data)
            return false;
        entry->camera.data = data;
        return true;
    }
    const auto count = std::count_if(m_entries.begin(), m_entries.end(),
        [&](const Entry &entry) { return entry.camera.interfaceIndex == interfaceIndex; });
    if (static_cast<std::size_t>(count) >= maxCameras)
        return false;
    std::string id = newId(identity, data.address);
    m_entries.push_back({{interfaceIndex, std::move(id), data}, std::move(identity)});
    return true;
}

CameraRegistry::Entry *CameraRegistry::find(
    unsigned interfaceIndex, const std::string &identity, const CameraData &data)
{
    Entry *moved = nullptr;
    for (Entry &entry : m_entries) {
        // The MAC address is compared first, because this is fast and cameras can be many.
        if (entry.camera.interfaceIndex != interfaceIndex || entry.camera.data.mac != data.mac
            || entry.identity != identity)
            continue;
        if (entry.camera.data.address == data.address)
            return &entry;
        // If the camera has answered with another address in this search, there are two cameras.
        if (!entry.hasAnswered && entry.camera.id == identity)
            moved = &entry;
    }
    return moved;
}

std::string CameraRegistry::newId(const std::string &identity, std::uint32_t address) const
{
    bool isTaken = false;
    for (const Entry &entry : m_entries) {
        if (entry.identity != identity)
            continue;
        if (entry.camera.data.address == address)
            return entry.camera.id; // The same camera on another network interface.
        isTaken = true;
    }
    return isTaken ? identity + '@' + ipv4ToString(address) : identity;
}

std::vector<CameraRegistry::Camera> CameraRegistry::takeDueRequests(Time now)
{
    std::vector<Camera> due;
    for (Entry &entry : m_entries) {
        if (entry.requests == maxRequests || now < entry.deadline)
            continue;
        due.push_back(entry.camera);
        ++entry.requests;
        const bool isFirstMissed = entry.missedSearches == 0;
        if (entry.requests < maxRequests)
            entry.deadline = now + (isFirstMissed ? firstMissedSearch : secondMissedSearch).nextRequest;
        else
            entry.deadline = isFirstMissed ? Time::max() : now + removalDelay;
    }
    return due;
}

bool CameraRegistry::removeSilent(Time now)
{
    return removeIf(
        [&](const Entry &entry) { return entry.requests == maxRequests && entry.deadline <= now; });
}

bool CameraRegistry::removeInterface(unsigned interfaceIndex)
{
    return removeIf([&](const Entry &entry) { return entry.camera.interfaceIndex == interfaceIndex; });
}

template <typename Predicate>
bool CameraRegistry::removeIf(Predicate &&predicate)
{
    const auto first = std::remove_if(m_entries.begin(), m_entries.end(), predicate);
    const bool isAny = first != m_entries.end();
    m_entries.erase(first, m_entries.end());
    return isAny;
}

CameraRegistry::Time CameraRegistry::nextDeadline() const
{
    Time next = Time::max();
    for (const Entry &entry : m_entries)
        next = std::min(next, entry.deadline);
    return next;
}

std::vector<CameraRegistry::Camera> CameraRegistry::cameras() const
{
    std::vector<Camera> result;
    result.reserve(m_entries.size());
    for (const Entry &entry : m_entries)
        result.push_back(entry.camera);
    return result;
}
