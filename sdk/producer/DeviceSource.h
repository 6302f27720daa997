#pragma once

#include "sdk/gentl/GenTL.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// All texts of these records are UTF-8; what follows a NUL in them is lost on the way through the C
// interface.

/// What a producer says about itself.
struct ProducerIdentity
{
    std::string id; ///< Unique among the producers of a machine.
    std::string vendor; ///< Who made the producer.
    std::string model; ///< The producer's product name.
    std::string version;
    std::string tlType; ///< GenTL::TLType…Name; "Mixed" for several technologies.
    std::string displayName;
};

/// One interface, for example a network card. Its ID is unique in the producer and never empty.
struct InterfaceRecord
{
    std::string id;
    std::string displayName;
    std::string tlType; ///< Never "Mixed".
};

/// One device. Its ID is unique in its interface and never empty; any other text may be empty.
struct DeviceRecord
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string tlType;
    std::string displayName;
    std::string userName;
    std::string serial;
    GenTL::DEVICE_ACCESS_STATUS accessStatus = GenTL::DEVICE_ACCESS_STATUS_UNKNOWN;
};

bool operator==(const InterfaceRecord &left, const InterfaceRecord &right);
bool operator==(const DeviceRecord &left, const DeviceRecord &right);

/// Where a producer's interfaces and devices come from: the one part that each producer writes itself.
/// Lives from GCInitLib to GCCloseLib. Both updates may be called from several threads at once, though never
/// twice at a time for the same interface. They may throw: the list then stays as it was, and the caller
/// gets the exception's text as an error.
class DeviceSource
{
public:
    virtual ~DeviceSource() = default;

    virtual ProducerIdentity identity() const = 0;

    /// Looks for interfaces now.
    virtual std::vector<InterfaceRecord> updateInterfaces() = 0;

    /// Looks for the devices of one interface now. Empty for an interface that is gone.
    virtual std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) = 0;
};

/// Defined by each producer. producerFile is the full path of its .cti.
std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &producerFile);
