#pragma once

#include "sdk/cvxcpp/SearchKind.h"
#include "sdk/process/Timing.h"
#include "sdk/protocol/CameraRecords.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The interfaces and devices of one producer, as its searches report them over time.
/// - On network interfaces, where an answer may be late or lost, a device is kept while one of the last two
///   background searches reported it, and a short search removes no device. On other interfaces, and if the
///   producer keeps its list itself, a device that a search does not report has gone.
/// - An interface that is not reported is removed at once, together with its devices.
/// - A device that has gone becomes "missing": it stays in the record of its interface until
///   removeMissing() removes it.
class KnownInterfaces
{
public:
    using Record = std::shared_ptr<const InterfaceRecord>;
    using IsHeld = std::function<bool(
        const InterfaceRecord &interface, const DeviceRecord &device, TimePoint lastReport)>;

    /// Unreported devices are kept only while the producer has at most this number of devices. The limit
    /// bounds the memory if a producer reports other devices in every search.
    static constexpr std::size_t maxDevices = 1000;

    /// Replaces all interfaces by those that a search reported. Returns true if this changes a record.
    bool replaceAll(std::vector<InterfaceRecord> interfaces, SearchKind kind, TimePoint now);

    /// Replaces the interface with the same number, if there is one. Returns true if this changes its record.
    bool replace(InterfaceRecord interface, SearchKind kind, TimePoint now);

    bool hasMissing() const;

    /// Removes each missing device for which `isHeld` returns false or that is not missing on another
    /// interface. Returns true if there was such a device.
    bool removeMissing(const IsHeld &isHeld);

    /// Returns the interfaces, sorted by ID. A record that does not change stays the same object.
    std::vector<Record> records() const;

    /// Returns null if there is no such interface.
    Record find(const std::string &interfaceId) const;

private:
    struct DeviceState
    {
        TimePoint lastReport;
        unsigned missedSearches = 0; // Background searches since the last report.
        bool isMissing = false;

        /// Returns the state after a search that did not report the device.
        DeviceState afterMiss(SearchKind kind, bool isOnNetwork) const;
    };

    struct Interface
    {
        Record record;
        std::vector<DeviceState> states; // One element for each device, in the same order.

        bool hasMissing() const;
        bool reports(const std::string &deviceId) const; // Returns false for a missing device.
    };

    static Interface merged(const Interface *known, InterfaceRecord reported, SearchKind kind, TimePoint now,
        std::size_t &remainingDevices);
    const Interface *findKnown(const std::string &interfaceId) const;
    bool isReportedElsewhere(const std::string &deviceId, const Interface &interface) const;

    std::vector<Interface> m_interfaces; // Sorted by ID.
};
