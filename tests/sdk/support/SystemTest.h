#pragma once

#include "sdk/cvxcpp/CameraSystem.h"
#include "tests/sdk/support/CameraText.h"
#include "tests/sdk/support/Observers.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/TemporaryDirectory.h"
#include "tests/sdk/support/Waiting.h"

#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// Runs a camera system with scripted producers in a temporary directory. The intervals and timeouts are
/// short, but long enough that no healthy producer misses a deadline on a loaded machine.
class SystemTest : public testing::Test
{
protected:
    SystemTest();
    ~SystemTest() override; ///< Shuts down; fails the test if a process or a descriptor is left.

    using Cameras = std::vector<std::shared_ptr<CvxCPP::Camera>>;

    void addProducer(const std::string &name, const std::string &script);
    void setScript(const std::string &name, const std::string &script);
    std::filesystem::path ctiPath(const std::string &file) const { return directory.path() / "cti" / file; }

    /// Returns the calls that a producer has received so far.
    std::vector<std::string> callsOf(const std::string &name) const;
    std::size_t countCalls(const std::string &name, const std::string &call) const;

    void start(); ///< Starts the system with the current options.
    void stop();

    Cameras list();
    std::vector<std::string> listIds(); ///< Returns the extended IDs.
    std::shared_ptr<CvxCPP::Interface> interfaceOf(const Cameras &cameras, std::size_t index);
    std::shared_ptr<CvxCPP::Feature> feature(CvxCPP::FeatureContainer &interface, const char *name);
    std::shared_ptr<CameraRecorder> recordCameras();

    std::vector<std::string> reports() const; ///< Returns the lines that were reported so far.
    std::size_t countReports(const std::string &text) const;

    TemporaryDirectory directory;
    SystemOptions options;
    std::unique_ptr<CameraSystem> system;

private:
    const std::size_t m_descriptors = openDescriptors();
    mutable std::mutex m_mutex;
    std::vector<std::string> m_reports;
};

/// Returns a script with cameras "A1", "A2", … on one GigE Vision interface "net0".
std::string cameras(int count);
