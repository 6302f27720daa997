#include "sdk/cvxcpp/CameraList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

bool lessById(const std::shared_ptr<InterfaceObject> &a, const std::shared_ptr<InterfaceObject> &b)
{
    return a->id() < b->id();
}

/// By all that is listed of them: a camera whose texts change is another one.
bool lessByTexts(const std::shared_ptr<CameraObject> &a, const std::shared_ptr<CameraObject> &b)
{
    const int order = a->interfaceId().compare(b->interfaceId());
    return order != 0 ? order < 0 : a->device() < b->device();
}

/// What `left` has and `right` has not; of equal ones, as many as are too many.
template <typename Objects, typename Less>
Objects missing(const Objects &left, const Objects &right, Less less)
{
    Objects difference;
    std::set_difference(
        left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(difference), less);
    return difference;
}

template <typename Objects>
void append(Objects &objects, const Objects &more)
{
    objects.insert(objects.end(), more.begin(), more.end());
}

} // namespace

CameraList::Pointer CameraList::create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
    const std::shared_ptr<const std::string> &producerName,
    const std::vector<std::shared_ptr<const ListedInterface>> &records)
{
    auto list = std::make_shared<CameraList>();
    list->interfaces.reserve(records.size());
    for (const auto &record : records) {
        auto interface = std::make_shared<InterfaceObject>(source, producer, producerName, record);
        const std::size_t count = std::min(record->devices.size(), MostCameras - list->cameras.size());
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

CameraListChange CameraListChange::between(const CameraList &before, const CameraList &after)
{
    CameraListChange change;
    change.newInterfaces = missing(after.interfaces, before.interfaces, lessById);
    change.goneInterfaces = missing(before.interfaces, after.interfaces, lessById);
    change.newCameras = missing(after.cameras, before.cameras, lessByTexts);
    change.goneCameras = missing(before.cameras, after.cameras, lessByTexts);
    return change;
}

void CameraListChange::add(const CameraListChange &other)
{
    append(newInterfaces, other.newInterfaces);
    append(goneInterfaces, other.goneInterfaces);
    append(newCameras, other.newCameras);
    append(goneCameras, other.goneCameras);
}
