#pragma once

#include "sdk/hosting/ProducerLibrary.h"
#include "sdk/producerhost/OpenInterface.h"
#include "sdk/producerhost/ProblemList.h"
#include "sdk/producerhost/ProducerInfo.h"
#include "sdk/producerhost/UpdateTimeout.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Loads one producer, initialises it, manages its interfaces and closes it.
class LoadedProducer
{
public:
    using Interfaces = std::vector<std::unique_ptr<OpenInterface>>;

    /// Loads and opens the producer. Returns the problem if this fails; only close() may be called
    /// afterwards.
    std::optional<Problem> open(const char *path);

    /// Updates the list of interfaces: opens new interfaces and closes removed interfaces. `timeout` is the
    /// timeout of the request in milliseconds. The update of a short search gets at most 20 ms: together with
    /// 200 ms for the devices, the first list then takes less than 260 ms, even if the producer uses its
    /// whole timeout in both calls. Most producers enumerate their interfaces within a few milliseconds; the
    /// background search gives the others more time. Do not call this
    /// function for every search, because some producers become slower with every call. Returns the problem
    /// if the producer cannot enumerate its interfaces and no interface is open.
    std::optional<Problem> updateInterfaces(std::uint32_t timeout);

    /// Returns true if a search with this timeout has to update the interface list: the list was never
    /// updated, the last update timed out, or only short searches have updated it so far and this one is a
    /// background search.
    bool needsInterfaceUpdate(std::uint32_t timeout) const;

    /// Searches all interfaces for devices.
    void searchAll(std::uint32_t timeout);

    /// Searches one interface. Returns null if no open interface has this number.
    const OpenInterface *searchInterface(std::uint64_t number, std::uint32_t timeout);

    /// Returns the descriptor that is readable after the producer's lists have changed, or a negative number
    /// if the producer does not search by itself.
    int listChangeDescriptor() const { return m_library.listChangeDescriptor(); }

    const Interfaces &interfaces() const { return m_interfaces; } ///< Sorted by ID.
    const ProblemList &problems() const { return m_problems; } ///< Problems of the last interface update.

    /// Returns what the producer reports about itself.
    ProducerInfoReply info() const { return readProducerInfo(m_library); }

    /// Closes all interfaces, then the producer itself, because some producers crash if the order is
    /// different. Returns only the first problem, because after a failure to close an interface the
    /// following calls fail as well.
    std::vector<Problem> close();

private:
    std::optional<Problem> readInterfaceIds(std::vector<std::string> &ids);
    void closeInterfacesExcept(const std::vector<std::string> &ids);
    void openInterface(const std::string &id);
    bool isOpen(const std::string &id) const;

    ProducerLibrary m_library;
    GenTL::TL_HANDLE m_system = GenTL::GENTL_INVALID_HANDLE;
    Interfaces m_interfaces;
    ProblemList m_problems;
    std::uint64_t m_nextNumber = 1;
    UpdateTimeout m_timeout; // Timeout for updates of the interface list.
    bool m_isInitialised = false;
    bool m_hasInterfaceList = false;
    bool m_isInterfaceListConfirmed = false; // If true, a background search has updated the list.
};
