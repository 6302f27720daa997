#pragma once

#include "tests/producer/LoadedProducer.h"
#include "tests/producer/StrictRead.h"

#include <utility>

/// A producer from GCInitLib and TLOpen to GCCloseLib. Every failure on the way is a test failure.
class ProducerSession
{
public:
    explicit ProducerSession(const std::filesystem::path &file);
    ~ProducerSession();

    const LoadedProducer &producer() const { return m_producer; }
    GenTL::TL_HANDLE system() const { return m_system; }

    /// Update a list and return whether the producer reports a change.
    bool updateInterfaces() const;
    bool updateDevices(GenTL::IF_HANDLE handle) const;

    /// Return the lists as of the last update.
    std::vector<std::string> interfaceIds() const;
    std::vector<std::string> deviceIds(GenTL::IF_HANDLE handle) const;

    GenTL::IF_HANDLE open(const std::string &interfaceId) const;
    std::vector<GenTL::IF_HANDLE> openAll() const;

    std::string interfaceString(const std::string &id, GenTL::INTERFACE_INFO_CMD command) const;
    std::string openInterfaceString(GenTL::IF_HANDLE handle, GenTL::INTERFACE_INFO_CMD command) const;
    std::string deviceString(
        GenTL::IF_HANDLE handle, const std::string &id, GenTL::DEVICE_INFO_CMD command) const;

    /// Returns code and message of this thread's last error.
    std::pair<GenTL::GC_ERROR, std::string> lastError() const;

private:
    LoadedProducer m_producer;
    GenTL::TL_HANDLE m_system = nullptr;
};
