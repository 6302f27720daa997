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
    std::uint64_t number = 0; ///< Ours; never given to another interface of this process.
    std::string id; ///< The producer's, as raw bytes.
    GenTL::IF_HANDLE handle = GenTL::GENTL_INVALID_HANDLE;
    std::string name; ///< Empty until a device was seen on it.
    std::string type; ///< Empty until a device was seen on it.
    std::vector<DeviceDescription> devices; ///< Sorted by ID.
    std::vector<Problem> problems; ///< Of the last update.
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
