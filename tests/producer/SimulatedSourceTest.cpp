// These tests edit the configuration file while the simulator uses it.

#include "sdk/simulator/SimulatedSource.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <future>
#include <gtest/gtest.h>

using Ids = std::vector<std::string>;

namespace {

std::string withDevice(const std::string &id)
{
    return R"({"interfaces": [{"id": "net", "devices": [{"id": ")" + id + R"("}]}]})";
}

const Ids defaultCameras{"corvix-simulator-0001", "corvix-simulator-0002"};

} // namespace

/// Provides a device source with a configuration file in a temporary folder. At first, the file does not
/// exist.
class SimulatedSourceTest : public testing::Test
{
protected:
    static std::filesystem::path newFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "simulator-XXXXXX";
        return mkdtemp(name.data());
    }

    ~SimulatedSourceTest() override { std::filesystem::remove_all(folder); }

    /// Overwrites the file and sets its time stamp, because two quick edits could have the same time stamp.
    void write(const std::string &text, int seconds)
    {
        std::ofstream(file, std::ios::binary) << text;
        std::filesystem::last_write_time(
            file, std::filesystem::file_time_type(std::chrono::seconds(seconds)));
    }

    /// Returns the devices of the only interface.
    Ids devices()
    {
        const std::vector<InterfaceRecord> interfaces = source->updateInterfaces();
        EXPECT_EQ(interfaces.size(), 1U);
        Ids ids;
        for (const DeviceRecord &device : source->updateDevices(interfaces.at(0).id, {}))
            ids.push_back(device.id);
        return ids;
    }

    /// Expects these devices in each of three updates, and a single line on standard error with this reason.
    void expectProblem(const Ids &expected, const std::string &reason)
    {
        testing::internal::CaptureStderr();
        for (int round = 0; round < 3; ++round)
            EXPECT_EQ(devices(), expected);
        const std::string line = testing::internal::GetCapturedStderr();
        const std::string start = "Camera simulator: " + file.string() + " is not used: ";
        EXPECT_EQ(line.rfind(start, 0), 0U) << line;
        EXPECT_NE(line.find(reason, start.size()), std::string::npos) << line;
        EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << line;
        EXPECT_LE(line.size(), start.size() + 501) << line;
    }

    const std::filesystem::path folder = newFolder();
    const std::filesystem::path file = folder / "CorvixCameraSimulator.json";
    const std::unique_ptr<DeviceSource> source = createDeviceSource(folder / "any.cti");
};

TEST_F(SimulatedSourceTest, fileIsReadAgainWhenItsTimeStampOrSizeChanges)
{
    EXPECT_EQ(devices(), defaultCameras);
    for (const auto &[id, seconds] : {std::pair("one", 1), {"two", 2}, {"three", 2}, {"eight", 1}}) {
        write(withDevice(id), seconds);
        EXPECT_EQ(devices(), Ids{id});
    }
    EXPECT_TRUE(source->updateDevices("another interface", {}).empty());
}

TEST_F(SimulatedSourceTest, invalidFileIsReportedOnlyOnce)
{
    write(R"({"interfaces": [1]})", 1);
    expectProblem(defaultCameras, "interfaces[0] is not an object");
    write(withDevice("one"), 2);
    EXPECT_EQ(devices(), Ids{"one"});
    write("{\"interfaces\": \"" + std::string(1U << 20U, 'x'), 3);
    expectProblem({"one"}, "parse error");
}

TEST_F(SimulatedSourceTest, unreadableFileKeepsTheLastValidConfiguration)
{
    write(withDevice("one"), 1);
    EXPECT_EQ(devices(), Ids{"one"});
    std::filesystem::remove(file);
    testing::internal::CaptureStderr();
    EXPECT_EQ(devices(), defaultCameras);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    std::filesystem::create_symlink(file.filename(), file); // A link to itself cannot be opened.
    expectProblem({"one"}, "Too many levels of symbolic links");
    std::filesystem::remove(file);
    std::filesystem::create_directory(file); // A folder can be opened, but not read.
    expectProblem({"one"}, "Is a directory");
}

TEST_F(SimulatedSourceTest, cameraThatDisappearsFromTheFileIsLost)
{
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1); // The registers are in a file there.
    const auto open = [this] { return source->openCamera("net", "one", GenTL::DEVICE_ACCESS_CONTROL); };
    write(withDevice("one"), 1);
    const std::unique_ptr<OpenCamera> camera = open();
    std::promise<void> loss;
    camera->setLossHandler([&loss] { loss.set_value(); });
    EXPECT_THROW(open(), GenTlError); // It is in use.
    write(withDevice("two"), 2);
    ASSERT_EQ(loss.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
    EXPECT_EQ(camera->accessStatus(), GenTL::DEVICE_ACCESS_STATUS_NOACCESS);
    EXPECT_THROW(open(), GenTlError); // It is not connected.
    write(withDevice("one"), 3);
    EXPECT_EQ(open()->accessStatus(), GenTL::DEVICE_ACCESS_STATUS_OPEN_READWRITE);
}
