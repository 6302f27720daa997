#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/ProducerAnswer.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>

/// Where an interface object gets its devices from.
class InterfaceSource
{
public:
    virtual ~InterfaceSource() = default;

    /// True until the source ends; shared, so that its objects can ask when it is gone.
    using RunningFlag = std::shared_ptr<const std::atomic<bool>>;
    virtual RunningFlag runningFlag() const = 0;

    /// Searches one interface of a producer, unless it was just searched, and gives what is on it now; while
    /// the producer is late, what was on it at the last search.
    virtual CvxCPP::CvxError searchInterface(
        std::size_t producer, const std::string &interfaceId, std::shared_ptr<const ListedInterface> &record)
        = 0;

protected:
    InterfaceSource() = default;
    InterfaceSource(const InterfaceSource &) = delete;
    InterfaceSource &operator=(const InterfaceSource &) = delete;
};
