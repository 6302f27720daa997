#include "sdk/gige/CameraPlacement.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace {

/// Returns one entry for every address. Network interfaces can have the same address; the first one of them
/// gives the entry its name, and the entry lists the cameras of all of them.
std::vector<InterfaceList> emptyLists(const std::vector<InterfaceAddress> &addresses)
{
    std::vector<InterfaceList> lists;
    for (const InterfaceAddress &address : addresses) {
        const std::string id = ipv4ToString(address.address);
        if (std::none_of(
                lists.begin(), lists.end(), [&](const InterfaceList &list) { return list.id == id; }))
            lists.push_back({id, address.name, {}});
    }
    return lists;
}

/// A GenTL interface that can list a camera.
struct Candidate
{
    std::size_t position; // Index of the interface in the lists.
    ListedCamera camera;
};

std::optional<Candidate> candidateFor(const std::vector<InterfaceAddress> &addresses,
    const std::vector<InterfaceList> &lists, const CameraRegistry::Camera &camera)
{
    const auto *const own = addressInSubnet(addresses, camera.interfaceIndex, camera.data.address);
    const auto first = std::find_if(addresses.begin(), addresses.end(),
        [&](const InterfaceAddress &address) { return address.index == camera.interfaceIndex; });
    if (first == addresses.end())
        return std::nullopt;
    const std::string id = ipv4ToString(own ? own->address : first->address);
    const auto list = std::find_if(
        lists.begin(), lists.end(), [&](const InterfaceList &other) { return other.id == id; });
    const auto position = static_cast<std::size_t>(list - lists.begin());
    return Candidate{position, {camera.id, camera.data, own != nullptr}};
}

} // namespace

bool operator==(const ListedCamera &left, const ListedCamera &right)
{
    return std::tie(left.id, left.data, left.isReachable)
        == std::tie(right.id, right.data, right.isReachable);
}

std::vector<InterfaceList> CameraPlacement::place(const std::vector<InterfaceAddress> &addresses,
    const std::vector<CameraRegistry::Camera> &cameras, bool isComplete)
{
    std::vector<InterfaceList> lists = emptyLists(addresses);
    std::map<std::string, Candidate> chosen; // By the camera ID.
    for (const CameraRegistry::Camera &camera : cameras) {
        std::optional<Candidate> candidate = candidateFor(addresses, lists, camera);
        if (!candidate)
            continue;
        const auto previous = m_interfaces.find(camera.id);
        const auto rank = [&](const Candidate &other) {
            const bool isPrevious
                = previous != m_interfaces.end() && previous->second == lists[other.position].id;
            return std::tuple(!other.camera.isReachable, !isPrevious, other.position);
        };
        const auto [entry, isNew] = chosen.try_emplace(camera.id, *candidate);
        if (!isNew && rank(*candidate) < rank(entry->second))
            entry->second = *std::move(candidate);
    }

    m_interfaces.clear();
    for (auto &[id, candidate] : chosen) {
        InterfaceList &list = lists[candidate.position];
        if (isComplete)
            m_interfaces[id] = list.id;
        list.cameras.push_back(std::move(candidate.camera));
    }
    return lists;
}
