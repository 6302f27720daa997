#include "sdk/cvxcpp/CameraList.h"

#include <algorithm>
#include <utility>

CameraList::Pointer CameraList::create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
    const std::shared_ptr<const std::string> &producerName,
    const std::vector<std::shared_ptr<const InterfaceRecord>> &records)
{
    auto list = std::make_shared<CameraList>();
    list->interfaces.reserve(records.size());
    for (const auto &record : records) {
        auto interface = std::make_shared<InterfaceObject>(source, producer, producerName, record);
        const std::size_t count = std::min(record->devices.size(), maxCameras - list->cameras.size());
        for (std::size_t device = 0; device < count; ++device)
            list->cameras.push_back(std::make_shared<CameraObject>(interface, record, device));
        list->interfaces.push_back(std::move(interface));
    }
    return list;
}

CameraList::Pointer CameraList::empty()
{
    return std::make_shared<CameraList>();
}
