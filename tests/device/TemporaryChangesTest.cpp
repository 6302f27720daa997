// Tests temporary changes with the real host, a simulated camera, and programs that are killed.

#include "sdk/device/DeviceCore.h"
#include "sdk/device/OpenDevices.h"
#include "tests/camerahost/QuirkProducer.h"
#include "tests/sdk/support/ClientProcess.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/Waiting.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

DeviceOptions realHost()
{
    DeviceOptions options;
    options.hostProgram = CVX_CAMERA_HOST;
    options.openTimeout = options.requestTimeout = options.startTimeout = 30s; // For a loaded machine.
    options.reopenInterval = 20ms;
    return options;
}

/// A simulated camera with four taps. A watcher keeps it powered, so its registers survive every program.
class TemporaryChangesTest : public testing::Test
{
protected:
    TemporaryChangesTest()
    {
        std::filesystem::copy_file(SIMULATOR, ctiPath());
        writeFile(folder.path() / "CorvixCameraSimulator.json",
            R"({"interfaces": [{"id": "net0", "tlType": "CL", "devices": [{"id": ")" + camera
                + R"(", "sensorWidth": 640, "sensorHeight": 480}]}]})");
        watcher = open(CvxAccessWatch);
        device = open(CvxAccessControl);
    }

    std::string ctiPath() const { return folder.path() / "simulator.cti"; }

    std::shared_ptr<Device> open(CvxAccess access)
    {
        std::shared_ptr<Device> opened;
        const CvxResult result = devices.open({ctiPath(), "net0", camera, access, "Camera"}, opened);
        EXPECT_TRUE(result) << result.text;
        return opened;
    }

    /// Returns what somebody else reads, and "" if it cannot be read.
    std::string valueOf(const std::string &name) const
    {
        std::string text;
        return watcher->ReadText(name, text) ? text : "";
    }

    bool waitForValue(const std::string &name, const std::string &text) const
    {
        return waitUntil([&] { return valueOf(name) == text; });
    }

    void write(const std::string &name, const std::string &text)
    {
        const CvxResult result = device->WriteText(name, text);
        EXPECT_TRUE(result) << result.text;
    }

    std::string tapGain(const std::string &tap)
    {
        write("GainSelector", tap);
        return valueOf("Gain");
    }

    void killHosts()
    {
        for (const pid_t host : processesWith(ctiPath())) {
            if (host != watcherHost)
                ::kill(host, SIGKILL);
        }
    }

    TemporaryDirectory folder;
    const std::string camera = "temporary-" + std::to_string(getpid());
    OpenDevices devices{realHost()};
    std::shared_ptr<Device> watcher;
    std::shared_ptr<Device> device;
    pid_t watcherHost = -1;
};

} // namespace

TEST_F(TemporaryChangesTest, valuesAreKeptOrPutBackInAnOrderThatTheCameraAccepts)
{
    write("Width", "512");
    write("OffsetX", "64");
    const std::string exposure = valueOf("ExposureTime");
    for (const TemporaryChanges how : {TemporaryChanges::PutBack, TemporaryChanges::Keep}) {
        ASSERT_TRUE(device->BeginTemporaryChanges());
        write("ExposureTime", "1234");
        write("ExposureTime", "2345");
        write("Width", "128");
        write("OffsetX", "0");
        write("Width", "640"); // OffsetX cannot be put back before it.
        EXPECT_FALSE(device->WriteText("ExposureTime", "-1"));
        const CvxResult result = device->EndTemporaryChanges(how);
        EXPECT_TRUE(result) << result.text;
        const bool isPutBack = how == TemporaryChanges::PutBack;
        EXPECT_EQ(valueOf("ExposureTime"), isPutBack ? exposure : "2345");
        EXPECT_EQ(valueOf("Width"), isPutBack ? "512" : "640");
        EXPECT_EQ(valueOf("OffsetX"), isPutBack ? "64" : "0");
    }
    EXPECT_TRUE(device->Close());
    EXPECT_EQ(valueOf("ExposureTime"), "2345") << "kept values stay";
}

TEST_F(TemporaryChangesTest, selectorsAndWhatTheySelectArePutBack)
{
    write("GainSelector", "Tap2");
    write("Gain", "1.5");
    write("GainSelector", "Tap1");
    ASSERT_TRUE(device->BeginTemporaryChanges());
    write("Gain", "3");
    write("GainSelector", "Tap2");
    write("Gain", "2");
    write("GainSelector", "Tap3");
    write("Gain", "4");
    write("GainSelector", "Tap2");
    write("Gain", "5");
    EXPECT_TRUE(device->EndTemporaryChanges(TemporaryChanges::PutBack));
    EXPECT_EQ(valueOf("GainSelector"), "Tap1");
    EXPECT_EQ(tapGain("Tap1"), "0");
    EXPECT_EQ(tapGain("Tap2"), "1.5");
    EXPECT_EQ(tapGain("Tap3"), "0");
}

TEST_F(TemporaryChangesTest, wrongCallsAreRefused)
{
    EXPECT_EQ(device->EndTemporaryChanges(TemporaryChanges::PutBack).code, CvxErrorNotAvailable);
    ASSERT_TRUE(device->BeginTemporaryChanges());
    EXPECT_EQ(device->BeginTemporaryChanges().code, CvxErrorAlreadyStarted);
    EXPECT_TRUE(device->EndTemporaryChanges(TemporaryChanges::Keep));
    EXPECT_EQ(device->EndTemporaryChanges(TemporaryChanges::Keep).code, CvxErrorNotAvailable);
    EXPECT_EQ(watcher->BeginTemporaryChanges().code, CvxErrorNotWritable);
    EXPECT_TRUE(device->Close());
    EXPECT_EQ(device->BeginTemporaryChanges().code, CvxErrorClosed);
}

TEST_F(TemporaryChangesTest, valueThatTheStreamLocksIsNamedAndPutBackLater)
{
    const std::string width = valueOf("Width");
    ASSERT_TRUE(device->BeginTemporaryChanges());
    write("Width", "128");
    write("ExposureTime", "1234");
    std::shared_ptr<Stream> stream;
    ASSERT_TRUE(device->StartStream(4, StreamPolicy::NewestImage, stream));
    const CvxResult result = device->EndTemporaryChanges(TemporaryChanges::PutBack);
    EXPECT_EQ(result.code, CvxErrorNotWritable);
    EXPECT_NE(result.text.find("Width"), std::string::npos) << result.text;
    EXPECT_EQ(result.text.find("ExposureTime"), std::string::npos) << result.text;
    EXPECT_NE(valueOf("ExposureTime"), "1234");
    EXPECT_EQ(valueOf("Width"), "128");
    EXPECT_TRUE(device->Close()); // Stops the stream.
    EXPECT_EQ(valueOf("Width"), width);
}

TEST_F(TemporaryChangesTest, killedProgramLeavesTheCameraAsItWas)
{
    write("GainSelector", "Tap2");
    EXPECT_TRUE(device->Close());
    const std::string exposure = valueOf("ExposureTime");
    const std::size_t hosts = processesWith(ctiPath()).size();
    ClientProcess program(TEMPORARY_CLIENT,
        {CVX_CAMERA_HOST, ctiPath(), "net0", camera, "ExposureTime=1234", "Width=128", "Gain=3",
            "GainSelector=Tap3", "Gain=4"});
    ASSERT_TRUE(program.waitFor("image")) << program.output();
    EXPECT_EQ(valueOf("ExposureTime"), "1234");
    program.kill(SIGKILL);
    // The host of the program lets go of the camera after it has put the values back.
    EXPECT_TRUE(waitUntil([&] { return processesWith(ctiPath()).size() == hosts; }));
    EXPECT_EQ(valueOf("ExposureTime"), exposure);
    EXPECT_EQ(valueOf("Width"), "640");
    EXPECT_EQ(valueOf("GainSelector"), "Tap2");
    device = open(CvxAccessControl);
    EXPECT_EQ(tapGain("Tap2"), "0");
    EXPECT_EQ(tapGain("Tap3"), "0");
}

TEST_F(TemporaryChangesTest, lossNeitherEndsThemNorChangesWhatIsPutBack)
{
    write("ExposureTime", "5000");
    watcherHost = processesWith(ctiPath()).front();
    ASSERT_TRUE(device->BeginTemporaryChanges());
    write("ExposureTime", "1234");
    for (const char *gain : {"3", "4"}) {
        write("Gain", gain);
        std::uint32_t before = 0;
        device->GetState(before);
        killHosts();
        EXPECT_TRUE(waitUntil([&] {
            std::uint32_t count = 0;
            return device->GetState(count) == DeviceState::Open && count > before;
        }));
        EXPECT_EQ(valueOf("ExposureTime"), "1234");
    }
    EXPECT_TRUE(device->EndTemporaryChanges(TemporaryChanges::PutBack));
    EXPECT_EQ(valueOf("ExposureTime"), "5000");
    EXPECT_EQ(valueOf("Gain"), "0");

    ASSERT_TRUE(device->BeginTemporaryChanges());
    write("ExposureTime", "2345");
    killHosts();
    std::uint32_t count = 0;
    ASSERT_TRUE(waitUntil([&] { return device->GetState(count) != DeviceState::Open; }));
    const CvxResult result = device->EndTemporaryChanges(TemporaryChanges::PutBack);
    EXPECT_TRUE(result || result.code == CvxErrorDeviceLost) << result.text;
    EXPECT_TRUE(waitForValue("ExposureTime", "5000")) << "put back when the camera is open again";
    EXPECT_TRUE(waitUntil([&] { return bool(device->BeginTemporaryChanges()); }));
}

TEST(TemporaryChangesOfAHangingProducer, hostEndsNevertheless)
{
    for (const char *script : {"GCWritePort hang\n", "GCReadPort hang\n", "DSStopAcquisition hang\n"}) {
        SCOPED_TRACE(script);
        QuirkProducer producer;
        {
            ClientProcess program(
                TEMPORARY_CLIENT, {CVX_CAMERA_HOST, producer.ctiPath(), "net0", "A1", "Gain=3"});
            ASSERT_TRUE(program.waitFor("image")) << program.output();
            producer.setScript(script);
            program.kill(SIGKILL);
        }
        EXPECT_TRUE(waitUntil([&] { return processesWith(producer.ctiPath()).empty(); }));
        EXPECT_EQ(producer.count("closed A1"), 1U);
        OpenDevices devices(realHost());
        std::shared_ptr<Device> device;
        producer.setScript("DevClose hang\n");
        ASSERT_TRUE(devices.open({producer.ctiPath(), "net0", "A1", CvxAccessControl, "Camera"}, device));
        ASSERT_TRUE(device->BeginTemporaryChanges());
        ASSERT_TRUE(device->WriteInteger("Gain", 4));
        producer.setScript(script);
        EXPECT_TRUE(device->Close());
        EXPECT_TRUE(processesWith(producer.ctiPath()).empty());
    }
}
