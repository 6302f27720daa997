#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <dlfcn.h>
#include <filesystem>
#include <stdexcept>
#include <string>

/// Calls X(name) for each function that discovery needs.
// clang-format off
#define CORVIX_DISCOVERY_FUNCTIONS(X) \
    X(GCInitLib) X(GCCloseLib) X(GCGetInfo) X(GCGetLastError) X(TLOpen) X(TLClose) X(TLGetInfo) \
    X(TLUpdateInterfaceList) X(TLGetNumInterfaces) X(TLGetInterfaceID) X(TLGetInterfaceInfo) X(TLOpenInterface) \
    X(IFClose) X(IFGetInfo) X(IFUpdateDeviceList) X(IFGetNumDevices) X(IFGetDeviceID) X(IFGetDeviceInfo) \
    X(IFGetParentTL)

/// Calls X(name) for each function that opened devices need.
#define CORVIX_DEVICE_FUNCTIONS(X) \
    X(GCReadPort) X(GCWritePort) X(GCGetPortURL) X(GCGetPortInfo) X(GCGetNumPortURLs) X(GCGetPortURLInfo) \
    X(GCReadPortStacked) X(GCWritePortStacked) X(GCRegisterEvent) X(GCUnregisterEvent) X(EventGetData) \
    X(EventGetDataInfo) X(EventGetInfo) X(EventFlush) X(EventKill) X(IFOpenDevice) X(DevGetPort) \
    X(DevGetNumDataStreams) X(DevGetDataStreamID) X(DevOpenDataStream) X(DevGetInfo) X(DevClose) X(DevGetParentIF) \
    X(DSAnnounceBuffer) X(DSAllocAndAnnounceBuffer) X(DSFlushQueue) X(DSStartAcquisition) X(DSStopAcquisition) \
    X(DSGetInfo) X(DSGetBufferID) X(DSClose) X(DSRevokeBuffer) X(DSQueueBuffer) X(DSGetBufferInfo) \
    X(DSGetBufferChunkData) X(DSGetParentDev) X(DSGetNumBufferParts) X(DSGetBufferPartInfo)
// clang-format on

/// Loads a producer by its path and finds each function by its name, as any consumer does.
/// Each function is a public member with the name of the function.
class LoadedProducer
{
public:
    /// Loads this file. Without a file, uses the producer that is linked into this program. Throws on
    /// failure.
    explicit LoadedProducer(const std::filesystem::path &file = {})
        : m_file(file.empty() ? file : std::filesystem::canonical(file)),
          m_library(dlopen(file.empty() ? nullptr : m_file.c_str(), RTLD_NOW | RTLD_LOCAL))
    { }
    ~LoadedProducer() { dlclose(m_library); }
    LoadedProducer(const LoadedProducer &) = delete;
    LoadedProducer &operator=(const LoadedProducer &) = delete;

    const std::filesystem::path &file() const { return m_file; }

    /// Throws if the producer does not export this function.
    void *symbol(const std::string &name) const
    {
        void *const found = m_library ? dlsym(m_library, name.c_str()) : nullptr;
        return found ? found : throw std::runtime_error(dlerror());
    }

private:
    const std::filesystem::path m_file;
    void *const m_library; // Declared before the functions, which are found in the library.

public:
#define CORVIX_MEMBER(name)                                                                                  \
    decltype(&GenTL::name) const name = reinterpret_cast<decltype(&GenTL::name)>(symbol(#name));
    CORVIX_DISCOVERY_FUNCTIONS(CORVIX_MEMBER)
    CORVIX_DEVICE_FUNCTIONS(CORVIX_MEMBER)
#undef CORVIX_MEMBER
};
