#pragma once

#include "sdk/producerhost/ProblemList.h"
#include "sdk/producerhost/ProducerLibrary.h"
#include "sdk/producerhost/UpdateTimeout.h"
#include "sdk/protocol/CameraRecords.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

/// One open interface of the producer, with the devices that its last search found.
class OpenInterface
{
public:
    using Clock = UpdateTimeout::Clock;

    /// Takes over the handle. `number` identifies the interface in requests.
    OpenInterface(
        const ProducerLibrary &library, GenTL::IF_HANDLE handle, std::uint64_t number, std::string id);

    /// Searches for devices and stores the problems of this search. Keeps the previous devices if a single
    /// search fails. For one thread at a time: producers do not survive two updates of one interface at once.
    void search(Clock::time_point deadline);

    /// Reads the interface's name and type, once, as soon as it has devices.
    void describe(GenTL::TL_HANDLE system);

    std::optional<Problem> close();

    const InterfaceRecord &record() const { return m_record; }
    const ProblemList &problems() const { return m_problems; }

    /// Returns how long the last search took; nothing if there was none.
    std::optional<Clock::duration> searchTime() const { return m_searchTime; }

private:
    bool updateDeviceList(Clock::time_point deadline);

    const ProducerLibrary &m_library;
    GenTL::IF_HANDLE m_handle;
    InterfaceRecord m_record;
    ProblemList m_problems;
    UpdateTimeout m_timeout;
    std::optional<Clock::duration> m_searchTime;
    int m_failedSearches = 0; // Since the last complete one.
    bool m_isDescribed = false;
};
