#pragma once

#include "sdk/cvxcpp/CameraList.h"
#include "sdk/cvxcpp/CameraListChange.h"
#include "sdk/cvxcpp/InterfaceSource.h"
#include "sdk/protocol/CameraRecords.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// What is known of the cameras of all producers: their records, the API objects made of them, the objects
/// that are visible to the program after de-duplication, and what the observers know of them. Not
/// thread-safe.
class CameraCatalogue
{
public:
    using Cameras = std::vector<std::shared_ptr<CameraObject>>;

    /// Adds an empty producer. Producers are added in the search order. `source` is handed to the interfaces.
    void addProducer(const std::weak_ptr<InterfaceSource> &source, const std::string &path);

    // Replacing returns true if anything is different afterwards.
    bool replaceInterfaces(std::size_t producer, std::vector<InterfaceRecord> interfaces);
    bool replaceInterface(
        std::size_t producer, InterfaceRecord interface); ///< The one of that number, if any.

    /// Returns null if the producer has no such interface.
    std::shared_ptr<const InterfaceRecord> findInterface(
        std::size_t producer, const std::string &interfaceId) const;

    /// Returns the number of cameras that the producer reports, which may be more than are used.
    std::size_t reportedCameras(std::size_t producer) const;

    /// Returns all visible cameras in the search order. They are known to the program then: observers learn
    /// only of later changes.
    Cameras handOut();

    /// Makes observers learn of all cameras of a producer, unless its cameras were handed out before. Returns
    /// true if that was not so already.
    bool announceFromNowOn(std::size_t producer);

    /// Returns what observers have not been notified of, and counts it as notified.
    CameraListChange takeChange();

private:
    using Records = std::vector<std::shared_ptr<const InterfaceRecord>>;

    struct Producer
    {
        std::weak_ptr<InterfaceSource> source;
        std::shared_ptr<const std::string> name; // The file name, for extended camera IDs.
        Records records; // Sorted by ID.
        CameraList::Pointer reported; // The objects made of the records.
        CameraList::Pointer visible; // Without the cameras that an earlier producer reports too.
        CameraList::Pointer announced; // What observers know; null before the first list of the program.
    };

    void rebuild(std::size_t producer);

    std::vector<Producer> m_producers;
};
