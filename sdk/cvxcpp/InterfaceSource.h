#pragma once

#include "CvxCPP/Device.h"
#include "sdk/protocol/CameraRecords.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>

/// Provides interface objects with their devices.
class InterfaceSource
{
public:
    virtual ~InterfaceSource() = default;

    /// The flag is true until the source ends. API objects share the flag, so that they can read it after
    /// the source was destroyed.
    using RunningFlag = std::shared_ptr<const std::atomic<bool>>;
    virtual RunningFlag runningFlag() const = 0;

    struct SearchResult
    {
        CvxCPP::CvxError error;
        std::shared_ptr<const InterfaceRecord> record; ///< Null on failure.
    };

    /// Searches one interface of a producer, unless a search of this interface has ended very recently. If
    /// the producer does not reply in time, returns the result of the previous search.
    virtual SearchResult searchInterface(std::size_t producer, const std::string &interfaceId) = 0;

    /// Opens a device of this producer; see CvxCPP::Camera::Open().
    virtual CvxCPP::CvxResult openDevice(std::size_t producer, const std::string &interfaceId,
        const DeviceRecord &device, CvxCPP::CvxAccess access, std::shared_ptr<CvxCPP::Device> &opened)
        = 0;

protected:
    InterfaceSource() = default;
    InterfaceSource(const InterfaceSource &) = delete;
    InterfaceSource &operator=(const InterfaceSource &) = delete;
};
