#pragma once

#include "sdk/cvxcpp/CameraObject.h"
#include "sdk/cvxcpp/InterfaceObject.h"
#include "sdk/protocol/CameraRecords.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// The API objects for the interfaces and cameras of one producer at one time, sorted by interface ID and
/// then by device. A list never changes after it was created.
struct CameraList
{
    using Pointer = std::shared_ptr<const CameraList>;

    static constexpr std::size_t maxCameras = 1000; ///< Maximum per producer; no user has as many.

    std::vector<std::shared_ptr<InterfaceObject>> interfaces;
    std::vector<std::shared_ptr<CameraObject>> cameras;

    /// Creates the objects for sorted records. Cameras after the first `maxCameras` are left out.
    static Pointer create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
        const std::shared_ptr<const std::string> &producerName,
        const std::vector<std::shared_ptr<const InterfaceRecord>> &records);

    static Pointer empty();
};
