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

/// A camera system over producers of the test's own, in a directory of the test's own. Its times are short,
/// but long enough that no healthy producer misses them on a loaded machine.
class SystemTest : public testing::Test
{
protected:
    SystemTest();
    ~SystemTest() override; ///< Ends the system, and fails the test when anything is left of it.

    using Cameras = std::vector<std::shared_ptr<CvxCPP::Camera>>;

    /// Adds a copy of the scriptable producer.
    void addProducer(const std::string &name, const std::string &script);
    void setScript(const std::string &name, const std::string &script);
    std::filesystem::path ctiPath(const std::string &file) const { return directory.path() / "cti" / file; }

    /// The calls that a producer has got so far, in order, without their process.
    std::vector<std::string> callsOf(const std::string &name) const;
    std::size_t countCalls(const std::string &name, const std::string &call) const;

    CvxCPP::CvxSystem &start(); ///< With the options as they are now.
    void stop();

    Cameras list();
    std::vector<std::string> listIds(); ///< Extended IDs.
    std::shared_ptr<CvxCPP::Interface> interfaceOf(const Cameras &cameras, std::size_t index);
    std::shared_ptr<CvxCPP::Feature> feature(CvxCPP::FeatureContainer &interface, const char *name);

    std::shared_ptr<CameraRecorder> recordCameras();

    std::vector<std::string> reports() const;
    std::size_t countReports(const std::string &text) const;

    TemporaryDirectory directory;
    SystemOptions options;
    std::unique_ptr<CameraSystem> system;

private:
    const std::size_t m_descriptors = openDescriptors();
    mutable std::mutex m_mutex;
    std::vector<std::string> m_reports;
};

/// A script with cameras "A1", "A2", … on one GigE interface "net0".
std::string cameras(int count);
