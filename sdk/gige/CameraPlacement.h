#pragma once

#include "sdk/gige/CameraRegistry.h"
#include "sdk/gvcp/InterfaceAddresses.h"

#include <map>
#include <string>
#include <vector>

/// A camera in the list of a GenTL interface.
struct ListedCamera
{
    std::string id;
    CameraData data;
    bool isReachable = false; ///< False if the camera's address is in another subnet than the interface's.
};

bool operator==(const ListedCamera &left, const ListedCamera &right);

/// A GenTL interface with its cameras. Every IPv4 address of this machine is one GenTL interface.
struct InterfaceList
{
    std::string id; ///< The address.
    std::string networkInterface; ///< The name of the network interface, for example "enp3s0".
    std::vector<ListedCamera> cameras; ///< Sorted by ID.
};

/// Decides which GenTL interface lists a camera, so that every camera is listed once even if it answers on
/// several network interfaces. Not thread-safe.
class CameraPlacement
{
public:
    /// Returns the GenTL interfaces in the order of the addresses. Lists a camera at the address whose subnet
    /// contains it. If there is no such address, lists the camera at the first address of the network
    /// interface on which it answers. If several interfaces are equally good, the camera stays where it was
    /// listed last; otherwise, the first interface lists it.
    /// @param isComplete False if cameras have not had the time to answer on every network interface. Such a
    /// list is not remembered, so the order of the first answers does not matter.
    std::vector<InterfaceList> place(const std::vector<InterfaceAddress> &addresses,
        const std::vector<CameraRegistry::Camera> &cameras, bool isComplete);

private:
    std::map<std::string, std::string> m_interfaces; // The interface ID of every camera ID.
};
