#pragma once

#include "sdk/producer/Answer.h"
#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/UpdatedList.h"

#include <memory>
#include <optional>
#include <string>

/// The open system module: the list of interfaces as of the last update.
class SystemModule
{
public:
    explicit SystemModule(std::shared_ptr<DeviceSource> source);

    GenTL::GC_ERROR updateInterfaceList(GenTL::bool8_t *changed);
    GenTL::GC_ERROR countInterfaces(std::uint32_t *count) const;
    GenTL::GC_ERROR interfaceId(std::uint32_t index, const Answer &answer) const;
    GenTL::GC_ERROR interfaceInfo(
        const std::string &id, GenTL::INTERFACE_INFO_CMD command, const Answer &answer) const;

    /// Nothing for an interface that is not in the list.
    std::optional<InterfaceRecord> findInterface(const std::string &id) const;

private:
    const std::shared_ptr<DeviceSource> m_source;
    UpdatedList<InterfaceRecord> m_interfaces;
};

GenTL::GC_ERROR answerInterfaceInfo(
    const InterfaceRecord &record, GenTL::INTERFACE_INFO_CMD command, const Answer &answer);
