#include "tests/sdk/support/SystemTest.h"

#include "tests/sdk/support/Waiting.h"

#include <algorithm>
#include <sstream>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

SystemTest::SystemTest()
{
    std::filesystem::create_directory(directory.path() / "cti");
    options.hostProgram = CVX_PRODUCER_HOST;
    options.installRoot = directory.path().string();
    options.configurationFile = (directory.path() / "bin" / "CvxC.xml").string();
    options.pollInterval = 100ms;
    options.interfaceUpdateInterval = 300ms;
    options.listReuse = 0ms;
    options.interfaceReuse = 0ms;
    options.refreshTimeout = 1h; // A loaded machine may take longer than in the product.
    options.shortSearch = options.backgroundSearch; // No second search follows the first one.
    options.searchTimeout = 5s;
    options.firstRestartDelay = 50ms;
    options.maxRestartDelay = 60s;
    options.notificationHold = 10ms;
    options.report = [this](const std::string &line) {
        const std::lock_guard lock(m_mutex);
        m_reports.push_back(line);
    };
}

SystemTest::~SystemTest()
{
    system.reset();
    std::vector<pid_t> left;
    // The children of a producer are killed with their host, but may end a little later.
    EXPECT_TRUE(waitUntil([&] { return (left = processesWith(directory.path().string())).empty(); }));
    killAll(left);
    EXPECT_TRUE(childrenOf(getpid()).empty()) << "a zombie has no command line";
    EXPECT_EQ(openDescriptors(), m_descriptors);
}

void SystemTest::addProducer(const std::string &name, const std::string &script)
{
    setScript(name, script);
    std::filesystem::copy_file(TEST_PRODUCER, ctiPath(name + ".cti"));
}

void SystemTest::setScript(const std::string &name, const std::string &script)
{
    writeFile(ctiPath(name + ".script"), script);
}

std::vector<std::string> SystemTest::callsOf(const std::string &name) const
{
    std::vector<std::string> calls;
    std::istringstream log(readFile(ctiPath(name + ".log")));
    for (std::string line; std::getline(log, line);)
        calls.push_back(line.substr(line.find(' ') + 1));
    return calls;
}

std::size_t SystemTest::countCalls(const std::string &name, const std::string &call) const
{
    const auto calls = callsOf(name);
    return static_cast<std::size_t>(std::count_if(calls.begin(), calls.end(),
        [&](const std::string &line) { return line.substr(0, line.find(' ')) == call; }));
}

void SystemTest::start()
{
    system = std::make_unique<CameraSystem>(options);
    EXPECT_EQ(system->Startup(), CvxErrorSuccess);
}

void SystemTest::stop()
{
    EXPECT_EQ(system->Shutdown(), CvxErrorSuccess);
}

SystemTest::Cameras SystemTest::list()
{
    unsigned count = 0;
    EXPECT_EQ(system->GetCameras(nullptr, count), CvxErrorSuccess);
    Cameras cameras(count);
    if (count > 0) {
        EXPECT_EQ(system->GetCameras(cameras.data(), count), CvxErrorSuccess);
    }
    EXPECT_EQ(count, cameras.size());
    return cameras;
}

std::vector<std::string> SystemTest::listIds()
{
    std::vector<std::string> ids;
    for (const auto &camera : list())
        ids.push_back(extendedId(*camera));
    return ids;
}

std::shared_ptr<Interface> SystemTest::interfaceOf(const Cameras &cameras, std::size_t index)
{
    std::shared_ptr<Interface> interface;
    EXPECT_EQ(cameras.at(index)->GetInterface(interface), CvxErrorSuccess);
    return interface;
}

std::shared_ptr<Feature> SystemTest::feature(FeatureContainer &interface, const char *name)
{
    std::shared_ptr<Feature> found;
    EXPECT_EQ(interface.GetFeatureByName(name, found), CvxErrorSuccess);
    return found;
}

std::shared_ptr<CameraRecorder> SystemTest::recordCameras()
{
    auto recorder = std::make_shared<CameraRecorder>();
    EXPECT_EQ(system->RegisterCameraListObserver(recorder), CvxErrorSuccess);
    return recorder;
}

std::vector<std::string> SystemTest::reports() const
{
    const std::lock_guard lock(m_mutex);
    return m_reports;
}

std::size_t SystemTest::countReports(const std::string &text) const
{
    const auto all = reports();
    return static_cast<std::size_t>(std::count_if(all.begin(), all.end(),
        [&](const std::string &line) { return line.find(text) != std::string::npos; }));
}

std::string cameras(int count)
{
    std::string script = "interface net0|Network 0|U3V\n";
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        script += "device net0|A" + number + "|Orvelle|Model " + number + "|SN" + number + "|Camera " + number
            + "|U3V\n";
    }
    return script;
}
