#include "tests/device/DeviceTest.h"

#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

using namespace CvxCPP;
using namespace std::chrono_literals;

void DeviceRecorder::NodesChanged(const std::vector<std::string> &names)
{
    std::string call = "nodes";
    for (const std::string &name : names)
        call += ' ' + name;
    record(call);
}

void DeviceRecorder::StateChanged(DeviceState state, const std::string &reason)
{
    record("state " + std::to_string(static_cast<int>(state)) + ' ' + reason);
}

void DeviceRecorder::record(const std::string &call)
{
    const std::lock_guard lock(m_mutex);
    m_calls.push_back(call);
}

Lines DeviceRecorder::calls() const
{
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

bool DeviceRecorder::waitFor(const std::string &text) const
{
    return waitUntil([&] {
        const Lines lines = calls();
        return std::any_of(lines.begin(), lines.end(),
            [&](const std::string &call) { return call.find(text) != std::string::npos; });
    });
}

DeviceTest::DeviceTest()
{
    options.hostProgram = SCRIPTED_CAMERA_HOST;
    options.openTimeout = options.requestTimeout = options.startTimeout = options.stopTimeout = 30s;
    options.closeTimeout = 20s;
    options.inUseTimeout = 0ms;
    options.inUseInterval = options.reopenInterval = 20ms;
}

std::size_t DeviceTest::threadsBefore()
{
    std::thread([] {}).join(); // When the first thread starts, ThreadSanitizer starts one of its own.
    return threadCount();
}

DeviceTest::~DeviceTest()
{
    devices.reset();
    EXPECT_TRUE(waitUntil([this] { return hosts().empty(); })) << "a host is left";
    killAll(hosts());
    EXPECT_TRUE(childrenOf(getpid()).empty()) << "a host was not reaped";
    EXPECT_EQ(openDescriptors(), m_descriptors);
    EXPECT_TRUE(waitUntil([this] { return threadCount() <= m_threads; })) << "a thread is left";
    EXPECT_EQ(streamMappings(), 0U);
}

CvxResult DeviceTest::open(std::shared_ptr<Device> &device, const std::string &name)
{
    if (!devices)
        devices = std::make_unique<OpenDevices>(options);
    return devices->open({path(name), "net0", "D1", access, "Orvelle Kx200 (24030117)"}, device);
}

std::shared_ptr<Device> DeviceTest::opened()
{
    std::shared_ptr<Device> device;
    const CvxResult result = open(device);
    EXPECT_TRUE(result) << result.text;
    return device;
}

std::shared_ptr<Stream> DeviceTest::streaming(Device &device, unsigned buffers, StreamPolicy policy)
{
    std::shared_ptr<Stream> stream;
    const CvxResult result = device.StartStream(buffers, policy, stream);
    EXPECT_TRUE(result) << result.text;
    return stream;
}

void DeviceTest::setScript(const std::string &script, const std::string &name)
{
    writeFile(path(name) + ".script", script);
}

CvxResult DeviceTest::act(Device &device, const std::string &action)
{
    setScript("do " + action + '\n');
    CvxResult result = device.Execute("Do");
    setScript("");
    return result;
}

Lines DeviceTest::log() const
{
    Lines lines;
    std::istringstream file(readFile(path("camera") + ".log"));
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::size_t DeviceTest::count(const std::string &request) const
{
    const Lines lines = log();
    const auto begins
        = [&](const std::string &line) { return line.compare(0, request.size(), request) == 0; };
    return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), begins));
}

void DeviceTest::killHost() const
{
    for (const pid_t host : hosts())
        ::kill(host, SIGKILL);
}

bool DeviceTest::waitForState(const Device &device, DeviceState state) const
{
    std::uint32_t reopenCount = 0;
    return waitUntil([&] { return device.GetState(reopenCount) == state; });
}

std::size_t streamMappings()
{
    std::size_t count = 0;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        count += line.find("memfd:CvxCPP") != std::string::npos ? 1 : 0;
    return count;
}
