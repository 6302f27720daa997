#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/protocol/DeviceMessages.h"

#include <atomic>
#include <optional>
#include <string>

/// Loads a producer and opens one of its devices.
class OpenedDevice
{
public:
    using Failure = RequestFailedReply;

    /// Opens the device. Returns the failure if this is not possible; only close() may be called afterwards.
    std::optional<Failure> open(const std::string &producerFile, const OpenDeviceRequest &request);

    /// Closes what is open. Producers must be closed before the process ends.
    void close();

    const DeviceLibrary &library() const { return m_library; }
    GenTL::IF_HANDLE interface() const { return m_interface; }
    GenTL::DEV_HANDLE device() const { return m_device; }

    /// Returns the port of the camera.
    GenTL::PORT_HANDLE port() const { return m_port; }

    /// Returns true if the device is open for reading only.
    bool isReadOnly() const { return m_flags == GenTL::DEVICE_ACCESS_READONLY; }

    /// Closes only the device, while another thread may hang in a call of the producer, just before the end
    /// of the process. Any thread may call this function.
    void abandon();

private:
    std::optional<Problem> openProducer(const std::string &producerFile);
    std::optional<Problem> openInterface(const std::string &id);
    std::optional<Failure> openDevice(const OpenDeviceRequest &request);
    std::optional<Problem> openWith(GenTL::DEVICE_ACCESS_FLAGS flags, const std::string &id);
    std::optional<Problem> findPort();
    void updateInterfaces(std::uint64_t timeout);
    void updateDevices(std::uint64_t timeout);

    DeviceLibrary m_library;
    bool m_isInitialised = false;
    GenTL::TL_HANDLE m_system = nullptr;
    GenTL::IF_HANDLE m_interface = nullptr;
    std::atomic<GenTL::DEV_HANDLE> m_device{nullptr};
    GenTL::PORT_HANDLE m_port = nullptr;
    GenTL::DEVICE_ACCESS_FLAGS m_flags = GenTL::DEVICE_ACCESS_UNKNOWN;
};
