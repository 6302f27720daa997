#include "sdk/producerhost/DeviceReader.h"

#include <utility>

namespace {

constexpr std::uint32_t maxCredibleDevices = 1U << 20; // A larger number is certainly wrong.
// Limit per interface; the library uses no more cameras per producer.
constexpr std::uint32_t maxDevices = 1000;

} // namespace

DeviceReader::DeviceReader(const ProducerLibrary &library, GenTL::IF_HANDLE interface, ProblemList &problems)
    : m_library(library), m_strings(library), m_interface(interface), m_problems(problems)
{ }

bool DeviceReader::readDevices(std::vector<DeviceRecord> &devices)
{
    const auto count = readCount();
    if (!count)
        return false;
    // A sorted set, because producers report devices in any order, and some report a device twice.
    std::set<std::string> ids;
    const bool isComplete = readIds(*count, ids);
    devices.clear();
    devices.reserve(ids.size());
    for (const std::string &id : ids) {
        if (auto device = readDevice(id))
            devices.push_back(std::move(*device));
    }
    return isComplete;
}

std::optional<std::uint32_t> DeviceReader::readCount()
{
    std::uint32_t count = ProducerLibrary::unwrittenCount;
    auto problem = m_library.call("IFGetNumDevices", m_library.IFGetNumDevices, m_interface, &count);
    if (!problem && count > maxCredibleDevices)
        problem = Problem{"IFGetNumDevices", 0, "returned an implausible number of devices"};
    if (problem) {
        m_problems.add(std::move(*problem));
        return std::nullopt;
    }
    if (count <= maxDevices)
        return count;
    m_problems.add({"IFGetNumDevices", 0,
        "returned " + std::to_string(count) + " devices; only the first " + std::to_string(maxDevices)
            + " are listed"});
    return maxDevices;
}

bool DeviceReader::readIds(std::uint32_t count, std::set<std::string> &ids)
{
    bool isComplete = true;
    for (std::uint32_t index = 0; index < count; ++index) {
        std::string id;
        if (auto problem = m_strings.readDeviceId(m_interface, index, id)) {
            isComplete = isComplete && isGone(*problem);
            m_problems.add(std::move(*problem));
        } else {
            ids.insert(std::move(id));
        }
    }
    return isComplete;
}

std::optional<DeviceRecord> DeviceReader::readDevice(std::string id)
{
    static constexpr std::pair<GenTL::DEVICE_INFO_CMD, std::string DeviceRecord::*> required[] = {
        {GenTL::DEVICE_INFO_VENDOR, &DeviceRecord::vendor},
        {GenTL::DEVICE_INFO_MODEL, &DeviceRecord::model},
        {GenTL::DEVICE_INFO_DISPLAYNAME, &DeviceRecord::name},
        {GenTL::DEVICE_INFO_TLTYPE, &DeviceRecord::type},
    };
    DeviceRecord device;
    device.id = std::move(id);
    for (const auto &[command, field] : required) {
        const auto problem = m_strings.readDeviceInfo(m_interface, device.id, command, device.*field);
        if (!problem)
            continue;
        m_problems.add(*problem);
        if (isGone(*problem))
            return std::nullopt;
    }
    // A missing value is not a problem, because many producers do not report these two.
    m_strings.readDeviceInfo(m_interface, device.id, GenTL::DEVICE_INFO_SERIAL_NUMBER, device.serial);
    m_strings.readDeviceInfo(m_interface, device.id, GenTL::DEVICE_INFO_USER_DEFINED_NAME, device.userName);
    return device;
}
