#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/ProducerAnswer.h"

#include <cstddef>
#include <memory>
#include <string>

/// Where an interface object gets its devices from.
class InterfaceSource
{
public:
    virtual bool isRunning() const = 0;

    /// Searches one interface of a producer, unless it was just searched, and gives what is on it now.
    virtual CvxCPP::CvxError searchInterface(
        std::size_t producer, const std::string &interfaceId, std::shared_ptr<const InterfaceRecord> &record)
        = 0;

protected:
    InterfaceSource() = default;
    ~InterfaceSource() = default;
    InterfaceSource(const InterfaceSource &) = delete;
    InterfaceSource &operator=(const InterfaceSource &) = delete;
};
