#pragma once

#include "sdk/producerhost/OpenInterface.h"
#include "sdk/producerhost/ProblemList.h"
#include "sdk/producerhost/ProducerLibrary.h"
#include "sdk/producerhost/UpdateTimeout.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// One producer from GCInitLib to GCCloseLib, with its open interfaces.
class LoadedProducer
{
public:
    using Interfaces = std::vector<std::unique_ptr<OpenInterface>>;

    /// Loads and opens the producer. After a failure only close() may be called.
    std::optional<Problem> open(const char *path);

    /// Updates the list of interfaces: opens new interfaces and closes removed ones. Not meant for every
    /// search, because it gets slower from call to call in some producers. Returns the problem if the
    /// producer cannot list its interfaces and none is open.
    std::optional<Problem> updateInterfaces();

    /// Returns true if the interfaces have never been listed, or the last attempt ran out of time.
    bool needsInterfaceUpdate() const { return !m_hasInterfaceList; }

    /// Searches all interfaces for devices.
    void searchAll();

    /// Searches one interface. Returns null if no open interface has this number.
    const OpenInterface *searchInterface(std::uint64_t number);

    const Interfaces &interfaces() const { return m_interfaces; } ///< Sorted by ID.
    const ProblemList &problems() const { return m_problems; } ///< Of the last update of the interfaces.

    /// Closes all modules, children first: some producers survive no other order. Returns the first problem,
    /// because a module that cannot be closed makes the following calls fail as well.
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
    UpdateTimeout m_timeout; // For the list of interfaces.
    bool m_isInitialised = false;
    bool m_hasInterfaceList = false;
};
