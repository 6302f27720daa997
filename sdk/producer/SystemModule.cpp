#include "sdk/producer/SystemModule.h"

#include <utility>

using namespace GenTL;

SystemModule::SystemModule(std::shared_ptr<DeviceSource> source) : m_source(std::move(source)) { }

GC_ERROR SystemModule::updateInterfaceList(bool8_t *changed)
{
    return m_interfaces.update([this] { return m_source->updateInterfaces(); }, changed);
}

GC_ERROR SystemModule::countInterfaces(std::uint32_t *count) const
{
    return m_interfaces.count(count);
}

GC_ERROR SystemModule::interfaceId(std::uint32_t index, const Answer &answer) const
{
    return m_interfaces.id(index, answer);
}

GC_ERROR SystemModule::interfaceInfo(
    const std::string &id, INTERFACE_INFO_CMD command, const Answer &answer) const
{
    return m_interfaces.info(id, command, answer, answerInterfaceInfo);
}

std::optional<InterfaceRecord> SystemModule::findInterface(const std::string &id) const
{
    return m_interfaces.find(id);
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
