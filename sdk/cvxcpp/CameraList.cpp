#include "sdk/cvxcpp/CameraList.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace {

using Records = std::vector<std::shared_ptr<const InterfaceRecord>>;

/// The interface that lists a device, for each device ID.
using ListingInterfaces = std::unordered_map<std::string_view, const InterfaceRecord *>;

/// Returns the element with this ID in a range that is sorted by ID, or null.
template <typename Range, typename GetId>
auto findById(const Range &range, const std::string &id, const GetId &idOf)
{
    const auto found = std::lower_bound(range.begin(), range.end(), id,
        [&](const auto &element, const std::string &value) { return idOf(element) < value; });
    return found != range.end() && idOf(*found) == id ? &*found : nullptr;
}

ListingInterfaces chooseInterfaces(const Records &records, const CameraList &previous)
{
    ListingInterfaces interfaces;
    for (const auto &camera : previous.cameras) {
        const auto *record = findById(
            records, camera->interfaceId(), [](const auto &one) -> const std::string & { return one->id; });
        if (!record)
            continue;
        const auto *device = findById((*record)->devices, camera->id(),
            [](const DeviceRecord &one) -> const std::string & { return one.id; });
        if (device)
            interfaces.emplace(device->id, record->get());
    }
    for (const auto &record : records) {
        for (const DeviceRecord &device : record->devices)
            interfaces.emplace(device.id, record.get()); // Has no effect if there is an interface already.
    }
    return interfaces;
}

} // namespace

CameraList::Pointer CameraList::create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
    const std::shared_ptr<const std::string> &producerName, const Records &records,
    const CameraList &previous)
{
    const ListingInterfaces listingInterfaces = chooseInterfaces(records, previous);
    auto list = std::make_shared<CameraList>();
    list->interfaces.reserve(records.size());
    for (const auto &record : records) {
        auto interface = std::make_shared<InterfaceObject>(source, producer, producerName, record);
        for (std::size_t device = 0; device < record->devices.size(); ++device) {
            if (listingInterfaces.at(record->devices[device].id) != record.get())
                continue;
            if (list->reportedCameras++ < maxCameras)
                list->cameras.push_back(std::make_shared<CameraObject>(interface, record, device));
        }
        list->interfaces.push_back(std::move(interface));
    }
    return list;
}

CameraList::Pointer CameraList::selected(const Pointer &list, const std::vector<bool> &isSelected)
{
    if (std::find(isSelected.begin(), isSelected.end(), false) == isSelected.end())
        return list;
    auto rest = std::make_shared<CameraList>(*list);
    rest->cameras.clear();
    for (std::size_t i = 0; i < list->cameras.size(); ++i) {
        if (isSelected[i])
            rest->cameras.push_back(list->cameras[i]);
    }
    return rest;
}

CameraList::Pointer CameraList::empty()
{
    return std::make_shared<CameraList>();
}
