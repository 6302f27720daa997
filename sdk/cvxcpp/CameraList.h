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
    std::size_t reportedCameras = 0; ///< The number of cameras before the limit; may exceed `maxCameras`.

    /// Creates the objects for sorted records. Cameras after the first `maxCameras` are left out. If several
    /// interfaces have a device with the same ID, this is one camera: it stays at the interface where
    /// `previous` has it, otherwise it is listed at the first interface. Which interface suits the address of
    /// the camera is known only to a producer, and ours reports each camera at one interface.
    static Pointer create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
        const std::shared_ptr<const std::string> &producerName,
        const std::vector<std::shared_ptr<const InterfaceRecord>> &records, const CameraList &previous);

    /// Returns the list without the cameras whose element in `isSelected` is false. Returns the list itself
    /// if it keeps all of its cameras.
    static Pointer selected(const Pointer &list, const std::vector<bool> &isSelected);

    static Pointer empty();
};
