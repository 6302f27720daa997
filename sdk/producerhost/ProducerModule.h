#pragma once

#include "sdk/producerhost/InterfaceUpdater.h"
#include "sdk/producerhost/ProducerLibrary.h"
#include "sdk/producerhost/UpdateTimeout.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// One producer from GCInitLib to GCCloseLib: its system module and its open interfaces.
class ProducerModule
{
public:
    ProducerModule();
    ProducerModule(const ProducerModule &) = delete;
    ProducerModule &operator=(const ProducerModule &) = delete;

    /// Loads and opens the producer. On failure nothing is usable, but close() may still be called.
    std::optional<Problem> open(const char *path);

    /// Rebuilds the list of interfaces: opens the new ones and closes those that are gone. Not to be called
    /// with every search, since it gets slower from call to call in some producers.
    std::optional<Problem> updateInterfaces();

    /// False when the last update of the interfaces ran out of time, or there was none; the next gets more.
    bool isListed() const { return m_isListed; }

    /// Searches all interfaces for devices.
    void updateDevices();

    /// Searches one interface; null when the number is unknown.
    const OpenInterface *updateDevices(std::uint64_t number);

    /// Sorted by ID.
    const std::vector<OpenInterface> &interfaces() const { return m_interfaces; }
    const ProblemList &problems() const { return m_problems; }

    /// Tears down in order, the only order that all producers survive, and gives what went wrong first.
    std::vector<Problem> close();

private:
    std::optional<Problem> readInterfaceIds(std::vector<std::string> &ids);
    void closeInterfacesExcept(const std::vector<std::string> &ids);
    void openInterface(const std::string &id);
    void describe(OpenInterface &interface);

    ProducerLibrary m_library;
    InterfaceUpdater m_updater;
    GenTL::TL_HANDLE m_system = GenTL::GENTL_INVALID_HANDLE;
    std::vector<OpenInterface> m_interfaces;
    ProblemList m_problems; // Of the list of interfaces.
    std::uint64_t m_nextNumber = 1;
    UpdateTimeout m_timeout; // Of the list of interfaces.
    bool m_isInitialised = false;
    bool m_isListed = false;
};
