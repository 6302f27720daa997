// Tests what a program sees if the producer, the host, the camera or the program itself fails.

#include "tests/device/FailureSession.h"
#include "tests/sdk/support/ClientProcess.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <future>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

/// Returns the number of memory mappings of this process that belong to streams.
std::size_t streamMappings()
{
    std::size_t count = 0;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        count += line.find("CvxCPP") != std::string::npos ? 1 : 0;
    return count;
}

/// Calls everything that a program calls, whatever fails. Returns the first failure.
CvxResult useCamera(Device &device)
{
    CvxResult first;
    const auto note = [&first](CvxResult result) {
        if (first)
            first = std::move(result);
    };
    std::shared_ptr<Stream> stream;
    note(device.WriteInteger("Gain", 5));
    note(device.StartStream(4, StreamPolicy::EveryImage, stream));
    std::shared_ptr<const Image> image;
    if (stream)
        note(stream->WaitForImage(15s, image));
    if (stream)
        note(stream->Stop());
    return first;
}

} // namespace

// ---- Crashes and hangs of the producer ----------------------------------------------------------------

class CrashInCall : public FailingDevice, public testing::WithParamInterface<const char *>
{ };

TEST_P(CrashInCall, doesNotReachTheProgram)
{
    const std::string function = GetParam();
    producer.setScript(function + " crash\n");
    options.reopenInterval = 1h;
    CvxResult result = open();
    if (result) {
        result = useCamera(*device);
        const auto isReported = [&] { return recorder->reasons().find("SIGSEGV") != std::string::npos; };
        EXPECT_TRUE(result || waitUntil(isReported)) << recorder->reasons();
    } else {
        EXPECT_NE(result.text.find("SIGSEGV"), std::string::npos) << result.text;
    }
    if (!result) { // A crash while the camera is being closed is no failure.
        EXPECT_TRUE(result.code == CvxErrorDevice || result.code == CvxErrorDeviceLost) << result.text;
    }
    close();
    EXPECT_EQ(producer.count("crash in " + function), 1U);
    expectUsable();
}

INSTANTIATE_TEST_SUITE_P(, CrashInCall,
    testing::Values("GCInitLib", "TLOpen", "TLOpenInterface", "IFOpenDevice", "DevGetPort", "GCReadPort",
        "GCWritePort", "DevGetNumDataStreams", "DevGetDataStreamID", "DevOpenDataStream", "DSGetInfo",
        "DSAnnounceBuffer", "DSQueueBuffer", "GCRegisterEvent", "DSStartAcquisition", "EventGetData",
        "DSGetBufferInfo", "DSStopAcquisition", "GCUnregisterEvent", "DSFlushQueue", "DSRevokeBuffer",
        "DSClose", "DevClose", "IFClose", "TLClose", "GCCloseLib"),
    [](const auto &row) { return row.param; });

TEST_F(FailingDevice, hangInOpenTimesOut)
{
    options.openTimeout = 300ms;
    producer.setScript("IFOpenDevice hang\n");
    EXPECT_EQ(open().code, CvxErrorTimeout);
    EXPECT_TRUE(hosts().empty());
}

TEST_F(FailingDevice, hangInARequestTimesOutAndLosesTheDevice)
{
    options.requestTimeout = 2s;
    ASSERT_TRUE(open());
    producer.setScript("GCReadPort hang\n");
    std::int64_t value = 0;
    EXPECT_EQ(device->ReadInteger("Gain", value).code, CvxErrorTimeout);
    producer.setScript("");
    EXPECT_TRUE(waitForState(DeviceState::Open));
    EXPECT_TRUE(device->ReadInteger("Gain", value));
}

TEST_F(FailingDevice, hangInTheStartOfAStreamTimesOut)
{
    options.startTimeout = 2s;
    ASSERT_TRUE(open());
    producer.setScript("DSStartAcquisition hang\n");
    EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, stream).code, CvxErrorTimeout);
    expectUsable();
}

TEST_F(FailingDevice, hangInTheStopOfAStreamIsBounded)
{
    openAndStream();
    producer.setScript("DSStopAcquisition hang\n");
    static_cast<void>(stream->Stop()); // Whether this succeeds depends on how the host ends.
    producer.setScript("");
    EXPECT_TRUE(waitForState(DeviceState::Open));
    expectUsable();
}

TEST_F(FailingDevice, hangInCloseIsBounded)
{
    openAndStream();
    producer.setScript("DevClose hang\n");
    close();
    EXPECT_TRUE(hosts().empty());
    expectUsable();
}

TEST_F(FailingDevice, hangWhileStreamingDoesNotBlockTheProgram)
{
    openAndStream();
    producer.setScript("EventGetData hang\n");
    ASSERT_TRUE(waitUntil([&] { return producer.count("hang in EventGetData") > 0; }));
    while (stream->WaitForImage(500ms, image)) { } // Images that have arrived before.
    close();
    EXPECT_TRUE(hosts().empty());
    expectUsable();
}

// ---- Losses --------------------------------------------------------------------------------------------

TEST_F(FailingDevice, lostStreamGoesOn)
{
    const struct
    {
        const char *name, *script;
        bool isMemoryIntact;
    } rows[] = {
        {"producer crashes", "image crash\n", true},
        {"camera is unplugged", "gone A1\n", true},
        {"producer reports the loss", "EventGetData error -1006\n", true},
        // The host may take a buffer back that the program holds, because both share the damaged queue.
        {"producer damages the shared memory", "image scribble\n", false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        producer.setScript("");
        close();
        openAndStream();
        ASSERT_TRUE(device->WriteInteger("Gain", 5));
        ASSERT_TRUE(device->WriteFloat("ExposureTime", 2500.0));
        ASSERT_TRUE(device->WriteInteger("Gain", 7));
        const auto held = image;
        const std::vector<std::uint8_t> before(held->GetData(), held->GetData() + held->GetSize());

        producer.setScript(row.script);
        CvxResult result;
        while (result)
            result = waitForImage();
        ASSERT_EQ(result.code, CvxErrorDeviceLost) << result.text;
        EXPECT_EQ(stream->WaitForImage(0ms, image).code, CvxErrorTimeout) << "the loss is reported once";
        producer.setScript("");
        // The camera may have been opened and lost again before the script was removed.
        ASSERT_TRUE(waitUntil([&] { return bool(result = waitForImage()); })) << result.text;
        EXPECT_EQ(image->GetInfo().width, 64U);
        EXPECT_EQ(state(), DeviceState::Open);

        std::int64_t gain = 0;
        double exposure = 0;
        EXPECT_TRUE(device->ReadInteger("Gain", gain) && device->ReadFloat("ExposureTime", exposure));
        EXPECT_EQ(gain, 7);
        EXPECT_EQ(exposure, 2500.0);
        StreamStatistics statistics;
        EXPECT_TRUE(stream->GetStatistics(statistics));
        EXPECT_GE(statistics.reopenCount, 1U);
        EXPECT_TRUE(!row.isMemoryIntact || std::equal(before.begin(), before.end(), held->GetData()))
            << "a held image stays valid";
    }
}

TEST_F(FailingDevice, killedHostIsReplacedAtEveryStep)
{
    const auto killHost = [&] {
        killAll(hosts());
        EXPECT_TRUE(waitUntil([&] {
            std::uint32_t reopenCount = 0;
            std::int64_t value = 0;
            return device->GetState(reopenCount) == DeviceState::Open && device->ReadInteger("Width", value);
        }));
    };
    ASSERT_TRUE(open());
    killHost();
    ASSERT_TRUE(device->WriteInteger("Width", 128));
    killHost();
    ASSERT_TRUE(device->StartStream(4, StreamPolicy::EveryImage, stream));
    killHost();
    ASSERT_TRUE(waitUntil([&] { return bool(stream->WaitForImage(1s, image)); }));
    EXPECT_EQ(image->GetInfo().width, 128U) << "written before the first loss";
    killHost();
    EXPECT_TRUE(stream->Stop());
    killHost();
    std::uint32_t reopenCount = 0;
    EXPECT_EQ(device->GetState(reopenCount), DeviceState::Open);
    EXPECT_GE(reopenCount, 5U);
}

TEST_F(FailingDevice, lostDeviceCanBeClosed)
{
    openAndStream();
    producer.setScript("gone A1\n");
    ASSERT_TRUE(waitUntil([&] { return state() != DeviceState::Open; }));
    std::int64_t value = 0;
    EXPECT_EQ(device->ReadInteger("Gain", value).code, CvxErrorDeviceLost);
    EXPECT_TRUE(device->Close());
    EXPECT_EQ(device->ReadInteger("Gain", value).code, CvxErrorClosed);
    expectUsable();
}

// ---- Several programs ------------------------------------------------------------------------------------

TEST_F(FailingDevice, cameraInUseIsReportedWithTheProducersText)
{
    openAndStream();
    OpenDevices others(options);
    std::shared_ptr<Device> other;
    const DeviceTarget target{producer.ctiPath(), "net0", "A1", CvxAccessControl, "Camera"};
    const CvxResult refused = others.open(target, other);
    EXPECT_EQ(refused.code, CvxErrorInUse);
    EXPECT_NE(refused.text.find("the producer's own text"), std::string::npos) << refused.text;
    EXPECT_TRUE(waitForImage()) << "the first program is not disturbed";

    DeviceTarget watched = target;
    watched.access = CvxAccessWatch;
    std::shared_ptr<Device> watcher;
    ASSERT_TRUE(others.open(watched, watcher));
    std::int64_t value = 0;
    EXPECT_TRUE(watcher->ReadInteger("Gain", value));
    EXPECT_EQ(watcher->WriteInteger("Gain", 3).code, CvxErrorNotWritable);
}

TEST_F(FailingDevice, cameraThatIsInUseForAMomentIsOpened)
{
    options.inUseTimeout = 30s;
    options.inUseInterval = 10ms;
    producer.setScript("IFOpenDevice error -1005\n");
    auto opened = std::async(std::launch::async, [&] { return open(); });
    EXPECT_TRUE(waitUntil([&] { return producer.count("IFOpenDevice") >= 2; }));
    producer.setScript("");
    EXPECT_TRUE(opened.get());
}

TEST_F(FailingDevice, killedProgramLeavesTheCameraFree)
{
    ClientProcess program(FAILURE_CLIENT, {CVX_CAMERA_HOST, producer.ctiPath()});
    ASSERT_TRUE(program.waitFor("image")) << program.output();
    program.kill(SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return producer.count("closed A1") == 1; }));
    EXPECT_TRUE(waitUntil([&] { return hosts().empty(); }));
    expectUsable();
}

// ---- Resources -------------------------------------------------------------------------------------------

TEST_F(FailingDevice, manyRoundsLeaveNothingBehind)
{
    const std::size_t threads = threadCount();
    for (int round = 0; round < 200; ++round) {
        ASSERT_NO_FATAL_FAILURE(openAndStream()) << "round " << round;
        close();
    }
    EXPECT_EQ(threadCount(), threads);
    EXPECT_EQ(streamMappings(), 0U);
    EXPECT_TRUE(childrenOf(getpid()).empty());
    EXPECT_EQ(producer.count("closed A1"), 200U);
}
