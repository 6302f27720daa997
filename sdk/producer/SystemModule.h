#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/Module.h"
#include "sdk/producer/ModulePort.h"
#include "sdk/producer/UpdatedList.h"

#include <atomic>
#include <memory>

/// The open system module, which a TL_HANDLE identifies.
class SystemModule final : public Module
{
public:
    static constexpr const char *handleName = "the open system module";

    /// @param producerFile The path of the .cti file.
    SystemModule(std::shared_ptr<DeviceSource> deviceSource, const std::filesystem::path &producerFile);

    /// Searches for interfaces; see UpdatedList::update().
    GenTL::GC_ERROR updateInterfaces(GenTL::bool8_t *changed);

    Port *port() override { return &m_port; }

    const std::shared_ptr<DeviceSource> source;
    const ProducerIdentity identity;
    UpdatedList<InterfaceRecord> interfaces;

private:
    std::vector<ModuleFeature> features(const std::filesystem::path &producerFile);

    std::atomic<std::uint64_t> m_selected{0}; // The index of an interface; may be past the end of the list.
    ModulePort m_port;
};
