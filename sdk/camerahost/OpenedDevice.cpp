#include "sdk/camerahost/OpenedDevice.h"

#include "sdk/camerahost/Failures.h"
#include "sdk/camerahost/InfoNumber.h"

#include "CvxCPP/CvxCPP.h"

#include <utility>
#include <vector>

namespace {

constexpr std::uint64_t firstTimeout = 200; // Milliseconds; some producers always use the whole timeout.
constexpr std::uint64_t secondTimeout = 2000; // If the device was not found in the first one.

/// Returns the flags to try in this order. A producer need not offer each of them.
std::vector<GenTL::DEVICE_ACCESS_FLAGS> flagsFor(std::uint32_t access)
{
    switch (access) {
    case CvxCPP::CvxAccessWatch: // Anything else would take the control from the program that has it.
        return {GenTL::DEVICE_ACCESS_READONLY};
    case CvxCPP::CvxAccessExclusive: // Anything else would break the promise that nobody else can open it.
        return {GenTL::DEVICE_ACCESS_EXCLUSIVE};
    default:
        return {GenTL::DEVICE_ACCESS_CONTROL, GenTL::DEVICE_ACCESS_EXCLUSIVE, GenTL::DEVICE_ACCESS_READONLY};
    }
}

bool isFlagUnknown(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_NOT_IMPLEMENTED || problem.code == GenTL::GC_ERR_INVALID_PARAMETER;
}

/// @param handle A reference, because the call that writes the handle is an argument too.
std::optional<Problem> checkHandle(std::optional<Problem> problem, const char *call, void *const &handle)
{
    if (!problem && !handle)
        return Problem{call, 0, "returned no handle"};
    return problem;
}

} // namespace

std::optional<OpenedDevice::Failure> OpenedDevice::open(
    const std::string &producerFile, const OpenDeviceRequest &request)
{
    if (const auto problem = openProducer(producerFile))
        return Failure{DeviceFailure::Device, describe(*problem)};
    if (const auto problem = openInterface(request.interfaceId))
        return toFailure(*problem);
    return openDevice(request);
}

std::optional<Problem> OpenedDevice::openProducer(const std::string &producerFile)
{
    if (auto problem = m_library.load(producerFile.c_str()))
        return problem;
    if (auto problem = m_library.resolveDeviceFunctions())
        return problem;
    if (auto problem = m_library.call("GCInitLib", m_library.GCInitLib))
        return problem;
    m_isInitialised = true;
    GenTL::TL_HANDLE system = nullptr;
    auto problem = checkHandle(m_library.call("TLOpen", m_library.TLOpen, &system), "TLOpen", system);
    m_system = problem ? nullptr : system;
    return problem;
}

std::optional<Problem> OpenedDevice::openInterface(const std::string &id)
{
    const auto attempt = [&] {
        GenTL::IF_HANDLE handle = nullptr;
        auto problem = checkHandle(
            m_library.call("TLOpenInterface", m_library.TLOpenInterface, m_system, id.c_str(), &handle),
            "TLOpenInterface", handle);
        m_interface = problem ? nullptr : handle;
        return problem;
    };
    updateInterfaces(firstTimeout);
    auto problem = attempt();
    if (problem && isGone(*problem)) {
        updateInterfaces(secondTimeout);
        problem = attempt();
    }
    return problem;
}

std::optional<OpenedDevice::Failure> OpenedDevice::openDevice(const OpenDeviceRequest &request)
{
    updateDevices(firstTimeout);
    bool isUpdated = false;
    std::optional<Problem> problem;
    for (const GenTL::DEVICE_ACCESS_FLAGS flags : flagsFor(request.access)) {
        problem = openWith(flags, request.deviceId);
        if (problem && isGone(*problem) && !std::exchange(isUpdated, true)) {
            updateDevices(secondTimeout);
            problem = openWith(flags, request.deviceId);
        }
        if (!problem || !isFlagUnknown(*problem))
            break;
    }
    if (problem && isFlagUnknown(*problem) && request.access == CvxCPP::CvxAccessWatch)
        return Failure{DeviceFailure::NotAvailable,
            "The producer cannot open a camera for watching only. " + describe(*problem)};
    if (!problem)
        problem = findPort();
    return problem ? std::optional(toFailure(*problem)) : std::nullopt;
}

std::optional<Problem> OpenedDevice::openWith(GenTL::DEVICE_ACCESS_FLAGS flags, const std::string &id)
{
    GenTL::DEV_HANDLE device = nullptr;
    auto problem = checkHandle(
        m_library.call("IFOpenDevice", m_library.IFOpenDevice, m_interface, id.c_str(), flags, &device),
        "IFOpenDevice", device);
    m_device = problem ? nullptr : device;
    m_flags = flags;
    return problem;
}

std::optional<Problem> OpenedDevice::findPort()
{
    GenTL::PORT_HANDLE port = nullptr;
    auto problem = checkHandle(
        m_library.call("DevGetPort", m_library.DevGetPort, device(), &port), "DevGetPort", port);
    m_port = problem ? nullptr : port;
    return problem;
}

/// Failures of an update are ignored: only opening shows whether the device exists.
void OpenedDevice::updateInterfaces(std::uint64_t timeout)
{
    GenTL::bool8_t changed = 0;
    callQuietly(m_library.TLUpdateInterfaceList, m_system, &changed, timeout);
}

void OpenedDevice::updateDevices(std::uint64_t timeout)
{
    GenTL::bool8_t changed = 0;
    callQuietly(m_library.IFUpdateDeviceList, m_interface, &changed, timeout);
}

void OpenedDevice::close()
{
    abandon();
    if (m_interface)
        callQuietly(m_library.IFClose, std::exchange(m_interface, nullptr));
    if (m_system)
        callQuietly(m_library.TLClose, std::exchange(m_system, nullptr));
    if (std::exchange(m_isInitialised, false))
        callQuietly(m_library.GCCloseLib);
}

void OpenedDevice::abandon()
{
    if (const GenTL::DEV_HANDLE device = m_device.exchange(nullptr))
        callQuietly(m_library.DevClose, device);
}
