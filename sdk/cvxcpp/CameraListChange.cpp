#include "sdk/cvxcpp/CameraListChange.h"

#include <algorithm>
#include <iterator>

namespace {

bool lessById(const std::shared_ptr<InterfaceObject> &a, const std::shared_ptr<InterfaceObject> &b)
{
    return a->id() < b->id();
}

bool lessByFields(const std::shared_ptr<CameraObject> &a, const std::shared_ptr<CameraObject> &b)
{
    const int order = a->interfaceId().compare(b->interfaceId());
    return order != 0 ? order < 0 : a->device() < b->device();
}

/// Appends the objects of `left` that `right` lacks. If `left` contains more equal objects than `right`,
/// the surplus objects are appended.
template <typename Objects, typename Less>
void appendMissing(Objects &missing, const Objects &left, const Objects &right, Less less)
{
    std::set_difference(
        left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(missing), less);
}

} // namespace

void CameraListChange::addDifference(const CameraList &before, const CameraList &after)
{
    appendMissing(addedInterfaces, after.interfaces, before.interfaces, lessById);
    appendMissing(removedInterfaces, before.interfaces, after.interfaces, lessById);
    appendMissing(addedCameras, after.cameras, before.cameras, lessByFields);
    appendMissing(removedCameras, before.cameras, after.cameras, lessByFields);
}
