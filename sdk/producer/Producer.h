#pragma once

#include "sdk/producer/InterfaceModule.h"
#include "sdk/producer/SystemModule.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

/// All state of the loaded producer: whether it is initialised, and which handles are open.
/// A handle is a number that is never used twice, so a closed or foreign one is always recognised.
class Producer
{
public:
    static Producer &instance();

    GenTL::GC_ERROR initialise();
    GenTL::GC_ERROR close();
    GenTL::GC_ERROR requireInitialised() const;
    GenTL::GC_ERROR info(GenTL::TL_INFO_CMD command, const Answer &answer) const;

    GenTL::GC_ERROR openSystem(GenTL::TL_HANDLE *handle);
    GenTL::GC_ERROR closeSystem(GenTL::TL_HANDLE handle);
    GenTL::GC_ERROR openInterface(
        const SystemModule &systemModule, const std::string &id, GenTL::IF_HANDLE *handle);
    GenTL::GC_ERROR closeInterface(GenTL::IF_HANDLE handle);

    /// The system module that is open now, if any.
    GenTL::TL_HANDLE systemHandle() const;
    std::shared_ptr<SystemModule> system() const;

    /// Null for a handle that is not open. The module outlives its closing while the caller holds it.
    std::shared_ptr<SystemModule> system(GenTL::TL_HANDLE handle) const;
    std::shared_ptr<InterfaceModule> interface(GenTL::IF_HANDLE handle) const;

private:
    /// What exists from GCInitLib to GCCloseLib.
    struct Session
    {
        std::filesystem::path file; ///< The producer's own.
        std::shared_ptr<DeviceSource> source;
    };

    Producer() = default;
    bool isOpen(const std::string &interfaceId) const;
    void *newHandle();
    void closeEverything();

    mutable std::mutex m_mutex; // Guards what follows; held for look-ups only, never during a search.
    std::uintptr_t m_lastHandle = 0;
    std::optional<Session> m_session;
    GenTL::TL_HANDLE m_systemHandle = GenTL::GENTL_INVALID_HANDLE;
    std::shared_ptr<SystemModule> m_system;
    std::map<GenTL::IF_HANDLE, std::shared_ptr<InterfaceModule>> m_interfaces;
};
