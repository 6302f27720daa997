#include "sdk/gige/ReportedLists.h"

#include <algorithm>

void ReportedLists::noteInterfaces(const std::vector<InterfaceList> &lists)
{
    m_interfaces = interfacesOf(lists);
}

void ReportedLists::noteCameras(const InterfaceList &list)
{
    m_cameras[list.id] = list.cameras;
}

bool ReportedLists::takeChange(const std::vector<InterfaceList> &lists)
{
    const Interfaces interfaces = interfacesOf(lists);
    const bool isReportedAlready = interfaces == m_interfaces
        && std::all_of(lists.begin(), lists.end(), [this](const auto &list) { return isReported(list); });
    if (isReportedAlready)
        return false;
    m_interfaces = interfaces;
    m_cameras.clear(); // Drops the interfaces that no longer exist.
    for (const InterfaceList &list : lists)
        m_cameras[list.id] = list.cameras;
    return true;
}

ReportedLists::Interfaces ReportedLists::interfacesOf(const std::vector<InterfaceList> &lists)
{
    Interfaces interfaces;
    for (const InterfaceList &list : lists)
        interfaces.emplace_back(list.id, list.networkInterface);
    return interfaces;
}

bool ReportedLists::isReported(const InterfaceList &list) const
{
    const auto reported = m_cameras.find(list.id);
    return reported != m_cameras.end() ? reported->second == list.cameras : list.cameras.empty();
}
