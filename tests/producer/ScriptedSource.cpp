// A producer for tests of what all our producers share. The ID of an interface names what happens when its
// devices are enumerated; the environment variable SCRIPTED_PRODUCER names what else happens.

#include "sdk/producer/DeviceSource.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <new>
#include <stdexcept>

namespace {

bool isScripted(const std::string &event)
{
    const char *const script = std::getenv("SCRIPTED_PRODUCER");
    return script && script == event;
}

DeviceRecord device(const std::string &id)
{
    return {id, "Vendor", "Model", "GEV", "Device " + id, "", "", GenTL::DEVICE_ACCESS_STATUS_BUSY};
}

/// Lets callers through when two of them wait at the same time.
class MeetingPoint
{
public:
    bool meet()
    {
        std::unique_lock lock(m_mutex);
        ++m_arrived;
        m_changed.notify_all();
        return m_changed.wait_for(lock, std::chrono::seconds(60), [this] { return m_arrived >= 2; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_arrived = 0;
};

class ScriptedSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override
    {
        return {"Scripted", "Tests", "Scripted", "1", "Mixed", "Scripted producer"};
    }

    std::vector<InterfaceRecord> updateInterfaces() override
    {
        if (isScripted("interface search fails"))
            throw std::runtime_error("The interface search failed.");
        if (isScripted("interfaces are gone"))
            return {};
        const std::string prefix = isScripted("interfaces are renamed") ? "New " : "Interface ";
        std::vector<InterfaceRecord> interfaces;
        for (const char *const id : {"empty", "throws", "throws an int", "exhausts memory", "meets one",
                 "meets another", "one at a time", "doubtful IDs", "long message", "empty", ""})
            interfaces.push_back({id, prefix + id, "Custom"});
        return interfaces;
    }

    std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) override
    {
        if (interfaceId == "throws")
            return throwOnSecondSearch();
        if (interfaceId == "throws an int")
            throw 42;
        if (interfaceId == "exhausts memory")
            throw std::bad_alloc();
        if (interfaceId == "meets one" || interfaceId == "meets another")
            return m_meetingPoint.meet() ? std::vector{device("met")} : std::vector<DeviceRecord>{};
        if (interfaceId == "one at a time")
            return countSearchesAtOnce();
        if (interfaceId == "doubtful IDs")
            return {device("twice"), device(""), device("twice"), device(std::string("cut\0here", 8)),
                device("cut"), device("last")};
        if (interfaceId == "long message")
            throw std::runtime_error(std::string(100000, 'x'));
        return {};
    }

private:
    std::vector<DeviceRecord> throwOnSecondSearch()
    {
        if (m_hasSearched.exchange(true))
            throw std::runtime_error("The device search failed.");
        return {device("kept")};
    }

    std::vector<DeviceRecord> countSearchesAtOnce()
    {
        if (m_searchesAtOnce.fetch_add(1) != 0)
            m_hasOverlapped = true;
        m_searchesAtOnce.fetch_sub(1);
        return {device(m_hasOverlapped ? "overlapped" : "never overlapped")};
    }

    MeetingPoint m_meetingPoint;
    std::atomic<bool> m_hasSearched{false};
    std::atomic<int> m_searchesAtOnce{0};
    std::atomic<bool> m_hasOverlapped{false};
};

} // namespace

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    if (isScripted("start fails"))
        throw std::runtime_error("The source cannot be started.");
    return std::make_unique<ScriptedSource>();
}
