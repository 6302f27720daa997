#pragma once

#include "sdk/gentl/GenTL.h"
#include "sdk/producer/OpenCamera.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

// All strings of these records are UTF-8. The C interface ends a string at its first NUL.

/// What a producer reports about itself.
struct ProducerIdentity
{
    std::string id; ///< Unique among the producers of a machine.
    std::string vendor; ///< The vendor of the producer, not of its cameras.
    std::string model; ///< The product name of the producer.
    std::string version;
    std::string tlType; ///< One of GenTL::TLType…Name; "Mixed" for several technologies.
    std::string displayName;
};

/// One interface, for example a network interface. The ID is unique in the producer and never empty.
struct InterfaceRecord
{
    std::string id;
    std::string displayName;
    std::string tlType; ///< Never "Mixed".
};

/// One device. The ID is unique among the devices of its interface and never empty; any other string may be
/// empty.
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
    std::string version; ///< Empty if only an open device reports its version.
};

bool operator==(const InterfaceRecord &left, const InterfaceRecord &right);
bool operator==(const DeviceRecord &left, const DeviceRecord &right);

/// Finds the interfaces and devices of a producer. Each producer implements its own device source.
/// The source exists from GCInitLib to GCCloseLib, or until the last call that is running at GCCloseLib has
/// ended. Several threads may call the functions of a source at the same time. If an update throws, the list
/// stays unchanged, and the consumer receives GC_ERR_ERROR with the message of the exception.
class DeviceSource
{
public:
    virtual ~DeviceSource() = default;

    virtual ProducerIdentity identity() const = 0;

    /// Returns the interfaces that exist now. Blocks until the search has ended.
    virtual std::vector<InterfaceRecord> updateInterfaces() = 0;

    /// Returns the devices that one interface has now, or none if the interface has disappeared. Blocks until
    /// the search has ended.
    /// @param timeout The consumer's timeout, at most a minute. A source that does not wait for devices may
    /// ignore it. With a timeout of 0, a source that searches by itself returns what it knows.
    virtual std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout)
        = 0;

    /// Opens a camera that the last update of its interface has reported. Throws GenTlError:
    /// GC_ERR_ACCESS_DENIED if somebody else uses the camera, GC_ERR_INVALID_ID if it is gone,
    /// GC_ERR_NOT_IMPLEMENTED if the producer does not offer this access, GC_ERR_IO and GC_ERR_TIMEOUT.
    /// @param access DEVICE_ACCESS_READONLY, DEVICE_ACCESS_CONTROL or DEVICE_ACCESS_EXCLUSIVE.
    virtual std::unique_ptr<OpenCamera> openCamera(
        const std::string &interfaceId, const std::string &deviceId, GenTL::DEVICE_ACCESS_FLAGS access);

    /// Returns what ListChangedFunction returns. A source that does not search by itself returns -1.
    virtual int listChangedDescriptor() const { return -1; }
};

/// Returns the source of a producer. Each producer defines this function. If the function throws, GCInitLib
/// fails.
/// @param producerFile The full path of the producer's .cti file.
std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &producerFile);
