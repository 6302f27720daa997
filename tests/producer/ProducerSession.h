#pragma once

#include "tests/producer/LoadedProducer.h"
#include "tests/producer/StrictRead.h"

/// A producer's info functions as calls for the strict reads.
InfoCall libraryInfo(const LoadedProducer &producer, GenTL::TL_INFO_CMD command);
InfoCall systemInfo(const LoadedProducer &producer, GenTL::TL_HANDLE system, GenTL::TL_INFO_CMD command);
InfoCall interfaceId(const LoadedProducer &producer, GenTL::TL_HANDLE system, std::uint32_t index);
InfoCall listedInterfaceInfo(const LoadedProducer &producer, GenTL::TL_HANDLE system, const std::string &id,
    GenTL::INTERFACE_INFO_CMD command);
InfoCall openInterfaceInfo(
    const LoadedProducer &producer, GenTL::IF_HANDLE handle, GenTL::INTERFACE_INFO_CMD command);
InfoCall deviceId(const LoadedProducer &producer, GenTL::IF_HANDLE handle, std::uint32_t index);
InfoCall deviceInfo(const LoadedProducer &producer, GenTL::IF_HANDLE handle, const std::string &id,
    GenTL::DEVICE_INFO_CMD command);

/// From GCInitLib and TLOpen to GCCloseLib. What goes wrong on the way is a test failure.
class ProducerSession
{
public:
    explicit ProducerSession(const std::filesystem::path &file);
    ~ProducerSession();

    const LoadedProducer &producer() const { return m_producer; }
    GenTL::TL_HANDLE system() const { return m_system; }

    /// Each updates the list; true if the producer says that it changed.
    bool updateInterfaces() const;
    bool updateDevices(GenTL::IF_HANDLE handle) const;

    /// The lists as of the last update.
    std::vector<std::string> interfaceIds() const;
    std::vector<std::string> deviceIds(GenTL::IF_HANDLE handle) const;

    GenTL::IF_HANDLE open(const std::string &interfaceId) const;
    std::string interfaceText(const std::string &id, GenTL::INTERFACE_INFO_CMD command) const;
    std::string deviceText(
        GenTL::IF_HANDLE handle, const std::string &id, GenTL::DEVICE_INFO_CMD command) const;

private:
    LoadedProducer m_producer;
    GenTL::TL_HANDLE m_system = nullptr;
};
