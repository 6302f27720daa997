#include "sdk/producer/SystemModule.h"

#include <utility>

using namespace GenTL;

SystemModule::SystemModule(std::shared_ptr<DeviceSource> source) : m_source(std::move(source)) { }

GC_ERROR SystemModule::updateInterfaceList(bool8_t *changed)
{
    const std::lock_guard lock(m_mutex);
    Snapshot<InterfaceRecord> found(m_source->updateInterfaces());
    if (changed)
        *changed = found != m_interfaces;
    m_interfaces = std::move(found);
    m_updated = true;
    return GC_ERR_SUCCESS;
}

GC_ERROR SystemModule::countInterfaces(std::uint32_t *count) const
{
    if (!count)
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    if (!m_updated)
        return failNeverUpdated();
    *count = m_interfaces.count();
    return GC_ERR_SUCCESS;
}

GC_ERROR SystemModule::interfaceId(std::uint32_t index, const Answer &answer) const
{
    if (!answer.isComplete())
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    if (!m_updated)
        return failNeverUpdated();
    const InterfaceRecord *const record = m_interfaces.at(index);
    return record ? answer.text(record->id) : failIndex(index, m_interfaces.count());
}

GC_ERROR SystemModule::interfaceInfo(
    const std::string &id, INTERFACE_INFO_CMD command, const Answer &answer) const
{
    if (!answer.isComplete())
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    const InterfaceRecord *const record = m_interfaces.find(id);
    return record ? answerInterfaceInfo(*record, command, answer) : failUnknownId(id);
}

std::optional<InterfaceRecord> SystemModule::findInterface(const std::string &id) const
{
    const std::lock_guard lock(m_mutex);
    const InterfaceRecord *const record = m_interfaces.find(id);
    return record ? std::optional(*record) : std::nullopt;
}

GC_ERROR answerInterfaceInfo(const InterfaceRecord &record, INTERFACE_INFO_CMD command, const Answer &answer)
{
    switch (command) {
    case INTERFACE_INFO_ID:
        return answer.text(record.id);
    case INTERFACE_INFO_DISPLAYNAME:
        return answer.text(record.displayName);
    case INTERFACE_INFO_TLTYPE:
        return answer.text(record.tlType);
    default:
        return failUnknownCommand(command);
    }
}
