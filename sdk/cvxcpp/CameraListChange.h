#pragma once

#include "sdk/cvxcpp/CameraList.h"

#include <memory>
#include <vector>

/// The interfaces and cameras that appeared and disappeared. Interfaces are compared by their ID, and
/// cameras by all of their fields: a camera with a changed field counts as a removed camera and an added
/// camera.
struct CameraListChange
{
    std::vector<std::shared_ptr<InterfaceObject>> addedInterfaces, removedInterfaces;
    std::vector<std::shared_ptr<CameraObject>> addedCameras, removedCameras;

    /// Adds the difference between two lists of one producer.
    void addDifference(const CameraList &before, const CameraList &after);
};
