#pragma once

#include "sdk/cvxcpp/CameraObject.h"
#include "sdk/cvxcpp/InterfaceObject.h"
#include "sdk/protocol/CameraRecords.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// The interfaces and cameras of one producer at one time, as API objects, sorted by interface ID and then by
/// device. Never changes once it is made.
struct CameraList
{
    using Pointer = std::shared_ptr<const CameraList>;

    static constexpr std::size_t maxCameras = 1000; ///< Per producer; no user has as many.

    std::vector<std::shared_ptr<InterfaceObject>> interfaces;
    std::vector<std::shared_ptr<CameraObject>> cameras;

    /// Makes the objects for sorted records; for the first `maxCameras` cameras only.
    static Pointer create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
        const std::shared_ptr<const std::string> &producerName,
        const std::vector<std::shared_ptr<const InterfaceRecord>> &records);

    static Pointer empty();
};
