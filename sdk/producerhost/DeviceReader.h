#pragma once

#include "sdk/hosting/ProducerLibrary.h"
#include "sdk/hosting/StringReader.h"
#include "sdk/producerhost/ProblemList.h"
#include "sdk/protocol/CameraRecords.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// Reads the devices of one interface after the device list of the interface was updated.
class DeviceReader
{
public:
    /// The reader adds the failed calls to `problems`.
    DeviceReader(const ProducerLibrary &library, GenTL::IF_HANDLE interface, ProblemList &problems);

    /// Reads the devices and stores them sorted by ID. Returns false if some or all devices could not be
    /// read.
    bool readDevices(std::vector<DeviceRecord> &devices);

private:
    std::optional<std::uint32_t> readCount();
    bool readIds(std::uint32_t count, std::set<std::string> &ids);

    /// Returns nothing if the device has disappeared in the meantime.
    std::optional<DeviceRecord> readDevice(std::string id);

    const ProducerLibrary &m_library;
    const StringReader m_strings;
    const GenTL::IF_HANDLE m_interface;
    ProblemList &m_problems;
};
