#pragma once

#include "sdk/cvxcpp/CameraObject.h"
#include "sdk/cvxcpp/InterfaceObject.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// The interfaces and cameras of one producer at one time, sorted by interface ID, then by device.
/// Never changed once it is made: two lists that are the same object hold the same.
struct CameraList
{
    using Pointer = std::shared_ptr<const CameraList>;

    /// Of one producer; nobody has as many, and more would be a burden to every program that shows them.
    static constexpr std::size_t MostCameras = 1000;

    std::vector<std::shared_ptr<InterfaceObject>> interfaces;
    std::vector<std::shared_ptr<CameraObject>> cameras;

    /// Makes the objects for records that are sorted by ID; of the cameras, the first MostCameras.
    static Pointer create(const std::weak_ptr<InterfaceSource> &source, std::size_t producer,
        const std::shared_ptr<const std::string> &producerName,
        const std::vector<std::shared_ptr<const ListedInterface>> &records);

    static Pointer empty();
};

/// What came and what went: interfaces by their ID, cameras by all that is listed of them.
struct CameraListChange
{
    std::vector<std::shared_ptr<InterfaceObject>> newInterfaces, goneInterfaces;
    std::vector<std::shared_ptr<CameraObject>> newCameras, goneCameras;

    /// Of two lists of one producer.
    static CameraListChange between(const CameraList &before, const CameraList &after);

    /// Takes the changes of another producer in.
    void add(const CameraListChange &other);
};
