// The simulator while a person edits its configuration file.

#include "sdk/simulator/SimulatedSource.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

using Ids = std::vector<std::string>;

namespace {

std::string withDevice(const std::string &id)
{
    return R"({"interfaces": [{"id": "net", "devices": [{"id": ")" + id + R"("}]}]})";
}

const Ids defaultCameras{"corvix-simulator-0001", "corvix-simulator-0002"};

} // namespace

/// A device source whose configuration file is in a temporary folder, and absent at first.
class SimulatedSourceTest : public testing::Test
{
protected:
    SimulatedSourceTest() : folder(std::filesystem::temp_directory_path() / "simulator-XXXXXX")
    {
        std::string name = folder;
        folder = mkdtemp(name.data());
        file = folder / "CorvixCameraSimulator.json";
        source = createDeviceSource(folder / "any.cti");
    }
    ~SimulatedSourceTest() override { std::filesystem::remove_all(folder); }

    /// Overwrites the file. Its time stamp is set, because two quick edits can get the same one.
    void write(const std::string &text, std::chrono::seconds modified)
    {
        std::ofstream(file, std::ios::binary) << text;
        std::filesystem::last_write_time(file, std::filesystem::file_time_type(modified));
    }

    /// Returns the devices of the only interface.
    Ids devices()
    {
        const std::vector<InterfaceRecord> interfaces = source->updateInterfaces();
        EXPECT_EQ(interfaces.size(), 1U);
        Ids ids;
        for (const DeviceRecord &device : source->updateDevices(interfaces.at(0).id))
            ids.push_back(device.id);
        return ids;
    }

    /// Expects these devices in three updates, and one line on standard error with this reason.
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

    std::filesystem::path folder;
    std::filesystem::path file;
    std::unique_ptr<DeviceSource> source;
};

TEST_F(SimulatedSourceTest, fileIsReadAgainWhenItsTimeStampOrSizeChanges)
{
    using namespace std::chrono_literals;
    EXPECT_EQ(devices(), defaultCameras);
    write(withDevice("one"), 1s);
    EXPECT_EQ(devices(), Ids{"one"});
    write(withDevice("two"), 2s);
    EXPECT_EQ(devices(), Ids{"two"});
    write(withDevice("three"), 2s);
    EXPECT_EQ(devices(), Ids{"three"});
    EXPECT_TRUE(source->updateDevices("another interface").empty());
}

TEST_F(SimulatedSourceTest, fileWithAMistakeChangesNothingAndIsReportedOnce)
{
    using namespace std::chrono_literals;
    write(R"({"interfaces": [1]})", 1s);
    expectProblem(defaultCameras, "interfaces[0] is not an object");
    write(withDevice("one"), 2s);
    EXPECT_EQ(devices(), Ids{"one"});
    write("{\"interfaces\": \"" + std::string(1U << 20U, 'x'), 3s);
    expectProblem({"one"}, "parse error");
    write(withDevice("two"), 4s);
    EXPECT_EQ(devices(), Ids{"two"});
}

TEST_F(SimulatedSourceTest, removedFileMeansTwoCamerasAndAnUnusableOneTheLastGoodFile)
{
    using namespace std::chrono_literals;
    write(withDevice("one"), 1s);
    EXPECT_EQ(devices(), Ids{"one"});
    std::filesystem::remove(file);
    EXPECT_EQ(devices(), defaultCameras);
    std::filesystem::create_symlink(file.filename(), file); // A link to itself cannot be opened.
    expectProblem({"one"}, "Too many levels of symbolic links");
    std::filesystem::remove(file);
    std::filesystem::create_directory(file); // A folder can be opened, but not read.
    expectProblem({"one"}, "Is a directory");
}
