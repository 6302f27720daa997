#pragma once

#include "sdk/device/DeviceCore.h"
#include "sdk/device/OpenDevices.h"
#include "tests/camerahost/QuirkProducer.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/Waiting.h"

#include <gtest/gtest.h>
#include <memory>
#include <mutex>

/// Collects the reasons of all changes of a device's state.
class StateRecorder : public CvxCPP::IDeviceObserver
{
public:
    void NodesChanged(const std::vector<std::string> &) override { }
    void StateChanged(CvxCPP::DeviceState, const std::string &reason) override
    {
        const std::lock_guard lock(m_mutex);
        m_reasons += reason + '\n';
    }
    std::string reasons() const
    {
        const std::lock_guard lock(m_mutex);
        return m_reasons;
    }

private:
    mutable std::mutex m_mutex;
    std::string m_reasons;
};

/// Opens the camera of a quirk producer as a program does. The destructor fails the test if a process or a
/// descriptor is left, or if the host has broken a rule.
class FailingDevice : public testing::Test
{
protected:
    FailingDevice();
    ~FailingDevice() override;

    CvxCPP::CvxResult open(
        CvxCPP::CvxAccess access = CvxCPP::CvxAccessControl, const std::string &camera = "A1");
    void openAndStream(); ///< Requires success, and an image.
    CvxCPP::CvxResult waitForImage() { return stream->WaitForImage(std::chrono::seconds(15), image); }
    CvxCPP::DeviceState state() const;
    bool waitForState(CvxCPP::DeviceState expected) const;
    void close(); ///< Closes the device and all that belongs to it.

    std::vector<pid_t> hosts() const { return processesWith(producer.ctiPath()); }

    /// Opens the camera again without a quirk, and requires an image.
    void expectUsable();

    QuirkProducer producer;
    DeviceOptions options; ///< Changes must be made before open().
    std::unique_ptr<OpenDevices> devices;
    std::shared_ptr<CvxCPP::Device> device;
    std::shared_ptr<CvxCPP::Stream> stream;
    std::shared_ptr<const CvxCPP::Image> image;
    std::shared_ptr<StateRecorder> recorder = std::make_shared<StateRecorder>();

private:
    const std::size_t m_descriptors = openDescriptors();
};
