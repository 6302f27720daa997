#pragma once

#include "sdk/producer/DeviceSource.h"

#include <arv.h>
#include <chrono>
#include <mutex>
#include <string>
#include <vector>

/// A device as Aravis has found it. Texts are UTF-8, and empty where Aravis tells none.
struct FoundDevice
{
    std::string id; ///< Stays with the device wherever it is plugged in, and over restarts.
    std::string vendor;
    std::string model;
    std::string serial;
    std::string address; ///< The IP address of a GigE Vision device.
    std::string interfaceId; ///< Where it was when it was found.
    bool isMissed = false; ///< This search has not found it, but the one before.
};

/// The record of a device that was found; its name for people is made of vendor, model and serial number.
DeviceRecord toRecord(const FoundDevice &device, const std::string &tlType);

/// The search for devices of one protocol. It takes as long as Aravis takes, a second for GigE Vision, and
/// covers all interfaces at once: those that are updated side by side share one.
class AravisSearch
{
public:
    using InterfaceGetter = ArvInterface *(*)();

    /// Gives the ID of the interface that a device is to be listed at.
    using Placer = std::string (*)(const FoundDevice &device);

    /// Where answers may get lost on their way, a device that one search misses is still listed.
    enum class Answers
    {
        AreCertain,
        MayGetLost
    };

    AravisSearch(InterfaceGetter interface, Placer placer, Answers answers);

    /// Searches now, or takes the result of a search that ended just now. May be called from several threads.
    std::vector<FoundDevice> devices();

private:
    using Clock = std::chrono::steady_clock;

    void addMissed(std::vector<FoundDevice> &found) const;

    const InterfaceGetter m_interface;
    const Placer m_placer;
    const Answers m_answers;

    std::mutex m_mutex; // Guards what follows; held during a search, for which every caller has to wait.
    bool m_hasSearched = false;
    Clock::time_point m_endedAt;
    std::vector<FoundDevice> m_devices;
};
