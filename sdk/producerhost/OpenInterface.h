#pragma once

#include "sdk/hosting/ProducerLibrary.h"
#include "sdk/producerhost/ProblemList.h"
#include "sdk/producerhost/UpdateTimeout.h"
#include "sdk/protocol/CameraRecords.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// One open interface of a producer, with the devices that the last search found.
class OpenInterface
{
public:
    using Clock = UpdateTimeout::Clock;

    /// Takes over the handle. `number` identifies the interface in requests.
    OpenInterface(
        const ProducerLibrary &library, GenTL::IF_HANDLE handle, std::uint64_t number, std::string id);

    /// Searches for devices and stores the problems of this search. `timeout` is the timeout of the request
    /// in milliseconds. Keeps the previous devices if a single search fails. If a short search times out,
    /// only adds the devices that it has found. Only one thread at a time may call this function, because
    /// producers crash if one interface is updated twice at the same time.
    void search(std::uint32_t timeout, Clock::time_point deadline);

    /// Reads the interface's name and type at the first call after devices were found; later calls do
    /// nothing.
    void describe(GenTL::TL_HANDLE system);

    std::optional<Problem> close();

    const InterfaceRecord &record() const { return m_record; }
    const ProblemList &problems() const { return m_problems; }

    /// Returns the duration of the last background search, or of a short search since then that took longer.
    /// Returns nothing if there was no search.
    std::optional<Clock::duration> searchTime() const { return m_searchTime; }

private:
    std::optional<Problem> updateDeviceList(std::uint32_t timeout, Clock::time_point deadline);
    void noteSearchTime(Clock::duration time, std::uint32_t timeout);
    void addFoundDevices();
    void replaceDevices(std::optional<Problem> failedUpdate, std::uint32_t timeout);

    const ProducerLibrary &m_library;
    GenTL::IF_HANDLE m_handle;
    InterfaceRecord m_record;
    ProblemList m_problems;
    UpdateTimeout m_timeout;
    std::optional<Clock::duration> m_searchTime;
    int m_failedSearches = 0; // Number of failures since the last complete search.
    bool m_isDescribed = false;
};
