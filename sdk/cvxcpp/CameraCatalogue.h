#pragma once

#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/CameraListChange.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/cvxcpp/SearchKind.h"
#include "sdk/cvxcpp/Timing.h"
#include "sdk/protocol/CameraRecords.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// Stores the cameras of all producers: the records from the hosts, the API objects for the records, the
/// objects that the program gets after de-duplication, and the objects that observers have been notified
/// of. Not thread-safe.
class CameraCatalogue
{
public:
    using Cameras = std::vector<std::shared_ptr<CameraObject>>;

    /// Adds a producer that has no interfaces yet. Call this function in the search order of the producers.
    /// The interface objects of the producer keep `source`.
    void addProducer(const std::weak_ptr<InterfaceSource> &source, const std::string &path);

    /// Replaces all interfaces of the producer by those that a search reported, which ended at `now`. An
    /// interface that is not among them is removed. Returns true if this changes the catalogue.
    bool replaceInterfaces(
        std::size_t producer, std::vector<InterfaceRecord> interfaces, SearchKind kind, TimePoint now);

    /// Replaces the interface with the same number, if the producer has such an interface. Returns true if
    /// this changes the catalogue.
    bool replaceInterface(std::size_t producer, InterfaceRecord interface, SearchKind kind, TimePoint now);

    /// Removes all interfaces of a producer whose host has ended. Returns true if this changes the
    /// catalogue.
    bool removeInterfaces(std::size_t producer, TimePoint now);

    /// Returns null if the producer has no such interface.
    std::shared_ptr<const InterfaceRecord> findInterface(
        std::size_t producer, const std::string &interfaceId) const;

    /// Returns the number of cameras that the producer reports, which may be larger than
    /// CameraList::maxCameras.
    std::size_t reportedCameras(std::size_t producer) const;

    /// Returns all visible cameras in the search order of the producers. takeChange() does not report the
    /// cameras that the program got from the first call, only later changes.
    Cameras takeCameras();

    /// Makes takeChange() report all cameras of the producer as added. Has no effect and returns false if
    /// this function or takeCameras() was called for the producer before.
    bool reportChangesFromNowOn(std::size_t producer);

    /// Returns the changes since the previous call. The caller has to notify the observers of them.
    CameraListChange takeChange();

private:
    using Records = std::vector<std::shared_ptr<const InterfaceRecord>>;

    struct Producer
    {
        std::weak_ptr<InterfaceSource> source;
        std::shared_ptr<const std::string> name; // The file name, which is a part of extended camera IDs.
        Records records; // Sorted by ID.
        CameraList::Pointer reported; // The objects for the records.
        // The reported list without the cameras that an earlier producer also reports.
        CameraList::Pointer visible;
        // The list that observers have been notified of; null until takeCameras() or reportChangesFromNowOn()
        // is called.
        CameraList::Pointer announced;
    };

    void rebuild(std::size_t producer);

    std::vector<Producer> m_producers;
};
