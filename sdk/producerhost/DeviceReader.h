#pragma once

#include "sdk/producerhost/ProblemList.h"
#include "sdk/producerhost/ProducerLibrary.h"
#include "sdk/protocol/CameraRecords.h"

#include <optional>
#include <string>
#include <vector>

/// Reads the texts of a producer by the two-call protocol and puts devices together from them.
class DeviceReader
{
public:
    /// Problems are added to `problems`; an optional text that fails is no problem.
    DeviceReader(const ProducerLibrary &library, ProblemList &problems);

    std::optional<Problem> readInterfaceId(
        GenTL::TL_HANDLE system, std::uint32_t index, std::string &id) const;
    std::string readInterfaceInfo(
        GenTL::TL_HANDLE system, const std::string &interfaceId, GenTL::INTERFACE_INFO_CMD command);

    /// Reads the devices of an interface's current list, sorted by ID; false when some or all could not be
    /// read.
    bool readDevices(GenTL::IF_HANDLE interface, std::vector<DeviceRecord> &devices);

private:
    /// Nothing when the device has gone meanwhile.
    std::optional<DeviceRecord> readDevice(GenTL::IF_HANDLE interface, std::string id);
    std::optional<Problem> readDeviceInfo(GenTL::IF_HANDLE interface, const std::string &id,
        GenTL::DEVICE_INFO_CMD command, std::string &text) const;

    template <typename Query>
    std::optional<Problem> readText(const char *call, const Query &query, std::string &text) const;

    const ProducerLibrary &m_library;
    ProblemList &m_problems;
};
