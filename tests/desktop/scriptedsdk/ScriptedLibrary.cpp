// Makes a libCvxCPP.so of the scripted SDK, to be put in the place of the real one beside an unchanged
// launcher. The environment says what it does:
//   CORVIX_SCRIPTED_REFUSES   names of the functions that fail, among Startup and the two registrations
//   CORVIX_SCRIPTED_CAMERAS   how many cameras it lists; none by default
//   CORVIX_SCRIPTED_STORM     announces a camera a thousand times a second until it is shut down
//   CORVIX_SCRIPTED_GATE      a FIFO: every scan waits until a test opens it for writing
//   CORVIX_SCRIPTED_RECORD    a file to which what happened is appended, one word a line

#include "sdk/testing/ScriptedCvxCPP.h"

#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>
#include <unistd.h>

using CvxScripted::Function;

namespace {

constexpr auto stormPeriod = std::chrono::milliseconds(1);
constexpr auto scanTime = std::chrono::milliseconds(5); // In a storm; several announcements fall into each.

std::string setting(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

CvxScripted::CameraRecord camera(int number)
{
    CvxScripted::CameraRecord record;
    record.id = "scripted-" + std::to_string(number);
    record.extendedId = record.id;
    record.model = "Kx200 Pro 5MP-C";
    record.serialNumber = std::to_string(number);
    record.type = CvxCPP::CvxTransportLayerGigE;
    return record;
}

class ScriptedLibrary
{
public:
    ScriptedLibrary();
    ~ScriptedLibrary();

private:
    CvxCPP::CvxError onCall(const CvxScripted::Call &call);
    void scan();
    void announce();
    void shutDown();
    void record(const char *word);

    /// Waits until then; true when the SDK is shut down before.
    bool isShutDownBefore(std::chrono::steady_clock::time_point end);

    const std::string m_gate = setting("CORVIX_SCRIPTED_GATE");
    const std::string m_record = setting("CORVIX_SCRIPTED_RECORD");
    const bool m_storms = !setting("CORVIX_SCRIPTED_STORM").empty();
    std::atomic<int> m_scans{0}; // Under way at the same time.
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isShutDown = false;
    std::thread m_storm;
};

ScriptedLibrary::ScriptedLibrary()
{
    CvxScripted::reset(); // The record is made now, so that it goes after us.
    CvxScripted::Script &script = CvxScripted::script();
    const std::string refused = setting("CORVIX_SCRIPTED_REFUSES");
    const auto refuse = [&](const char *name, Function function, CvxCPP::CvxError error) {
        if (refused.find(name) != std::string::npos)
            script.errors[function] = error;
    };
    refuse("Startup", Function::Startup, CvxCPP::CvxErrorHostMissing);
    refuse("RegisterCameraListObserver", Function::RegisterCameraListObserver, CvxCPP::CvxErrorFailed);
    refuse("RegisterInterfaceListObserver", Function::RegisterInterfaceListObserver, CvxCPP::CvxErrorFailed);
    const long cameras = std::strtol(setting("CORVIX_SCRIPTED_CAMERAS").c_str(), nullptr, 10);
    for (int number = 0; number < cameras; ++number)
        script.cameras.push_back(camera(number));
    script.intercept = [this](const CvxScripted::Call &call) { return onCall(call); };
}

ScriptedLibrary::~ScriptedLibrary()
{
    shutDown();
}

CvxCPP::CvxError ScriptedLibrary::onCall(const CvxScripted::Call &call)
{
    switch (call.function) {
    case Function::Startup:
        record("Startup");
        if (m_storms)
            m_storm = std::thread([this] { announce(); });
        break;
    case Function::CountCameras:
        scan();
        break;
    case Function::Shutdown:
        record("Shutdown");
        shutDown();
        break;
    default:
        break;
    }
    return CvxCPP::CvxErrorSuccess;
}

void ScriptedLibrary::scan()
{
    record(++m_scans > 1 ? "OverlappingScan" : "Scan");
    if (!m_gate.empty())
        ::close(::open(m_gate.c_str(), O_RDONLY | O_CLOEXEC));
    if (m_storms)
        isShutDownBefore(std::chrono::steady_clock::now() + scanTime);
    --m_scans;
}

void ScriptedLibrary::announce()
{
    auto next = std::chrono::steady_clock::now();
    while (!isShutDownBefore(next += stormPeriod)) {
        record("Announcement");
        CvxScripted::announceCamera(camera(0), CvxCPP::UpdateTriggerPluggedIn);
    }
}

void ScriptedLibrary::shutDown()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isShutDown = true;
        m_changed.notify_all();
    }
    if (m_storm.joinable())
        m_storm.join(); // As promised of the SDK: no observer is called after the shutdown.
}

bool ScriptedLibrary::isShutDownBefore(std::chrono::steady_clock::time_point end)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_until(lock, end, [this] { return m_isShutDown; });
}

void ScriptedLibrary::record(const char *word)
{
    if (m_record.empty())
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::ofstream(m_record, std::ios::app) << word << '\n';
}

ScriptedLibrary scriptedLibrary;

} // namespace
