#include "sdk/producerhost/DeviceReader.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <set>
#include <utility>

namespace {

// Bytes. No ID or name comes near it, and a thousand cameras with longer ones would delay every list.
constexpr std::size_t LongestText = 1U << 10;
constexpr std::size_t SpareBytes = 256; // For producers that write past the size they asked for.
constexpr int ReadAttempts = 4; // A text may grow between the two calls.
constexpr std::uint32_t MostCredible = 1U << 20; // Devices; a larger number is garbage.
constexpr std::uint32_t MostDevices = 1000; // Of one interface; nobody has as many, and no list shows more.

/// No count a producer gives, so it shows that an output was left untouched.
constexpr std::uint32_t NoCount = std::numeric_limits<std::uint32_t>::max();

bool isTooSmall(const Problem &problem)
{
    // Before version 1.4 of the standard there was no code of its own for it.
    return problem.code == GenTL::GC_ERR_BUFFER_TOO_SMALL || problem.code == GenTL::GC_ERR_INVALID_PARAMETER;
}

bool isText(GenTL::INFO_DATATYPE type)
{
    return type == GenTL::INFO_DATATYPE_UNKNOWN || type == GenTL::INFO_DATATYPE_STRING
        || type == GenTL::INFO_DATATYPE_STRINGLIST;
}

} // namespace

DeviceReader::DeviceReader(const ProducerLibrary &library, ProblemList &problems)
    : m_library(library), m_problems(problems)
{ }

template <typename Query>
std::optional<Problem> DeviceReader::readText(const char *call, const Query &query, std::string &text) const
{
    std::optional<Problem> problem;
    std::size_t wanted = 0;
    for (int attempt = 0; attempt < ReadAttempts && wanted <= LongestText; ++attempt) {
        std::size_t size = 0;
        GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_STRING; // Some producers never write it.
        problem = m_library.call(call, query, static_cast<char *>(nullptr), &size, &type);
        if (problem)
            return problem;
        if (size == 0)
            return Problem{call, 0, "gave a text without a size"};

        wanted = size;
        std::string buffer(std::min(size, LongestText) + SpareBytes, '\0');
        size = buffer.size();
        problem = m_library.call(call, query, buffer.data(), &size, &type);
        if (problem && isTooSmall(*problem))
            continue;
        if (problem)
            return problem;
        if (!isText(type))
            return Problem{call, 0, "gave data that is no text"};
        text.assign(buffer.data(), strnlen(buffer.data(), std::min(size, buffer.size())));
        return std::nullopt;
    }
    if (wanted > LongestText)
        return Problem{call, 0, "gave a text of " + std::to_string(wanted) + " bytes"};
    return problem;
}

std::optional<Problem> DeviceReader::readInterfaceId(
    GenTL::TL_HANDLE system, std::uint32_t index, std::string &id) const
{
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *) {
        return m_library.TLGetInterfaceID(system, index, buffer, size);
    };
    return readText("TLGetInterfaceID", query, id);
}

std::string DeviceReader::readInterfaceInfo(
    GenTL::TL_HANDLE system, const std::string &interfaceId, GenTL::INTERFACE_INFO_CMD command)
{
    if (!m_library.TLGetInterfaceInfo)
        return {};
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *type) {
        return m_library.TLGetInterfaceInfo(system, interfaceId.c_str(), command, type, buffer, size);
    };
    std::string text;
    // Left empty by a failure: the ID stands in for a name, the devices' own type for the interface's.
    readText("TLGetInterfaceInfo", query, text);
    return text;
}

bool DeviceReader::readDevices(GenTL::IF_HANDLE interface, std::vector<DeviceRecord> &devices)
{
    std::uint32_t count = NoCount;
    auto problem = m_library.call("IFGetNumDevices", m_library.IFGetNumDevices, interface, &count);
    if (!problem && count > MostCredible)
        problem = Problem{"IFGetNumDevices", 0, "gave no credible number of devices"};
    if (problem) {
        m_problems.add(std::move(*problem));
        return false;
    }

    if (count > MostDevices) {
        m_problems.add({"IFGetNumDevices", 0,
            "gave " + std::to_string(count) + " devices, of which the first " + std::to_string(MostDevices)
                + " are listed"});
        count = MostDevices;
    }

    bool isComplete = true;
    std::set<std::string> ids; // Sorted, and each once: producers list in any order.
    for (std::uint32_t index = 0; index < count; ++index) {
        const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *) {
            return m_library.IFGetDeviceID(interface, index, buffer, size);
        };
        std::string id;
        problem = readText("IFGetDeviceID", query, id);
        if (!problem) {
            ids.insert(std::move(id));
            continue;
        }
        isComplete = isComplete && isGone(*problem);
        m_problems.add(std::move(*problem));
    }
    devices.clear();
    devices.reserve(ids.size());
    while (!ids.empty()) {
        if (auto device = readDevice(interface, std::move(ids.extract(ids.begin()).value())))
            devices.push_back(std::move(*device));
    }
    return isComplete;
}

std::optional<DeviceRecord> DeviceReader::readDevice(GenTL::IF_HANDLE interface, std::string id)
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
        auto problem = readDeviceInfo(interface, device.id, command, device.*field);
        if (!problem)
            continue;
        m_problems.add(*problem);
        if (isGone(*problem))
            return std::nullopt;
    }
    // Many producers cannot tell it, which is no fault.
    readDeviceInfo(interface, device.id, GenTL::DEVICE_INFO_SERIAL_NUMBER, device.serial);
    return device;
}

std::optional<Problem> DeviceReader::readDeviceInfo(GenTL::IF_HANDLE interface, const std::string &id,
    GenTL::DEVICE_INFO_CMD command, std::string &text) const
{
    const auto query = [&](char *buffer, std::size_t *size, GenTL::INFO_DATATYPE *type) {
        return m_library.IFGetDeviceInfo(interface, id.c_str(), command, type, buffer, size);
    };
    return readText("IFGetDeviceInfo", query, text);
}
