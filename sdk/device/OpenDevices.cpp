#include "sdk/device/OpenDevices.h"

#include "sdk/device/DeviceCore.h"
#include "sdk/device/DeviceObject.h"

#include <algorithm>
#include <utility>

using namespace CvxCPP;

OpenDevices::OpenDevices(DeviceOptions options) : m_options(std::move(options)) { }

OpenDevices::~OpenDevices()
{
    close();
}

CvxResult OpenDevices::open(const DeviceTarget &target, std::shared_ptr<Device> &device)
{
    return ResultMaker(target.label).guarded([&] {
        const auto core = std::make_shared<DeviceCore>(m_options, target);
        CvxResult result;
        if (add(core))
            result = core->open();
        if (isClosed())
            return core->results.result(CvxErrorNotStarted, "The camera system does not run.");
        if (result)
            device = std::make_shared<DeviceObject>(core);
        return result;
    });
}

/// Returns false if no device can be added any more.
bool OpenDevices::add(const std::shared_ptr<DeviceCore> &device)
{
    const std::lock_guard lock(m_mutex);
    if (m_isClosed)
        return false;
    const auto isGone = [](const std::weak_ptr<DeviceCore> &known) { return known.expired(); };
    m_devices.erase(std::remove_if(m_devices.begin(), m_devices.end(), isGone), m_devices.end());
    m_devices.push_back(device);
    return true;
}

bool OpenDevices::isClosed() const
{
    const std::lock_guard lock(m_mutex);
    return m_isClosed;
}

void OpenDevices::beginClose()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isClosed = true;
    }
    for (const auto &device : devices())
        device->beginClose();
}

void OpenDevices::close()
{
    beginClose(); // All devices close at the same time.
    for (const auto &device : devices())
        device->close();
}

std::vector<std::shared_ptr<DeviceCore>> OpenDevices::devices() const
{
    std::vector<std::shared_ptr<DeviceCore>> devices;
    const std::lock_guard lock(m_mutex);
    for (const auto &known : m_devices) {
        if (auto device = known.lock())
            devices.push_back(std::move(device));
    }
    return devices;
}
