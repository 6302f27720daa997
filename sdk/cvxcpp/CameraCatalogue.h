#pragma once

#include "sdk/cvxcpp/CameraIdentity.h"
#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/CameraListChange.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/cvxcpp/KnownInterfaces.h"
#include "sdk/cvxcpp/SearchKind.h"
#include "sdk/process/Timing.h"
#include "sdk/protocol/CameraRecords.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Stores the cameras of all producers: the records from the hosts, the API objects for the records, the
/// objects that the program gets after de-duplication, and the objects that observers have been notified
/// of. Not thread-safe.
///
/// A camera that several producers report is listed by the first one in the search order. Once the program
/// knows the camera, it stays with its producer. If this producer no longer reports it but another one does,
/// the catalogue holds the camera for `holdTime` before the other producer lists it. If the host or the
/// interface has gone, the other producer lists the camera at once.
class CameraCatalogue
{
public:
    using Cameras = std::vector<std::shared_ptr<CameraObject>>;

    /// The time that a camera is held after the last search in which its producer reported it.
    static constexpr std::chrono::seconds holdTime{10};

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
    struct Producer
    {
        std::weak_ptr<InterfaceSource> source;
        std::shared_ptr<const std::string> name; // The file name, which is a part of extended camera IDs.
        KnownInterfaces known;
        CameraList::Pointer reported = CameraList::empty(); // The objects for the known interfaces.
        std::vector<CameraIdentity> identities; // One element for each camera of the reported list.
        // The reported list without the cameras that another producer lists.
        CameraList::Pointer visible = CameraList::empty();
        // The list that observers have been notified of; null until takeCameras() or
        // reportChangesFromNowOn() is called.
        CameraList::Pointer announced;
    };

    /// The interface ID for each device ID of the cameras that the program knows from one producer.
    using OwnedCameras = std::unordered_map<std::string_view, std::string_view>;

    static OwnedCameras ownedCameras(const Producer &producer);
    bool update(std::size_t producer, bool isChanged, TimePoint now);
    void createList(std::size_t producer);
    bool removeUnownedMissing(std::size_t producer);
    bool endHolds(TimePoint now);
    void chooseVisibleCameras();

    std::vector<Producer> m_producers;
};
