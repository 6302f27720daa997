#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceOptions.h"

#include <memory>
#include <mutex>
#include <vector>

class DeviceCore;
struct DeviceTarget;

/// The devices that a camera system has opened. Every function may be called from any thread.
class OpenDevices
{
public:
    explicit OpenDevices(DeviceOptions options);
    ~OpenDevices(); ///< Calls close().
    OpenDevices(const OpenDevices &) = delete;
    OpenDevices &operator=(const OpenDevices &) = delete;

    /// Opens a camera; see CvxCPP::Camera::Open(). Returns CvxErrorNotStarted after close().
    CvxCPP::CvxResult open(const DeviceTarget &target, std::shared_ptr<CvxCPP::Device> &device);

    /// Begins to close all devices, also those that are being opened.
    void beginClose();
    /// Closes all devices and waits until their hosts have ended.
    void close();

private:
    bool add(const std::shared_ptr<DeviceCore> &device);
    bool isClosed() const;
    std::vector<std::shared_ptr<DeviceCore>> devices() const;

    const DeviceOptions m_options;

    mutable std::mutex m_mutex; // Guards the members below.
    std::vector<std::weak_ptr<DeviceCore>> m_devices;
    bool m_isClosed = false;
};
