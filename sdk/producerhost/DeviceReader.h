#pragma once

#include "sdk/producerhost/ProducerLibrary.h"

#include <optional>
#include <string>
#include <vector>

/// One device as its producer describes it; texts are raw bytes and may be empty, except the ID.
struct DeviceDescription
{
    std::string id;
    std::string vendor;
    std::string model;
    std::string serial;
    std::string name;
    std::string type;
};

/// Reads the texts of a producer by the two-call protocol and puts devices together from them.
class DeviceReader
{
public:
    /// Problems are added to `problems`; an optional text that fails is no problem.
    DeviceReader(const ProducerLibrary &library, std::vector<Problem> &problems);

    std::optional<Problem> readInterfaceId(
        GenTL::TL_HANDLE system, std::uint32_t index, std::string &id) const;
    std::string readInterfaceInfo(
        GenTL::TL_HANDLE system, const std::string &interfaceId, GenTL::INTERFACE_INFO_CMD command);

    /// Reads the devices of an interface's current list, sorted by ID; false when some or all could not be
    /// read.
    bool readDevices(GenTL::IF_HANDLE interface, std::vector<DeviceDescription> &devices);

private:
    /// Nothing when the device has gone meanwhile.
    std::optional<DeviceDescription> readDevice(GenTL::IF_HANDLE interface, std::string id);
    std::optional<Problem> readDeviceInfo(GenTL::IF_HANDLE interface, const std::string &id,
        GenTL::DEVICE_INFO_CMD command, std::string &text) const;

    template <typename Query>
    std::optional<Problem> readText(const char *call, const Query &query, std::string &text) const;

    const ProducerLibrary &m_library;
    std::vector<Problem> &m_problems;
};
