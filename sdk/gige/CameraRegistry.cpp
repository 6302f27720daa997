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

/// Compares request IDs, which start again after the highest one.
bool isNewer(std::uint16_t requestId, std::uint16_t other)
{
    return static_cast<std::int16_t>(requestId - other) > 0;
}

} // namespace

void CameraRegistry::startSearch(Time now)
{
    for (Entry &entry : m_entries) {
        const bool isMissed = !entry.hasAnswered && !entry.hasMissedSearch && entry.requests == maxRequests;
        if (!entry.hasAnswered && !isMissed)
            continue; // The remaining requests and the removal follow in this search.
        entry.hasMissedSearch = isMissed;
        entry.hasAnswered = false;
        entry.requests = 0;
        entry.deadline = now + (isMissed ? secondMissedSearch : firstMissedSearch).firstRequest;
    }
}

bool CameraRegistry::addAnswer(unsigned interfaceIndex, std::uint16_t requestId, const CameraData &data)
{
    const Answer answer{interfaceIndex, requestId, identityOf(data), data};
    Entry *entry = find(answer);
    if (!entry && (entry = findFormerPlace(answer))) {
        // Both places have answered the same request, so the camera has not moved, but there are two cameras.
        const Camera other = std::exchange(entry->camera, {interfaceIndex, entry->camera.id, data});
        entry->moveRequest = 0;
        addAnswer(other.interfaceIndex, requestId, other.data);
        return true;
    }
    if (!entry && (entry = findMoved(answer))) {
        entry->formerAddress = entry->camera.data.address;
        entry->formerInterface = std::exchange(entry->camera.interfaceIndex, interfaceIndex);
        entry->moveRequest = requestId;
    }
    if (!entry)
        return addCamera(answer);
    if (isNewer(requestId, entry->requestId))
        entry->requestId = requestId;
    entry->hasAnswered = true;
    entry->hasMissedSearch = false;
    entry->deadline = Time::max();
    if (entry->camera.data == data)
        return false;
    entry->camera.data = data;
    return true;
}

CameraRegistry::Entry *CameraRegistry::find(const Answer &answer)
{
    return findIf([&](const Entry &entry) {
        return entry.camera.interfaceIndex == answer.interfaceIndex
            && entry.camera.data.address == answer.data.address && entry.isCameraOf(answer);
    });
}

/// Returns the camera that has moved away from the place of this answer because of an answer to the same
/// request.
CameraRegistry::Entry *CameraRegistry::findFormerPlace(const Answer &answer)
{
    return findIf([&](const Entry &entry) {
        return entry.moveRequest == answer.requestId && entry.formerInterface == answer.interfaceIndex
            && entry.formerAddress == answer.data.address && entry.isCameraOf(answer);
    });
}

/// Returns the camera that has moved to the place of this answer: the one that has been silent for longest,
/// preferably one of the same network interface. A camera that has answered the same request from its own
/// place has not moved.
CameraRegistry::Entry *CameraRegistry::findMoved(const Answer &answer)
{
    const Entry *const elsewhere = findElsewhere(answer);
    const bool canChangeInterface = !elsewhere && !isFull(answer.interfaceIndex);
    const auto rank = [&](const Entry &entry) {
        const auto age = static_cast<std::uint16_t>(answer.requestId - entry.requestId);
        return std::pair(entry.camera.interfaceIndex == answer.interfaceIndex, age);
    };
    Entry *moved = nullptr;
    for (Entry &entry : m_entries) {
        if (!entry.isCameraOf(answer) || !isNewer(answer.requestId, entry.requestId))
            continue;
        if (entry.camera.interfaceIndex != answer.interfaceIndex && !canChangeInterface)
            continue;
        if (elsewhere && entry.camera.id != elsewhere->camera.id)
            continue;
        if (!moved || rank(entry) > rank(*moved))
            moved = &entry;
    }
    return moved;
}

/// Returns the same camera on another network interface. It has the same address there.
CameraRegistry::Entry *CameraRegistry::findElsewhere(const Answer &answer)
{
    return findIf([&](const Entry &entry) {
        return entry.camera.data.address == answer.data.address && entry.isCameraOf(answer);
    });
}

bool CameraRegistry::isFull(unsigned interfaceIndex) const
{
    const auto count = std::count_if(m_entries.begin(), m_entries.end(),
        [&](const Entry &entry) { return entry.camera.interfaceIndex == interfaceIndex; });
    return static_cast<std::size_t>(count) >= maxCameras;
}

bool CameraRegistry::addCamera(const Answer &answer)
{
    if (isFull(answer.interfaceIndex))
        return false;
    const Entry *const elsewhere = findElsewhere(answer);
    std::string id = elsewhere ? elsewhere->camera.id : newId(answer.identity, answer.data.address);
    m_entries.push_back(
        {{answer.interfaceIndex, std::move(id), answer.data}, answer.identity, answer.requestId});
    return true;
}

// The MAC address is compared first, because this is fast and cameras can be many.
bool CameraRegistry::Entry::isCameraOf(const Answer &answer) const
{
    return camera.data.mac == answer.data.mac && identity == answer.identity;
}

std::string CameraRegistry::newId(const std::string &identity, std::uint32_t address) const
{
    const auto isTaken = [this](const std::string &id) {
        return std::any_of(
            m_entries.begin(), m_entries.end(), [&](const Entry &entry) { return entry.camera.id == id; });
    };
    std::string id = identity;
    while (isTaken(id)) // A camera whose ID contains this address can have moved to another address.
        id += '@' + ipv4ToString(address);
    return id;
}

std::vector<CameraRegistry::Camera> CameraRegistry::takeDueRequests(Time now)
{
    std::vector<Camera> due;
    for (Entry &entry : m_entries) {
        if (entry.requests == maxRequests || now < entry.deadline)
            continue;
        due.push_back(entry.camera);
        ++entry.requests;
        const Delays &delays = entry.hasMissedSearch ? secondMissedSearch : firstMissedSearch;
        if (entry.requests < maxRequests)
            entry.deadline = now + delays.nextRequest;
        else
            entry.deadline = entry.hasMissedSearch ? now + removalDelay : Time::max();
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
CameraRegistry::Entry *CameraRegistry::findIf(Predicate &&predicate)
{
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), predicate);
    return entry == m_entries.end() ? nullptr : &*entry;
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
