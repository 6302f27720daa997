#pragma once

#include "sdk/gentl/GenTL.h"

#include <filesystem>
#include <string>
#include <vector>

/// A producer loaded as any consumer would: by its path, each function fetched by name.
/// The functions are public members under their own names. Throws if the file cannot be loaded.
class LoadedProducer
{
public:
    explicit LoadedProducer(const std::filesystem::path &file);
    ~LoadedProducer();
    LoadedProducer(const LoadedProducer &) = delete;
    LoadedProducer &operator=(const LoadedProducer &) = delete;

    const std::filesystem::path &file() const { return m_file; }

    /// Null if there is none of this name.
    void *symbol(const std::string &name) const;

private:
    const std::filesystem::path m_file; // Before the functions: they are fetched from the library.
    void *const m_library;

public:
#define CORVIX_FUNCTION(name)                                                                                \
    const GenTL::P##name name = reinterpret_cast<GenTL::P##name>(requiredSymbol(#name))
    CORVIX_FUNCTION(GCInitLib);
    CORVIX_FUNCTION(GCCloseLib);
    CORVIX_FUNCTION(GCGetInfo);
    CORVIX_FUNCTION(GCGetLastError);
    CORVIX_FUNCTION(TLOpen);
    CORVIX_FUNCTION(TLClose);
    CORVIX_FUNCTION(TLGetInfo);
    CORVIX_FUNCTION(TLUpdateInterfaceList);
    CORVIX_FUNCTION(TLGetNumInterfaces);
    CORVIX_FUNCTION(TLGetInterfaceID);
    CORVIX_FUNCTION(TLGetInterfaceInfo);
    CORVIX_FUNCTION(TLOpenInterface);
    CORVIX_FUNCTION(IFClose);
    CORVIX_FUNCTION(IFGetInfo);
    CORVIX_FUNCTION(IFUpdateDeviceList);
    CORVIX_FUNCTION(IFGetNumDevices);
    CORVIX_FUNCTION(IFGetDeviceID);
    CORVIX_FUNCTION(IFGetDeviceInfo);
    CORVIX_FUNCTION(IFGetParentTL);
#undef CORVIX_FUNCTION

private:
    void *requiredSymbol(const std::string &name) const;
};

/// The functions of GenTL 1.6 that a producer for discovery alone refuses.
const std::vector<std::string> &functionsBeyondDiscovery();

/// The functions that discovery uses.
const std::vector<std::string> &discoveryFunctions();
