#pragma once

#include "sdk/gige/CameraPlacement.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// Remembers which lists a consumer has collected or has been told about, so that the consumer is told about
/// every change only once. Not thread-safe.
class ReportedLists
{
public:
    /// Records that the consumer has collected the list of interfaces.
    void noteInterfaces(const std::vector<InterfaceList> &lists);

    /// Records that the consumer has collected the cameras of one interface.
    void noteCameras(const InterfaceList &list);

    /// Returns true if the consumer has to be told that the lists have changed, and records that it is told.
    bool takeChange(const std::vector<InterfaceList> &lists);

private:
    using Interfaces = std::vector<std::pair<std::string, std::string>>; // IDs and names.

    static Interfaces interfacesOf(const std::vector<InterfaceList> &lists);
    bool isReported(const InterfaceList &list) const;

    Interfaces m_interfaces;
    std::map<std::string, std::vector<ListedCamera>> m_cameras; // By the interface ID.
};
