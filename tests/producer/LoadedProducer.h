#pragma once

#include "sdk/gentl/GenTL.h"

#include <filesystem>
#include <string>
#include <vector>

/// Calls X(name) for each function that discovery needs.
#define CORVIX_DISCOVERY_FUNCTIONS(X)                                                                        \
    X(GCInitLib)                                                                                             \
    X(GCCloseLib)                                                                                            \
    X(GCGetInfo) X(GCGetLastError) X(TLOpen) X(TLClose) X(TLGetInfo) X(TLUpdateInterfaceList)                \
        X(TLGetNumInterfaces) X(TLGetInterfaceID) X(TLGetInterfaceInfo) X(TLOpenInterface) X(IFClose)        \
            X(IFGetInfo) X(IFUpdateDeviceList) X(IFGetNumDevices) X(IFGetDeviceID) X(IFGetDeviceInfo)        \
                X(IFGetParentTL)

/// A producer that is loaded like any consumer loads it: by its path, each function by its name.
/// The functions are public members under their own names. Throws if the file cannot be loaded.
class LoadedProducer
{
public:
    explicit LoadedProducer(const std::filesystem::path &file);
    ~LoadedProducer();
    LoadedProducer(const LoadedProducer &) = delete;
    LoadedProducer &operator=(const LoadedProducer &) = delete;

    const std::filesystem::path &file() const { return m_file; }

    /// Throws if the producer does not export this function.
    void *symbol(const std::string &name) const;

private:
    const std::filesystem::path m_file;
    void *const m_library; // Before the functions, which are initialised from it.

public:
#define CORVIX_MEMBER(name) const GenTL::P##name name = reinterpret_cast<GenTL::P##name>(symbol(#name));
    CORVIX_DISCOVERY_FUNCTIONS(CORVIX_MEMBER)
#undef CORVIX_MEMBER
};

/// Returns the names of the functions that discovery needs.
std::vector<std::string> discoveryFunctions();

/// Returns the names of the functions of GenTL 1.6 that our producers export but do not implement.
const std::vector<std::string> &unsupportedFunctions();
