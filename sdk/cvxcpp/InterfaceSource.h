#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/protocol/CameraRecords.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>

/// Where an interface object gets its devices from.
class InterfaceSource
{
public:
    virtual ~InterfaceSource() = default;

    /// True until the source ends. Shared, so that the API objects can read it when the source is gone.
    using RunningFlag = std::shared_ptr<const std::atomic<bool>>;
    virtual RunningFlag runningFlag() const = 0;

    struct SearchResult
    {
        CvxCPP::CvxError error;
        std::shared_ptr<const InterfaceRecord> record; ///< Null on failure.
    };

    /// Searches one interface of a producer, unless it was just searched. If the producer does not reply in
    /// time, returns what its last search found.
    virtual SearchResult searchInterface(std::size_t producer, const std::string &interfaceId) = 0;

protected:
    InterfaceSource() = default;
    InterfaceSource(const InterfaceSource &) = delete;
    InterfaceSource &operator=(const InterfaceSource &) = delete;
};
