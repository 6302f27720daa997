#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceCore.h"
#include "sdk/device/OpenDevices.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/TemporaryDirectory.h"
#include "tests/sdk/support/Waiting.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// Records the calls of an observer, for example "nodes Gain Width" or "state 1 <reason>".
class DeviceRecorder : public CvxCPP::IDeviceObserver
{
public:
    void NodesChanged(const std::vector<std::string> &names) override;
    void StateChanged(CvxCPP::DeviceState state, const std::string &reason) override;

    Lines calls() const;
    bool waitFor(const std::string &text) const; ///< Waits for a call that contains the text.

private:
    void record(const std::string &call);

    mutable std::mutex m_mutex;
    Lines m_calls;
};

/// Opens cameras with the scripted host; see host/ScriptedHost.cpp. The limits are long enough that no
/// healthy host exceeds them; a test that waits for one shortens it.
class DeviceTest : public testing::Test
{
protected:
    DeviceTest();
    ~DeviceTest() override; ///< Fails the test if a process, a thread, a descriptor or a mapping is left.

    /// Opens the camera. A name distinguishes the cameras of a test that opens several.
    CvxCPP::CvxResult open(std::shared_ptr<CvxCPP::Device> &device, const std::string &name = "camera");
    /// Opens the camera and expects that this succeeds.
    std::shared_ptr<CvxCPP::Device> opened();
    std::shared_ptr<CvxCPP::Stream> streaming(CvxCPP::Device &device, unsigned buffers = 4,
        CvxCPP::StreamPolicy policy = CvxCPP::StreamPolicy::EveryImage);

    void setScript(const std::string &script, const std::string &name = "camera");
    /// Lets the host do something by the command "Do".
    CvxCPP::CvxResult act(CvxCPP::Device &device, const std::string &action);

    Lines log() const; ///< Returns the requests that all hosts have received.
    std::size_t count(const std::string &request) const; ///< Returns how many of them begin so.
    std::vector<pid_t> hosts() const { return processesWith(directory.path().string()); }
    void killHost() const;
    bool waitForState(const CvxCPP::Device &device, CvxCPP::DeviceState state) const;

    TemporaryDirectory directory;
    DeviceOptions options;
    CvxCPP::CvxAccess access = CvxCPP::CvxAccessControl;
    std::unique_ptr<OpenDevices> devices; ///< Created by the first open(); uses the options.

private:
    std::string path(const std::string &name) const { return directory.path() / name; }

    static std::size_t threadsBefore();

    const std::size_t m_descriptors = openDescriptors();
    const std::size_t m_threads = threadsBefore();
};

/// Returns the number of mappings of this process that belong to streams.
std::size_t streamMappings();
