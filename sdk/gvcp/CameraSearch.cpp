#include "sdk/gvcp/CameraSearch.h"

#include "sdk/gvcp/DiscoverySocket.h"

#include <algorithm>
#include <map>
#include <memory>
#include <poll.h>

namespace {

using namespace std::chrono_literals;
using SearchClock = std::chrono::steady_clock;

constexpr auto searchTime = 1500ms;
constexpr auto maxAnswerDelay = 1000ms;
constexpr auto sendInterval = 400ms;
constexpr int maxDatagramsAtOnce = 256; // A flood of answers must not keep the search from its end.
constexpr std::size_t maxSeenCameras = 256;

/// The sockets of one search.
class Sockets
{
public:
    explicit Sockets(const std::vector<InterfaceAddress> &addresses) : m_addresses(addresses)
    {
        for (const InterfaceAddress &address : addresses) {
            if (m_sockets.count(address.index) == 0)
                m_sockets.emplace(address.index, std::make_unique<DiscoverySocket>(address));
        }
    }

    void send() const
    {
        for (const InterfaceAddress &address : m_addresses) {
            const DiscoverySocket &socket = *m_sockets.at(address.index);
            socket.broadcastLimited(address, m_requestId);
            socket.broadcastToSubnet(address, m_requestId);
        }
    }

    /// Blocks until an answer has arrived, but not longer than until `end`.
    void await(SearchClock::time_point end) const
    {
        std::vector<pollfd> descriptors;
        for (const auto &entry : m_sockets)
            descriptors.push_back({entry.second->descriptor(), POLLIN, 0});
        const auto remaining = std::chrono::ceil<std::chrono::milliseconds>(end - SearchClock::now());
        poll(descriptors.data(), descriptors.size(),
            static_cast<int>(std::max<std::int64_t>(0, remaining.count())));
    }

    /// Calls `accept` for the answers that have arrived. Returns true as soon as `accept` does.
    bool receive(const std::function<bool(const SeenCamera &)> &accept) const
    {
        for (const auto &[index, socket] : m_sockets) {
            int remaining = maxDatagramsAtOnce;
            while (const auto answer = socket->receive(remaining)) {
                if (answer->requestId == m_requestId && accept(toSeen(index, *answer)))
                    return true;
            }
        }
        return false;
    }

private:
    SeenCamera toSeen(unsigned index, const DiscoveryAcknowledgement &answer) const
    {
        const InterfaceAddress *const own = addressInSubnet(m_addresses, index, answer.camera.address);
        const auto first = std::find_if(m_addresses.begin(), m_addresses.end(),
            [index = index](const InterfaceAddress &address) { return address.index == index; });
        return {
            answer.camera, answer.offeredMethods, answer.enabledMethods, own ? *own : *first, own != nullptr};
    }

    const std::vector<InterfaceAddress> &m_addresses;
    std::map<unsigned, std::unique_ptr<DiscoverySocket>> m_sockets; // By the index of the network interface.
    const std::uint16_t m_requestId
        = static_cast<std::uint16_t>(SearchClock::now().time_since_epoch().count() | 1);
};

bool isSameCamera(const SeenCamera &left, const SeenCamera &right)
{
    return identityOf(left.camera) == identityOf(right.camera);
}

} // namespace

void searchCameras(const std::vector<InterfaceAddress> &addresses, std::chrono::milliseconds time,
    const std::function<bool(const SeenCamera &)> &accept)
{
    const Sockets sockets(addresses);
    const auto start = SearchClock::now(), end = start + time, sendEnd = end - maxAnswerDelay;
    for (auto nextSend = start; SearchClock::now() < end;) {
        if (SearchClock::now() >= nextSend) {
            sockets.send();
            nextSend = nextSend + sendInterval < sendEnd ? nextSend + sendInterval : end;
        }
        sockets.await(std::min(nextSend, end));
        if (sockets.receive(accept))
            return;
    }
}

std::vector<SeenCamera> seenCameras(const std::vector<InterfaceAddress> &addresses)
{
    std::vector<SeenCamera> cameras;
    searchCameras(addresses, searchTime, [&](const SeenCamera &camera) {
        const bool isKnown = std::any_of(cameras.begin(), cameras.end(), [&](const SeenCamera &other) {
            return isSameCamera(other, camera)
                && other.networkInterface.index == camera.networkInterface.index
                && other.camera.address == camera.camera.address;
        });
        if (!isKnown && cameras.size() < maxSeenCameras)
            cameras.push_back(camera);
        return false;
    });
    return cameras;
}

std::vector<SeenCamera> oncePerCamera(const std::vector<SeenCamera> &cameras)
{
    std::vector<SeenCamera> result;
    for (const SeenCamera &camera : cameras) {
        const auto known = std::find_if(result.begin(), result.end(),
            [&](const SeenCamera &other) { return isSameCamera(other, camera); });
        if (known == result.end())
            result.push_back(camera);
        else if (camera.isInSubnet && !known->isInSubnet)
            *known = camera;
    }
    return result;
}
