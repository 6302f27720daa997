#pragma once

#include "sdk/address/CameraAddress.h"
#include "sdk/address/NeighbourTable.h"
#include "sdk/doctor/FileTree.h"
#include "sdk/gvcp/InterfaceAddresses.h"

#include <optional>
#include <string>
#include <vector>

/// An Ethernet interface of this machine.
struct NetworkLink
{
    std::string name;
    bool isUp = false;
    bool hasCarrier = false; ///< True if a cable is plugged in and the other end is switched on.
    std::int64_t mtu = 0; ///< Bytes.
    std::optional<std::int64_t> speed; ///< Mbit/s.
};

/// What the checks of the network look at.
struct Machine
{
    FileTree files;
    std::vector<NetworkLink> links; ///< Without wireless and virtual ones.
    std::vector<InterfaceAddress> addresses;
    std::vector<Neighbour> neighbours;
    std::vector<CameraAddress> cameras; ///< All GigE cameras that have answered, each of them once.

    /// Returns true if a GigE camera has answered at a network interface other than lo.
    bool hasNetworkCamera() const;
    bool hasCameraAt(const std::string &networkInterface) const;
};

/// Returns the Ethernet interfaces. Leaves out wireless and virtual interfaces and the members of bridges.
std::vector<NetworkLink> readNetworkLinks(const FileTree &files);

/// Reads everything, which takes two seconds, because cameras may answer late. Throws std::system_error if
/// the system does not permit to search cameras.
Machine readMachine(const FileTree &files);
