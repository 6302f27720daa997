#pragma once

#include "sdk/producer/PortUrl.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// What a port reports about itself; see GenTL::PORT_INFO_CMD.
struct PortDescription
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string tlType;
    std::string module; ///< One of GenTL::…ModuleName.
    std::string version;
    std::string portName; ///< Name of the port in the register description.
    bool isBigEndian = false;
    bool canRead = true;
    bool canWrite = true;
};

/// The registers of a module or of a camera. Any thread may call any function.
class Port
{
public:
    virtual ~Port() = default;

    virtual PortDescription description() const = 0;

    /// Returns where the register description lies, best first.
    virtual std::vector<PortUrl> urls() const = 0;

    /// Reads or writes registers. Throws GenTlError.
    virtual void read(std::uint64_t address, void *data, std::size_t size) = 0;
    virtual void write(std::uint64_t address, const void *data, std::size_t size) = 0;
};
