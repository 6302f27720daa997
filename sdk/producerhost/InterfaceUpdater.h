#pragma once

#include "sdk/producerhost/DeviceReader.h"
#include "sdk/producerhost/UpdateTimeout.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

/// One open interface of the producer and the devices last seen on it.
struct OpenInterface
{
    InterfaceRecord record;
    GenTL::IF_HANDLE handle = GenTL::GENTL_INVALID_HANDLE;
    ProblemList problems; ///< The failed calls of the last update.
    bool isDescribed = false; ///< The producer was asked for the interface's name and type.
    int failedUpdates = 0; ///< In a row.
    UpdateTimeout timeout;
    bool isUpdated = false; ///< An update has been made.
    std::chrono::steady_clock::duration updateTime{}; ///< What the last update took.
};

/// Updates interfaces and reads their devices out, slow ones side by side on a bounded number of threads.
/// An interface is never in the hands of two threads: producers do not survive two updates of one interface.
class InterfaceUpdater
{
public:
    explicit InterfaceUpdater(const ProducerLibrary &library);

    /// Updates one interface on the calling thread.
    void update(OpenInterface &interface) const;

    /// Updates all; each keeps its problems for itself.
    void updateAll(std::vector<OpenInterface> &interfaces) const;

private:
    void update(OpenInterface &interface, UpdateTimeout::Clock::time_point bound) const;

    const ProducerLibrary &m_library;
};
